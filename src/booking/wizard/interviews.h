#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"
#include "show/turns.h"

// Interviews: who speaks, about whom, what for.

namespace grapplemont {

/// The uids of those who are to speak in it, the manager behind them; 0 for an empty seat.
std::vector<int> SpeakersOf(const Segment& interview);
bool ManagesAll(const World& world, int manager, const std::vector<int>& workers);
/// What stands against these speakers, against these targets; empty for nothing.
std::string WhyNotSpeakers(const World& world, const Segment& interview);
std::string WhyNotTargets(const Segment& interview);

/// Who would turn with the purpose "Turn", and on whom.
std::vector<TurnCall> TalkTurns(const World& world, const Segment& interview);
/// The purposes that such an interview may have, in the order of the list. Without a target there
/// is nobody to attack, to hype a match with or to turn on.
std::vector<int> OfferedTalkPurposes(const World& world, const Segment& interview);

}  // namespace grapplemont
