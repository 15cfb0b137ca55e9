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

using Reasons = std::vector<std::string>;

/// Of a check that has nothing against it when it is empty.
void Add(Reasons& reasons, const std::string& why) {
  if (!why.empty()) reasons.push_back(why);
}

template <class List, class T>
bool Holds(const List& list, const T& what) {
  return std::find(list.begin(), list.end(), what) != list.end();
}

std::string NameOf(const World& world, int uid) {
  return SideText(world, {uid});
}

void CheckType(Reasons& reasons, const World& world, const Segment& match, const BookingView&) {
  if (!FindMatchStyle(match.Style)) reasons.push_back("There is no such match style.");
  if (std::ranges::none_of(OfferedMatchTypes(world, match.Style),
                           [&](auto* row) { return row->Code == match.MatchType; }))
    reasons.push_back("The promotion does not offer this match type.");
}

/// What keeps them away from every show: " (in development)".
std::string AwayText(const World& world, const Worker& worker) {
  const std::string why = !WorksForPlayer(world, worker) ? "no longer on the roster"
                          : worker.Status != "Nor"       ? StatusLine(worker)
                          : IsInDevelopment(worker)      ? "in development"
                                                         : "";
  return why.empty() ? why : " (" + why + ")";
}

void CheckPeople(Reasons& reasons, const World& world, const Segment& match,
                 const BookingView& view) {
  const std::vector<int> people = PeopleOf(match);
  for (const int uid : people)
    if (const Worker* worker = world.FindWorker(uid); !worker || !IsEligible(world, *worker, view))
      reasons.push_back(NameOf(world, uid) + " cannot be booked for a match" +
                        (worker ? AwayText(world, *worker) : "") + ".");
  if (std::ssize(people) != EntrantsOf(match))
    reasons.push_back("Not every place of the match is filled.");
  Add(reasons, WhyNotLeft(match, kPeopleStep));
}

void CheckTitle(Reasons& reasons, const World& world, const Segment& match, const BookingView&) {
  if (match.TitleName != "None" &&
      std::ranges::none_of(OfferedTitles(world, match),
                           [&](auto* title) { return title->Name == match.TitleName; }))
    reasons.push_back(match.TitleName + " cannot be at stake in this match.");
}

void CheckResult(Reasons& reasons, const World&, const Segment& match, const BookingView&) {
  const ResultForm& form = ResultFormOf(match);
  const std::vector<int> candidates = ResultCandidates(match), losers = LosersInOrder(match);
  if (!HasResult(match)) reasons.push_back("The result has not been chosen.");
  if (IsDraw(match) && !OffersDraw(match)) reasons.push_back("This match cannot end in a draw.");
  if (!IsDraw(match) && !Holds(candidates, int(match.Winner)))
    reasons.push_back("The winner does not stand in the match.");
  for (const int uid : losers)
    if (!Holds(candidates, uid)) reasons.push_back("A loser does not stand in the match.");
  if (!IsDraw(match) && !form.MayBeNone && form.Losers > std::ssize(losers))
    reasons.push_back("A loser has not been chosen.");
  if (!NamesLoser(match) && match.Loser != kNoLoser)
    reasons.push_back("A loser is named where there is none.");
  if (match.Style == kSingles && match.Winner == match.Loser)
    reasons.push_back("The winner cannot lose as well.");
  if (std::ssize(NamedLosers(match)) > std::max(form.Losers, 1))
    reasons.push_back("More losers are named than the match has.");
  Add(reasons, WhyNotLeft(match, kResultStep));
}

void CheckRunIns(Reasons& reasons, const World& world, const Segment& match,
                 const BookingView& view) {
  std::vector<int> due = FinishRunIns(match);
  for (const int uid : AftermathRunIns(match)) {
    if (Holds(due, uid)) reasons.push_back(NameOf(world, uid) + " runs in twice.");
    due.push_back(uid);
  }
  for (const int uid : {match.Other1, match.Other2, match.Other3, match.Other4}) {
    if (uid == 0) continue;
    if (!Holds(due, uid)) reasons.push_back(NameOf(world, uid) + " has no reason to run in.");
    if (std::ranges::none_of(RunInRoster(world, match, view),
                             [=](auto* worker) { return worker->Uid == uid; }))
      reasons.push_back(NameOf(world, uid) + " cannot run in.");
  }
}

