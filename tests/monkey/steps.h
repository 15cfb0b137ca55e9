#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace grapplemont::test {

/// One thing that the player does, as the console has it, and what they answer to the boxes that it
/// brings: "ok", "yes", "no", "enter TEXT", "cancel". Beside acts on controls there are "session"
/// and "killed" (the program ends in its order, or is killed, and is started again), "table NAME
/// SEED" (a table is arranged by chance) and "share FORM".
struct Step {
  std::string Line;
  std::vector<std::string> Answers = {};
};

// How steps are written on a paper, and a fault behind them.
inline constexpr std::string_view kStepMark = "s ", kAnswerMark = "a ", kFaultMark = "f ";
inline constexpr std::string_view kKindMark = "k ";  // of the fault, without names and numbers

/// What a run has written of itself.
struct Record {
  std::vector<Step> Steps;
  std::string Fault = {}, Kind = {};  // empty for none
  std::vector<std::string> Notes = {};
};
Record ReadRecord(std::string_view written, const std::string& died);

/// The steps as a test: `world` is the expression for the data that the home is made of, `seed` the
/// game's.
std::string AsTest(std::span<const Step> steps, const std::string& name, const std::string& world,
                   std::uint64_t seed);

}  // namespace grapplemont::test
