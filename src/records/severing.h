#pragma once

#include <set>
#include <string_view>

#include "records/world.h"

namespace grapplemont {

/// The worker leaves their employer for any reason: contract, stable, manager, feuds, Titles and
/// commentary end. Their place in development or camp becomes the roster position that their Over
/// earns.
void SeverWorker(World& world, Worker& worker);
/// The member of staff leaves their employer for any reason: contract, camp, territory and the
/// announcer's chair of the player's shows.
void SeverStaff(World& world, Staff& staff);
/// The same for one who is fired, hired away or has served their time: no show anywhere keeps them,
/// neither as its announcer nor beside one.
void DismissStaff(World& world, Staff& staff);
/// Whatever else knows somebody who leaves the world for good loses them: teams end, clients are
/// without their manager, shows without their voice, the shortlist forgets them, and so do the
/// incidents of the day and what is booked with them; the past keeps their name alone. Requires
/// that they have no employer any more.
void ForgetWorker(World& world, const Worker& worker);

/// The roster position 2 to 6 that a worker out of development or camp gets from their Over.
int PositionFromOver(int over);
/// Ends a posting to development or camp: the roster position they came from, or the one they have
/// earned.
void EndPosting(Worker& worker);
/// The contract ends, and with it what came of it: stable, manager, a turn in preparation. Whoever
/// sat it out is fit and in good spirits again.
void EndContract(Worker& worker);
/// No promotion has them as its Commissioner any more.
void LeaveOffice(World& world, int workerUid);
/// Nobody has one of them as a manager any more. It looks at everybody: call it once for many.
void LoseClients(World& world, const std::set<int>& managerUids);
/// The player's shows lose them as their colour commentator.
void LeaveCommentary(World& world, int workerUid);
/// All shows lose them, as announcer and as colour commentator.
void LeaveMicrophones(World& world, const Worker& worker);
void LeaveMicrophones(World& world, const Staff& staff);
/// Takes all four participants out of every feud that names the worker.
void LeaveFeuds(World& world, int workerUid);
/// What a Title loses of its image when it falls vacant.
enum class TitleLoss { Twenty, ATenth };
inline constexpr int kImageOfStripped = 20;
/// Vacates the Title: no holder, less image, a new reign of "Vacant" from today.
void VacateTitle(World& world, Title& title, TitleLoss loss = TitleLoss::Twenty);
/// Every Title that they hold, alone or with a partner.
void VacateTitlesOf(World& world, int workerUid, TitleLoss loss = TitleLoss::Twenty);

// What removes the records of the gone. A Promotion or Show that has ceased to exist carries "To Be
// Deleted" as its name until the day's end.

/// Removes the first show of that name, and only that one. True if there was one.
bool RemoveShow(World& world, std::string_view name);
/// Removes every show marked as gone.
void SweepDeadShows(World& world);
/// Ends every Promotion marked as gone: its people go free, its shows are marked as gone, its
/// sponsors, Events, Titles and Stables lose their owner; then the file is compacted.
void SweepDeadPromotions(World& world);

}  // namespace grapplemont
