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

constexpr std::string_view kHeaviest =
    " Of the matches proposed it promises most, with its feud and its Title: it comes last.";

constexpr std::size_t kDarkMatch = 0;  // the first row of an Event

/// Rows that count for what the show needs.
int RowsOf(const AutoPlan& plan, int kind = kEmptySegment) {
  int count = 0;
  for (std::size_t row = 0; row < plan.Rows.size(); ++row) {
    if (plan.View.IsEvent && row == kDarkMatch) continue;
    const int found = plan.Rows[row].Kind;
    count += kind == kEmptySegment ? found != kEmptySegment : found == kind;
  }
  return count;
}

/// And what waits for its row with them.
int Booked(const AutoPlan& plan, int kind = kEmptySegment) {
  const std::size_t talks = kind == kMatch ? 0 : plan.Talks.size();
  return RowsOf(plan, kind) + static_cast<int>(plan.Matches.size() + talks);
}

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

/// The dark match is left out when the show proper needs everything there is.
bool WantsDarkMatch(const AutoPlan& plan) {
  if (!plan.View.IsEvent || plan.Matches.empty() || plan.Rows[kDarkMatch].Kind != kEmptySegment)
    return false;
  if (plan.RowsLeft() == 0 && plan.Talks.empty()) return true;
  return Booked(plan, kMatch) - 1 >= plan.LeastMatches && Booked(plan) - 1 >= plan.LeastSegments;
}

/// Nothing that matters happens before the show proper, if it can be helped.
void PlaceDarkMatch(AutoPlan& plan) {
  auto dark = std::find_if(plan.Matches.begin(), plan.Matches.end(), [](const Planned& planned) {
    const Segment& match = planned.Segment;
    const bool feud = match.Style <= kTag && (match.Purpose == purpose1::kEndFeud ||
                                              match.Purpose == purpose1::kContinueFeud);
    return match.TitleName == "None" && !feud;
  });
  if (dark == plan.Matches.end()) dark = plan.Matches.begin();
  plan.Rows[kDarkMatch] = dark->Segment;
  plan.Reasons[kDarkMatch] = dark->Because;
  plan.Matches.erase(dark);
}

/// Without a dark match its row stays empty, and there may be one Segment too many: the last of the
/// talk.
void DropWhatHasNoRow(AutoPlan& plan) {
  if (!plan.View.IsEvent || plan.Talks.empty() || plan.RowsLeft() > 0) return;
  if (plan.Rows[kDarkMatch].Kind == kEmptySegment) plan.Talks.pop_back();
}

/// Which of `count` places are talk: spread out, never the last. A show opens with talk when it has
/// much of it, an Event with a match.
std::vector<bool> TalkPlaces(int count, int talks, bool isEvent) {
  std::vector<bool> places(static_cast<std::size_t>(count), false);
  const bool opens = !isEvent && talks > 1;
  for (int talk = 0; talk < talks; ++talk) {
    int at = opens ? talk * (count - 1) / talks : (talk + 1) * (count - 1) / (talks + 1);
    while (at < count && places[static_cast<std::size_t>(at)]) ++at;
    if (at == count)
      at = static_cast<int>(std::find(places.begin(), places.end(), false) - places.begin());
    places[static_cast<std::size_t>(at)] = true;
  }
  return places;
}

bool ShareSomebody(const Segment& one, const Segment& other) {
  if (one.Kind == kEmptySegment || other.Kind == kEmptySegment) return false;
  const std::vector<int> people = EverybodyOf(one);
  return std::ranges::any_of(
      EverybodyOf(other), [&](int uid) { return std::ranges::find(people, uid) != people.end(); });
}

/// Brings to the front of the talk that is left what nobody in the rows beside it is part of.
void ChooseTalk(std::vector<Planned>::iterator front, std::vector<Planned>::iterator end,
                const std::vector<const Segment*>& beside) {
  const auto chosen = std::find_if(front, end, [&](const Planned& talk) {
    return std::ranges::none_of(
        beside, [&](const Segment* row) { return ShareSomebody(talk.Segment, *row); });
  });
  if (chosen != end) std::rotate(front, chosen, chosen + 1);
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

// Which row everything gets, and what is still missing then.

void PlaceOnRows(AutoPlan& plan) {
  std::ranges::stable_sort(plan.Matches, {}, &Planned::Weight);
  std::ranges::stable_sort(plan.Talks, {}, &Planned::Weight);
  if (plan.Matches.size() > 1) plan.Matches.back().Because += kHeaviest;
  const bool dark = WantsDarkMatch(plan);
  if (dark)
    PlaceDarkMatch(plan);
  else
    DropWhatHasNoRow(plan);
  const auto count = plan.Matches.size() + plan.Talks.size();
  const std::vector<bool> isTalk =
      TalkPlaces(static_cast<int>(count), static_cast<int>(plan.Talks.size()), plan.View.IsEvent);
  std::size_t place = 0, match = 0, talk = 0;
  for (std::size_t row = plan.View.IsEvent ? 1 : 0; row < plan.Rows.size(); ++row) {
    if (plan.Rows[row].Kind != kEmptySegment || place == count) continue;
    if (isTalk[place]) {
      std::vector<const Segment*> beside;
      if (row > 0) beside.push_back(&plan.Rows[row - 1]);
      if (row + 1 < plan.Rows.size()) beside.push_back(&plan.Rows[row + 1]);
      if (match < plan.Matches.size()) beside.push_back(&plan.Matches[match].Segment);
      ChooseTalk(plan.Talks.begin() + static_cast<std::ptrdiff_t>(talk), plan.Talks.end(), beside);
    }
    const Planned& next = isTalk[place++] ? plan.Talks[talk++] : plan.Matches[match++];
    plan.Rows[row] = next.Segment;
    plan.Reasons[row] = next.Because;
  }
  plan.Matches.clear();
  plan.Talks.clear();
}

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
