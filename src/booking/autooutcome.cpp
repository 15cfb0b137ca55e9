#include "booking/autooutcome.h"

#include <algorithm>

#include "booking/autofinishes.h"

namespace grapplemont {

namespace {

// What makes a win worth while, in points of Over.
constexpr int kChance = 12;
constexpr int kYoung = 30, kYouth = 3;
constexpr int kOld = 40, kAgeing = -4;
constexpr int kRetires = -10;
constexpr int kEnhancement = -12;  // a jobber's job
constexpr int kChampion = 7;

int PushOf(const Worker& worker) {
  int push = std::clamp((worker.Potential - worker.Over) / 5, -4, 6);
  if (worker.Age < kYoung) push += kYouth;
  if (worker.Age > kOld) push += kAgeing;
  if (worker.RetiringSoon) push += kRetires;
  if (worker.Position == kJobber) push += kEnhancement;
  return push;
}

bool IsChampion(const World& world, int uid) {
  return std::any_of(world.Titles().begin(), world.Titles().end(), [&](const Title& title) {
    return title.Owner == world.PlayerUid() && (title.Holder == uid || title.Partner == uid);
  });
}

int SideWorth(AutoPlan& plan, const std::vector<int>& side) {
  int worth = 0;
  for (const int uid : side)
    if (const Worker* worker = plan.World.FindWorker(uid)) worth += WinWorth(plan, *worker);
  return worth;
}

/// Side numbers from 0, the one to win first.
std::vector<std::size_t> SidesByWorth(AutoPlan& plan, const Segment& match, const Wish& wish) {
  const auto sides = SidesOf(match);
  std::vector<int> worth;
  for (const auto& side : sides)
    worth.push_back(SideWorth(plan, side) +
                    (std::find(side.begin(), side.end(), wish.Favoured) != side.end() ? 1000 : 0));
  std::vector<std::size_t> order(sides.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return worth[a] > worth[b]; });
  if (wish.Firm) order.resize(1);
  return order;
}

/// Who of a side takes the fall: the least popular.
int WeakestOf(const World& world, const std::vector<int>& side) {
  return *std::min_element(side.begin(), side.end(), [&](int a, int b) {
    const Worker *one = world.FindWorker(a), *two = world.FindWorker(b);
    return one && two && one->Over < two->Over;
  });
}

/// Takes the first ending that everybody accepts.
bool TryEndings(AutoPlan& plan, Segment& match, const Wish& wish) {
  for (const Ending& ending : EndingsOf(plan, match, wish)) {
    Segment attempt = match;
    attempt.Finish = ending.Finish;
    attempt.Other1 = ending.Other1;
    for (const int aftermath : {ending.Aftermath, int(after1::kNothing)}) {
      attempt.Aftermath = aftermath;
      attempt.Purpose = PurposeOf(plan, attempt, wish);
      if (!Stands(plan, attempt)) continue;
      match = attempt;
      return true;
    }
  }
  return false;
}

bool TryDraw(AutoPlan& plan, Segment& match, const Wish& wish) {
  match.Winner = 0;
  match.Loser = kNoLoser;
  match.Finish = Chance(plan.World, 50) ? kDoubleDq : kDoubleCountOut;
  match.Aftermath = after1::kNothing;
  match.Purpose = PurposeOf(plan, match, wish);
  return Stands(plan, match);
}

bool DecideTwoSides(AutoPlan& plan, Segment& match, const Wish& wish) {
  const auto sides = SidesOf(match);
  for (const std::size_t winner : SidesByWorth(plan, match, wish)) {
    match.Winner = sides[winner][0];
    match.Loser = WeakestOf(plan.World, sides[1 - winner]);
    if (TryEndings(plan, match, wish)) return true;
  }
  return wish.MayDraw && match.MatchType == kPlainSingles && TryDraw(plan, match, wish);
}

/// Trios and quartets: a finish, but nothing behind it.
bool DecideMany(AutoPlan& plan, Segment& match, const Wish& wish) {
  const auto sides = SidesOf(match);
  for (const std::size_t winner : SidesByWorth(plan, match, wish)) {
    match.Winner = sides[winner][0];
    match.Loser = WeakestOf(plan.World, sides[1 - winner]);
    const Worker* star = plan.World.FindWorker(match.Winner);
    const bool cheap = star && star->Disposition == "H" && Chance(plan.World, 40);
    match.Finish = cheap ? kCheapVictory : int(kClean);
    if (Stands(plan, match)) return true;
  }
  return false;
}

/// The least popular goes out first, which is the Loser's place; a battle royal has it for the
/// runner-up.
void NameLosers(const World& world, Segment& match, std::vector<int> losers) {
  std::stable_sort(losers.begin(), losers.end(), [&](int a, int b) {
    const Worker *one = world.FindWorker(a), *two = world.FindWorker(b);
    return one && two && one->Over < two->Over;
  });
  match.Loser = match.Style == kSpecial ? losers.back() : losers[0];
  if (match.MatchType != kElimination || match.Style == kSpecial) return;
  if (losers.size() > 1) match.Place3 = losers[1];
  if (losers.size() > 2) match.Place4 = losers[2];
}

bool DecideFreeForAll(AutoPlan& plan, Segment& match, const Wish& wish) {
  const auto sides = SidesOf(match);
  for (const std::size_t winner : SidesByWorth(plan, match, wish)) {
    match.Winner = sides[winner][0];
    std::vector<int> losers;
    for (std::size_t i = 0; i < sides.size(); ++i)
      if (i != winner) losers.push_back(sides[i][0]);
    NameLosers(plan.World, match, losers);
    if (Stands(plan, match)) return true;
  }
  return false;
}

}  // namespace

Segment NewMatch(int style, int type, const std::vector<int>& people) {
  Segment match = EmptySegment();
  match.Kind = kMatch;
  match.Style = style;
  match.MatchType = type;
  for (std::size_t i = 0; i < people.size(); ++i) match.Worker[i] = people[i];
  return match;
}

int WinWorth(AutoPlan& plan, const Worker& worker) {
  return worker.Over + PushOf(worker) + (IsChampion(plan.World, worker.Uid) ? kChampion : 0) +
         plan.World.RandomDraw(kChance);
}

bool Decide(AutoPlan& plan, Segment& match, const Wish& wish) {
  switch (match.Style) {
    case kSingles:
    case kTag:
      return DecideTwoSides(plan, match, wish);
    case kThreeOnThree:
    case kFourOnFour:
      return DecideMany(plan, match, wish);
    default:
      return DecideFreeForAll(plan, match, wish);
  }
}

}  // namespace grapplemont
