#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Who stands together: Tag Teams, stables, managers and their clients; and who is about to turn.

namespace grapplemont {

// Tag Teams: how two become one, how a team is changed and given up.

/// Whether these two are the team, in either order.
bool IsTeamOf(const Team& team, int workerA, int workerB);
/// The partners of a worker in the teams of the file, in its order.
std::vector<int> PartnersOf(const World& world, int workerUid);
/// The teams whose members both work for the player, in the order of the file.
std::vector<const Team*> PlayerTeams(const World& world);

/// Why no team can have this name from now on; empty when one can.
std::string WhyNotTeamName(const World& world, std::string_view name);
/// Why this can be no team's finisher; empty when it can, and for no finisher at all.
std::string WhyNotFinisher(std::string_view finisher);
/// Why these two can be no new team; empty when they can.
std::string WhyNotTeam(const World& world, int workerA, int workerB);

/// Teams up two who have never worked together; gives the record's number. Requires that nothing
/// stands against name and pair.
int FormTeam(World& world, std::string_view name, int workerA, int workerB,
             std::string_view finisher);
/// "None" in the record for a team without one.
void SetTeamFinisher(Team& team, std::string_view finisher);

// Who belongs to a stable and who leads it; how one is founded, changed and given up.

/// A stable takes no more members than this.
inline constexpr int kFullStable = 10;

/// Everybody on the player's roster whose stable it is.
std::vector<const Worker*> StableMembers(const World& world, std::string_view stable);
/// Those of them who are fit.
std::vector<const Worker*> ActiveMembers(const World& world, std::string_view stable);
/// The player's stables, in the order of the file.
std::vector<const Stable*> PlayerStables(const World& world);

/// Why no stable can have this name from now on; empty when one can.
std::string WhyNotStableName(const World& world, std::string_view name);
/// Why no stable can be founded under this name; empty when one can.
std::string WhyNotFound(const World& world, std::string_view name);
/// Founds a stable of the player's. Requires that nothing stands against it.
void FoundStable(World& world, std::string_view name);
/// Its members go with the new name, and so does what is booked for it and not held yet. Requires a
/// name that can be had.
void RenameStable(World& world, std::string_view from, std::string_view to);
/// How many Segments are booked for a stable and have not been held yet.
int BookedFor(const World& world, std::string_view stable);
/// Its members are in none then, and what is booked for it is taken off the sheet.
void DissolveStable(World& world, std::string_view stable);

/// Whether they belong to any stable.
bool IsInStable(const Worker& worker);
/// Why the worker cannot join; empty when they can.
std::string WhyNotJoin(const World& world, std::string_view stable, const Worker& worker);

/// The most popular active member, the lower uid where two are alike; nullptr for none.
const Worker* StableLeader(const World& world, std::string_view stable);

// Who stands in whose corner.

/// The player's managers, and their wrestlers who may have one; the most popular first.
std::vector<const Worker*> Managers(const World& world);
std::vector<const Worker*> Clients(const World& world);
/// The manager who works for the player and manages this worker; nullptr for none.
const Worker* ManagerOf(const World& world, const Worker& client);
/// Everybody whom they manage.
std::vector<const Worker*> ClientsOf(const World& world, const Worker& manager);

/// Why they cannot be given to the client; empty when they can.
std::string WhyNotManage(const Worker& manager, const Worker& client);

// Turns in preparation. A booking that turns somebody only works once their turn has been prepared.

/// Days since their last turn; -1 when they have never turned.
int DaysSinceTurn(const World& world, const Worker& worker);
/// What the fans would make of a turn so soon after the last.
std::string TurnAdvice(const World& world, const Worker& worker);

}  // namespace grapplemont
