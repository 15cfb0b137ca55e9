#include "booking/automatches.h"

#include <algorithm>

// Match types: plain wrestling most of the time, stipulations where a feud has earned them.

namespace grapplemont {

namespace {

/// When a stipulation is worth its wear.
struct Gimmick {
  int Style;
  int Type;
  int Heat;  // of the feud, at least
  bool EventOnly;
  bool BlowOffOnly;
  int Condition;  // of everybody in it, at least
  int Weight;     // among those that fit
};
constexpr Gimmick kGimmicks[] = {
    {kSingles, kHardcore, 35, false, false, 60, 3},
    {kSingles, kFallsCountAnywhere, 40, false, false, 60, 3},
    {kSingles, kCage, 50, true, false, 60, 4},
    {kSingles, kTexasDeath, 50, true, false, 60, 2},
    {kSingles, kIQuit, 55, true, true, 65, 3},
    {kSingles, kLastManStanding, 50, true, false, 65, 3},
    {kSingles, kTables, 50, true, false, 65, 2},
    {kSingles, kLadder, 55, true, false, 65, 3},
    {kSingles, kFirstBlood, 60, true, true, 65, 2},
    {kSingles, kInferno, 75, true, true, 70, 1},
    {kSingles, kHellInACell, 65, true, true, 75, 5},
    {kSingles, kBarbedWire, 75, true, true, 85, 1},
    {kTag, kTagHardcore, 35, false, false, 60, 3},
    {kTag, kTagCage, 50, true, false, 60, 3},
    {kTag, kTagTables, 50, true, false, 65, 3},
    {kTag, kTagLadder, 55, true, false, 75, 3},
};

constexpr int kPerEvent = 2, kPerShow = 1;
constexpr int kChanceOnShow = 20, kChanceAtEvent = 45;

int WorstCondition(const AutoPlan& plan, const std::vector<int>& people) {
  int worst = 100;
  for (const int uid : people)
    if (const Worker* worker = plan.World.FindWorker(uid))
      worst = std::min(worst, int(worker->Condition));
  return worst;
}

bool IsOffered(const Promotion& promotion, int style, int type) {
  const MatchTypeRow* row = FindMatchType(style, type);
  return row && promotion.Risk > row->RiskOver && promotion.Size < row->SizeUnder;
}

bool IsTimeForOne(AutoPlan& plan, int heat, bool endsFeud) {
  if (heat == 0 || plan.Gimmicks >= (plan.View.IsEvent ? kPerEvent : kPerShow)) return false;
  return endsFeud || Chance(plan.World, plan.View.IsEvent ? kChanceAtEvent : kChanceOnShow);
}

/// A type of the style by the weights of those that fit; plain when none does.
int TypeFor(AutoPlan& plan, int style, const std::vector<int>& people, int heat, bool endsFeud) {
  constexpr int kPlain = 1;  // in both styles
  if (!IsTimeForOne(plan, heat, endsFeud)) return kPlain;
  const int condition = WorstCondition(plan, people);
  const auto weight = [&](const Gimmick& gimmick) {
    const bool fits = gimmick.Style == style && heat >= gimmick.Heat &&
                      condition >= gimmick.Condition && (plan.View.IsEvent || !gimmick.EventOnly) &&
                      (endsFeud || !gimmick.BlowOffOnly) &&
                      IsOffered(plan.World.Player(), style, gimmick.Type);
    return fits ? gimmick.Weight : 0;
  };
  int total = 0;
  for (const Gimmick& gimmick : kGimmicks) total += weight(gimmick);
  if (total == 0) return kPlain;
  int drawn = plan.World.RandomDraw(total);
  for (const Gimmick& gimmick : kGimmicks)
    if ((drawn -= weight(gimmick)) <= 0) return gimmick.Type;
  return kPlain;
}

}  // namespace

int SinglesTypeFor(AutoPlan& plan, const std::vector<int>& people, int heat, bool endsFeud) {
  return TypeFor(plan, kSingles, people, heat, endsFeud);
}

int TagTypeFor(AutoPlan& plan, const std::vector<int>& people, int heat, bool endsFeud) {
  return TypeFor(plan, kTag, people, heat, endsFeud);
}

bool BookMatch(AutoPlan& plan, Segment match, const Wish& wish) {
  const bool gimmick = match.MatchType != kPlainSingles && match.Style <= kTag;
  Segment attempt = match;
  if (Decide(plan, attempt, wish)) {
    plan.Gimmicks += gimmick;
    PlanMatch(plan, attempt);
    return true;
  }
  if (!gimmick) return false;
  match.MatchType = kPlainSingles;
  return BookMatch(plan, match, wish);
}

}  // namespace grapplemont
