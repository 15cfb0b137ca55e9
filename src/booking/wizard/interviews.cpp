#include "booking/wizard/interviews.h"

#include <algorithm>

#include "storylines/feuds.h"

namespace grapplemont {

namespace {

constexpr auto kSpeaker = Casting::Talkers, kManages = Casting::TalkManagers,
               kTarget = Casting::Targets;

bool AreDifferentPeople(std::vector<int> uids) {
  std::sort(uids.begin(), uids.end());
  return uids.front() != 0 && std::adjacent_find(uids.begin(), uids.end()) == uids.end();
}

}  // namespace

std::vector<int> SpeakersOf(const Segment& interview) {
  std::vector<int> speakers = SeatedAs(interview, kSpeaker);
  for (const int manager : SeatedAs(interview, kManages)) speakers.push_back(manager);
  return speakers;
}

namespace {

/// All who would turn must be waiting to. Whoever speaks without a manager may then turn on
/// anybody, liked or not; where a manager is there, nothing is offered that could not come off.
bool MayTurn(const World& world, const Segment& interview) {
  const bool alone = SeatedAs(interview, kManages).empty();
  const std::vector<TurnCall> turns = TalkTurns(world, interview);
  return !turns.empty() && std::all_of(turns.begin(), turns.end(), [&](const TurnCall& turn) {
    const Worker* turner = world.FindWorker(turn.Turner);
    if (!turner || !turner->TurnPending) return false;
    return alone || CanTurn(*turner, world.FindWorker(turn.Other));
  });
}

bool IsFeud(const World& world, const Segment& interview) {
  const std::vector<int> workers = SeatedAs(interview, kSpeaker);
  const std::vector<int> targets = SeatedAs(interview, kTarget);
  if (workers.size() == 2 && targets.size() == 2 &&
      FeudExists(world, FeudSides{{workers[0], workers[1]}, {targets[0], targets[1]}}))
    return true;
  for (const int speaker : SpeakersOf(interview))
    for (const int target : targets)
      if (target != 0 && FeudExists(world, speaker, target)) return true;
  return false;
}

}  // namespace

bool ManagesAll(const World& world, int manager, const std::vector<int>& workers) {
  return std::all_of(workers.begin(), workers.end(), [&](int uid) {
    const Worker* worker = world.FindWorker(uid);
    return worker && worker->Manager == manager;
  });
}

std::string WhyNotSpeakers(const World& world, const Segment& interview) {
  const std::vector<int> speakers = SpeakersOf(interview);
  if (speakers.empty()) return "There is no such interview!";
  const std::vector<int> managers = SeatedAs(interview, kManages);
  for (const int uid : managers) {
    const Worker* manager = world.FindWorker(uid);
    if (!manager || manager->Position != kManager || !manager->Speaks)
      return "You must select a valid manager!";
  }
  constexpr const char* kTooFew[] = {"Please select a worker!",
                                     "Please select two different people!",
                                     "Please select three different people!"};
  if (!AreDifferentPeople(speakers)) return kTooFew[speakers.size() - 1];
  const std::vector<int> workers = SeatedAs(interview, kSpeaker);
  if (managers.empty() || ManagesAll(world, managers.front(), workers)) return {};
  return workers.size() == 1 ? "The manager selected does not manage the chosen worker!"
                             : "The manager selected does not manage both the chosen workers!";
}

std::string WhyNotTargets(const Segment& interview) {
  const std::vector<int> targets = SeatedAs(interview, kTarget);
  if (targets.size() < 2) return {};
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
  const std::vector<int> targets = SeatedAs(interview, kTarget);
  if (targets.empty() || targets.front() == 0) return {kTalkNone, kSelfPromotion};
  std::vector<int> offered = {kTalkNone, kVerbalAttack, kHypeMatch};
  if (MayTurn(world, interview)) offered.push_back(kTalkTurn);
  if (IsFeud(world, interview)) offered.push_back(kTalkContinueFeud);
  return offered;
}

}  // namespace grapplemont
