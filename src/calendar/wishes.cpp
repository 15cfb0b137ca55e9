#include "calendar/wishes.h"

#include <algorithm>
#include <map>

#include "business/past.h"
#include "calendar/board.h"
#include "calendar/incidents.h"
#include "calendar/wishkinds.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "rivals/rivals.h"
#include "words/wishes.h"

namespace grapplemont {

namespace {

constexpr std::size_t kWishesAYear = 3;
constexpr int kFewestMonths = 4;
constexpr int kSuits = 3;  // so much likelier
constexpr int kMostTalks = 3;
constexpr int kReputationUp = 2, kReputationDown = 1, kLoyaltyStep = 5;
constexpr int kOfferIn = 2;

constexpr bool WordsAreInOrder() {
  for (std::size_t i = 0; i < std::size(kWishWords); ++i)
    if (kWishWords[i].Is != static_cast<WishKind>(i + 1)) return false;
  return true;
}
static_assert(WordsAreInOrder());

bool IsInDollars(const OwnerWish& wish) {
  return wish.Kind == kWishProfit || wish.Kind == kWishSavings;
}
std::string AmountText(const OwnerWish& wish, long long amount) {
  return IsInDollars(wish) ? Dollars(amount) : std::to_string(amount);
}

bool IsOpen(const World& world, const OwnerWish& wish) {
  return wish.State == kWishOpen && wish.Promotion == world.PlayerUid();
}

/// Open wishes are the last ones.
template <class W>
auto OpenOnes(W& world) {
  std::vector<decltype(&world.Wishes()[1])> open;
  for (int number = std::max(1, world.Wishes().Count() - int(kWishesAYear) + 1);
       number <= world.Wishes().Count(); ++number)
    if (IsOpen(world, world.Wishes()[number])) open.push_back(&world.Wishes()[number]);
  return open;
}

// What is counted while match.dat still holds the card of the night before.

bool WasShowLastNight(const World& world) {
  const HistoryEntry* show =
      LastShowOf(world, world.PlayerUid(), world.Today() - std::chrono::days{1});
  return show && !show->CalledOff;
}

bool SomebodyTalksTooOften(const World& world) {
  std::map<int, int> talks;
  for (const Segment& segment : world.Segments())
    if (segment.Kind == kInterview || segment.Kind == kAngle)
      for (const int uid : PeopleOf(segment))
        if (++talks[uid] > kMostTalks) return true;
  return false;
}

void CountSlips(World& world) {
  for (OwnerWish* wish : OpenOnes(world))
    if (wish->Kind == kWishFewTalks && WasShowLastNight(world) && SomebodyTalksTooOften(world))
      wish->Slips += 1;
}

// The year's end.

Staff* OwnerIn(World& world) {
  const Staff* owner = OwnerOf(world, world.PlayerUid());
  return owner ? world.FindStaff(owner->Uid) : nullptr;
}

void Reward(World& world, bool granted) {
  world.Game().Reputation =
      std::clamp(world.Game().Reputation + (granted ? kReputationUp : -kReputationDown), 0, 100);
  if (Staff* owner = OwnerIn(world)) owner->Loyalty += granted ? kLoyaltyStep : -kLoyaltyStep;
}

std::string Verdict(std::size_t granted, std::size_t all) {
  if (granted == all) return "Everything I wished for has come true. I shall not forget it.";
  if (granted == 0) return "Nothing of what I wished for has come true. Think about that.";
  return std::to_string(granted) + " of " + std::to_string(all) +
         " wishes have come true. I have made a note of the others.";
}

/// A promotion a class above has heard of it.
void OfferFromAbove(World& world) {
  std::vector<const Promotion*> above;
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && promotion.Size == world.Player().Size - 1)
      above.push_back(&promotion);
  if (above.empty() || world.Life().Draw(kOfferIn) != 1) return;
  const int drawn = world.Life().Draw(static_cast<int>(above.size()));
  OfferJob(world, *above[static_cast<std::size_t>(drawn - 1)]);
}

void JudgeTheYear(World& world) {
  const std::vector<OwnerWish*> open = OpenOnes(world);
  if (open.empty()) return;
  std::size_t count = 0;
  for (OwnerWish* wish : open) {
    wish->Came = CameOf(world, *wish);
    const bool granted = IsGranted(world, *wish);
    wish->State = granted ? kWishGranted : kWishMissed;
    count += granted;
    Reward(world, granted);
  }
  AddNews(world, VoiceOfBoard(world), Verdict(count, open.size()) + " Your career has the list.");
  if (count == kWishesAYear) OfferFromAbove(world);
  if (count == 0 && Holds(world, HouseRule::HarderBoards)) world.Game().EndCode = kEndBoard;
}

// The year's beginning.

int MonthsOfYearLeft(Day today) {
  constexpr int kMonths = 12;
  return kMonths - MonthOf(today) + (DayOfMonth(today) == 1 ? 1 : 0);
}

struct PlannedWish {
  OwnerWish Is;
  int Weight;
};

std::vector<PlannedWish> PlansFor(World& world, int months) {
  using namespace std::chrono;
  const Taste taste = TasteOf(world, world.PlayerUid());
  std::vector<PlannedWish> plans;
  for (const WishRule& rule : WishRules()) {
    OwnerWish wish{};
    wish.From = world.Today();
    wish.Until = Day{year{YearOf(world.Today())} / 12 / 31};
    wish.Promotion = world.PlayerUid();
    wish.Kind = rule.Is;
    const bool suits = rule.Suits == taste && taste != kAllRound;
    if (rule.Plan(world, wish, months)) plans.push_back({wish, suits ? kSuits : 1});
  }
  return plans;
}

OwnerWish TakeOne(World& world, std::vector<PlannedWish>& plans) {
  int sum = 0;
  for (const PlannedWish& plan : plans) sum += plan.Weight;
  int drawn = world.Life().Draw(sum);
  auto taken = plans.begin();
  while (drawn > taken->Weight) drawn -= (taken++)->Weight;
  const OwnerWish wish = taken->Is;
  plans.erase(taken);
  return wish;
}

void KeepWish(World& world, const OwnerWish& wish) {
  if (world.Wishes().Full())
    world.Wishes().Keep([first = Day(world.Wishes()[1].From)](const OwnerWish& old) {
      return Day(old.From) != first;
    });
  world.Wishes().Append(wish);
}

void TellWishes(World& world) {
  const int months = MonthsOfYearLeft(world.Today());
  if (months < kFewestMonths || !OpenOnes(world).empty() || !OwnerOf(world, world.PlayerUid()))
    return;
  std::vector<PlannedWish> plans = PlansFor(world, months);
  std::string told;
  for (std::size_t n = 0; n < kWishesAYear && !plans.empty(); ++n) {
    const OwnerWish wish = TakeOne(world, plans);
    KeepWish(world, wish);
    told += " " + WishText(wish) + ".";
  }
  AddNews(world, VoiceOfBoard(world), "My wishes for this year:" + told);
}

}  // namespace

