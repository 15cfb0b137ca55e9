#include "booking/auto/automatches.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include "booking/wizard/matchrules.h"
#include "booking/wizard/objections.h"
#include "records/segmentparts.h"
#include "storylines/partners.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

// Who the winner of a row must be.
constexpr char kAnyone = '*';

/// A finish with its chance in a hundred when the rows above have passed by.
struct FinishTaste {
  int Style;
  int Finish;
  char Winner;  // disposition
  bool FeudOnly;
  bool KeepsTitle;  // settles nothing: a Title would not change hands
  int Percent;
};
constexpr FinishTaste kFinishTastes[] = {
    {kSingles, kInterference, 'H', true, false, 20},
    {kSingles, kCheating, 'H', true, false, 55},
    {kSingles, kDqThroughInterference, 'F', true, true, 15},
    {kSingles, kCountOut, 'F', true, true, 15},
    {kSingles, kCheating, 'H', false, false, 30},
    {kSingles, kInterference, 'H', false, false, 8},
    {kTag, kInterference, 'H', true, false, 15},
    {kTag, kCheating, 'H', true, false, 55},
    {kTag, kCountOut, 'F', true, true, 20},
    {kTag, kCheating, 'H', false, false, 25},
    {kTag, kMiscommunication, kAnyone, false, false, 10},
};

/// What is tried when the wanted finish is refused, in this order. Faces never cheat.
constexpr FinishTaste kFallbacks[] = {
    {kSingles, kClean, kAnyone, false, false, 100},
    {kSingles, kCheating, 'H', false, false, 100},
    {kSingles, kBotchedInterference, kAnyone, false, false, 50},
    {kSingles, kCountOut, kAnyone, false, true, 100},
    {kSingles, kBotchedInterference, kAnyone, false, false, 100},
    {kSingles, kCheating, 'T', false, false, 100},
    {kSingles, kInterference, kAnyone, false, false, 100},
    {kTag, kClean, kAnyone, false, false, 100},
    {kTag, kMiscommunication, kAnyone, false, false, 100},
    {kTag, kCheating, 'H', false, false, 100},
    {kTag, kCheating, 'T', false, false, 100},
    {kTag, kCountOut, kAnyone, false, true, 100},
};

/// What happens once the bell has rung. `Finishes` holds the finishes that it may follow.
struct AftermathTaste {
  int Style;
  int Aftermath;
  std::initializer_list<int> Finishes;
  char Winner;
  char Loser;
  bool FeudOnly;
  int Percent;
};
const AftermathTaste kAftermathTastes[] = {
    {kSingles, after1::kAssaultGoesOn, {kInterference}, 'H', 'F', true, 50},
    {kSingles, after1::kAttacksRunIn, {kBotchedInterference}, kAnyone, 'H', false, 50},
    {kSingles, after1::kBeatDown, {kClean, kCountOut}, 'H', 'F', true, 40},
    {kSingles, after1::kRevengeAttack, {kClean, kCountOut}, 'F', 'H', true, 30},
    {kSingles, after1::kBrawlToTheBack, {kClean, kCountOut, kCheating}, kAnyone, kAnyone, true, 50},
    {kSingles, after1::kHandshake, {kClean}, 'F', 'F', false, 60},
    {kSingles, after1::kTantrum, {kClean}, 'F', 'H', false, 20},
    {kTag, after2::kThreeOnTwo, {kInterference}, 'H', 'F', true, 50},
    {kTag, after2::kBeatenDown, {kClean, kCountOut, kCheating}, 'H', 'F', true, 35},
    {kTag, after2::kRevenge, {kClean, kCountOut}, 'F', 'H', true, 25},
    {kTag, after2::kBrawlToTheBack, {kClean, kCountOut, kCheating}, kAnyone, kAnyone, true, 40},
    {kTag, after2::kLosersArgue, {kMiscommunication}, kAnyone, kAnyone, false, 50},
};

/// What a loser does who will not go quietly.
const AftermathTaste kHeatBack[] = {
    {kSingles, after1::kRevengeAttack, {kClean, kCountOut}, kAnyone, 'H', false, 100},
    {kSingles, after1::kTantrum, {}, kAnyone, kAnyone, false, 100},
    {kSingles, after1::kAttacksReferee, {}, kAnyone, kAnyone, false, 100},
};

constexpr int kGoodSeller = 50;
constexpr int kGoodWork = 65;

/// One way for a match to end.
struct Ending {
  int Finish = 0;
  int Other1 = 0;  // runs in
  int Aftermath = 0;
};

