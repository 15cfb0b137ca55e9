#pragma once

#include "records/world.h"

// What a show's sum of ratings loses by poor commentary and poor production, by the promotion's
// size.

namespace grapplemont {

/// The sum with the primary announcer's charge taken off. With nobody at the table it becomes -1 if
/// it stood at exactly 100, else 0.
int WithAnnouncer(const World& world, int announcer, int sum);
/// The same for the colour commentator, by a worker's charisma or a staff member's talent; with
/// nobody it becomes -1 if it stood at exactly 40, else 0. A worker who cannot speak costs 100
/// more.
int WithColour(const World& world, int colour, bool isWorker, int sum);
/// What poor production takes off at the close: 0 or below.
int ProductionCharge(const Promotion& promotion);

}  // namespace grapplemont
