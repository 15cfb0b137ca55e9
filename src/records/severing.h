#pragma once

#include "records/world.h"

namespace grapplemont {

/// The worker leaves his employer for any reason: contract, stable, manager, feuds, Titles and
/// commentary end. His place in development or camp becomes the roster position that his Over
/// earns.
void SeverWorker(World& world, Worker& worker);
/// The member of staff leaves his employer for any reason.
void SeverStaff(World& world, Staff& staff);
/// Whatever else knows somebody who leaves the world for good loses him: teams end, clients are
/// without their manager, shows without their voice, the shortlist forgets him, and so do the
/// incidents of the day and what is booked with him; the past keeps his name alone. Requires that
/// he has no employer any more.
void ForgetWorker(World& world, int workerUid);
void ForgetStaff(World& world, int staffUid);
/// Everybody whom the promotion employs.
void SeverWorkersAndStaff(World& world, int promotionUid);

/// The roster position 2 to 6 that a worker out of development or camp gets from his Over.
int PositionFromOver(int over);
/// Ends a posting to development or camp: the roster position he came from, or the one he has
/// earned.
void EndPosting(Worker& worker);
/// The player's shows lose him as their colour commentator.
void LeaveCommentary(World& world, int workerUid);
/// Takes all four participants out of every feud that names the worker.
void LeaveFeuds(World& world, int workerUid);
/// Vacates the Title: no holder, 20 off its image, a new reign of "Vacant" from today.
void VacateTitle(World& world, Title& title);

}  // namespace grapplemont
