#include <algorithm>
#include <tuple>

#include "booking/auto/automatches.h"
#include "booking/auto/autotalk.h"
#include "records/angles.h"
#include "records/fields/fields.h"
#include "show/showfeuds.h"
#include "storylines/feuds.h"

// Every running feud gets something: a match, an interview or an attack; the blow-off at an Event
// once it has had enough.

namespace grapplemont {

namespace {

/// From here on both sides gain by the end, whoever wins.
constexpr int kLongFeud = 14;
/// A feud that is not yet so long may end when it has run for some weeks and the end pays. As long
/// as it is hot it fills the house, which no end pays for.
constexpr int kToldFeud = 8, kToldDays = 42, kHot = 70;
/// Nobody cares any more, or has for too long.
constexpr int kNoticed = 4, kCold = 20, kDragsOn = 150;
constexpr int kMatchOnShow = 35;
constexpr int kAttacks = 40, kStableAttacks = 50;
/// Losing the last bout to somebody this far below is a grievance.
constexpr int kEndGap = 10;
constexpr int kPerMan = 2;

std::vector<int> Members(const FeudSide& side) {
  return side.IsTeam() ? std::vector<int>{side.First, side.Second} : std::vector<int>{side.First};
}

/// Of both sides.
std::vector<int> Members(const FeudSides& sides) {
  std::vector<int> people = Members(sides.One);
  for (const int uid : Members(sides.Two)) people.push_back(uid);
  return people;
}

int OverOf(const AutoPlan& plan, const FeudSide& side) {
  int sum = 0;
  for (const int uid : Members(side))
    if (const Worker* worker = plan.World.FindWorker(uid)) sum += worker->Over;
  return sum;
}

bool IsHeel(const AutoPlan& plan, const FeudSide& side) {
  const Worker* worker = plan.World.FindWorker(side.First);
  return worker && worker->Disposition == "H";
}

/// What both sides get of an end in which the one wins cleanly.
FeudPayout EndPays(Feud feud, bool oneWins) {
  (oneWins ? feud.Clean1 : feud.Clean2) += 1;
  return PayoutOf(feud, oneWins);
}
int SumOf(const FeudPayout& payout) {
  return payout.Winners + payout.Losers;
}

bool IsRipe(const World& world, const Feud& feud) {
  const FeudScore score = FeudWins(feud);
  const int total = score.One + score.Two;
  const int pays = std::max(SumOf(EndPays(feud, true)), SumOf(EndPays(feud, false)));
  const auto days = (world.Today() - Day(feud.Started)).count();
  if (total >= kLongFeud) return true;
  if (total < kNoticed || feud.Heat >= kHot) return false;
  if (feud.Heat < kCold || days >= kDragsOn) return pays >= 0;
  return total >= kToldFeud && days >= kToldDays && pays > 0;
}

/// What has been won in the ring.
FeudScore RingWins(const Feud& feud) {
  return {feud.Clean1 + feud.Dirty1, feud.Clean2 + feud.Dirty2};
}

/// Who should win next, side one or two: whoever is behind. The last bout goes by all that has
/// happened, and by the good where they are level; on the way there the heels lead.
bool SideOneIsNext(AutoPlan& plan, const Feud& feud, bool last) {
  const FeudSides sides = SidesOf(feud);
  const FeudScore score = last ? FeudWins(feud) : RingWins(feud);
  if (score.One != score.Two) return score.One < score.Two;
  const bool heel = IsHeel(plan, sides.One);
  if (heel == IsHeel(plan, sides.Two)) return Chance(plan.World, 50);
  return last ? !heel : heel;
}

/// Without a grievance: the loser is not far above.
bool MayEnd(const AutoPlan& plan, const FeudSide& winner, const FeudSide& loser) {
  const int gap = winner.IsTeam() ? kEndGap * kPerMan : kEndGap;
  return OverOf(plan, loser) - gap <= OverOf(plan, winner);
}

Segment FeudBout(AutoPlan& plan, const Feud& feud, bool last) {
  const FeudSides sides = SidesOf(feud);
  const std::vector<int> people = Members(sides);
  const int heat = std::max(1, int(feud.Heat));
  const int style = sides.One.IsTeam() ? kTag : kSingles;
  return NewMatch(style, TypeFor(plan, style, people, heat, last), people);
}

/// The Title that one of the match's people holds and all may fight for; "None" for none.
std::string TitleBetween(const AutoPlan& plan, const Segment& match) {
  for (const Title* title : OfferedTitles(plan.World, match)) {
    const bool here = TakesPart(match, title->Holder) &&
                      (title->Singles || PartnerOf(match, title->Holder) == title->Partner);
    if (here && !plan.TitlesUsed.contains(title->Name.Str())) return title->Name.Str();
  }
  return "None";
}

std::string EndText(const FeudPayout& pays) {
  const auto points = [](int change) { return (change > 0 ? "+" : "") + std::to_string(change); };
  return "The feud has had its time: this ends it, for " + points(pays.Winners) +
         " Over to who wins and " + points(pays.Losers) + " to who loses.";
}

bool BookBlowOff(AutoPlan& plan, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  if (!plan.Pool.MayWrestle(Members(sides))) return false;
  Segment match = FeudBout(plan, feud, true);
  match.TitleName = TitleBetween(plan, match);
  const int gain = SumOf(EndPays(feud, true)) - SumOf(EndPays(feud, false));
  const bool next = SideOneIsNext(plan, feud, true), one = gain == 0 ? next : gain > 0;
  for (const bool oneWins : {one, !one}) {
    const auto& [winner, loser] =
        oneWins ? std::tie(sides.One, sides.Two) : std::tie(sides.Two, sides.One);
    if (!MayEnd(plan, winner, loser)) continue;
    plan.Because = EndText(EndPays(feud, oneWins));
    if (BookMatch(plan, match,
                  {.Favoured = winner.First, .Firm = true, .Feud = true, .EndsFeud = true}))
      return true;
  }
  return false;
}

bool BookBout(AutoPlan& plan, const Feud& feud) {
  if (!plan.WantsMatch()) return false;
  const FeudSides sides = SidesOf(feud);
  if (!plan.Pool.MayWrestle(Members(sides))) return false;
  const FeudSide& next = SideOneIsNext(plan, feud, false) ? sides.One : sides.Two;
  return BookMatch(plan, FeudBout(plan, feud, false),
                   {.Favoured = next.First, .Feud = true, .MayDraw = !plan.View.IsEvent});
}

/// Whoever leads a stable need not do it alone.
bool BringsHisStable(AutoPlan& plan, int actor, int victim) {
  const Worker* leader = plan.World.FindWorker(actor);
  return leader && Chance(plan.World, kStableAttacks) && BookStableAttack(plan, *leader, victim);
}

/// The heels do the attacking; among equals whoever is behind.
bool BookWords(AutoPlan& plan, const Feud& feud) {
  if (!plan.WantsTalk()) return false;
  const FeudSides sides = SidesOf(feud);
  const bool oneActs = IsHeel(plan, sides.One) != IsHeel(plan, sides.Two)
                           ? IsHeel(plan, sides.One)
                           : SideOneIsNext(plan, feud, false);
  const std::vector<int> actors = Members(oneActs ? sides.One : sides.Two),
                         others = Members(oneActs ? sides.Two : sides.One);
  const bool team = sides.One.IsTeam();
  const AngleScene attack = team ? AngleScene::TeamAttack : AngleScene::Attack;
  // Nobody is carried out and wrestles all the same.
  const auto wrestles = [&](int uid) { return plan.Pool.Wrestles(uid); };
  if (Chance(plan.World, kAttacks) && std::ranges::none_of(others, wrestles) &&
      ((!team && BringsHisStable(plan, actors[0], others[0])) ||
       BookScene(plan, attack, actors, others)))
    return true;
  return BookTalkBetween(plan, actors, others, kTalkContinueFeud) ||
         BookTalkBetween(plan, others, actors, kTalkContinueFeud) ||
         BookScene(plan, team ? AngleScene::TeamWords : AngleScene::Words, actors, others);
}

/// Slots that something can be done about tonight, the hottest first.
std::vector<int> OpenFeuds(const AutoPlan& plan) {
  std::vector<std::pair<int, int>> slots;
  int slot = 0;
  for (const Feud& feud : plan.World.Feuds()) {
    if (++slot > kFeuds) break;
    if (!IsFreeSlot(feud) && !plan.FeudsUsed.contains(slot) &&
        plan.Pool.MayAppear(Members(SidesOf(feud))))
      slots.emplace_back(feud.Heat, slot);
  }
  return BestOf(std::move(slots));
}

constexpr int kTurnsPerShow = 1;
constexpr int kDebutsPerShow = 1;
/// For as many days the fans remember a turn and do not believe in the next.
constexpr int kFansRemember = 365;

bool IsTimeToTurn(const World& world, const Worker& worker) {
  return worker.TurnPending && (world.Today() - Day(worker.LastTurn)).count() >= kFansRemember;
}

/// Somebody to turn on for a turn that the fans accept: their own kind for a Face or Heel, anybody
/// with a side for a Tweener. A team mate first, then the most popular.
const Worker* WhomToTurnOn(const AutoPlan& plan, const Worker& turner) {
  const Worker* best = nullptr;
  for (const Worker* other : plan.Pool.People()) {
    if (other->Uid == turner.Uid || !IsOnRoster(*other) || other->Gender != turner.Gender) continue;
    const bool fits = turner.Disposition == "T" ? other->Disposition != "T"
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

/// The loser of a match with their own kind shows their true colours.
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

bool DebutInMatch(AutoPlan& plan, const Worker& newcomer) {
  if (!plan.WantsMatch()) return false;
  for (const Worker* opponent : OpponentsFor(plan, newcomer, plan.Pool.Wrestlers())) {
    const Segment match = NewMatch(kSingles, kPlainSingles, {newcomer.Uid, opponent->Uid});
    if (BookMatch(plan, match, {.Favoured = newcomer.Uid})) return true;
  }
  return false;
}

bool Introduce(AutoPlan& plan, const Worker& newcomer) {
  std::vector<const Worker*> victims;
  if (plan.WantsTalk()) victims = OpponentsFor(plan, newcomer, plan.Pool.Wrestlers());
  return (!victims.empty() &&
          BookScene(plan, AngleScene::Debut, {newcomer.Uid}, {victims[0]->Uid})) ||
         DebutInMatch(plan, newcomer);
}

/// A manager is introduced by their client.
bool IntroduceManager(AutoPlan& plan, const Worker& manager) {
  for (const Worker* client : plan.Pool.People())
    if (client->Manager == manager.Uid && client->Debuted && plan.WantsTalk() &&
        BookAngle(plan, kManagerialDebut, {manager.Uid, client->Uid}, kMiddle))
      return true;
  return false;
}

}  // namespace

void EndFeuds(AutoPlan& plan) {
  if (!plan.View.IsEvent) return;
  plan.Pool.Reach(kForTheOccasion);
  for (const int slot : OpenFeuds(plan)) {
    const Feud& feud = plan.World.Feuds()[slot];
    if (plan.WantsMatch() && !plan.FeudsUsed.contains(slot) && IsRipe(plan.World, feud))
      BookBlowOff(plan, feud);
  }
  plan.Pool.Reach(kReserves[0]);
}

void AdvanceFeuds(AutoPlan& plan) {
  plan.Pool.Reach(plan.View.IsEvent ? kForTheOccasion : kReserves[0]);
  for (const int slot : OpenFeuds(plan)) {
    if (plan.FeudsUsed.contains(slot)) continue;
    const Feud& feud = plan.World.Feuds()[slot];
    if (plan.View.IsEvent || Chance(plan.World, kMatchOnShow))
      BookBout(plan, feud) || BookWords(plan, feud);
    else
      BookWords(plan, feud) || BookBout(plan, feud);
  }
  plan.Pool.Reach(kReserves[0]);
}

// What changes the roster's picture: turns that are pending, faces not seen before.

void TurnWhoWaits(AutoPlan& plan) {
  int turns = 0;
  for (const Worker* worker : plan.Pool.People())
    if (turns < kTurnsPerShow && IsOnRoster(*worker) && IsTimeToTurn(plan.World, *worker) &&
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
