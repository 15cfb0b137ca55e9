#include "rivals/newtalent.h"

#include "records/modVar.h"
#include "records/severing.h"
#include "rivals/tuning.h"
#include "roster/invented.h"
#include "roster/leaving.h"
#include "roster/market.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

/// Who is there, for shares of a hundred.
struct Census {
  int All = 0;
  int Free = 0;
  int Women = 0;
  int Light = 0;
  explicit Census(const World& world) : All(world.Workers().Count()) {
    for (const Worker& worker : world.Workers()) {
      Free += worker.Employer == 0;
      Women += !worker.Gender;
      Light += worker.Weight == "L";
    }
  }
};

bool IsBelow(int part, int whole, int percent) {
  return part * 100 < whole * percent;
}

bool AreWomenFew(const Census& now) {
  return IsBelow(now.Women, now.All, tuning::kWomenWanted);
}

/// Their name says who is a woman; while women are few, men are often asked to wait.
Worker DrawTalent(World& world, const Census& now) {
  Worker talent = NewTalent(world);
  for (int asked = 0; asked < tuning::kMenAskedToWait && talent.Gender && AreWomenFew(now); ++asked)
    talent = NewTalent(world);
  return talent;
}

/// Everybody who comes is free, so the share grows with both counts.
int NewTalentNeeded(int free, int all) {
  int needed = 0;
  while (needed < tuning::kNewTalentAMonth &&
         IsBelow(free + needed, all + needed, tuning::kFreeWanted))
    ++needed;
  return needed;
}

int Prospects(const Worker& worker) {
  return worker.Over + BestSkillOf(worker) + worker.Charisma / 2;
}

bool MayGiveUp(const World& world, const Worker& worker, const Census& now) {
  const bool areLightEnough = !IsBelow(now.Light, now.All, tuning::kLightweightsEnough);
  return worker.Employer == 0 && worker.Age >= tuning::kGivesUpFrom &&
         worker.Over < tuning::kGivesUpBelow && !worker.RetiringSoon &&
         (worker.Gender || !AreWomenFew(now)) && (worker.Weight == "L" || !areLightEnough) &&
         !IsShortlisted(world, worker.Uid);
}

}  // namespace

Worker* NextToGiveUp(World& world) {
  const Census now(world);
  if (IsBelow(now.Free, now.All, tuning::kFreeToSpare)) return nullptr;
  Worker* next = nullptr;
  for (Worker& worker : world.Workers())
    if (MayGiveUp(world, worker, now) && (!next || Prospects(worker) < Prospects(*next)))
      next = &worker;
  return next;
}

void FindNewTalent(World& world) {
  for (int n = 0; n < tuning::kGiveUpAMonth; ++n)
    if (Worker* worker = NextToGiveUp(world)) {
      NoteDeed(world, kDeedRetired, nullptr, *worker);
      PartWith(world, *worker);
      ForgetWorker(world, *worker);
      *worker = DrawTalent(world, Census(world));
    }
  const Census now(world);
  const int needed = NewTalentNeeded(now.Free, now.All);
  for (int n = 0; n < needed && !world.Workers().Full(); ++n)
    world.Workers().Append(DrawTalent(world, Census(world)));
}

}  // namespace grapplemont
