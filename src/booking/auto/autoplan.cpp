#include "booking/auto/autoplan.h"

#include <algorithm>
#include <iterator>

#include "booking/auto/autobooker.h"
#include "booking/wizard/interviews.h"
#include "booking/wizard/objections.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/roster.h"
#include "booking/wizard/segmentcheck.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modWresCheck.h"
#include "show/matchscore.h"
#include "storylines/feuds.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

template <class Takes>
std::vector<const Worker*> HandsWho(const std::vector<Hand>& hands, Takes takes) {
  std::vector<const Worker*> found;
  for (const Hand& hand : hands)
    if (takes(hand)) found.push_back(hand.Who);
  return found;
}

/// A television sheet of any other length counts as the shortest.
const SheetTerms& TermsOfRows(bool isEvent, int rows) {
  if (isEvent) return kEventTerms;
  const auto found = std::find_if(std::begin(kTvTerms), std::end(kTvTerms),
                                  [&](const SheetTerms& terms) { return terms.OpenRows == rows; });
  return found == std::end(kTvTerms) ? std::end(kTvTerms)[-1] : *found;
}

std::vector<Segment> SheetOf(const World& world, int openRows) {
  std::vector<Segment> rows(static_cast<std::size_t>(openRows), EmptySegment());
  for (int row = 1; row <= std::min(openRows, world.Segments().Count()); ++row)
    rows[static_cast<std::size_t>(row - 1)] = world.Segments()[row];
  return rows;
}

void CountIn(AutoPlan& plan, const Segment& segment) {
  plan.Pool.Count(segment);
  if (segment.TitleName != "None") plan.TitlesUsed.insert(segment.TitleName.Str());
  if (segment.Kind == kAngle) plan.AnglesUsed.insert(segment.Style);
  int slot = 0;
  for (const Feud& feud : plan.World.Feuds())
    if (++slot; EnemiesMeet(feud, PeopleOf(segment))) plan.FeudsUsed.insert(slot);
}

constexpr int kTopTitle = 1000;  // outweighs whatever stands beside it on an Event

int WeightOf(const AutoPlan& plan, const Segment& match) {
  int weight = ExpectedCrowd(plan.World, match);
  for (const Feud& feud : plan.World.Feuds())
    if (EnemiesMeet(feud, PeopleOf(match))) weight += feud.Heat / 12;
  for (const Title& title : plan.World.Titles())
    if (IsPlayers(plan.World, title) && title.Name == match.TitleName) weight += title.Image / 10;
  const std::vector<const Title*> titles = ActiveTitles(plan.World);
  const bool crowns = !titles.empty() && match.TitleName == titles[0]->Name;
  return weight + (crowns && plan.View.IsEvent ? kTopTitle : 0);
}

}  // namespace

AutoPool::AutoPool(const World& world, const BookingView& view) {
  for (const Worker& worker : world.Workers())
    if (IsAvailable(world, worker, view) && IsSeenOnShows(worker)) hands_.push_back({&worker});
  std::stable_sort(hands_.begin(), hands_.end(),
                   [](const Hand& a, const Hand& b) { return a.Who->Over > b.Who->Over; });
}

const Hand& AutoPool::Find(int uid) const {
  static constexpr Hand kNobody;
  const auto found = std::find_if(hands_.begin(), hands_.end(),
                                  [&](const Hand& hand) { return hand.Who->Uid == uid; });
  return found == hands_.end() ? kNobody : *found;
}

void AutoPool::Count(const Segment& segment) {
  const std::vector<int> people = EverybodyOf(segment);
  for (Hand& hand : hands_) {
    const auto parts = std::count(people.begin(), people.end(), int(hand.Who->Uid));
    hand.Parts += static_cast<int>(parts);
    if (segment.Kind == kMatch) hand.Matches += static_cast<int>(parts);
  }
}

void AutoPool::Rest(int uid) {
  for (Hand& hand : hands_) hand.Matches += hand.Who->Uid == uid;
}

bool AutoPool::MayWrestle(const Hand& hand) const {
  return hand.Who && IsOnRoster(*hand.Who) && hand.Parts < kMostParts &&
         hand.Matches < reserve_.Matches && hand.Who->Condition >= reserve_.Condition;
}

bool AutoPool::MayWrestle(const std::vector<int>& uids) const {
  return std::all_of(uids.begin(), uids.end(), [&](int uid) { return MayWrestle(uid); });
}

bool AutoPool::MayAppear(int uid) const {
  const Hand& hand = Find(uid);
  return hand.Who && hand.Parts < kMostParts;
}

bool AutoPool::MayAppear(const std::vector<int>& uids) const {
  return std::all_of(uids.begin(), uids.end(), [&](int uid) { return MayAppear(uid); });
}

std::vector<const Worker*> AutoPool::Wrestlers() const {
  return HandsWho(hands_, [&](const Hand& hand) {
    return MayWrestle(hand) && (hand.Who->Debuted || reserve_.Newcomers);
  });
}

std::vector<const Worker*> AutoPool::People() const {
  return HandsWho(hands_, [](const Hand& hand) { return hand.Parts < kMostParts; });
}

std::vector<const Worker*> AutoPool::Newcomers() const {
  return HandsWho(hands_, [&](const Hand& hand) { return MayWrestle(hand) && !hand.Who->Debuted; });
}

