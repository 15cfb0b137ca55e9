#include "booking/talkcheck.h"

#include <algorithm>

#include "booking/casting.h"
#include "booking/castingchecks.h"
#include "booking/interviews.h"
#include "booking/writers.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

using Faults = std::vector<std::string>;

std::string NameOr(const World& world, int uid) {
  const std::string name = WorkerName(world, uid);
  return name.empty() ? "Worker " + std::to_string(uid) : name;
}

void Tell(Faults& faults, std::string fault) {
  if (!fault.empty()) faults.push_back(std::move(fault));
}

bool Holds(const std::vector<const Worker*>& list, int uid) {
  return std::any_of(list.begin(), list.end(),
                     [&](const Worker* worker) { return worker->Uid == uid; });
}

/// A fault for everybody at these places who is not in the list they are chosen from; nobody stands
/// in every list.
void TellStrangers(Faults& faults, const World& world, const std::vector<int>& uids,
                   const std::vector<const Worker*>& list, const std::string& fault) {
  for (const int uid : uids)
    if (uid != 0 && !Holds(list, uid)) faults.push_back(NameOr(world, uid) + fault);
}

/// Words that only matches have.
bool HasMatchWords(const Segment& segment) {
  for (const int word : {segment.MatchType, segment.Winner, segment.Loser, segment.Place3,
                         segment.Place4, segment.Finish, segment.Other1, segment.Other2,
                         segment.Other3, segment.Other4, segment.Aftermath})
    if (word != 0) return true;
  return false;
}

Faults WhyNotInterview(const World& world, const Segment& interview, const BookingView& view) {
  const TalkShape* shape = FindTalkShape(interview.Style);
  if (!shape) return {"There is no interview style " + std::to_string(interview.Style) + "."};
  Faults faults;
  const auto at = [&](int place, int places) { return WorkersAt(interview, place, places); };
  TellStrangers(faults, world, at(shape->FirstWorker, shape->Workers), Talkers(world, view),
                " cannot be interviewed.");
  if (shape->Manager != 0)
    TellStrangers(faults, world, at(shape->Manager, 1), TalkingManagers(world, view),
                  " cannot speak for anybody.");
  TellStrangers(faults, world, at(shape->FirstTarget, shape->Targets),
                TalkTargets(world, interview, view), " cannot be a target.");
  Tell(faults, WhyNotSpeakers(world, interview));
  Tell(faults, WhyNotTargets(interview));
  const std::vector<int> purposes = OfferedTalkPurposes(world, interview);
  if (std::find(purposes.begin(), purposes.end(), interview.Purpose) == purposes.end())
    faults.push_back("The interview cannot have purpose " + std::to_string(interview.Purpose) +
                     ".");
  if (!(interview.TitleName == "None") || !(interview.Text == "None"))
    faults.push_back("An interview is for no Title and has no text.");
  return faults;
}

std::string WhatIsCast(const World& world, const Segment& segment, const Role& role) {
  if (role.Place != 0) return NameOr(world, WorkersAt(segment, role.Place, 1).front());
  return role.From == Casting::Stables ? segment.Text.Str() : segment.TitleName.Str();
}

bool IsCandidate(const World& world, const Segment& segment, const Role& role,
                 const BookingView& view) {
  const int uid = role.Place == 0 ? 0 : WorkersAt(segment, role.Place, 1).front();
  const std::string name = WhatIsCast(world, segment, role);
  const std::vector<Candidate> list = CandidatesFor(world, role.From, segment.Style, view);
  return std::any_of(list.begin(), list.end(), [&](const Candidate& candidate) {
    return candidate.Uid == uid && (uid != 0 || candidate.Name == name);
  });
}

/// What the angle's roles do not use stays as it was when nothing was booked.
bool HasLeftOvers(const Angle& angle, const Segment& segment) {
  Segment rest = segment;
  for (const Role& role : angle.Roles) {
    if (!IsUsed(role)) continue;
    Cast(rest, role, {"None", 0});
  }
  const std::vector<int> places = WorkersAt(rest, 1, kAnglePlaces);
  return std::any_of(places.begin(), places.end(), [](int uid) { return uid != 0; }) ||
         !(rest.TitleName == "None") || !(rest.Text == "None") || rest.Purpose != 0;
}

Faults WhyNotAngle(const World& world, const Segment& segment, const BookingView& view) {
  const Angle* angle = FindAngle(segment.Style);
  if (!angle) return {"There is no angle " + std::to_string(segment.Style) + "."};
  Faults faults;
  if (!EnoughWriters(world, view.IsEvent))
    faults.push_back("There are not enough writers for an angle.");
  if (!IsOffered(world, *angle))
    faults.push_back("The angle \"" + std::string(angle->Says) + "\" is not offered today.");
  for (const Role& role : angle->Roles)
    if (IsUsed(role) && IsCast(segment, role) && !IsCandidate(world, segment, role, view))
      faults.push_back(WhatIsCast(world, segment, role) + " cannot be cast as \"" +
                       std::string(role.Caption) + "\".");
  Tell(faults, WhyNotCast(world, segment, view));
  if (HasLeftOvers(*angle, segment))
    faults.push_back("The angle holds something that none of its roles is for.");
  return faults;
}

}  // namespace

std::vector<std::string> WhyNotTalk(const World& world, const Segment& segment,
                                    const BookingView& view) {
  if (segment.Kind != kInterview && segment.Kind != kAngle)
    return {"The Segment is no interview and no angle."};
  Faults faults = segment.Kind == kInterview ? WhyNotInterview(world, segment, view)
                                             : WhyNotAngle(world, segment, view);
  if (HasMatchWords(segment)) faults.push_back("The Segment holds what only a match has.");
  return faults;
}

}  // namespace grapplemont
