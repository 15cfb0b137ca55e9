#include "show/feudtallies.h"

#include <algorithm>
#include <iterator>

#include "records/segmentparts.h"
#include "show/consequences.h"
#include "show/feudslots.h"

namespace grapplemont {

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
  Natural& Clean;
  Natural& Cheap;
  Natural& Verbal;
  Natural& Attacks;
  int Wins() const { return Clean + Cheap; }
};

Counters CountersOf(Feud& feud, int side) {
  if (side == 1) return {feud.Clean1, feud.Dirty1, feud.Interference1, feud.Sneak1};
  return {feud.Clean2, feud.Dirty2, feud.Interference2, feud.Sneak2};
}

void Cool(Feud& feud) {
  const Counters a = CountersOf(feud, 1), b = CountersOf(feud, 2);
  int heat = feud.Heat;
  if (a.Clean > kCleanWins) heat -= kBored;
  if (b.Clean > kCleanWins) heat -= kBored;
  if (a.Wins() > b.Wins() + kRunaway && b.Clean > 0) heat -= kRunawayCools;
  if (b.Wins() > a.Wins() + kRunaway && a.Clean > 0) heat -= kRunawayCools;
  feud.Heat = heat;
}

/// Adds one to a counter of `uid` in the first feud against `enemy`; nullptr where there is none.
Feud* Count(World& world, int uid, int enemy, Natural& (*counter)(const Counters&)) {
  const int slot = FeudSlotOf(world, uid, enemy);
  if (slot == 0) return nullptr;
  Feud& feud = world.Feuds()[slot];
  ++counter(CountersOf(feud, FeudSideOf(feud, uid)));
  return &feud;
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

}  // namespace

void TallyWin(SegmentRun& run, int winnerUid, int loserUid, bool isClean) {
  const int slot = FeudSlotOf(run.World, winnerUid, loserUid);
  if (slot == 0) return;
  Feud* feud = Count(
      run.World, winnerUid, loserUid,
      isClean ? +[](const Counters& side) -> Natural& { return side.Clean; }
              : +[](const Counters& side) -> Natural& { return side.Cheap; });
  run.Show.FeudTouched[static_cast<std::size_t>(slot - 1)] = true;
  Cool(*feud);
}

void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid) {
  Feud* feud = Count(run.World, speakerUid, targetUid,
                     [](const Counters& side) -> Natural& { return side.Verbal; });
  if (feud) Cool(*feud);
}

void TallyAttack(SegmentRun& run, int attackerUid, int targetUid) {
  Count(run.World, attackerUid, targetUid,
        [](const Counters& side) -> Natural& { return side.Attacks; });
}

void TallyResult(SegmentRun& run) {
  const Segment& segment = run.Segment;
  if (!IsDraw(segment) && CountsWins(segment))
    TallyWin(run, segment.Winner, FallenOf(segment), IsCleanWin(segment));
}

}  // namespace grapplemont
