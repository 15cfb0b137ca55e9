#include "calendar/wishkinds.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "business/finance.h"
#include "business/past.h"
#include "business/tvshows.h"
#include "calendar/board.h"
#include "records/arithmetic.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kYear = 12;

/// So much a year, for part of one; not less than two.
int Share(int ofAYear, int months) {
  return std::max(2, (ofAYear * months + kYear - 1) / kYear);
}

bool AskFor(OwnerWish& wish, long long target) {
  wish.Target = target;
  return true;
}

// What the past tells.

template <class Count>
void ForEachShow(const World& world, const OwnerWish& wish, Count count) {
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < Day(wish.From)) return;
    if (entry.Promotion == wish.Promotion && IsShow(entry) && !entry.CalledOff) count(entry);
  }
}

template <class Fits>
long long MatchesSince(const World& world, const OwnerWish& wish, Fits fits) {
  long long count = 0;
  for (int number = world.Bouts().Count(); number >= 1; --number) {
    const HeldMatch& match = world.Bouts()[number];
    if (Day(match.On) < Day(wish.From)) break;
    count += match.Promotion == wish.Promotion && fits(match);
  }
  return count;
}

/// The mean rating of the twelve months before the day; 0 for too few shows.
int MeanBefore(const World& world) {
  constexpr int kFewest = 4;
  OwnerWish before{};
  before.From = world.Today() - std::chrono::days{365};
  before.Promotion = world.PlayerUid();
  int sum = 0, count = 0;
  ForEachShow(world, before, [&](const HistoryEntry& show) {
    sum += show.Rating;
    ++count;
  });
  return count < kFewest ? 0 : sum / count;
}

// Stars.

bool IsStarOf(const Promotion& promotion, int over) {
  return FittingPosition(promotion.Size, over) == kMainEvent;
}

bool PlanStars(World&, OwnerWish& wish, int) {
  return AskFor(wish, 2);
}
long long StarsCame(const World& world, const OwnerWish& wish) {
  const Promotion* promotion = world.FindPromotion(wish.Promotion);
  if (!promotion) return 0;
  std::map<int, int> before;
  for (const YearEnd& row : world.YearEnds()) before[row.Worker] = row.Over;
  return std::ranges::count_if(world.Workers(), [&](const Worker& worker) {
    const auto then = before.find(worker.Uid);
    return worker.Employer == promotion->Uid && IsOnRoster(worker) &&
           IsStarOf(*promotion, worker.Over) &&
           (then == before.end() || !IsStarOf(*promotion, then->second));
  });
}

// Titles.

/// The player's finest Title of this kind; nullptr for none.
const Title* FinestTitle(const World& world, bool woman) {
  const Title* finest = nullptr;
  for (const Title& title : world.Titles())
    if (IsPlayers(world, title) && title.Woman == woman && !title.Suspended &&
        (!finest || title.Image > finest->Image))
      finest = &title;
  return finest;
}

template <bool kWoman>
bool PlanDefences(World& world, OwnerWish& wish, int months) {
  constexpr int kAYear = 6;
  const Title* title = FinestTitle(world, kWoman);
  if (!title) return false;
  wish.About = title->Name.View();
  return AskFor(wish, Share(kAYear, months));
}
long long DefencesCame(const World& world, const OwnerWish& wish) {
  std::set<Day> events;
  MatchesSince(world, wish, [&](const HeldMatch& match) {
    if (match.IsEvent && match.Title == wish.About) events.insert(match.On);
    return false;
  });
  return static_cast<long long>(events.size());
}

constexpr int kYoung = 25, kNobodysAge = 99;

bool PlanYoung(World& world, OwnerWish& wish, int) {
  return (FinestTitle(world, false) || FinestTitle(world, true)) && AskFor(wish, kYoung);
}
long long YoungestChampion(const World& world, const OwnerWish& wish) {
  int youngest = kNobodysAge;
  for (const Title& title : world.Titles())
    if (title.Owner == wish.Promotion)
      for (const int uid : {int(title.Holder), int(title.Partner)})
        if (const Worker* holder = world.FindWorker(uid))
          youngest = std::min<int>(youngest, holder->Age);
  return youngest;
}

