#include "booking/wizard/segmentcheck.h"

#include <algorithm>

#include "booking/wizard/casting.h"
#include "booking/wizard/interviews.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/offers.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/roster.h"
#include "records/modWresCheck.h"

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

// --- Interviews and angles

std::string NameOr(const World& world, int uid) {
  const std::string name = WorkerName(world, uid);
  return name.empty() ? "Worker " + std::to_string(uid) : name;
}

std::string WhatIsCast(const World& world, const Segment& segment, const Role& seat) {
  if (seat.Place != 0) return NameOr(world, UidAt(segment, seat.Place));
  return seat.From == Casting::Stables ? segment.Text.Str() : segment.TitleName.Str();
}

/// Words that only matches have.
bool HasMatchWords(const Segment& segment) {
  for (const int word : {segment.MatchType, segment.Winner, segment.Loser, segment.Place3,
                         segment.Place4, segment.Finish, segment.Other1, segment.Other2,
                         segment.Other3, segment.Other4, segment.Aftermath})
    if (word != 0) return true;
  return false;
}

/// Whether the seat's list holds who or what has been put into it.
bool IsCandidate(const World& world, const Segment& segment, const Role& seat,
                 const BookingView& view) {
  if (seat.Place != 0) {
    const Worker* worker = WorkerAt(world, segment, seat.Place);
    return worker && MayBeCast(world, seat.From, *worker, segment, view);
  }
  const std::vector<Candidate> list = CandidatesFor(world, seat.From, segment, view);
  return std::any_of(list.begin(), list.end(), [&](const Candidate& candidate) {
    return candidate.Name == WhatIsCast(world, segment, seat);
  });
}

/// Who is in a seat but not in its list, as a fault.
void AddStrangers(Reasons& reasons, const World& world, const Segment& talk, Casting from,
                  const std::string& fault, const BookingView& view) {
  for (const Role& seat : SeatsOf(talk))
    if (seat.From == from && IsCast(talk, seat))
      reasons.AddIf(!IsCandidate(world, talk, seat, view), WhatIsCast(world, talk, seat) + fault);
}

void CheckInterview(Reasons& reasons, const World& world, const Segment& interview,
                    const BookingView& view) {
  AddStrangers(reasons, world, interview, Casting::Talkers, " cannot be interviewed.", view);
  AddStrangers(reasons, world, interview, Casting::TalkManagers, " cannot speak for anybody.",
               view);
  AddStrangers(reasons, world, interview, Casting::Targets, " cannot be a target.", view);
  reasons.Add(WhyNotSpeakers(world, interview));
  reasons.Add(WhyNotTargets(interview));
  reasons.AddIf(!Holds(OfferedTalkPurposes(world, interview), int(interview.Purpose)),
                "The interview cannot have purpose " + std::to_string(interview.Purpose) + ".");
  reasons.AddIf(interview.TitleName != "None" || interview.Text != "None",
                "An interview is for no Title and has no text.");
}

/// What the angle's seats do not use stays as it was when nothing was booked.
bool HasLeftOvers(const Segment& segment) {
  Segment rest = segment;
  for (const Role& seat : SeatsOf(segment)) Cast(rest, seat, {"None", 0});
  const auto last = rest.Worker.begin() + kAnglePlaces;
  return std::any_of(rest.Worker.begin(), last, [](int uid) { return uid != 0; }) ||
         rest.TitleName != "None" || rest.Text != "None" || rest.Purpose != 0;
}

void CheckAngle(Reasons& reasons, const World& world, const Angle& angle, const Segment& segment,
                const BookingView& view) {
  reasons.AddIf(!EnoughWriters(world, view.IsEvent), "There are not enough writers for an angle.");
  reasons.AddIf(!IsOffered(world, angle),
                "The angle \"" + std::string(angle.Says) + "\" is not offered today.");
  for (const Role& seat : SeatsOf(segment))
    if (IsCast(segment, seat))
      reasons.AddIf(!IsCandidate(world, segment, seat, view),
                    WhatIsCast(world, segment, seat) + " cannot be cast as \"" +
                        std::string(seat.Caption) + "\".");
  reasons.Add(WhyNotCast(world, segment, view));
  reasons.AddIf(HasLeftOvers(segment), "The angle holds something that none of its roles is for.");
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

std::vector<std::string> WhyNotTalk(const World& world, const Segment& segment,
                                    const BookingView& view) {
  if (segment.Kind != kInterview && segment.Kind != kAngle)
    return {"The Segment is no interview and no angle."};
  Reasons reasons;
  const std::string style = std::to_string(segment.Style) + ".";
  if (segment.Kind == kInterview) {
    if (FindInterviewStyle(segment.Style))
      CheckInterview(reasons, world, segment, view);
    else
      reasons.Add("There is no interview style " + style);
  } else if (const Angle* angle = FindAngle(segment.Style)) {
    CheckAngle(reasons, world, *angle, segment, view);
  } else {
    reasons.Add("There is no angle " + style);
  }
  reasons.AddIf(HasMatchWords(segment), "The Segment holds what only a match has.");
  return reasons.All();
}

}  // namespace grapplemont
