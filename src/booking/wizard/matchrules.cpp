#include "booking/wizard/matchrules.h"

#include <algorithm>
#include <set>

namespace grapplemont {

namespace {

bool HasTwice(const std::vector<int>& uids) {
  return std::set<int>(uids.begin(), uids.end()).size() != uids.size();
}

/// Every member of some side has left the match.
bool IsOneSideOut(const Segment& match) {
  const std::vector<int> out = LosersInOrder(match);
  const auto sides = SidesOf(match);
  return std::any_of(sides.begin(), sides.end(), [&](const std::vector<int>& side) {
    return std::all_of(side.begin(), side.end(), [&](int uid) {
      return std::find(out.begin(), out.end(), uid) != out.end();
    });
  });
}

std::string WhyNotPeople(const Segment& match) {
  if (!HasTwice(PeopleOf(match))) return {};
  return match.Style == kSingles ? "Workers cannot fight themselves!"
                                 : "You have selected the same worker twice!";
}

std::string WhyNotResult(const Segment& match) {
  if (match.Winner == 0) return {};
  const ResultForm& form = ResultFormOf(match);
  if (form.Losers == 0) return {};
  if (form.MayBeNone && match.Loser == 0)
    return "Sorry, the first elimination box MUST be filled in.";
  std::vector<int> named = LosersInOrder(match);
  named.push_back(match.Winner);
  if (HasTwice(named)) return std::string(form.Same);
  if (!form.Mates.empty() && SideOf(match, match.Winner) == SideOf(match, match.Loser))
    return std::string(form.Mates);
  if (form.MayBeNone && !IsOneSideOut(match)) return "One team must be totally eliminated!";
  return {};
}

std::string WhyNotFinish(const Segment& match) {
  if (!NeedsFinishRunIn(match.Style, match.Finish)) return {};
  if (match.Other1 == 0)
    return match.Style == kSingles
               ? "You must select someone to run in if you want interference"
               : "If you want interference, someone must be picked in the first inteference box";
  if (match.Other1 == match.Other2) return "You cannot select the same interfering person twice";
  return {};
}

std::string WhyNotAftermath(const Segment& match) {
  Segment copy = match;
  const std::vector<Word*> runIns = AftermathRunIns(copy);
  if (runIns.empty()) return {};
  if (*runIns[0] == 0) return "You must select someone to run in for this aftermath";
  if (runIns.size() > 1 && *runIns[0] == *runIns[1])
    return "You can't select the same person to run in twice!";
  return {};
}

}  // namespace

bool NeedsFinishRunIn(int style, int finish) {
  return (style == kSingles || style == kTag) &&
         (finish == kInterference || finish == kBotchedInterference || finish == kNoContest ||
          finish == kDqThroughInterference);
}

std::vector<int> FinishRunIns(const Segment& segment) {
  std::vector<int> uids;
  if (!NeedsFinishRunIn(segment.Style, segment.Finish)) return uids;
  if (segment.Other1 != 0) uids.push_back(segment.Other1);
  // In a singles match the second field is that of a saver.
  if (segment.Style == kTag && segment.Other2 != 0) uids.push_back(segment.Other2);
  return uids;
}

bool NeedsAftermathRunIn(int style, int aftermath) {
  if (style == kSingles)
    return aftermath == after1::kRunInOnFirst || aftermath == after1::kRunInOnSecond ||
           aftermath == after1::kRunInOnBoth || aftermath == after1::kSave ||
           aftermath == after1::kFailedSave;
  return style == kTag && aftermath >= after2::kSave && aftermath != after2::kBrawlToTheBack;
}

std::vector<Word*> AftermathRunIns(Segment& segment) {
  if (!NeedsAftermathRunIn(segment.Style, segment.Aftermath)) return {};
  if (segment.Style == kTag) return {&segment.Other3, &segment.Other4};
  const bool saves = segment.Aftermath == after1::kSave || segment.Aftermath == after1::kFailedSave;
  return {saves ? &segment.Other2 : &segment.Other1};
}

std::vector<int> AftermathRunIns(const Segment& segment) {
  Segment copy = segment;
  std::vector<int> uids;
  for (const Word* field : AftermathRunIns(copy))
    if (*field != 0) uids.push_back(*field);
  return uids;
}

Segment BeforeAftermath(const Segment& match) {
  Segment before = match;
  for (Word* field : AftermathRunIns(before)) *field = 0;
  before.Aftermath = 0;
  return before;
}

bool OffersDraw(const Segment& match) {
  const MatchStyleRow* style = FindMatchStyle(match.Style);
  return style && style->Sides == 2 && match.MatchType == kPlainSingles;
}

std::vector<int> ResultCandidates(const Segment& match) {
  if (!ResultFormOf(match).Teams) return PeopleOf(match);
  std::vector<int> heads;
  for (const auto& side : SidesOf(match)) heads.push_back(side.front());
  return heads;
}

std::vector<Word*> LoserFields(Segment& match) {
  return {&match.Loser,  &match.Place3, &match.Place4, &match.Place5,
          &match.Place6, &match.Place7, &match.Place8};
}

std::vector<int> NamedLosers(const Segment& match) {
  Segment copy = match;
  std::vector<int> uids;
  for (const Word* field : LoserFields(copy))
    if (*field != 0) uids.push_back(*field);
  return uids;
}

std::vector<int> LosersInOrder(const Segment& match) {
  if (match.Winner == 0) return {};
  if (match.Style == kSingles) return {match.Loser};
  return ResultFormOf(match).Losers == 0 ? std::vector<int>() : NamedLosers(match);
}

void StoreResult(Segment& match, int winner, const std::vector<int>& losers) {
  for (Word* field : LoserFields(match)) *field = 0;
  match.Winner = winner;
  match.Loser = kNoLoser;
  if (winner == 0) return;
  if (match.Style == kSingles)
    match.Loser = match.Worker[0] == winner ? match.Worker[1] : match.Worker[0];
  const std::vector<Word*> fields = LoserFields(match);
  for (std::size_t i = 0; i < losers.size() && i < fields.size(); ++i) *fields[i] = losers[i];
}

std::vector<int> SuggestedLosers(const Segment& match, int winner) {
  const int winners = SideOf(match, winner);
  std::vector<int> others;
  for (const int uid : ResultCandidates(match))
    if (SideOf(match, uid) != winners) others.push_back(uid);
  const auto boxes = static_cast<std::size_t>(ResultFormOf(match).Losers);
  if (others.size() > boxes) others.resize(boxes);
  return others;
}

std::string WhyNotLeft(const Segment& match, MatchStep step) {
  switch (step) {
    case kPeopleStep:
      return WhyNotPeople(match);
    case kResultStep:
      return WhyNotResult(match);
    case kFinishStep:
      return WhyNotFinish(match);
    case kAftermathStep:
      return WhyNotAftermath(match);
    default:
      return {};
  }
}

bool IsChampionMissing(const Segment& match, const Title& title) {
  if (title.Holder == 0) return false;
  if (title.Singles) {
    const auto looked = match.Worker.begin() + (match.Style == kSpecial ? 30 : 4);
    return std::none_of(match.Worker.begin(), looked, [&](int uid) { return uid == title.Holder; });
  }
  const auto sides = SidesOf(match);
  return std::none_of(sides.begin(), sides.end(), [&](const std::vector<int>& side) {
    return std::find(side.begin(), side.end(), title.Holder) != side.end() &&
           std::find(side.begin(), side.end(), title.Partner) != side.end();
  });
}

}  // namespace grapplemont
