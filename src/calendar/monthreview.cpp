#include <algorithm>
#include <array>

#include "calendar/daysteps.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr int kPoorFormLoss = 10;

/// What is said of a trend of 2, 3 and 4 counts, up and down. The months in the words do not match
/// the counts one to one; they stand so.
struct TrendWords {
  std::array<const char*, 3> Up;
  std::array<const char*, 3> Down;
};
constexpr TrendWords kImageWords = {
    {"Good work, our public image is rising nicely.",
     "Great work, this is the fourth consecutive month that our public image has risen.",
     "Superb work, our public image is improving every month."},
    {"Our public image seems to be falling...what are you going to do about it?",
     "This is the fourth month running that our public image has dropped. I hope you have a plan "
     "to turn things around!",
     "What are you doing? Our public image is dropping at a rapid rate!"}};
constexpr TrendWords kMoneyWords = {
    {"Good work chief, our money is increasing nicely.",
     "Great work boss, we've been making money for four months running.",
     "We're making money every month, this is great!"},
    {"We've lost money for three months running now...maybe you should cut some costs?",
     "Our money is going down, and has been for four months in a row. Uh-oh.",
     "We're losing money too fast, we need to find a way to cut costs ASAP!!!"}};

/// How often in a row the last month ends went the same way, from 0 to 4, below 0 for down.
template <class Number>
int Trend(const std::array<Number, 5>& history) {
  const auto step = [&](std::size_t i) {
    if (history[i + 1] == kNoEnd || history[i] == history[i + 1]) return 0;
    return history[i] > history[i + 1] ? 1 : -1;
  };
  const int direction = step(0);
  int count = 0;
  for (std::size_t i = 0; i + 1 < history.size() && direction != 0 && step(i) == direction; ++i)
    ++count;
  return count * direction;
}

void TellTrend(World& world, const std::string& from, int trend, const TrendWords& words) {
  const int count = trend < 0 ? -trend : trend;
  if (count < 2) return;
  const auto& said = trend > 0 ? words.Up : words.Down;
  AddNews(world, from, said[static_cast<std::size_t>(count - 2)]);
}

template <class Number>
void Shift(std::array<Number, 5>& history, int newest) {
  for (std::size_t i = history.size() - 1; i > 0; --i) history[i] = history[i - 1];
  history[0] = newest;
}

/// How many months in a row the standing fell, up to 3.
int FallsInARow(const Promotion& promotion) {
  int falls = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const int before = promotion.Rank[i + 1], after = promotion.Rank[i];
    if (before == kNoEnd || before <= after) break;
    ++falls;
  }
  return falls;
}

}  // namespace

void PoorFormMorale(World& world) {
  for (const Promotion& promotion : world.Promotions()) {
    if (FallsInARow(promotion) < 2) continue;
    if (promotion.Uid == world.PlayerUid())
      AddNews(world, "Maeve", "Our poor performance is affecting the worker's morale.");
    for (Worker& worker : world.Workers())
      if (worker.Employer == promotion.Uid) worker.Morale -= kPoorFormLoss;
  }
}

void MonthlyReview(World& world) {
  for (Promotion& promotion : world.Promotions()) {
    Shift(promotion.Rank, StandingScore(promotion));
    Shift(promotion.MoneyBefore, promotion.Money);
  }
  const Promotion& player = world.Player();
  const Staff* owner = OwnerOf(world, player.Uid);
  TellTrend(world, owner ? owner->Name.Str() : "The Board", Trend(player.Rank), kImageWords);
  TellTrend(world, "Finance Dept.", Trend(player.MoneyBefore), kMoneyWords);
}

}  // namespace grapplemont
