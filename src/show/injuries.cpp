#include "show/injuries.h"

#include <array>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/segmentparts.h"

namespace grapplemont {

namespace {

constexpr std::array<std::string_view, 12> kInjuries = {
    "Broken Arm",  "Broken Leg", "Back Injury", "Tricep Tear",  "Neck Injury",  "Eye Injury",
    "Broken Nose", "Torn Calf",  "Knee Injury", "Ankle Injury", "Damaged Hand", "Ripped Bicep"};
constexpr int kLongestMonths = 6;

/// One in so many is hurt, by Strain.
constexpr int kOddsByStrain[] = {0, 0, 0, 400, 250, 150};
constexpr int kSickBumpOdds = 40;
/// Below this Condition the odds double.
constexpr int kWornOut = 40;

bool TakesSickBump(const Segment& segment, int uid) {
  return (segment.Style == kSingles || segment.Style == kTag) && segment.Finish == kSickBump &&
         uid == FallenOf(segment);
}

/// 0 for a worker who runs no risk.
int OddsOf(const SegmentRun& run, const Worker& worker) {
  if (run.Strain < 0 || run.Strain >= static_cast<int>(std::size(kOddsByStrain))) return 0;
  const int odds = TakesSickBump(run.Segment, worker.Uid)
                       ? kSickBumpOdds
                       : kOddsByStrain[static_cast<std::size_t>(run.Strain)];
  return worker.Condition < kWornOut ? odds / 2 : odds;
}

}  // namespace

void BreakSomething(World& world, Worker& worker) {
  worker.Status = "Inj";
  worker.InjuryName =
      kInjuries[static_cast<std::size_t>(world.RandomDraw(static_cast<int>(kInjuries.size())) - 1)];
  worker.StatusMonths = world.RandomDraw(kLongestMonths);
  NoteDeed(world, kDeedInjured, world.FindPromotion(worker.Employer), worker.Name,
           worker.InjuryName, worker.StatusMonths);
}

void Injure(SegmentRun& run, Worker& worker) {
  if (worker.Status == "Inj") return;
  BreakSomething(run.World, worker);
  run.Notes += worker.Name.Str() + " has sustained an injury as a result of a bad bump! " +
               StatusLine(worker) + ". ";
}

void DrawInjuries(SegmentRun& run) {
  for (const int uid : PeopleOf(run.Segment)) {
    Worker* worker = run.World.FindWorker(uid);
    const int odds = worker ? OddsOf(run, *worker) : 0;
    if (odds > 0 && run.World.RandomDraw(odds) == 1) Injure(run, *worker);
  }
}

}  // namespace grapplemont
