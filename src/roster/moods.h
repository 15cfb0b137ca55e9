#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// How people have stood month by month, and what has moved the morale of the player's.

namespace grapplemont {

/// On the first of a month keeps how everybody stands, over the same month of the year before.
void NoteMonths(World& world);

/// How a worker stood on one of the last firsts of a month, or stands today.
struct MonthMark {
  std::string Month;  // "Mar", "Today"
  int Over = 0, Morale = 0, Condition = 0;
};
/// The firsts of the last twelve months as far as they are kept, then today.
std::vector<MonthMark> MarksOf(const World& world, const Worker& worker);

/// Moves somebody's morale; of the player's people, what moved it is kept.
void MoveMorale(World& world, Worker& worker, int change, MoodReason why);

/// What one reason adds up to.
struct MoodStep {
  int Change = 0;
  std::string Why;  // "won, three times"
  friend bool operator==(const MoodStep&, const MoodStep&) = default;
};
/// Where the present morale comes from: `Before` and all steps add up to it.
struct MoodStory {
  Day Since{};  // the first change that is told; kDayZero for a story without steps
  int Before = 0;
  std::vector<MoodStep> Steps;
};
/// Of this month and the one before.
MoodStory MoodStoryOf(const World& world, const Worker& worker);

}  // namespace grapplemont
