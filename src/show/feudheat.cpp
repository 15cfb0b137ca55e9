#include "show/feudheat.h"

#include <algorithm>

#include "records/angles.h"
#include "show/feudslots.h"
#include "show/scoring.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// One test of a heat on the move: where it lies more than `Off` from its target it goes `By`.
struct HeatStep {
  int Off;
  int By;
  int TalkBelow;  // talk alone raises no heat that has got this far
};
constexpr HeatStep kHeatSteps[] = {{0, 1, 90}, {5, 4, 86}, {10, 4, 79}, {15, 6, 75}};

constexpr int kLeastLift = 5;
constexpr int kLiftDraw = 5;

constexpr int kTalkDraw = 15;
constexpr int kTalkBonus = 15;
/// Enemies who end up in each other's arms cool down, however well they do it.
constexpr int kAngleTarget = 15;

std::string FeudText(const World& world, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  return SideName(world, sides.One) + " and " + SideName(world, sides.Two);
}

bool StandWhole(const Feud& feud, int workerA, int partnerA, int workerB, int partnerB) {
  const int sideA = FeudSideOf(feud, workerA), sideB = FeudSideOf(feud, workerB);
  return sideA != 0 && sideB != 0 && sideA != sideB && FeudSideOf(feud, partnerA) == sideA &&
         FeudSideOf(feud, partnerB) == sideB;
}

void MarkSlot(SegmentRun& run, int slot) {
  run.Show.FeudTouched[static_cast<std::size_t>(slot - 1)] = true;
}

int TalkTarget(SegmentRun& run) {
  if (run.Segment.Kind == kAngle) return kAngleTarget;
  return std::min(Score::Floor(run.Crowd * 85, 100) + run.World.RandomDraw(kTalkDraw) + kTalkBonus,
                  100);
}

/// By the places of an interview of that number, for angles too; the two people of an angle face
/// each other besides.
bool SpeakAgainst(const Feud& feud, const Segment& segment) {
  const InterviewStyleRow* row = FindInterviewStyle(segment.Style);
  if (!row) return false;
  const auto& workers = segment.Worker;
  if (segment.Kind == kAngle && AreEnemies(feud, workers[0], workers[1])) return true;
  const auto targets = workers.begin() + row->Speakers;
  return std::any_of(workers.begin(), targets, [&](int speaker) {
    return std::any_of(targets, targets + row->Targets,
                       [&](int target) { return AreEnemies(feud, speaker, target); });
  });
}

}  // namespace

int MoveHeat(int heat, int target, HeatRise rise) {
  for (const HeatStep& step : kHeatSteps)
    if (heat - step.Off > target) heat -= step.By;
  for (const HeatStep& step : kHeatSteps) {
    const bool isHeldBack = rise == HeatRise::HeldBack && heat >= step.TalkBelow;
    if (heat + step.Off < target && !isHeldBack) heat += step.By;
  }
  return std::clamp(heat, 0, 100);
}

int FeudSlotOfTeams(const World& world, int workerA, int partnerA, int workerB, int partnerB) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot) {
    const Feud& feud = world.Feuds()[slot];
    if (!feud.Singles && StandWhole(feud, workerA, partnerA, workerB, partnerB)) return slot;
  }
  return 0;
}

void FeudLift(SegmentRun& run, int slot) {
  if (slot == 0) return;
  MarkSlot(run, slot);
  const Feud& feud = run.World.Feuds()[slot];
  if (run.Crowd >= feud.Heat) return;
  const int lifted = run.Crowd + kLeastLift + run.World.RandomDraw(kLiftDraw);
  run.Crowd.Become(
      std::min<int>(lifted, feud.Heat),
      "feud of " + FeudText(run.World, feud) + ", up to its heat " + std::to_string(feud.Heat));
}

void HeatFollowsMatch(SegmentRun& run) {
  const int slot = FeudSlotOf(run.World, run.Segment.Worker[0], run.Segment.Worker[1]);
  if (slot == 0) return;
  MarkSlot(run, slot);
  Feud& feud = run.World.Feuds()[slot];
  feud.Heat = MoveHeat(feud.Heat, WeighRating(run.Quality, run.Crowd), HeatRise::Free);
}

void HeatFollowsTalk(SegmentRun& run) {
  const int target = TalkTarget(run);
  for (int slot = 1; slot <= run.World.Feuds().Count(); ++slot) {
    Feud& feud = run.World.Feuds()[slot];
    if (!SpeakAgainst(feud, run.Segment)) continue;
    MarkSlot(run, slot);
    feud.Heat = MoveHeat(feud.Heat, target, HeatRise::HeldBack);
  }
}

}  // namespace grapplemont