// Cards.

bool PlanTalks(World&, OwnerWish& wish, int) {
  return AskFor(wish, 2);
}
long long SlipsCame(const World&, const OwnerWish& wish) {
  return wish.Slips;
}

bool PlanWomensMatches(World& world, OwnerWish& wish, int months) {
  constexpr int kFewest = 4, kAYear = 24;
  const auto women = std::ranges::count_if(world.Workers(), [&](const Worker& worker) {
    return WorksForPlayer(world, worker) && !worker.Gender && IsOnRoster(worker);
  });
  return women >= kFewest && AskFor(wish, Share(kAYear, months));
}
long long WomensMatchesCame(const World& world, const OwnerWish& wish) {
  return MatchesSince(world, wish, [&](const HeldMatch& match) {
    int women = 0;
    for (const Word& uid : match.Worker) {
      const Worker* worker = world.FindWorker(uid);
      if (worker && worker->Gender) return false;
      women += worker != nullptr;
    }
    return women >= 2;
  });
}

bool PlanFeudMatches(World&, OwnerWish& wish, int months) {
  constexpr int kAYear = 8;
  return AskFor(wish, Share(kAYear, months));
}
long long FeudMatchesCame(const World& world, const OwnerWish& wish) {
  return MatchesSince(world, wish,
                      [](const HeldMatch& match) { return match.IsEvent && match.Feud[0] != 0; });
}

// Shows.

constexpr int kBetterShow = 12, kBetterMean = 3, kMostAsked = 90;

bool PlanBestShow(World& world, OwnerWish& wish, int) {
  const int mean = MeanBefore(world);
  return mean > 0 && AskFor(wish, std::min(mean + kBetterShow, kMostAsked));
}
long long BestCame(const World& world, const OwnerWish& wish) {
  int best = 0;
  ForEachShow(world, wish,
              [&](const HistoryEntry& show) { best = std::max<int>(best, show.Rating); });
  return best;
}
bool PlanGoodShows(World& world, OwnerWish& wish, int) {
  const int mean = MeanBefore(world);
  return mean > 0 && AskFor(wish, std::min(mean + kBetterMean, kMostAsked));
}
long long MeanCame(const World& world, const OwnerWish& wish) {
  long long sum = 0, count = 0;
  ForEachShow(world, wish, [&](const HistoryEntry& show) {
    sum += show.Rating;
    ++count;
  });
  return count == 0 ? 0 : sum / count;
}
bool PlanEvents(World&, OwnerWish& wish, int months) {
  return AskFor(wish, std::max(2, months - 1));
}
long long EventsCame(const World& world, const OwnerWish& wish) {
  long long count = 0;
  ForEachShow(world, wish, [&](const HistoryEntry& show) { count += show.Kind == kPastEvent; });
  return count;
}

// The company.

bool PlanStanding(World& world, OwnerWish& wish, int months) {
  constexpr int kAYear = 20, kNoRoom = 80;
  const Promotion& player = world.Player();
  wish.Base = StandingScore(player);
  return !(player.Size == kGlobal && player.Image >= kNoRoom) &&
         AskFor(wish, Share(kAYear, months));
}
long long StandingCame(const World& world, const OwnerWish& wish) {
  const Promotion* promotion = world.FindPromotion(wish.Promotion);
  return promotion ? StandingScore(*promotion) - wish.Base : 0;
}

// Dollars a year, by size.
constexpr std::array<int, 6> kProfits = {4000000, 2000000, 800000, 300000, 60000, 12000};

bool PlanProfit(World& world, OwnerWish& wish, int months) {
  return AskFor(wish, BySize(kProfits, world.Player().Size) / kYear * months);
}
long long ProfitCame(const World& world, const OwnerWish& wish) {
  long long profit = 0;
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) <= Day(wish.From)) break;
    if (entry.Promotion == wish.Promotion && entry.Kind == kPastMonth)
      profit += static_cast<long long>(entry.Income) - entry.Costs;
  }
  return profit;
}