std::string WishText(const OwnerWish& wish) {
  const auto row = static_cast<std::size_t>(WishRuleOf(wish.Kind).Is - kWishNewStars);
  return FillHoles(kWishWords[row].Says, [&](std::string_view slot) {
    return slot == "about"   ? wish.About.Str()
           : slot == "money" ? Dollars(wish.Target)
                             : std::to_string(int(wish.Target));
  });
}

long long CameOf(const World& world, const OwnerWish& wish) {
  if (wish.State == kWishGranted || wish.State == kWishMissed) return wish.Came;
  return WishRuleOf(wish.Kind).Came(world, wish);
}

bool IsGranted(const World& world, const OwnerWish& wish) {
  const long long came = CameOf(world, wish);
  return WishRuleOf(wish.Kind).AtMost ? came <= wish.Target : came >= wish.Target;
}

std::string WishProgress(const World& world, const OwnerWish& wish) {
  return AmountText(wish, CameOf(world, wish)) +
         (WishRuleOf(wish.Kind).AtMost ? ", at most " : " of ") + AmountText(wish, wish.Target);
}

std::string TrustLine(const World& world) {
  const Staff* owner = OwnerOf(world, world.PlayerUid());
  if (!owner) return "Nobody owns the promotion; the board trusts nobody.";
  return owner->Name + " trusts you: " + std::to_string(owner->Loyalty) + "%.";
}

std::vector<OwnerWish*> OpenWishes(World& world) {
  return OpenOnes(world);
}
std::vector<const OwnerWish*> OpenWishes(const World& world) {
  return OpenOnes(world);
}

void DropFormerWishes(World& world) {
  const int last = world.Wishes().Count();
  for (int number = last; number >= 1 && number > last - int(kWishesAYear); --number) {
    OwnerWish& wish = world.Wishes()[number];
    if (wish.State == kWishOpen && wish.Promotion != world.PlayerUid()) wish.State = kWishDropped;
  }
}

void OwnersWishes(World& world) {
  DropFormerWishes(world);
  CountSlips(world);
  const auto open = OpenOnes(world);
  if (!open.empty() && world.Today() >= Day(open.front()->Until)) return JudgeTheYear(world);
  TellWishes(world);
}

}  // namespace grapplemont
