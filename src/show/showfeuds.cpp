#include "show/showfeuds.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "records/angles.h"
#include "records/segmentacts.h"
#include "records/segmentparts.h"
#include "show/nightbook.h"
#include "show/ratings.h"
#include "storylines/feuds.h"

namespace grapplemont {

int FeudSideOf(const Feud& feud, int uid) {
  if (IsFreeSlot(feud)) return 0;
  const FeudSides sides = SidesOf(feud);
  if (sides.One.Has(uid)) return 1;
  return sides.Two.Has(uid) ? 2 : 0;
}

bool AreEnemies(const Feud& feud, int workerX, int workerY) {
  const int sideX = FeudSideOf(feud, workerX), sideY = FeudSideOf(feud, workerY);
  return sideX != 0 && sideY != 0 && sideX != sideY;
}

int FeudSlotOf(const World& world, int workerX, int workerY) {
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot)
    if (AreEnemies(world.Feuds()[slot], workerX, workerY)) return slot;
  return 0;
}

void MarkFeud(SegmentRun& run, int workerX, int workerY) {
  for (int slot = 1; slot <= run.World.Feuds().Count(); ++slot)
    if (AreEnemies(run.World.Feuds()[slot], workerX, workerY)) MarkSlot(run, slot);
}

void MarkSlot(SegmentRun& run, int slot) {
  run.Show.FeudTouched[static_cast<std::size_t>(slot - 1)] = true;
}

std::string FeudText(const World& world, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  return SideName(world, sides.One) + " and " + SideName(world, sides.Two);
}

