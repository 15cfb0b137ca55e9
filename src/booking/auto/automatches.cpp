#include "booking/auto/automatches.h"

#include <algorithm>

#include "show/ratings.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

constexpr int kFaceAgainstHeel = 20, kWithATweener = 10, kTwoAlike = -4, kTwoHeels = -22;
/// Further apart than this in Over, and nobody believes in the outcome.
constexpr int kCloseCall = 8, kNoContestGap = 30;
constexpr int kSameWeight = 3;
/// A star who is fresh and left out takes it to heart.
constexpr int kRestless = 6, kFresh = 86;
/// So many points of condition are worth one: everybody has their turn.
constexpr int kRested = 4;
/// Enemies have had their part of the show.
constexpr int kNotAgain = 30;
constexpr int kStepsDown = 3;
constexpr int kTries = 4;

bool IsRestless(const AutoPlan& plan, const Worker& worker) {
  return worker.Position <= kUpperMidcard && worker.Condition >= kFresh &&
         !plan.Pool.IsBooked(worker.Uid);
}

bool HasMet(const AutoPlan& plan, const Worker& a, const Worker& b) {
  return IsOnCard(plan, [&](const Segment& match) {
    return match.Kind == kMatch && TakesPart(match, a.Uid) && TakesPart(match, b.Uid);
  });
}

/// Both of a team, who are there.
struct Pair {
  Pair(const AutoPlan& plan, const Team& team)
      : One(*plan.World.FindWorker(team.Worker1)), Two(*plan.World.FindWorker(team.Worker2)) {}
  int Women() const { return !One.Gender + !Two.Gender; }
  int Over() const { return One.Over + Two.Over; }

  const Worker &One, &Two;
};

bool ShareAMember(const Team& a, const Team& b) {
  return a.Worker1 == b.Worker1 || a.Worker1 == b.Worker2 || a.Worker2 == b.Worker1 ||
         a.Worker2 == b.Worker2;
}

/// Tries a match of the lead with whoever suits them best.
bool BookLead(AutoPlan& plan, const Worker& lead, const std::vector<const Worker*>& from) {
  for (const Worker* opponent : OpponentsFor(plan, lead, from)) {
    const Wish wish{.Feud = FeudExists(plan.World, lead.Uid, opponent->Uid)};
    if (BookMatch(plan, NewMatch(kSingles, kPlainSingles, {lead.Uid, opponent->Uid}), wish))
      return true;
  }
  return false;
}

/// Where in the list, most popular first, the next match takes its lead: a show goes down the
/// roster match by match where there are people for it, an Event stays at the top.
std::size_t LeadAt(AutoPlan& plan, std::size_t free) {
  const int matches = static_cast<int>(plan.Matches.size());
  const int spare = static_cast<int>(free) - 2 * (plan.MatchesWanted - matches);
  const int step =
      plan.View.IsEvent ? 0 : std::clamp(spare / std::max(1, plan.MatchesWanted), 0, kStepsDown);
  const int skip = matches * step;
  const int jitter = plan.World.RandomDraw(3 + step) - 1;
  return static_cast<std::size_t>(std::clamp(skip + jitter, 0, static_cast<int>(free) - 1));
}

bool BookSingles(AutoPlan& plan) {
  const std::vector<const Worker*> free = plan.Pool.Wrestlers();
  if (free.size() < 2) return false;
  const std::size_t first = LeadAt(plan, free.size());
  for (std::size_t i = 0; i < free.size(); ++i)
    if (BookLead(plan, *free[(first + i) % free.size()], free)) return true;
  return false;
}

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

bool IsTimeForOne(AutoPlan& plan, int heat, bool endsFeud) {
  if (heat == 0 || plan.Gimmicks >= (plan.View.IsEvent ? kPerEvent : kPerShow)) return false;
  return endsFeud || Chance(plan.World, plan.View.IsEvent ? kChanceAtEvent : kChanceOnShow);
}

}  // namespace

bool InOneCorner(const World& world, const Worker& a, const Worker& b) {
  if (IsInStable(a) && a.Stable == b.Stable) return true;
  if (a.Manager == b.Uid || b.Manager == a.Uid) return true;
  return std::any_of(world.Teams().begin(), world.Teams().end(),
                     [&](const Team& team) { return IsTeamOf(team, a.Uid, b.Uid); });
}

