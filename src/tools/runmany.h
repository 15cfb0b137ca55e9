#pragma once

#include <cstdint>
#include <string>

#include "records/world.h"
#include "tools/officework.h"
#include "tools/soak.h"
#include "tools/tool.h"

namespace grapplemont::tools {

/// Copies of a game that go on with chance of their own.
struct RunPlan {
  int Worlds;
  int Days;
  std::uint64_t Seed;  // of the first; each has one more than the one before it
  Habits By;
  int Threads;
};

/// "After 30 days it is ..." or how the career ended, a line or two.
std::string EndText(const World& world, const CareerEnd& end);

/// Plays them as "run" would play the game itself with that seed, and prints a line for each: its
/// seed, the digest of its files at last, what became of it. 1 when one could not be played to the
/// end.
int RunMany(const World& start, const RunPlan& plan, StatsFile* stats, Shell& shell);

}  // namespace grapplemont::tools