namespace {

void SetHeat(SegmentRun& run, Feud& feud, int heat, const char* why) {
  const int before = feud.Heat;
  feud.Heat = heat;
  NoteStep(run, kNoteHeat, FeudText(run.World, feud), feud.Heat - before, feud.Heat, why);
}

/// One test of a heat on the move: where it lies more than `Off` from its target it goes `By`.
struct HeatStep {
  int Off;
  int By;
  int TalkBelow;  // talk alone raises no heat that has got this far
};
constexpr HeatStep kHeatSteps[] = {{0, 1, 90}, {5, 4, 86}, {10, 4, 79}, {15, 6, 75}};

constexpr int kLeastLift = 5;
constexpr int kLiftDraw = 5;

constexpr int kFeudTalkDraw = 15;
constexpr int kTalkBonus = 15;
/// Enemies who end up in each other's arms cool down, however well they do it.
constexpr int kAngleTarget = 15;

bool StandWhole(const Feud& feud, const Segment& segment) {
  const auto sideOf = [&](int place) { return FeudSideOf(feud, UidAt(segment, place)); };
  return !feud.Singles && sideOf(1) != 0 && sideOf(3) != 0 && sideOf(1) != sideOf(3) &&
         sideOf(2) == sideOf(1) && sideOf(4) == sideOf(3);
}

int TalkTarget(SegmentRun& run) {
  if (run.Segment.Kind == kAngle) return kAngleTarget;
  return std::min(
      Score::Floor(run.Crowd * 85, 100) + run.World.RandomDraw(kFeudTalkDraw) + kTalkBonus, 100);
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

/// The heat after it has followed a rating; 0..100. Held back near the top where enemies only talk.
int MoveHeat(int heat, int target, bool isTalk) {
  for (const HeatStep& step : kHeatSteps)
    if (heat - step.Off > target) heat -= step.By;
  for (const HeatStep& step : kHeatSteps) {
    const bool isHeldBack = isTalk && heat >= step.TalkBelow;
    if (heat + step.Off < target && !isHeldBack) heat += step.By;
  }
  return std::clamp(heat, 0, 100);
}

}  // namespace

Span HeatMoves() {
  Span moves{kHeatSteps[0].By, 0};
  for (const HeatStep& step : kHeatSteps) moves.Most += step.By;
  return moves;
}

Span HeatOfTalk() {
  const auto [least, most] = std::ranges::minmax(kHeatSteps, {}, &HeatStep::TalkBelow);
  return {least.TalkBelow, most.TalkBelow};
}

int FeudSlotOf(const World& world, const Segment& segment, bool ofTeams) {
  if (!ofTeams) return FeudSlotOf(world, UidAt(segment, 1), UidAt(segment, 2));
  for (int slot = 1; slot <= world.Feuds().Count(); ++slot)
    if (StandWhole(world.Feuds()[slot], segment)) return slot;
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
  const int slot = FeudSlotOf(run.World, run.Segment, false);
  if (slot == 0) return;
  MarkSlot(run, slot);
  Feud& feud = run.World.Feuds()[slot];
  SetHeat(run, feud, MoveHeat(feud.Heat, WeighRating(run.Quality, run.Crowd), false),
          "follows the match");
}

void HeatFollowsTalk(SegmentRun& run) {
  const int target = TalkTarget(run);
  for (int slot = 1; slot <= run.World.Feuds().Count(); ++slot) {
    Feud& feud = run.World.Feuds()[slot];
    if (!SpeakAgainst(feud, run.Segment)) continue;
    MarkSlot(run, slot);
    SetHeat(run, feud, MoveHeat(feud.Heat, target, true), "follows the talk");
  }
}

namespace {

/// So many clean wins, and a side begins to bore.
constexpr int kCleanWins = 8;
constexpr int kBored = 2;
/// So many wins ahead of a side that has won fairly as well, and it is over.
constexpr int kRunaway = 5;
constexpr int kRunawayCools = 5;

constexpr int kCleanFinishes[] = {kClean, kCountOut, kSickBump, kMiscommunication};

/// A side's counters in the record.
struct Counters {
  Natural &Clean, &Cheap, &Verbal, &Attacks;
};

Counters CountersOf(Feud& feud, int side) {
  if (side == 1) return {feud.Clean1, feud.Dirty1, feud.Interference1, feud.Sneak1};
  return {feud.Clean2, feud.Dirty2, feud.Interference2, feud.Sneak2};
}

void Cool(SegmentRun& run, Feud& feud) {
  const int winsA = feud.Clean1 + feud.Dirty1, winsB = feud.Clean2 + feud.Dirty2;
  int heat = feud.Heat;
  if (feud.Clean1 > kCleanWins) heat -= kBored;
  if (feud.Clean2 > kCleanWins) heat -= kBored;
  if (winsA > winsB + kRunaway && feud.Clean2 > 0) heat -= kRunawayCools;
  if (winsB > winsA + kRunaway && feud.Clean1 > 0) heat -= kRunawayCools;
  SetHeat(run, feud, heat, "one side wins too much");
}

/// Adds one to a counter of `uid` in the first feud against `enemy`; 0 where there is none, else
/// its slot.
int Count(World& world, int uid, int enemy, Natural& (*counter)(const Counters&)) {
  const int slot = FeudSlotOf(world, uid, enemy);
  if (slot == 0) return 0;
  Feud& feud = world.Feuds()[slot];
  ++counter(CountersOf(feud, FeudSideOf(feud, uid)));
  return slot;
}

bool CountsWins(const Segment& segment) {
  const int style = segment.Style;
  return style == kSingles || style == kTag || style == kThreeOnThree ||
         (style == kFourOnFour && segment.MatchType == kPlainEightMan);
}

bool IsCleanWin(const Segment& segment) {
  if (segment.Style != kSingles && segment.Style != kTag) return segment.Finish == kClean;
  return std::find(std::begin(kCleanFinishes), std::end(kCleanFinishes), int(segment.Finish)) !=
         std::end(kCleanFinishes);
}

void TallyWin(SegmentRun& run, int winnerUid, int loserUid, bool isClean) {
  const int slot = Count(
      run.World, winnerUid, loserUid,
      isClean ? +[](const Counters& side) -> Natural& { return side.Clean; }
              : +[](const Counters& side) -> Natural& { return side.Cheap; });
  if (slot == 0) return;
  MarkSlot(run, slot);
  Cool(run, run.World.Feuds()[slot]);
}

}  // namespace

void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid) {
  const int slot = Count(run.World, speakerUid, targetUid,
                         [](const Counters& side) -> Natural& { return side.Verbal; });
  if (slot != 0) Cool(run, run.World.Feuds()[slot]);
}

void TallyResult(SegmentRun& run) {
  const Segment& segment = run.Segment;
  if (!IsDraw(segment) && CountsWins(segment))
    TallyWin(run, segment.Winner, FallenOf(segment), IsCleanWin(segment));
}

namespace {

using Pairs = std::vector<std::pair<int, int>>;

/// A pair attacks a pair man by man; one alone is attacked by both, or attacks both.
void AddPairs(Pairs& pairs, const std::vector<int>& by, const std::vector<int>& on) {
  if (by.empty() || on.empty()) return;
  for (std::size_t i = 0; i < std::max(by.size(), on.size()); ++i) {
    const std::pair pair{by[std::min(i, by.size() - 1)], on[std::min(i, on.size() - 1)]};
    // However often they hit the same one, it was one attack.
    if (std::find(pairs.begin(), pairs.end(), pair) == pairs.end()) pairs.push_back(pair);
  }
}

}  // namespace

void TallyAttacks(SegmentRun& run) {
  Pairs pairs;
  for (const Act& act : ActsOf(run.Segment))
    if (act.Is(kFeudAttack))
      AddPairs(pairs, PeopleOf(run.Segment, act.By), PeopleOf(run.Segment, act.On));
  for (const auto& [attacker, target] : pairs)
    Count(run.World, attacker, target,
          [](const Counters& side) -> Natural& { return side.Attacks; });
}

}  // namespace grapplemont