int ContrastOf(const Worker& a, const Worker& b) {
  if (a.Disposition == b.Disposition) return a.Disposition == "H" ? kTwoHeels : kTwoAlike;
  return a.Disposition == "T" || b.Disposition == "T" ? kWithATweener : kFaceAgainstHeel;
}

int PairScore(AutoPlan& plan, const Worker& a, const Worker& b) {
  const int luck = plan.World.RandomDraw(kVariety);
  if (a.Uid == b.Uid || a.Gender != b.Gender || HasMet(plan, a, b)) return kNoPair;
  if (!plan.Pool.SameCornerMeets() && InOneCorner(plan.World, a, b)) return kNoPair;
  const int gap = std::abs(a.Over - b.Over);
  int score = DrawRating(b) / 4 + WorkRating(b) / 4 + ContrastOf(a, b) + luck;
  score -= std::max(0, gap - kCloseCall);
  if (gap > kNoContestGap) score -= kNoContestGap;
  if (a.Weight == b.Weight) score += kSameWeight;
  if (IsRestless(plan, b)) score += kRestless;
  if (FeudExists(plan.World, a.Uid, b.Uid)) score -= kNotAgain;
  score += b.Condition / kRested;
  return std::max(score, kNoPair + 1);
}

std::vector<const Worker*> OpponentsFor(AutoPlan& plan, const Worker& lead,
                                        const std::vector<const Worker*>& from) {
  std::vector<std::pair<int, const Worker*>> ranked;
  for (const Worker* other : from)
    if (const int score = PairScore(plan, lead, *other); score > kNoPair)
      ranked.emplace_back(score, other);
  return BestOf(std::move(ranked), kTries);
}

std::vector<const Team*> ReadyTeams(const AutoPlan& plan) {
  std::vector<std::pair<int, const Team*>> ready;
  for (const Team& team : plan.World.Teams())
    if (plan.Pool.MayWrestle({team.Worker1, team.Worker2}))
      ready.emplace_back(Pair(plan, team).Over(), &team);
  return BestOf(std::move(ready));
}

Segment TeamMatch(const Team& a, const Team& b) {
  return NewMatch(kTag, kPlainTag, {a.Worker1, a.Worker2, b.Worker1, b.Worker2});
}

bool TeamsFeud(const AutoPlan& plan, const Team& a, const Team& b) {
  return FeudExists(plan.World, {{a.Worker1, a.Worker2}, {b.Worker1, b.Worker2}});
}

int TeamScore(AutoPlan& plan, const Team& a, const Team& b) {
  const int luck = plan.World.RandomDraw(kVariety);
  const Pair one(plan, a), two(plan, b);
  if (&a == &b || ShareAMember(a, b) || one.Women() != two.Women()) return kNoPair;
  if (!plan.Pool.SameCornerMeets() && InOneCorner(plan.World, one.One, two.One)) return kNoPair;
  const int gap = std::abs(one.Over() - two.Over()) / 2;
  const int score = two.Over() / 4 + b.Experience / 8 + ContrastOf(one.One, two.One) + luck -
                    std::max(0, gap - kCloseCall);
  return std::max(score, kNoPair + 1);
}

void FillMatches(AutoPlan& plan) {
  while (plan.WantsMatch() && plan.RowsLeft() > 0 && BookSingles(plan)) {
  }
}

// Match types: plain wrestling most of the time, stipulations where a feud has earned them.

int TypeFor(AutoPlan& plan, int style, const std::vector<int>& people, int heat, bool endsFeud) {
  constexpr int kPlain = 1;  // in both styles
  if (!IsTimeForOne(plan, heat, endsFeud)) return kPlain;
  const int condition = WorstCondition(plan, people);
  const auto weight = [&](const Gimmick& gimmick) {
    const bool fits = gimmick.Style == style && heat >= gimmick.Heat &&
                      condition >= gimmick.Condition && (plan.View.IsEvent || !gimmick.EventOnly) &&
                      (endsFeud || !gimmick.BlowOffOnly) &&
                      IsOffered(plan.World, *FindMatchType(style, gimmick.Type));
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
