#include "show/feudend.h"

#include "show/consequences.h"
#include "show/feudheat.h"
#include "show/feudmails.h"
#include "show/feudslots.h"
#include "show/overreport.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// Fewer events than these, and nobody has noticed the feud.
constexpr int kNoticed = 4;
constexpr int kBlowOff = 2;  // for the winners, and off the losers
constexpr int kNoCheapWins = -3;

/// An ended feud as its rules look at it: Y won the last match, X lost it.
struct Ended {
  bool IsTeams;
  int X, Y;    // tallies
  int CheapX;  // cheap wins
  int CleanY;  // clean wins
};

struct Payout {
  int X, Y;
};

/// The first that fits is paid and written about.
struct EndRule {
  bool (*Fits)(const Ended&);
  Payout Singles, Teams;
  FeudStory Story;
};
constexpr int kFarAhead = 5;
constexpr EndRule kEndRules[] = {
    {[](const Ended& e) {
       return e.X > e.Y + kFarAhead && e.Y == 1 && e.CleanY == 1 && e.CheapX >= 4;
     },
     {7, 7},
     {7, 7},
     FeudStory::Comeback},
    {[](const Ended& e) { return e.X + e.Y > (e.IsTeams ? 13 : 12); },
     {4, 7},
     {4, 7},
     FeudStory::Long},
    {[](const Ended& e) { return e.X == e.Y; }, {4, 4}, {3, 3}, FeudStory::Plain},
    {[](const Ended& e) { return e.Y > e.X + kFarAhead; }, {-7, 4}, {-7, 4}, FeudStory::Rout},
    {[](const Ended& e) { return e.X > e.Y + kFarAhead; }, {3, 3}, {3, 3}, FeudStory::Plain},
};

/// The slot of the feud that the match is fought in: for teams a feud of teams alone, whole pair
/// against whole pair.
int BlowOffSlot(const World& world, const Segment& segment) {
  const auto& w = segment.Worker;
  return segment.Style == kSingles ? FeudSlotOf(world, w[0], w[1])
                                   : FeudSlotOfTeams(world, w[0], w[1], w[2], w[3]);
}

bool IsToEnd(const Segment& segment) {
  return (segment.Style == kSingles && segment.Purpose == purpose1::kEndFeud) ||
         (segment.Style == kTag && segment.Purpose == purpose2::kEndFeud);
}

Ended Look(const Feud& feud, bool firstWon) {
  const FeudScore score = FeudWins(feud);
  if (firstWon) return {!feud.Singles, score.Two, score.One, feud.Dirty2, feud.Clean1};
  return {!feud.Singles, score.One, score.Two, feud.Dirty1, feud.Clean2};
}

const EndRule* RuleOf(const Ended& ended) {
  for (const EndRule& rule : kEndRules)
    if (rule.Fits(ended)) return &rule;
  return nullptr;
}

Payout PayoutOf(const Feud& feud, const EndRule* rule) {
  Payout payout{-kBlowOff, kBlowOff};
  if (feud.Dirty1 == 0 && feud.Dirty2 == 0) {
    payout.X += kNoCheapWins;
    payout.Y += kNoCheapWins;
  }
  if (!rule) return payout;
  const Payout& ruled = feud.Singles ? rule->Singles : rule->Teams;
  return {payout.X + ruled.X, payout.Y + ruled.Y};
}

void Pay(SegmentRun& run, const FeudSide& side, int change) {
  for (const int uid : {side.First, side.Second})
    if (Worker* worker = run.World.FindWorker(uid)) ChangeOverAndTell(run, *worker, change);
}

/// Both sides by the record as it stands, the match that ends it included.
void PayOff(SegmentRun& run, const Feud& feud, bool firstWon) {
  const FeudSides sides = SidesOf(feud);
  const EndRule* rule = RuleOf(Look(feud, firstWon));
  const Payout payout = PayoutOf(feud, rule);
  Pay(run, sides.One, firstWon ? payout.Y : payout.X);
  Pay(run, sides.Two, firstWon ? payout.X : payout.Y);
  if (rule)
    WriteAboutFeud(run.World, rule->Story, firstWon ? sides.One : sides.Two,
                   firstWon ? sides.Two : sides.One);
}

}  // namespace

void EndFeudByMatch(SegmentRun& run) {
  if (!IsToEnd(run.Segment)) return;
  const int slot = BlowOffSlot(run.World, run.Segment);
  if (slot == 0) return;
  run.Show.FeudTouched[static_cast<std::size_t>(slot - 1)] = true;
  Feud& feud = run.World.Feuds()[slot];
  const FeudScore score = FeudWins(feud);
  run.FeudEnding = true;
  // Without a winner there is no blow-off to pay for.
  if (const int side = FeudSideOf(feud, run.Segment.Winner);
      side != 0 && score.One + score.Two >= kNoticed)
    PayOff(run, feud, side == 1);
  for (Word* worker : {&feud.Worker1, &feud.Worker2, &feud.Worker3, &feud.Worker4}) *worker = 0;
  run.FeudEnding = false;
}

}  // namespace grapplemont
