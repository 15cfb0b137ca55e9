#include "booking/wizard/interviews.h"

#include <algorithm>

#include "storylines/feuds.h"

namespace grapplemont {

namespace {

// Style, manager's place, first worker and how many, first target and how many.
constexpr TalkShape kShapes[] = {
    {kSingleTalk, 0, 1, 1, 2, 1},
    {kTeamTalk, 0, 1, 2, 3, 2},
    {kManagedTalk, 2, 1, 1, 3, 1},
    {kManagedTeamTalk, 1, 2, 2, 4, 2},
};

int SpeakersIn(const TalkShape& shape) {
  return shape.Workers + (shape.Manager != 0 ? 1 : 0);
}

std::vector<int> SpeakersOf(const TalkShape& shape, const Segment& interview) {
  return WorkersAt(interview, 1, SpeakersIn(shape));
}

std::vector<int> TalkWorkers(const TalkShape& shape, const Segment& interview) {
  return WorkersAt(interview, shape.FirstWorker, shape.Workers);
}

std::vector<int> TargetsOf(const TalkShape& shape, const Segment& interview) {
  return WorkersAt(interview, shape.FirstTarget, shape.Targets);
}

bool AreDifferentPeople(std::vector<int> uids) {
  std::sort(uids.begin(), uids.end());
  return uids.front() != 0 && std::adjacent_find(uids.begin(), uids.end()) == uids.end();
}

bool CanManageTalk(const Worker& worker) {
  return worker.Position == kManager && worker.Speaks;
}

/// Empty for a style without a manager.
std::string WhyNotManager(const World& world, const TalkShape& shape, const Segment& interview) {
  if (shape.Manager == 0) return {};
  const Worker* manager = world.FindWorker(WorkersAt(interview, shape.Manager, 1).front());
  return manager && CanManageTalk(*manager) ? "" : "You must select a valid manager!";
}

bool ManagesAll(const World& world, int manager, const std::vector<int>& workers) {
  return std::all_of(workers.begin(), workers.end(), [&](int uid) {
    const Worker* worker = world.FindWorker(uid);
    return worker && worker->Manager == manager;
  });
}

/// All who would turn must be waiting to. Whoever speaks for himself may then turn on anybody,
/// liked or not; where a manager is there, nothing is offered that could not come off.
bool MayTurn(const World& world, const TalkShape& shape, const Segment& interview) {
  const std::vector<TurnCall> turns = TalkTurns(world, interview);
  return !turns.empty() && std::all_of(turns.begin(), turns.end(), [&](const TurnCall& turn) {
    const Worker* turner = world.FindWorker(turn.Turner);
    if (!turner || !turner->TurnPending) return false;
    return shape.Manager == 0 || CanTurn(*turner, world.FindWorker(turn.Other));
  });
}

bool IsFeud(const World& world, const TalkShape& shape, const Segment& interview) {
  const std::vector<int> workers = TalkWorkers(shape, interview);
  const std::vector<int> targets = TargetsOf(shape, interview);
  if (workers.size() == 2 && targets.size() == 2 &&
      FeudExists(world, FeudSides{{workers[0], workers[1]}, {targets[0], targets[1]}}))
    return true;
  for (const int speaker : SpeakersOf(shape, interview))
    for (const int target : targets)
      if (target != 0 && FeudExists(world, speaker, target)) return true;
  return false;
}

}  // namespace

const TalkShape* FindTalkShape(int style) {
  const auto found = std::find_if(std::begin(kShapes), std::end(kShapes),
                                  [&](const TalkShape& shape) { return shape.Style == style; });
  return found == std::end(kShapes) ? nullptr : &*found;
}

std::vector<int> WorkersAt(const Segment& segment, int firstPlace, int places) {
  const auto first = segment.Worker.begin() + firstPlace - 1;
  return {first, first + places};
}

std::vector<const Worker*> TalkingManagers(const World& world, const BookingView& view) {
  std::vector<const Worker*> managers = Talkers(world, view);
  std::erase_if(managers, [](const Worker* worker) { return !CanManageTalk(*worker); });
  return managers;
}

std::vector<const Worker*> TalkTargets(const World& world, const Segment& interview,
                                       const BookingView& view) {
  std::vector<const Worker*> targets = EligibleRoster(world, view);
  const TalkShape* shape = FindTalkShape(interview.Style);
  if (!shape) return targets;
  for (const int speaker : SpeakersOf(*shape, interview))
    std::erase_if(targets, [&](const Worker* worker) { return worker->Uid == speaker; });
  return targets;
}

std::string WhyNotSpeakers(const World& world, const Segment& interview) {
  const TalkShape* shape = FindTalkShape(interview.Style);
  if (!shape) return "There is no such interview!";
  if (std::string why = WhyNotManager(world, *shape, interview); !why.empty()) return why;
  constexpr const char* kTooFew[] = {"Please select a worker!",
                                     "Please select two different people!",
                                     "Please select three different people!"};
  if (!AreDifferentPeople(SpeakersOf(*shape, interview))) return kTooFew[SpeakersIn(*shape) - 1];
  if (shape->Manager == 0 || ManagesAll(world, WorkersAt(interview, shape->Manager, 1).front(),
                                        TalkWorkers(*shape, interview)))
    return {};
  return shape->Workers == 1 ? "The manager selected does not manage the chosen worker!"
                             : "The manager selected does not manage both the chosen workers!";
}

std::string WhyNotTargets(const Segment& interview) {
  const TalkShape* shape = FindTalkShape(interview.Style);
  if (!shape || shape->Targets < 2) return {};
  const std::vector<int> targets = TargetsOf(*shape, interview);
  if (targets[0] == 0 && targets[1] != 0)
    return "If the first opponent is 'None', then the second must be too!";
  return targets[0] != 0 && targets[0] == targets[1] ? "Please select two different people!" : "";
}

std::vector<TurnCall> TalkTurns(const World& world, const Segment& interview) {
  Segment turning = interview;
  turning.Purpose = kTalkTurn;
  return BookedTurns(world, turning);
}

std::vector<int> OfferedTalkPurposes(const World& world, const Segment& interview) {
  const TalkShape* shape = FindTalkShape(interview.Style);
  if (!shape || TargetsOf(*shape, interview).front() == 0) return {kTalkNone, kSelfPromotion};
  std::vector<int> offered = {kTalkNone, kVerbalAttack, kHypeMatch};
  if (MayTurn(world, *shape, interview)) offered.push_back(kTalkTurn);
  if (IsFeud(world, *shape, interview)) offered.push_back(kTalkContinueFeud);
  return offered;
}

}  // namespace grapplemont
