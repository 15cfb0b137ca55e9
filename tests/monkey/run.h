#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "monkey/sitting.h"
#include "monkey/steps.h"

namespace grapplemont::test {

/// One seed's run: so many steps in a home.
struct Run {
  std::uint64_t Seed;
  int Clicks;
  Limits Held;
};
/// The game's own chance in every run; that of what is clicked is the run's seed.
inline constexpr std::uint64_t kGameSeed = 11;

/// Clicks, writes each step, then what it came to, or the fault that it met.
void Play(const Run& run, const CutDisk& home, Paper& paper);

/// Does the steps again, as far as they can be done: what cannot be is left out. An answer that is
/// not there is the one that is offered.
void PlayAgain(const std::vector<Step>& steps, const CutDisk& home, const Limits& limits,
               Paper& paper);

/// The fewest steps found, by leaving out ever smaller parts, that end in a fault of the same kind.
/// `tries` is how many runs that may take. Empty when it does not come again.
std::vector<Step> CutDown(const Record& failed, const CutDisk& home, const Limits& limits,
                          int tries);

}  // namespace grapplemont::test
