#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Tag Teams: how two become one, how a team is changed and given up.

namespace grapplemont {

/// The record numbers of the teams whose members both work for the player, in the order of the
/// file.
std::vector<int> PlayerTeams(const World& world);

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
/// Its record goes; those behind it move up.
void DissolveTeam(World& world, int number);

}  // namespace grapplemont
