#include "rivals/grudges.h"

#include <algorithm>

#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"

namespace grapplemont {

namespace {

bool Has(const Grudge& grudge, int workerUid) {
  return grudge.One == workerUid || grudge.Two == workerUid;
}

template <class Grudges>
auto* FindGrudge(Grudges& grudges, int promotionUid, int workerUid) {
  const auto found = std::ranges::find_if(grudges, [=](const Grudge& grudge) {
    return grudge.Promotion == promotionUid && Has(grudge, workerUid);
  });
  return found == grudges.end() ? nullptr : &*found;
}

bool WorksFor(const World& world, int workerUid, int promotionUid) {
  const Worker* worker = world.FindWorker(workerUid);
  return worker && worker->Employer == promotionUid && IsOnRoster(*worker);
}

void KeepSettled(World& world, const Promotion& rival, int winner, int loser) {
  const Grudge* grudge = GrudgeOf(world, rival.Uid, winner);
  if (!grudge) return;
  Annal event = NewAnnal(world, kAnnalFeudOver, &rival);
  SetWho(world, event, winner);
  SetWhom(world, event, loser);
  // The match that settles it is not among those counted.
  event.Number = 1 + (grudge->One == winner ? grudge->WonOne : grudge->WonTwo);
  event.Against = grudge->One == winner ? grudge->WonTwo : grudge->WonOne;
  event.Days = static_cast<int>((world.Today() - Day(grudge->Since)).count());
  Keep(world, event);
}

bool IsAlight(const World& world, const Grudge& grudge) {
  return grudge.Heat > 0 && grudge.Promotion != world.PlayerUid() &&
         WorksFor(world, grudge.One, grudge.Promotion) &&
         WorksFor(world, grudge.Two, grudge.Promotion);
}

}  // namespace

Grudge* GrudgeOf(World& world, int promotionUid, int workerUid) {
  return FindGrudge(world.Grudges(), promotionUid, workerUid);
}

const Grudge* GrudgeOf(const World& world, int promotionUid, int workerUid) {
  return FindGrudge(world.Grudges(), promotionUid, workerUid);
}

int OpponentIn(const Grudge& grudge, int workerUid) {
  return grudge.One == workerUid ? grudge.Two : grudge.One;
}

bool BeginGrudge(World& world, const Promotion& rival, int one, int two, GrudgeReason why) {
  const auto there = std::ranges::count_if(
      world.Grudges(), [&](const Grudge& grudge) { return grudge.Promotion == rival.Uid; });
  if (there >= tuning::kGrudges || world.Grudges().Full() || GrudgeOf(world, rival.Uid, one) ||
      GrudgeOf(world, rival.Uid, two))
    return false;
  Grudge grudge{};
  grudge.Since = world.Today();
  grudge.Promotion = rival.Uid;
  grudge.One = one;
  grudge.Two = two;
  grudge.Heat = tuning::kGrudgeHeat;
  grudge.Why = why;
  world.Grudges().Append(grudge);
  NoteDeed(world, kDeedGrudge, &rival, WorkerName(world, one), WorkerName(world, two));
  return true;
}

void SettleGrudge(World& world, const Promotion& rival, int winner, int loser) {
  NoteDeed(world, kDeedSettled, &rival, WorkerName(world, winner), WorkerName(world, loser));
  KeepSettled(world, rival, winner, loser);
  world.Grudges().Keep(
      [&](const Grudge& grudge) { return grudge.Promotion != rival.Uid || !Has(grudge, winner); });
}

void CoolGrudges(World& world) {
  for (Grudge& grudge : world.Grudges()) grudge.Heat -= tuning::kGrudgeCools;
  world.Grudges().Keep([&](const Grudge& grudge) { return IsAlight(world, grudge); });
}

}  // namespace grapplemont
