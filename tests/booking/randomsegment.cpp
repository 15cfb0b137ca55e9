#include "randomsegment.h"

#include "booking/wizard/casting.h"
#include "booking/wizard/matchrules.h"

namespace grapplemont::test {

namespace {

constexpr int kTries = 12;

template <class List>
const auto& OneOf(Dice& dice, const List& list) {
  return list[static_cast<std::size_t>(dice.From(0, static_cast<int>(std::size(list)) - 1))];
}

int Anybody(Dice& dice, const std::vector<const Worker*>& people) {
  return people.empty() ? 0 : int(OneOf(dice, people)->Uid);
}

void CastMatch(Dice& dice, std::vector<const Worker*> roster, Segment& match) {
  for (int place = 0; place < EntrantsOf(match) && !roster.empty(); ++place) {
    const auto chosen = roster.begin() + dice.From(0, static_cast<int>(roster.size()) - 1);
    match.Worker[static_cast<std::size_t>(place)] = int((*chosen)->Uid);
    roster.erase(chosen);
  }
}

void EndMatch(Dice& dice, Segment& match) {
  std::vector<int> people = ResultCandidates(match);
  for (auto left = people.begin(); left != people.end(); ++left)
    std::swap(*left, left[dice.From(0, static_cast<int>(people.end() - left) - 1)]);
  const bool isDraw = OffersDraw(match) && dice.OneIn(5);
  const int winner = isDraw || people.empty() ? 0 : people.front();
  std::vector<int> losers(people.begin() + !people.empty(), people.end());
  losers.resize(static_cast<std::size_t>(isDraw ? 0 : ResultFormOf(match).Losers));
  StoreResult(match, winner, losers);
}

void AddRunIns(const World& world, Dice& dice, const BookingView& view, Segment& match) {
  const auto runIns = RunInRoster(world, match, view);
  if (NeedsFinishRunIn(match.Style, match.Finish)) {
    match.Other1 = Anybody(dice, runIns);
    if (match.Style == kTag && dice.OneIn(2)) match.Other2 = Anybody(dice, runIns);
  }
  for (Word* field : AftermathRunIns(match)) *field = Anybody(dice, runIns);
}

Segment RandomMatch(const World& world, Dice& dice, const BookingView& view) {
  Segment match = EmptySegment();
  match.Kind = kMatch;
  match.Style = OneOf(dice, kMatchStyles).Code;
  const auto types = OfferedMatchTypes(world, match.Style);
  if (types.empty()) return match;
  match.MatchType = OneOf(dice, types)->Code;
  CastMatch(dice, EligibleRoster(world, view), match);
  const auto titles = OfferedTitles(world, match);
  if (!titles.empty() && dice.OneIn(2)) match.TitleName = OneOf(dice, titles)->Name.View();
  EndMatch(dice, match);
  if (const Phrases finishes = FinishesOf(match.Style); !finishes.empty())
    match.Finish = OneOf(dice, finishes).Code;
  if (const Phrases aftermaths = AftermathsOf(match.Style); !aftermaths.empty())
    match.Aftermath = OneOf(dice, aftermaths).Code;
  AddRunIns(world, dice, view, match);
  if (const Phrases purposes = PurposesOf(match.Style); !purposes.empty())
    match.Purpose = OneOf(dice, purposes).Code;
  return match;
}

Segment RandomInterview(const World& world, Dice& dice, const BookingView& view) {
  const InterviewStyleRow& style = OneOf(dice, kInterviewStyles);
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = style.Code;
  const auto speakers = WorkersFor(world, Casting::Talkers, talk, view),
             targets = EligibleRoster(world, view);
  const int targetCount = dice.OneIn(3) ? 0 : style.Targets;
  for (int place = 0; place < style.Speakers + targetCount; ++place)
    talk.Worker[static_cast<std::size_t>(place)] =
        Anybody(dice, place < style.Speakers ? speakers : targets);
  talk.Purpose = OneOf(dice, kInterviewPurposes).Code;
  return talk;
}

Segment RandomAngle(const World& world, Dice& dice, const BookingView& view) {
  Segment segment = EmptySegment();
  segment.Kind = kAngle;
  const auto offered = OfferedAngles(world);
  const Angle& angle = *OneOf(dice, offered);
  segment.Style = angle.Number;
  for (const Role& role : SeatsOf(segment)) {
    const auto candidates = CandidatesFor(world, role.From, segment, view);
    if (!candidates.empty()) Cast(segment, role, OneOf(dice, candidates));
  }
  return segment;
}

}  // namespace

std::optional<Segment> RandomSegment(const World& world, Dice& dice, const BookingView& view) {
  constexpr Segment (*kKinds[])(const World&, Dice&, const BookingView&) = {
      RandomMatch, RandomInterview, RandomAngle};
  const auto make = OneOf(dice, kKinds);
  for (int tries = 0; tries < kTries; ++tries) {
    const Segment segment = make(world, dice, view);
    if (WhyNotBookable(world, segment, view).empty()) return segment;
  }
  return std::nullopt;
}

}  // namespace grapplemont::test