/// Up to the next number with three digits and noughts behind them.
long long InRoundNumbers(long long dollars) {
  long long step = 1;
  while (dollars >= 1000 * step) step *= 10;
  return (dollars + step - 1) / step * step;
}

bool PlanSavings(World& world, OwnerWish& wish, int months) {
  const Promotion& player = world.Player();
  const long long wanted =
      InRoundNumbers(player.Money + BySize(kProfits, player.Size) / kYear * months);
  return player.Money >= 0 && wanted <= kMostMoney && AskFor(wish, wanted);
}
long long MoneyCame(const World& world, const OwnerWish& wish) {
  const Promotion* promotion = world.FindPromotion(wish.Promotion);
  return promotion ? int(promotion->Money) : 0;
}

long long SponsorsCame(const World& world, const OwnerWish& wish) {
  const Promotion* promotion = world.FindPromotion(wish.Promotion);
  return promotion ? std::ranges::count_if(promotion->Sponsor,
                                           [&](int uid) { return world.FindSponsor(uid); })
                   : 0;
}
bool PlanSponsors(World& world, OwnerWish& wish, int) {
  const auto have = SponsorsCame(world, wish);
  return have < std::ssize(world.Player().Sponsor) &&
         AskFor(wish, std::min<long long>(have + 2, std::ssize(world.Player().Sponsor)));
}

long long OnAirCame(const World& world, const OwnerWish& wish) {
  return ShowsOf(world, wish.Promotion).empty() ? 0 : 1;
}
bool PlanOnAir(World& world, OwnerWish& wish, int) {
  return OnAirCame(world, wish) == 0 && world.Player().Size <= kRegional && AskFor(wish, 1);
}

bool PlanTamer(World& world, OwnerWish& wish, int) {
  constexpr int kWild = 50, kTamerBy = 15;
  return world.Player().Risk >= kWild && AskFor(wish, world.Player().Risk - kTamerBy);
}
long long RiskCame(const World& world, const OwnerWish& wish) {
  const Promotion* promotion = world.FindPromotion(wish.Promotion);
  return promotion ? int(promotion->Risk) : 0;
}

constexpr WishRule kRules[] = {
    {kWishNewStars, kYouth, false, PlanStars, StarsCame},
    {kWishDefendWomens, kWomen, false, PlanDefences<true>, DefencesCame},
    {kWishDefendTitle, kTechnicians, false, PlanDefences<false>, DefencesCame},
    {kWishFewTalks, kTechnicians, true, PlanTalks, SlipsCame},
    {kWishProfit, kAllRound, false, PlanProfit, ProfitCame},
    {kWishYoungChampion, kYouth, true, PlanYoung, YoungestChampion},
    {kWishBestShow, kHighFlyers, false, PlanBestShow, BestCame},
    {kWishGoodShows, kHighFlyers, false, PlanGoodShows, MeanCame},
    {kWishStanding, kAllRound, false, PlanStanding, StandingCame},
    {kWishEvents, kAllRound, false, PlanEvents, EventsCame},
    {kWishSponsors, kAllRound, false, PlanSponsors, SponsorsCame},
    {kWishSavings, kAllRound, false, PlanSavings, MoneyCame},
    {kWishWomensMatches, kWomen, false, PlanWomensMatches, WomensMatchesCame},
    {kWishFeudMatches, kBrawlers, false, PlanFeudMatches, FeudMatchesCame},
    {kWishOnAir, kAllRound, false, PlanOnAir, OnAirCame},
    {kWishTamerProduct, kAllRound, true, PlanTamer, RiskCame},
};

constexpr bool RulesAreInOrder() {
  for (std::size_t i = 0; i < std::size(kRules); ++i)
    if (kRules[i].Is != static_cast<WishKind>(i + 1)) return false;
  return true;
}
static_assert(RulesAreInOrder());

}  // namespace

std::span<const WishRule> WishRules() {
  return kRules;
}

const WishRule& WishRuleOf(int kind) {
  return kRules[static_cast<std::size_t>(std::clamp<int>(kind, kWishNewStars, kWishTamerProduct) -
                                         1)];
}

}  // namespace grapplemont