char DispositionOf(const AutoPlan& plan, int uid) {
  const Worker* worker = plan.World.FindWorker(uid);
  const std::string code = worker ? worker->Disposition.Str() : "";
  return code.empty() ? 'T' : code[0];
}

bool Is(char wanted, char found) {
  return wanted == kAnyone || wanted == found;
}

/// Somebody from the worker's corner who could run in: the manager, a team mate, one of the stable.
int AllyOf(const AutoPlan& plan, const Segment& match, int uid) {
  const Worker* worker = plan.World.FindWorker(uid);
  if (!worker) return 0;
  const auto free = [&](int other) {
    return other != uid && plan.Pool.MayAppear(other) && !TakesPart(match, other);
  };
  if (free(worker->Manager)) return worker->Manager;
  for (const int partner : PartnersOf(plan.World, uid))
    if (free(partner)) return partner;
  if (!IsInStable(*worker)) return 0;
  for (const Worker* other : plan.Pool.People())
    if (other->Stable == worker->Stable && free(other->Uid)) return other->Uid;
  return 0;
}

int AftermathFrom(AutoPlan& plan, std::span<const AftermathTaste> tastes, const Segment& match,
                  int finish, const Wish& wish) {
  const char winner = DispositionOf(plan, match.Winner), loser = DispositionOf(plan, match.Loser);
  for (const AftermathTaste& taste : tastes) {
    const bool follows =
        taste.Finishes.size() == 0 ||
        std::find(taste.Finishes.begin(), taste.Finishes.end(), finish) != taste.Finishes.end();
    if (taste.Style == match.Style && follows && Is(taste.Winner, winner) &&
        Is(taste.Loser, loser) && (wish.Feud || !taste.FeudOnly) &&
        Chance(plan.World, taste.Percent))
      return taste.Aftermath;
  }
  return after1::kNothing;
}

bool GoesQuietly(const AutoPlan& plan, const Segment& match) {
  const Worker* loser = plan.World.FindWorker(match.Loser);
  return match.Style != kSingles || !loser || loser->Attitude >= kVengeful;
}

/// False when the finish wants a run-in and nobody is there for it.
bool AddEnding(AutoPlan& plan, const Segment& match, const Wish& wish, int finish,
               std::vector<Ending>& endings) {
  Ending ending{finish};
  if (NeedsFinishRunIn(match.Style, finish)) {
    Segment ended = match;
    ended.Finish = finish;
    const std::vector<int> helped = PeopleOf(ended, Part::Helped);
    ending.Other1 = helped.empty() ? 0 : AllyOf(plan, match, helped.front());
    if (ending.Other1 == 0) return false;
  }
  const std::span<const AftermathTaste> tastes =
      GoesQuietly(plan, match) ? std::span<const AftermathTaste>(kAftermathTastes) : kHeatBack;
  const bool settled = wish.EndsFeud && GoesQuietly(plan, match);
  ending.Aftermath =
      settled ? int(after1::kNothing) : AftermathFrom(plan, tastes, match, finish, wish);
  endings.push_back(ending);
  return true;
}

bool Suits(const FinishTaste& taste, const Segment& match, char winner, const Wish& wish) {
  return taste.Style == match.Style && Is(taste.Winner, winner) && (wish.Feud || !taste.FeudOnly) &&
         !((wish.Changes || wish.EndsFeud) && taste.KeepsTitle);
}

int DebutPurpose(const AutoPlan& plan, const Segment& match) {
  const int first =
      match.Style == kSingles ? int(purpose1::kDebutFirst) : int(purpose2::kDebutWorker1);
  int place = 0;
  for (const int uid : PeopleOf(match)) {
    const Worker* worker = plan.World.FindWorker(uid);
    if (worker && !worker->Debuted) return first + place;
    ++place;
  }
  return 0;
}

bool SellsWell(const AutoPlan& plan, const std::vector<int>& losers) {
  return std::all_of(losers.begin(), losers.end(), [&](int uid) {
    const Worker* worker = plan.World.FindWorker(uid);
    return worker && worker->Sell >= kGoodSeller;
  });
}

/// Endings of a match of styles 1 and 2 whose Winner and Loser are set, the most wanted first and
/// what a stubborn loser accepts last. Draws.
std::vector<Ending> EndingsOf(AutoPlan& plan, const Segment& match, const Wish& wish) {
  const char winner = DispositionOf(plan, match.Winner);
  std::vector<Ending> endings;
  if (!wish.EndsFeud)
    for (const FinishTaste& taste : kFinishTastes)
      if (Suits(taste, match, winner, wish) && !(taste.KeepsTitle && plan.View.IsEvent) &&
          Chance(plan.World, taste.Percent) && AddEnding(plan, match, wish, taste.Finish, endings))
        break;
  for (const FinishTaste& taste : kFallbacks)
    if (Suits(taste, match, winner, wish) && Chance(plan.World, taste.Percent))
      AddEnding(plan, match, wish, taste.Finish, endings);
  return endings;
}

