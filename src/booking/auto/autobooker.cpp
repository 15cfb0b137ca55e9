#include "booking/auto/autobooker.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "booking/auto/autoplan.h"
#include "records/segments.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

// What cannot wait comes first, so that the people it needs are still free; what only fills rows
// comes last.
struct StepRow {
  void (*Does)(AutoPlan&);
  std::string_view Because;
};
constexpr StepRow kSteps[] = {
    {EndFeuds, "The feud has had its time: this ends it."},
    {DefendTitles, "The Title is due to be fought for."},
    {AdvanceFeuds, "A feud that runs gets its part of every show."},
    {TurnWhoWaits, "A turn has been prepared, and the fans would believe it by now."},
    {IntroduceNewcomers, "Somebody waits to be seen for the first time."},
    {BookTeams, "Two teams who are rested."},
    {BookCrowds, "A match of more than two sides, for a change."},
    {FillMatches, "Rested, close enough for a contest, and good against each other."},
};
constexpr std::string_view kNeeded = "The show could not start with fewer.";
constexpr std::string_view kTalkBetween = "Talk between the matches, by those who can.";

/// Deeper and deeper into the roster, until the show has the matches that it cannot start without.
void ReachForMatches(AutoPlan& plan, int matches) {
  plan.Because = kNeeded;
  for (int depth = 1; depth <= kDeepest && matches > 0 && plan.RowsLeft() > 0; ++depth) {
    plan.Pool.Reach(kReserves[depth]);
    const auto before = static_cast<int>(plan.Matches.size());
    plan.MatchesWanted = before + std::min(matches, plan.RowsLeft());
    FillMatches(plan);
    matches -= static_cast<int>(plan.Matches.size()) - before;
  }
}

/// What the one kind could not fill, the other may.
void ShareRows(AutoPlan& plan) {
  plan.Pool.Reach(kReserves[0]);
  plan.Because = std::end(kSteps)[-1].Because;
  plan.MatchesWanted = static_cast<int>(plan.Matches.size()) + plan.RowsLeft();
  FillMatches(plan);
  plan.Because = kTalkBetween;
  plan.TalksWanted = static_cast<int>(plan.Talks.size()) + plan.RowsLeft();
  FillTalks(plan);
}

std::string Count(int number, const char* one, const char* many) {
  constexpr std::array kWords = {"No",   "One", "Two",   "Three", "Four",
                                 "Five", "Six", "Seven", "Eight", "Nine"};
  return std::string(kWords[static_cast<std::size_t>(std::clamp(number, 0, 9))]) + " more " +
         (number == 1 ? one : many);
}

std::string WhyNoMatch(const AutoPlan& plan) {
  return plan.Pool.Wrestlers().size() < 2 ? "the roster has nobody left who is fit."
                                          : "nobody is left on the roster who would make one.";
}

std::string WhyNoTalk(const AutoPlan& plan) {
  return plan.MayUseAngles ? "nobody is left for them."
                           : "nobody is left who can speak, and angles need more writers.";
}

}  // namespace

AutoCard AutoBook(World& world, bool isEvent, int openRows) {
  AutoPlan plan(world, {isEvent, "All"}, openRows);
  for (const StepRow& step : kSteps) {
    plan.Because = step.Because;
    step.Does(plan);
  }
  ReachForMatches(plan, plan.LeastMatches - Booked(plan, kMatch));
  plan.Because = kTalkBetween;
  FillTalks(plan);
  ShareRows(plan);
  ReachForMatches(plan, plan.LeastSegments - Booked(plan));
  PlaceOnRows(plan);
  return {plan.Rows, plan.Reasons, WhatIsMissing(plan)};
}

// What is still missing then.

std::vector<std::string> WhatIsMissing(const AutoPlan& plan) {
  std::vector<std::string> missing;
  const int booked = RowsOf(plan);
  const bool full = booked >= static_cast<int>(plan.Rows.size()) - (plan.View.IsEvent ? 1 : 0);
  const auto tell = [&](const std::string& what, const std::string& why) {
    missing.push_back(what + ": " + (full ? "no row is left." : why));
  };
  const int matches = std::max(0, plan.LeastMatches - RowsOf(plan, kMatch));
  if (matches > 0) tell(Count(matches, "match", "matches"), WhyNoMatch(plan));
  const int segments = plan.LeastSegments - booked - matches;
  if (segments > 0) tell(Count(segments, "segment", "segments"), WhyNoTalk(plan));
  return missing;
}

}  // namespace grapplemont
