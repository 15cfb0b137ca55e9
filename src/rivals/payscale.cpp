#include "rivals/payscale.h"

#include <algorithm>

#include "business/finance.h"
#include "business/sponsors.h"
#include "records/arithmetic.h"
#include "records/modWresCheck.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "roster/talks.h"

namespace grapplemont {

namespace {

constexpr int kTopSquare = 100 * 100;

const tuning::SpendingHabit& HabitOf(Spender hand) {
  return tuning::kHabits[static_cast<std::size_t>(hand)];
}

/// What the main roster is worth in squares of Over, as if it were as full as it should be.
long long SquaresOf(const World& world, const Promotion& promotion, const Rosters& rosters) {
  long long squares = 0;
  int people = 0;
  for (const int number : rosters.NumbersOf(promotion.Uid)) {
    const Worker& worker = world.Workers()[number];
    if (!IsOnMainRoster(worker)) continue;
    squares += worker.Over * worker.Over;
    ++people;
  }
  const int least = BySize(tuning::kRosters, promotion.Size).Least;
  return people > 0 && people < least ? squares * least / people : squares;
}

long long BillOf(const World& world, const std::vector<int>& numbers) {
  long long dollars = 0;
  for (const int number : numbers) dollars += MonthlyWage(world.Workers()[number]);
  return dollars;
}

bool HasBooks(const Promotion& promotion) {
  return TotalIn(promotion.LastMonth) > 0;
}

long long BudgetBySize(long long squares, int size) {
  return squares * BySize(tuning::kTopWage, size) * kThousand / kTopSquare;
}

/// The last month before workers' wages.
long long LeftForWages(const MonthBooks& books) {
  return TotalIn(books) - TotalOut(books) + books.WrestlerWages;
}

long long BudgetByBooks(const Promotion& promotion, const tuning::SpendingHabit& habit) {
  long long budget = LeftForWages(promotion.LastMonth) * habit.OfWhatIsLeft / 100;
  const long long aboveFair = promotion.Money - FairSum(promotion.Size);
  if (aboveFair > 0 || habit.MindsDebts) budget += aboveFair / tuning::kMonthsToFairSum;
  return std::clamp(budget, 0LL, TotalIn(promotion.LastMonth) * habit.MostOfIncome / 100);
}

}  // namespace

Spender SpenderOf(const World& world, const Promotion& promotion) {
  const Staff* owner = OwnerOf(world, promotion.Uid);
  if (!owner || IsPlayers(world, promotion)) return Spender::Even;
  const int drawn = world.Fate("OwnersHand", {owner->Uid}).Draw(100);
  if (drawn <= tuning::kRecklessIn100 - owner->Talent / tuning::kTalentToOneLess)
    return Spender::Reckless;
  return drawn > 100 - tuning::kCarefulIn100 ? Spender::Careful : Spender::Even;
}

namespace {

long long BudgetOf(const World& world, const Promotion& promotion, long long squares) {
  return HasBooks(promotion) ? BudgetByBooks(promotion, HabitOf(SpenderOf(world, promotion)))
                             : BudgetBySize(squares, promotion.Size);
}

}  // namespace

long long WageBudget(const World& world, const Promotion& promotion) {
  return BudgetOf(world, promotion, SquaresOf(world, promotion, Rosters(world)));
}

PayScale::PayScale(const World& world, const Promotion& promotion, const Rosters& rosters) {
  const long long worth = SquaresOf(world, promotion, rosters);
  const long long budget = BudgetOf(world, promotion, worth);
  const long long squares = std::max(worth, 1LL);
  const int usual = BySize(tuning::kTopWage, promotion.Size);
  top_ = static_cast<int>(std::clamp<long long>(budget / kThousand * kTopSquare / squares,
                                                usual / tuning::kScaleSpan,
                                                1LL * usual * tuning::kScaleSpan));
  room_ = (budget - BillOf(world, rosters.NumbersOf(promotion.Uid))) / kThousand;
}

int PayScale::For(int over) const {
  return std::clamp(top_ * over * over / kTopSquare, 1, kHighestWage);
}

}  // namespace grapplemont