/// What the match is for, by its result.
int PurposeOf(const AutoPlan& plan, const Segment& match, const Wish& wish) {
  const bool singles = match.Style == kSingles;
  if (wish.EndsFeud) return singles ? int(purpose1::kEndFeud) : int(purpose2::kEndFeud);
  if (const int debut = DebutPurpose(plan, match)) return debut;
  if (wish.Feud) return singles ? int(purpose1::kContinueFeud) : int(purpose2::kContinueFeud);
  const int good = singles ? int(purpose1::kGoodMatch) : int(purpose2::kGoodMatch);
  if (ExpectedCrowd(plan.World, match) >= kGoodWork || IsDraw(match) ||
      !SellsWell(plan, LosersOf(match)))
    return good;
  if (singles) return purpose1::kPutWinnerOver;
  return SideOf(match, match.Winner) == 1 ? purpose2::kPutFirstTeamOver
                                          : purpose2::kPutSecondTeamOver;
}

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
    return IsPlayers(world, title) && (title.Holder == uid || title.Partner == uid);
  });
}

/// How much a win would do for the worker: rising beats fading where they are about as popular.
/// Draws once.
int WinWorth(AutoPlan& plan, const Worker& worker) {
  return worker.Over + PushOf(worker) + (IsChampion(plan.World, worker.Uid) ? kChampion : 0) +
         plan.World.RandomDraw(kChance);
}

int SideWorth(AutoPlan& plan, const std::vector<int>& side) {
  int worth = 0;
  for (const int uid : side)
    if (const Worker* worker = plan.World.FindWorker(uid)) worth += WinWorth(plan, *worker);
  return worth;
}

/// Side numbers from 0, the one to win first.
std::vector<std::size_t> SidesByWorth(AutoPlan& plan, const Segment& match, const Wish& wish) {
  std::vector<std::pair<int, std::size_t>> ranked;
  for (const auto& side : SidesOf(match))
    ranked.emplace_back(
        SideWorth(plan, side) + (std::ranges::count(side, wish.Favoured) > 0 ? 1000 : 0),
        ranked.size());
  return wish.Firm ? BestOf(std::move(ranked), 1) : BestOf(std::move(ranked));
}

bool IsLessOver(const World& world, int a, int b) {
  const Worker *one = world.FindWorker(a), *two = world.FindWorker(b);
  return one && two && one->Over < two->Over;
}

/// Who of a side takes the fall: the least popular.
int WeakestOf(const World& world, const std::vector<int>& side) {
  return *std::min_element(side.begin(), side.end(),
                           [&](int a, int b) { return IsLessOver(world, a, b); });
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

/// Trios and quartets: a finish, but nothing behind it.
bool TryCheap(AutoPlan& plan, Segment& match) {
  const Worker* star = plan.World.FindWorker(match.Winner);
  const bool cheap = star && star->Disposition == "H" && Chance(plan.World, 40);
  match.Finish = cheap ? kCheapVictory : int(kClean);
  return Stands(plan, match);
}

bool DecideTwoSides(AutoPlan& plan, Segment& match, const Wish& wish) {
  const auto sides = SidesOf(match);
  for (const std::size_t winner : SidesByWorth(plan, match, wish)) {
    match.Winner = sides[winner][0];
    match.Loser = WeakestOf(plan.World, sides[1 - winner]);
    if (match.Style <= kTag ? TryEndings(plan, match, wish) : TryCheap(plan, match)) return true;
  }
  return wish.MayDraw && match.MatchType == kPlainSingles && TryDraw(plan, match, wish);
}

/// The least popular goes out first, which is the Loser's place; a battle royal has it for the
/// runner-up.
void NameLosers(const World& world, Segment& match, std::vector<int> losers) {
  std::stable_sort(losers.begin(), losers.end(),
                   [&](int a, int b) { return IsLessOver(world, a, b); });
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
  Segment match = NewSegment(kMatch, style, people);
  match.MatchType = type;
  return match;
}

bool Decide(AutoPlan& plan, Segment& match, const Wish& wish) {
  return SidesOf(match).size() == 2 ? DecideTwoSides(plan, match, wish)
                                    : DecideFreeForAll(plan, match, wish);
}

}  // namespace grapplemont
