#pragma once

#include "records/world.h"

// Feuds as a show sees them. In a singles feud the two enemies are the sides; in a tag feud each
// side has two.

namespace grapplemont {

/// Whether two are enemies in this feud. False for nobody.
bool AreEnemies(const Feud& feud, int workerX, int workerY);
/// The side of a feud this worker stands on: 1, 2, or 0 for none.
int FeudSideOf(const Feud& feud, int uid);
/// The slot from 1 of the first feud in which the two are enemies; 0 for none.
int FeudSlotOf(const World& world, int workerX, int workerY);
/// Marks every feud in which the two are enemies as used by the show.
void MarkFeud(World& world, ShowRun& show, int workerX, int workerY);

}  // namespace grapplemont
