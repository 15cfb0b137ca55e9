#pragma once

#include "records/world.h"

// How those who work for rivals, or for nobody, learn, peak and fade, and what the crowds of shows
// that nobody sees think of them. The player's own people go by the other rules alone.

namespace grapplemont {

/// What somebody was born with. Nobody sees it; it comes out the same whenever it is asked for.
struct Gift {
  int Ceiling = 0;      // the best skill that practice brings
  int BloomsAt = 0;     // age from which they learn fast; 0 for from the first day
  int LearnsUntil = 0;  // age
  int FadesLate = 0;    // years that they fade later than their style does
  int Star = 0;         // what crowds see in them beyond what they can do
};
Gift GiftOf(const World& world, const Worker& worker);
/// The age at which the body starts to fail: high flyers' first, technicians' last.
int FadesFrom(const Worker& worker, const Gift& gift);
/// A quarter's practice of somebody who still learns, or a quarter's wear of who fades. Draws from
/// the world's life.
void Practise(World& world, Worker& worker, const Gift& gift);

/// The Over that skill, charisma, looks, place on the card and the class of the employer deserve.
int DeservedOver(const World& world, const Worker& worker, const Gift& gift);
/// A month's drift towards it, with chance; never under OverFloor.
void DriftOver(World& world, Worker& worker, int deserved);

/// A month's chance of an injury for somebody fit on a rival's card; a long one may leave a mark.
void RiskInjury(World& world, Worker& worker);
/// Somebody comes back next month: hungry, as before, or not quite what they were.
void ComeBack(World& world, Worker& worker);
/// Now and then somebody changes sides.
void ChangeSides(World& world, Worker& worker);

}  // namespace grapplemont
