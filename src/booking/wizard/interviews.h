#pragma once

#include <string>
#include <vector>

#include "booking/wizard/roster.h"
#include "show/turncalls.h"

// Interviews: who speaks, about whom, what for.

namespace grapplemont {

/// Where the people of an interview style stand in Segment.Worker; places count from 1.
struct TalkShape {
  int Style;
  int Manager;  // 0: the style has none
  int FirstWorker, Workers;
  int FirstTarget, Targets;
};
/// nullptr for a code that is no interview style.
const TalkShape* FindTalkShape(int style);

/// The uids at so many places of Segment.Worker, empty ones as 0.
std::vector<int> WorkersAt(const Segment& segment, int firstPlace, int places);

/// Managers who can speak for somebody.
std::vector<const Worker*> TalkingManagers(const World& world, const BookingView& view);
/// Whom the interview may be about: everybody who may be booked but its own speakers.
std::vector<const Worker*> TalkTargets(const World& world, const Segment& interview,
                                       const BookingView& view);

/// What stands against these speakers, against these targets; empty for nothing.
std::string WhyNotSpeakers(const World& world, const Segment& interview);
std::string WhyNotTargets(const Segment& interview);

/// Who would turn with the purpose "Turn", and on whom.
std::vector<TurnCall> TalkTurns(const World& world, const Segment& interview);
/// The purposes that such an interview may have, in the order of the list. Without a target there
/// is nobody to attack, to hype a match with or to turn on.
std::vector<int> OfferedTalkPurposes(const World& world, const Segment& interview);

}  // namespace grapplemont
