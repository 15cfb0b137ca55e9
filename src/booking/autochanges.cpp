#include <algorithm>

#include "booking/automatches.h"
#include "booking/autotalk.h"
#include "records/angles.h"

// What changes the roster's picture: turns that are pending, faces not seen before.

namespace grapplemont {

namespace {

constexpr int kTurnsPerShow = 1;
constexpr int kDebutsPerShow = 1;
/// The fans remember a turn for so many days and do not believe in the next.
constexpr int kFansRemember = 365;

bool IsTimeToTurn(const World& world, const Worker& worker) {
  return worker.TurnPending && (world.Today() - Day(worker.LastTurn)).count() >= kFansRemember;
}

/// Somebody to turn on for a turn that the fans accept: his own kind for a Face or Heel, anybody
/// with a side for a Tweener. A team mate first, then the most popular.
const Worker* WhomToTurnOn(const AutoPlan& plan, const Worker& turner) {
  const Worker* best = nullptr;
  for (const Worker* other : plan.Pool.People()) {
    if (other->Uid == turner.Uid || !IsActiveWrestler(*other) || other->Gender != turner.Gender)
      continue;
    const bool fits = turner.Disposition == "T" ? !(other->Disposition == "T")
                                                : other->Disposition == turner.Disposition;
    if (!fits) continue;
    if (InOneCorner(plan.World, turner, *other)) return other;
    if (!best) best = other;
  }
  return best;
}

int TurnAngle(const AutoPlan& plan, const Worker& turner, const Worker& other) {
  if (InOneCorner(plan.World, turner, other)) return kBetterEnemies;
  return other.Disposition == "F" ? kHeelTurnAngle : kFaceTurnAngle;
}

/// The loser of a match with his own kind shows his true colours.
bool TurnInMatch(AutoPlan& plan, const Worker& turner, const Worker& other) {
  if (!plan.WantsMatch() || !plan.Pool.MayWrestle({turner.Uid, other.Uid})) return false;
  Segment match = NewMatch(kSingles, kPlainSingles, {turner.Uid, other.Uid});
  match.Winner = other.Uid;
  match.Loser = turner.Uid;
  match.Finish = kClean;
  match.Aftermath = after1::kRevengeAttack;
  match.Purpose = purpose1::kTurnLoser;
  if (!Stands(plan, match)) return false;
  PlanMatch(plan, match);
  return true;
}

bool Turn(AutoPlan& plan, const Worker& turner) {
  const Worker* other = WhomToTurnOn(plan, turner);
  if (!other) return false;
  if (plan.WantsTalk()) {
    if (BookAngle(plan, TurnAngle(plan, turner, *other), {turner.Uid, other->Uid}, kLate))
      return true;
    if (BookTalkBetween(plan, {turner.Uid}, {other->Uid}, kTalkTurn)) return true;
  }
  return TurnInMatch(plan, turner, *other);
}

/// Whom a newcomer picks on: somebody of the other kind who stands no more than a step above him.
const Worker* WhomToPickOn(AutoPlan& plan, const Worker& newcomer) {
  const std::vector<const Worker*> opponents = OpponentsFor(plan, newcomer, plan.Pool.Wrestlers());
  return opponents.empty() ? nullptr : opponents[0];
}

bool DebutInMatch(AutoPlan& plan, const Worker& newcomer) {
  if (!plan.WantsMatch()) return false;
  for (const Worker* opponent : OpponentsFor(plan, newcomer, plan.Pool.Wrestlers())) {
    Wish wish;
    wish.Favoured = newcomer.Uid;
    if (BookMatch(plan, NewMatch(kSingles, kPlainSingles, {newcomer.Uid, opponent->Uid}), wish))
      return true;
  }
  return false;
}

bool Introduce(AutoPlan& plan, const Worker& newcomer) {
  const Worker* victim = plan.WantsTalk() ? WhomToPickOn(plan, newcomer) : nullptr;
  if (victim && BookScene(plan, AngleScene::Debut, {newcomer.Uid}, {victim->Uid})) return true;
  return DebutInMatch(plan, newcomer);
}

/// A manager is introduced by his client.
bool IntroduceManager(AutoPlan& plan, const Worker& manager) {
  for (const Worker* client : plan.Pool.People())
    if (client->Manager == manager.Uid && client->Debuted && plan.WantsTalk() &&
        BookAngle(plan, kManagerialDebut, {manager.Uid, client->Uid}, kMiddle))
      return true;
  return false;
}

}  // namespace

void TurnWhoWaits(AutoPlan& plan) {
  int turns = 0;
  for (const Worker* worker : plan.Pool.People())
    if (turns < kTurnsPerShow && IsActiveWrestler(*worker) && IsTimeToTurn(plan.World, *worker) &&
        !plan.Pool.IsBooked(worker->Uid))
      turns += Turn(plan, *worker);
}

void IntroduceNewcomers(AutoPlan& plan) {
  int debuts = 0;
  for (const Worker* worker : plan.Pool.Newcomers())
    if (debuts < kDebutsPerShow) debuts += Introduce(plan, *worker);
  for (const Worker* worker : plan.Pool.People())
    if (debuts < kDebutsPerShow && worker->Position == kManager && !worker->Debuted)
      debuts += IntroduceManager(plan, *worker);
}

}  // namespace grapplemont