/// The sports entertainment finish is taken, though no list offers it.
bool IsTakenUnlisted(const Segment& match) {
  return (match.Style == kSingles || match.Style == kTag) && match.Finish == kSportsEntertainment;
}

bool IsListed(Phrases phrases, const std::vector<int>& offered, int code) {
  return phrases.empty() ? code == 0 : Holds(offered, code);
}

void CheckFinish(Reasons& reasons, const World& world, const Segment& match, const BookingView&) {
  if (!IsTakenUnlisted(match) &&
      !IsListed(FinishesOf(match.Style), OfferedFinishes(world, match), match.Finish))
    reasons.push_back("The match cannot have this finish.");
  Add(reasons, WhyNotLeft(match, kFinishStep));
}

void CheckAftermath(Reasons& reasons, const World& world, const Segment& match,
                    const BookingView&) {
  if (!IsListed(AftermathsOf(match.Style), OfferedAftermaths(world, BeforeAftermath(match)),
                match.Aftermath))
    reasons.push_back("The match cannot have this aftermath.");
  Add(reasons, WhyNotLeft(match, kAftermathStep));
}

void CheckPurpose(Reasons& reasons, const World& world, const Segment& match, const BookingView&) {
  if (!IsListed(PurposesOf(match.Style), OfferedPurposes(world, match), match.Purpose))
    reasons.push_back("The match cannot have this purpose.");
}

using CheckOf = void (*)(Reasons&, const World&, const Segment&, const BookingView&);
/// What each step of a match asks, from the style on.
constexpr CheckOf kMatchChecks[] = {CheckType,   CheckPeople,    CheckTitle,  CheckResult,
                                    CheckFinish, CheckAftermath, CheckPurpose};

Reasons WhyNotMatch(const World& world, const Segment& match, const BookingView& view) {
  // What stands against an earlier step makes a later one's answers worth nothing.
  constexpr int kSpans[][2] = {
      {kTypeStep, kTypeStep}, {kPeopleStep, kResultStep}, {kFinishStep, kPurposeStep}};
  Reasons reasons;
  for (const auto& [first, last] : kSpans) {
    for (int step = first; step <= last; ++step)
      kMatchChecks[step - kTypeStep](reasons, world, match, view);
    if (!reasons.empty() && last != kPurposeStep) return reasons;
  }
  CheckRunIns(reasons, world, match, view);
  for (const Refusal& refusal : RefusalsOf(world, match))
    if (refusal.IsFinal || !refusal.Veto.empty()) reasons.push_back(refusal.Words);
  return reasons;
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
  const auto words = {segment.MatchType, segment.Winner, segment.Loser,    segment.Place3,
                      segment.Place4,    segment.Finish, segment.Other1,   segment.Other2,
                      segment.Other3,    segment.Other4, segment.Aftermath};
  return std::ranges::any_of(words, [](int word) { return word != 0; });
}

/// Whether the seat's list holds who or what has been put into it.
bool IsCandidate(const World& world, const Segment& segment, const Role& seat,
                 const BookingView& view) {
  if (seat.Place != 0) {
    const Worker* worker = WorkerAt(world, segment, seat.Place);
    return worker && MayBeCast(world, seat.From, *worker, segment, view);
  }
  return std::ranges::count(CandidatesFor(world, seat.From, segment, view),
                            WhatIsCast(world, segment, seat), &Candidate::Name) > 0;
}

/// Who is in a seat but not in its list, as a fault.
void AddStrangers(Reasons& reasons, const World& world, const Segment& talk, Casting from,
                  const std::string& fault, const BookingView& view) {
  for (const Role& seat : SeatsOf(talk))
    if (seat.From == from && IsCast(talk, seat) && !IsCandidate(world, talk, seat, view))
      reasons.push_back(WhatIsCast(world, talk, seat) + fault);
}

void CheckSpeakers(Reasons& reasons, const World& world, const Segment& interview,
                   const BookingView& view) {
  AddStrangers(reasons, world, interview, Casting::Talkers, " cannot be interviewed.", view);
  AddStrangers(reasons, world, interview, Casting::TalkManagers, " cannot speak for anybody.",
               view);
  Add(reasons, WhyNotSpeakers(world, interview));
}

