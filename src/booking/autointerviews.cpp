#include <algorithm>

#include "booking/autotalk.h"

namespace grapplemont {

namespace {

/// The manager both or the one have, when he may talk tonight; nullptr for none.
const Worker* ManagerOf(const AutoPlan& plan, const std::vector<int>& clients) {
  const Worker* first = plan.World.FindWorker(clients[0]);
  const Worker* manager = first ? plan.World.FindWorker(first->Manager) : nullptr;
  if (!manager || manager->Position != kManager || !manager->Speaks ||
      !plan.Pool.MayAppear(manager->Uid))
    return nullptr;
  const bool all = std::all_of(clients.begin(), clients.end(), [&](int uid) {
    const Worker* client = plan.World.FindWorker(uid);
    return client && client->Manager == manager->Uid;
  });
  return all ? manager : nullptr;
}

Segment NewInterview(int style, const std::vector<int>& speakers, const std::vector<int>& targets,
                     int purpose) {
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = style;
  talk.Purpose = purpose;
  std::size_t place = 0;
  for (const int uid : speakers) talk.Worker[place++] = uid;
  for (const int uid : targets) talk.Worker[place++] = uid;
  return talk;
}

/// In single talk the manager stands second, before a team first.
std::vector<int> WithManager(std::vector<int> speakers, int manager) {
  speakers.insert(speakers.size() == 1 ? speakers.end() : speakers.begin(), manager);
  return speakers;
}

}  // namespace

bool HasTalk(const AutoPlan& plan, int uid) {
  const auto has = [&](const Segment& segment) {
    return (segment.Kind == kInterview || segment.Kind == kAngle) && TakesPart(segment, uid);
  };
  return std::any_of(plan.Rows.begin(), plan.Rows.end(), has) ||
         std::any_of(plan.Talks.begin(), plan.Talks.end(),
                     [&](const Planned& planned) { return has(planned.Segment); });
}

bool BookTalkBetween(AutoPlan& plan, const std::vector<int>& speakers,
                     const std::vector<int>& targets, int purpose) {
  if (!plan.Pool.MayAppear(speakers) || !plan.Pool.MayAppear(targets)) return false;
  const bool team = speakers.size() == 2;
  // Beside a single worker it would be the manager who turns.
  const bool goesAlone = purpose == kTalkTurn && !team;
  if (const Worker* manager = goesAlone ? nullptr : ManagerOf(plan, speakers)) {
    const int style = team ? kManagedTeamTalk : kManagedTalk;
    if (PlanTalk(plan, NewInterview(style, WithManager(speakers, manager->Uid), targets, purpose),
                 kEarly))
      return true;
  }
  return PlanTalk(plan, NewInterview(team ? kTeamTalk : kSingleTalk, speakers, targets, purpose),
                  kEarly);
}

}  // namespace grapplemont