AutoPlan::AutoPlan(grapplemont::World& world, const BookingView& view, int openRows)
    : World(world),
      View(view),
      Pool(world, view),
      MayUseAngles(EnoughWriters(world, view.IsEvent)),
      Rows(SheetOf(world, openRows)),
      Reasons(Rows.size()) {
  const SheetTerms& terms = TermsOfRows(view.IsEvent, openRows);
  LeastMatches = terms.MinMatches;
  LeastSegments = terms.MinSegments;
  int matches = 0;
  for (const Segment& row : Rows) {
    matches += row.Kind == kMatch;
    if (row.Kind != kEmptySegment) CountIn(*this, row);
  }
  MatchesWanted = TalksWanted = 0;
  const int empty = RowsLeft();
  MatchesWanted = std::clamp(terms.BestMatches - matches, 0, empty);
  TalksWanted = empty - MatchesWanted;
}

int AutoPlan::RowsLeft() const {
  const auto empty = std::count_if(Rows.begin(), Rows.end(),
                                   [](const Segment& row) { return row.Kind == kEmptySegment; });
  return static_cast<int>(empty) - static_cast<int>(Matches.size() + Talks.size());
}

Segment NewSegment(int kind, int style, const std::vector<int>& people) {
  Segment segment = EmptySegment();
  segment.Kind = kind;
  segment.Style = style;
  for (std::size_t i = 0; i < people.size(); ++i) segment.Worker[i] = people[i];
  return segment;
}

bool Chance(World& world, int percent) {
  return world.RandomDraw(100) <= percent;
}

bool Stands(const AutoPlan& plan, const Segment& segment) {
  return RefusalsOf(plan.World, segment).empty() &&
         WhyNotBookable(plan.World, segment, plan.View).empty() &&
         GrievancesOf(plan.World, segment).empty();
}

namespace {

/// "Sunny Vale (Over 76, condition 100)"; of a team its name.
std::string SideWithFigures(const World& world, const std::vector<int>& side, bool talks) {
  const Worker* worker = side.size() == 1 ? world.FindWorker(side.front()) : nullptr;
  if (!worker) return SideText(world, side);
  return worker->Name + " (Over " + std::to_string(worker->Over) +
         (talks ? ", charisma " + std::to_string(worker->Charisma)
                : ", condition " + std::to_string(worker->Condition)) +
         ")";
}

int HottestHeat(const World& world, const Segment& segment) {
  const std::vector<int> people = EverybodyOf(segment);
  int hottest = 0;
  for (const Feud& feud : world.Feuds())
    if (EnemiesMeet(feud, people)) hottest = std::max<int>(hottest, feud.Heat);
  return hottest;
}

/// Whom it is about, what speaks for them, and the rule that put it on the card.
std::string ReasonFor(const AutoPlan& plan, const Segment& segment) {
  const bool talks = segment.Kind != kMatch;
  std::vector<std::string> sides;
  if (!talks && segment.Style != kSpecial)
    for (const auto& side : SidesOf(segment))
      sides.push_back(SideWithFigures(plan.World, side, talks));
  const std::vector<int> people = PeopleOf(segment);
  const std::vector<int> speakers = segment.Kind == kInterview ? SpeakersOf(segment) : people;
  if (talks)
    for (const int uid : speakers)
      if (uid != 0 && sides.size() < 2) sides.push_back(SideWithFigures(plan.World, {uid}, talks));
  std::string text = Joined(sides, talks ? " and " : " against ");
  if (talks)
    for (const int uid : people)
      if (std::ranges::count(speakers, uid) == 0) text += ", about " + WorkerName(plan.World, uid);
  if (!talks && segment.TitleName != "None") text += " for the " + segment.TitleName.Str();
  if (const int heat = HottestHeat(plan.World, segment); heat > 0)
    text += ", in a feud with a heat of " + std::to_string(heat);
  return text.empty() ? plan.Because : text + ". " + plan.Because;
}

}  // namespace

void PlanMatch(AutoPlan& plan, const Segment& match) {
  plan.Matches.push_back({match, WeightOf(plan, match), ReasonFor(plan, match)});
  CountIn(plan, match);
}

namespace {

/// Whether the house lets everybody talk once and somebody would a second time.
bool SpeaksAgain(const AutoPlan& plan, const Segment& talk) {
  if (talk.Kind != kInterview || !Holds(plan.World, HouseRule::OneTalk)) return false;
  const std::vector<int> speakers = SpeakersOf(talk);
  return IsOnCard(plan, [&](const Segment& other) {
    return other.Kind == kInterview && std::ranges::any_of(SpeakersOf(other), [&](int uid) {
             return uid != 0 && std::ranges::count(speakers, uid) > 0;
           });
  });
}

}  // namespace

bool PlanTalk(AutoPlan& plan, const Segment& talk, int weight) {
  if (!Stands(plan, talk) || SpeaksAgain(plan, talk)) return false;
  plan.Talks.push_back({talk, weight, ReasonFor(plan, talk)});
  CountIn(plan, talk);
  return true;
}

std::vector<const Title*> ActiveTitles(const World& world) {
  std::vector<std::pair<int, const Title*>> titles;
  for (const Title& title : world.Titles())
    if (IsPlayers(world, title) && !title.Suspended) titles.emplace_back(title.Image, &title);
  return BestOf(std::move(titles));
}

int ExpectedCrowd(const World& world, const Segment& match) {
  const std::vector<int> people = PeopleOf(match);
  int draw = 0, work = 0;
  for (const int uid : people)
    if (const Worker* worker = world.FindWorker(uid)) {
      draw += DrawRating(*worker);
      work += WorkRating(*worker);
    }
  const int count = std::max(1, static_cast<int>(people.size()));
  return (draw * 4 + work) / (5 * count);
}

}  // namespace grapplemont
