#include "booking/autobooker.h"

#include <algorithm>

#include "booking/autoplan.h"

namespace grapplemont {

namespace {

// What cannot wait comes first, so that the people it needs are still free; what only fills rows
// comes last.
constexpr void (*kSteps[])(AutoPlan&) = {EndFeuds,     DefendTitles,       AdvanceFeuds,
                                         TurnWhoWaits, IntroduceNewcomers, BookTeams,
                                         BookCrowds,   FillMatches};

int Booked(const AutoPlan& plan, bool matchesOnly) {
  const bool dark = plan.View.IsEvent;
  int count = static_cast<int>(plan.Matches.size() + (matchesOnly ? 0 : plan.Talks.size()));
  for (std::size_t row = dark ? 1 : 0; row < plan.Rows.size(); ++row)
    count += matchesOnly ? plan.Rows[row].Kind == kMatch : plan.Rows[row].Kind != kEmptySegment;
  return count;
}

/// Deeper and deeper into the roster, until the show has the matches that it cannot start without.
void ReachForMatches(AutoPlan& plan, int matches) {
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
  plan.MatchesWanted = static_cast<int>(plan.Matches.size()) + plan.RowsLeft();
  FillMatches(plan);
  plan.TalksWanted = static_cast<int>(plan.Talks.size()) + plan.RowsLeft();
  FillTalks(plan);
}

}  // namespace

AutoCard AutoBook(World& world, bool isEvent, int openRows) {
  AutoPlan plan(world, {isEvent, "All"}, openRows);
  for (const auto step : kSteps) step(plan);
  ReachForMatches(plan, plan.LeastMatches - Booked(plan, true));
  FillTalks(plan);
  ShareRows(plan);
  ReachForMatches(plan, plan.LeastSegments - Booked(plan, false));
  PlaceOnRows(plan);
  return {plan.Rows, WhatIsMissing(plan)};
}

}  // namespace grapplemont