void CheckTargets(Reasons& reasons, const World& world, const Segment& interview,
                  const BookingView& view) {
  AddStrangers(reasons, world, interview, Casting::Targets, " cannot be a target.", view);
  Add(reasons, WhyNotTargets(interview));
}

void CheckTalkPurpose(Reasons& reasons, const World& world, const Segment& interview,
                      const BookingView&) {
  if (!Holds(OfferedTalkPurposes(world, interview), int(interview.Purpose)))
    reasons.push_back("The interview cannot have purpose " + std::to_string(interview.Purpose) +
                      ".");
}

/// What each step of an interview asks, from its people on.
constexpr CheckOf kTalkChecks[] = {CheckSpeakers, CheckTargets, CheckTalkPurpose};

void CheckInterview(Reasons& reasons, const World& world, const Segment& interview,
                    const BookingView& view) {
  for (const CheckOf check : kTalkChecks) check(reasons, world, interview, view);
  if (interview.TitleName != "None" || interview.Text != "None")
    reasons.push_back("An interview is for no Title and has no text.");
}

/// What the angle's seats do not use stays as it was when nothing was booked.
bool HasLeftOvers(const Segment& segment) {
  Segment rest = segment;
  for (const Role& seat : SeatsOf(segment)) Cast(rest, seat, {"None", 0});
  const auto last = rest.Worker.begin() + kAnglePlaces;
  return std::any_of(rest.Worker.begin(), last, [](int uid) { return uid != 0; }) ||
         rest.TitleName != "None" || rest.Text != "None" || rest.Purpose != 0;
}

void CheckAngleStyle(Reasons& reasons, const World& world, const Angle& angle,
                     const BookingView& view) {
  if (!EnoughWriters(world, view.IsEvent))
    reasons.push_back("There are not enough writers for an angle.");
  if (!IsOffered(world, angle))
    reasons.push_back("The angle \"" + std::string(angle.Says) + "\" is not offered today.");
}

void CheckCast(Reasons& reasons, const World& world, const Segment& segment,
               const BookingView& view) {
  for (const Role& seat : SeatsOf(segment))
    if (IsCast(segment, seat) && !IsCandidate(world, segment, seat, view))
      reasons.push_back(WhatIsCast(world, segment, seat) + " cannot be cast as \"" +
                        std::string(seat.Caption) + "\".");
  Add(reasons, WhyNotCast(world, segment, view));
  if (HasLeftOvers(segment))
    reasons.push_back("The angle holds something that none of its roles is for.");
}

}  // namespace

std::vector<std::string> WhyNotBookable(const World& world, const Segment& segment,
                                        const BookingView& view) {
  if (segment.Kind == kMatch) return WhyNotMatch(world, segment, view);
  const std::string style = std::to_string(segment.Style) + ".";
  Reasons reasons;
  if (segment.Kind == kInterview && FindInterviewStyle(segment.Style)) {
    CheckInterview(reasons, world, segment, view);
  } else if (segment.Kind == kInterview) {
    reasons.push_back("There is no interview style " + style);
  } else if (segment.Kind != kAngle) {
    return {"Nothing is booked."};
  } else if (const Angle* angle = FindAngle(segment.Style)) {
    CheckAngleStyle(reasons, world, *angle, view);
    CheckCast(reasons, world, segment, view);
  } else {
    reasons.push_back("There is no angle " + style);
  }
  if (HasMatchWords(segment)) reasons.push_back("The Segment holds what only a match has.");
  return reasons;
}

std::vector<std::string> WhyNotAtStep(const World& world, const Segment& segment, int step,
                                      const BookingView& view) {
  Reasons reasons;
  if (segment.Kind == kMatch && step >= kTypeStep && step <= kPurposeStep) {
    kMatchChecks[step - kTypeStep](reasons, world, segment, view);
    if (step == kFinishStep || step == kAftermathStep) CheckRunIns(reasons, world, segment, view);
  } else if (segment.Kind == kInterview && step >= kTypeStep && step <= kTitleStep) {
    kTalkChecks[step - kTypeStep](reasons, world, segment, view);
  } else if (const Angle* angle = segment.Kind == kAngle ? FindAngle(segment.Style) : nullptr) {
    if (step == kStyleStep) CheckAngleStyle(reasons, world, *angle, view);
    if (step == kTypeStep) CheckCast(reasons, world, segment, view);
  }
  return reasons;
}

}  // namespace grapplemont
