#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <numeric>

#include "business/finance.h"
#include "business/worth.h"
#include "calendar/advanceday.h"
#include "records/notes.h"
#include "roster/staff.h"
#include "roster/talks.h"
#include "support/smallworld.h"

// Every number that explains itself, as the rules make it, beside the sum of its steps.

namespace grapplemont::test {
namespace {

constexpr Day kLastSunday{std::chrono::year{2026} / 3 / 29};
constexpr Day kFriday{std::chrono::year{2026} / 3 / 6};

World House(Day today = kGameStart, int size = kCult, int economy = 15) {
  SmallWorld small;
  small.Network("Nine")
      .Network("Ten")
      .Promotion("CWA", size,
                 [](Promotion& p) {
                   p.Merchandising = 40;
                   p.Production = 45;
                   p.TicketPrice = 55;
                   p.Money = 30'000'000;
                   p.LoanAmount = 2'500'000;
                   p.LoanMonths = 24;
                   p.LoanRepaid = 100'001;
                 })
      .Owner("Ruth Vane")
      .Staff("Penny Quill", kWriter, 85, [](Staff& s) { s.Wage = 33; })
      .Crew(6)
      .Show("Friday Fire", "Friday", "Nine")
      .Event(3, 1, "Marchmania")
      .Promotion("NEW", kGlobal)
      .Worker("Rival Ray", kMidcard, 50, [](Worker& w) { w.Wage = 37; })
      .Staff("Doc Marrow", kTrainer, 70, [](Staff& s) { s.Wage = 27; })
      .Show("Rival Hour", "Friday", "Ten")
      .OnTheMarket()
      .Worker("Free Fred", kOpener, 40, [](Worker& w) { w.Wage = 290; })
      .Staff("Free Frida", kMedical, 80);
  World world =
      small.Game("CWA", today, [&](GameInfo& g) { g.Economy = economy, g.Difficulty = kHard; });
  world.SetChance(std::make_unique<SeededDraws>(7));
  return world;
}

World AfterShow(Day today, bool cancelled = false, int size = kCult) {
  World world = House(today, size);
  world.Session.ShowRating = 65;
  PlayerShowConsequences(world, cancelled);
  return world;
}

struct Told {
  long long Number;  // as the rules have made it
  Score Why;
};
Told OfHistory(const World& world, NoteKind kind, int number) {
  return {number, NotedScore(world, kind, world.Today())};
}

const struct {
  const char* Name;
  std::function<Told()> Play;
} kCases[] = {
    {"attendance of an Event",
     [] {
       const World w = AfterShow(kLastSunday);
       return OfHistory(w, kNoteCrowd, w.History()[1].Attendance);
     }},
    {"buy rate",
     [] {
       const World w = AfterShow(kLastSunday);
       return OfHistory(w, kNoteViewers, w.History()[1].Viewers);
     }},
    {"attendance of television",
     [] {
       const World w = AfterShow(kFriday);
       return OfHistory(w, kNoteCrowd, w.History()[1].Attendance);
     }},
    {"television rating beside a competitor",
     [] {
       const World w = AfterShow(kFriday);
       return OfHistory(w, kNoteViewers, Named(w.Shows(), "Friday Fire").Rating3);
     }},
    {"image after a show",
     [] {
       const World w = AfterShow(kFriday);
       return Told{w.Player().Image, ImageSteps(w)};
     }},
    {"image after shows held, called off and not planned",
     [] {
       World w = AfterShow(kFriday);
       PlayerShowConsequences(w, true);
       w.Game().Today = kLastSunday;
       w.Events().Rewrite({});
       PlayerShowConsequences(w, false);
       return Told{w.Player().Image, ImageSteps(w)};
     }},
    {"image that has fallen a class",
     [] {
       World w = House(kFriday);
       w.Player().Image = 12;
       PlayerShowConsequences(w, true);
       return Told{w.Player().Image, ImageSteps(w)};
     }},
    {"merchandise",
     [] {
       World w = House();
       MerchandiseIncome(w);
       return Told{w.Player().ThisMonth.MerchIncome, NotedScore(w, kNoteMerch)};
     }},
    {"production",
     [] {
       World w = House();
       MonthlyCosts(w);
       return Told{w.Player().ThisMonth.ProductionCost, ProductionBill(w.Player().Production)};
     }},
    {"loan by the month",
     [] {
       return Told{10416667 + 12500000, LoanQuote(2'500'000, 24, kHard)};
     }},
    {"loan paid off",
     [] {
       World w = House();
       w.Game().Difficulty = kHard;
       const int before = w.Player().Money;
       Score cost = PayOffCost(w.Player(), kHard);
       PayOffLoan(w);
       return Told{before - w.Player().Money, std::move(cost)};
     }},
    {"wage of somebody with a job",
     [] {
       World w = House();
       const Demands demands = ContractDemands(w, Named(w.Workers(), "Rival Ray"));
       return Told{demands.Wage, demands.WageSteps};
     }},
    {"wage of a free agent, at its limit",
     [] {
       World w = House(kGameStart, kGlobal);
       const Demands demands = ContractDemands(w, Named(w.Workers(), "Free Fred"));
       return Told{demands.Wage, demands.WageSteps};
     }},
    {"wage of a renewal",
     [] {
       World w = House();
       const RenewalTerms terms = RenewalTermsOf(w, Named(w.Workers(), "CWA Hand 1"));
       return Told{terms.Wage, terms.WageSteps};
     }},
};

TEST(Explained, NumbersAreTheSumOfTheirSteps) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.Name);
    const Told told = c.Play();
    ASSERT_FALSE(told.Why.Steps().empty());
    long long sum = 0;
    for (const ScoreStep& step : told.Why.Steps()) {
      EXPECT_NE(step.Why, "");
      sum += step.Change;
    }
    EXPECT_EQ(sum, told.Number);
  }
}

TEST(Explained, WagesOfStaffAreTheSumOfTheirSteps) {
  for (int size = kGlobal; size <= kBackyard; ++size) {
    World world = House(kGameStart, size);
    for (const char* name : {"Penny Quill", "Doc Marrow", "Free Frida"}) {
      const StaffDemands demands = StaffDemandsOf(world, Named(world.AllStaff(), name));
      const auto& steps = demands.WageSteps.Steps();
      EXPECT_EQ(std::accumulate(steps.begin(), steps.end(), 0LL,
                                [](long long sum, const ScoreStep& s) { return sum + s.Change; }),
                demands.Wage)
          << name << " " << size;
    }
  }
}

TEST(Explained, WorthIsTheSumOfItsLines) {
  const World world = House();
  long long sum = 0;
  for (const WorthLine& line : PromotionWorth(world, world.Player())) sum += line.Dollars;
  EXPECT_EQ(SumOf(PromotionWorth(world, world.Player())), sum);
  EXPECT_EQ(PromotionWorth(world, world.Player()).back().Dollars, -(2'500'000 - 100'001));
}

TEST(Explained, MerchandiseForgetsTheMonthBeforeTheLast) {
  World world = House();
  MerchandiseIncome(world);
  world.Player().Merchandising = 0;
  MerchandiseIncome(world);
  EXPECT_TRUE(NotedScore(world, kNoteMerch).Steps().empty());
}

TEST(Explained, ImageIsNotToldAcrossAGap) {
  World world = AfterShow(kFriday);
  world.Player().Image += 5;
  EXPECT_TRUE(ImageSteps(world).Steps().empty());
}

}  // namespace
}  // namespace grapplemont::test
