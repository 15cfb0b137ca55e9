#include "booking/segmentcheck.h"

#include <algorithm>

#include "booking/matchsteps.h"
#include "booking/offers.h"
#include "booking/talkcheck.h"

namespace grapplemont {

namespace {

/// The reasons found so far.
class Reasons {
 public:
  void AddIf(bool wrong, const std::string& why) {
    if (wrong) all_.push_back(why);
  }
  void Add(const std::string& why) { AddIf(!why.empty(), why); }
  bool Any() const { return !all_.empty(); }
  std::vector<std::string> All() { return std::move(all_); }

 private:
  std::vector<std::string> all_;
};

template <class List, class T>
bool Holds(const List& list, const T& what) {
  return std::find(list.begin(), list.end(), what) != list.end();
}

std::string NameOf(const World& world, int uid) {
  return SideText(world, {uid});
}

void CheckType(Reasons& reasons, const World& world, const Segment& match) {
  const auto offered = OfferedMatchTypes(world, match.Style);
  reasons.AddIf(!FindMatchStyle(match.Style), "There is no such match style.");
  reasons.AddIf(std::none_of(offered.begin(), offered.end(),
                             [&](auto* row) { return row->Code == match.MatchType; }),
                "The promotion does not offer this match type.");
}

void CheckPeople(Reasons& reasons, const World& world, const Segment& match,
                 const BookingView& view) {
  for (const int uid : PeopleOf(match)) {
    const Worker* worker = world.FindWorker(uid);
    reasons.AddIf(!worker || !IsEligible(world, *worker, view),
                  NameOf(world, uid) + " cannot be booked for a match.");
  }
  reasons.AddIf(static_cast<int>(PeopleOf(match).size()) != EntrantsOf(match),
                "Not every place of the match is filled.");
  reasons.Add(WhyNotPeople(match));
}

void CheckTitle(Reasons& reasons, const World& world, const Segment& match) {
  if (match.TitleName == "None") return;
  const auto titles = OfferedTitles(world, match);
  reasons.AddIf(std::none_of(titles.begin(), titles.end(),
                             [&](auto* title) { return title->Name == match.TitleName; }),
                match.TitleName + " cannot be at stake in this match.");
}

int NamedLosers(const Segment& match) {
  Segment copy = match;
  int named = 0;
  for (const Word* field : LoserFields(copy))
    if (*field != 0) ++named;
  return named;
}

void CheckResult(Reasons& reasons, const Segment& match) {
  reasons.AddIf(!HasResult(match), "The result has not been chosen.");
  reasons.AddIf(IsDraw(match) && !OffersDraw(match), "This match cannot end in a draw.");
  const std::vector<int> candidates = ResultCandidates(match);
  reasons.AddIf(!IsDraw(match) && !Holds(candidates, int(match.Winner)),
                "The winner does not stand in the match.");
  const std::vector<int> losers = LosersInOrder(match);
  for (const int uid : losers)
    reasons.AddIf(!Holds(candidates, uid), "A loser does not stand in the match.");
  const ResultForm& form = ResultFormOf(match);
  reasons.AddIf(!IsDraw(match) && !form.MayBeNone && form.Losers > static_cast<int>(losers.size()),
                "A loser has not been chosen.");
  reasons.AddIf(!NamesLoser(match) && match.Loser != kNoLoser,
                "A loser is named where there is none.");
  reasons.AddIf(match.Style == kSingles && match.Winner == match.Loser,
                "The winner cannot lose as well.");
  reasons.AddIf(NamedLosers(match) > std::max(form.Losers, 1),
                "More losers are named than the match has.");
  reasons.Add(WhyNotResult(match));
}

void CheckRunIns(Reasons& reasons, const World& world, const Segment& match,
                 const BookingView& view) {
  const auto allowed = RunInRoster(world, match, view);
  std::vector<int> due = FinishRunIns(match);
  for (const int uid : AftermathRunIns(match)) {
    reasons.AddIf(Holds(due, uid), NameOf(world, uid) + " runs in twice.");
    due.push_back(uid);
  }
  for (const int uid : {match.Other1, match.Other2, match.Other3, match.Other4}) {
    if (uid == 0) continue;
    reasons.AddIf(!Holds(due, uid), NameOf(world, uid) + " has no reason to run in.");
    reasons.AddIf(std::none_of(allowed.begin(), allowed.end(),
                               [&](auto* worker) { return worker->Uid == uid; }),
                  NameOf(world, uid) + " cannot run in.");
  }
}

/// The sports entertainment finish is taken, though no list offers it.
bool IsTakenUnlisted(const Segment& match) {
  return (match.Style == kSingles || match.Style == kTag) && match.Finish == kSportsEntertainment;
}

void CheckLaterCodes(Reasons& reasons, const World& world, const Segment& match) {
  const auto check = [&](Phrases phrases, const std::vector<int>& offered, int code,
                         const char* why) {
    reasons.AddIf(phrases.empty() ? code != 0 : !Holds(offered, code), why);
  };
  if (!IsTakenUnlisted(match))
    check(FinishesOf(match.Style), OfferedFinishes(world, match), match.Finish,
          "The match cannot have this finish.");
  check(AftermathsOf(match.Style), OfferedAftermaths(world, BeforeAftermath(match)),
        match.Aftermath, "The match cannot have this aftermath.");
  check(PurposesOf(match.Style), OfferedPurposes(world, match), match.Purpose,
        "The match cannot have this purpose.");
  reasons.Add(WhyNotFinish(match));
  reasons.Add(WhyNotAftermath(match));
}

void CheckRefusals(Reasons& reasons, const World& world, const Segment& match) {
  for (const Refusal& refusal : RefusalsOf(world, match))
    reasons.AddIf(refusal.IsFinal || !refusal.Veto.empty(), refusal.Words);
}

std::vector<std::string> WhyNotMatch(const World& world, const Segment& match,
                                     const BookingView& view) {
  Reasons reasons;
  CheckType(reasons, world, match);
  if (reasons.Any()) return reasons.All();
  CheckPeople(reasons, world, match, view);
  CheckTitle(reasons, world, match);
  CheckResult(reasons, match);
  if (reasons.Any()) return reasons.All();
  CheckLaterCodes(reasons, world, match);
  CheckRunIns(reasons, world, match, view);
  CheckRefusals(reasons, world, match);
  return reasons.All();
}

}  // namespace

std::vector<std::string> WhyNotBookable(const World& world, const Segment& segment,
                                        const BookingView& view) {
  switch (segment.Kind) {
    case kMatch:
      return WhyNotMatch(world, segment, view);
    case kInterview:
    case kAngle:
      return WhyNotTalk(world, segment, view);
    default:
      return {"Nothing is booked."};
  }
}

}  // namespace grapplemont
