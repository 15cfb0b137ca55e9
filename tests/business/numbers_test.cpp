#include <gtest/gtest.h>

#include "business/development.h"
#include "business/finance.h"
#include "business/networks.h"
#include "business/past.h"
#include "business/sponsors.h"
#include "business/tvshows.h"
#include "support/smallworld.h"

// The tables of the rules. A sum over all that a table can be asked for moves with each of its
// numbers and limits; where words stand in it, the steps say at which number they change.

namespace grapplemont::test {
namespace {

template <class Value>
long long Sum(int from, int to, Value valueOf) {
  long long sum = 0;
  for (int at = from; at <= to; ++at) sum += valueOf(at);
  return sum;
}

/// Over all sizes and images.
template <class Value>
long long SumOfStandings(Value valueOf) {
  return Sum(kGlobal, kBackyard, [&](int size) {
    return Sum(0, 100, [&](int image) { return valueOf(size, image); });
  });
}

/// The numbers at which the answer is another than just below them.
template <class Answer>
std::vector<int> Steps(int from, int to, Answer answerTo) {
  std::vector<int> steps;
  for (int at = from + 1; at <= to; ++at)
    if (answerTo(at) != answerTo(at - 1)) steps.push_back(at);
  return steps;
}

Promotion Standing(int size, int image) {
  Promotion promotion;
  promotion.Size = size;
  promotion.Image = image;
  return promotion;
}

using Numbers = std::vector<int>;

TEST(Numbers, OfAStandingGoBySizeAndImage) {
  const auto potential = [](int size, int image) {
    return AudiencePotential(Standing(size, image), 50);
  };
  EXPECT_EQ(potential(kCult, 50), 320);
  EXPECT_EQ(SumOfStandings(potential), 169360);
  EXPECT_EQ(MerchBase(kSmall, 60), 75000);
  EXPECT_EQ(SumOfStandings(MerchBase), 855300000);
  EXPECT_EQ(TargetAdvertising(kNational, 74), 75);
  EXPECT_EQ(SumOfStandings(TargetAdvertising), 26550);
  EXPECT_EQ(SponsorPayLimit(kNational, 50), 651);
  EXPECT_EQ(SumOfStandings(SponsorPayLimit), 265941);
  EXPECT_EQ(RivalSponsorPayLimit(kNational, 51), 921);
  EXPECT_EQ(SumOfStandings(RivalSponsorPayLimit), 381616);
}

TEST(Numbers, FollowTheEconomyRoundedDown) {
  EXPECT_EQ(
      Sum(0, 100, [](int economy) { return AudiencePotential(Standing(kNational, 40), economy); }),
      48480);
  Promotion promotion = Standing(kRegional, 50);
  EXPECT_EQ(MerchandiseSales(promotion, 50), 0) << "nothing is on sale";
  promotion.Merchandising = 100;
  EXPECT_EQ(Sum(0, 100, [&](int economy) { return MerchandiseSales(promotion, economy); }),
            60060000);
  promotion.Merchandising = 3;
  EXPECT_EQ(MerchandiseSales(promotion, 50), 72000) << "no more than the level can sell";
  EXPECT_EQ(Steps(-10, 100, EconomyText), (Numbers{10, 20, 30, 81, 90}));
}

TEST(Numbers, OfSpendingGoByLevelAndSize) {
  EXPECT_EQ(AdvertisingCost(95), 950000);
  EXPECT_EQ(MerchandisingCost(34), 680000);
  EXPECT_EQ(ProductionCost(41), 410000);
  EXPECT_EQ(Sum(0, 100, ProductionCost), 70100000);
  Numbers spending;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const auto [merchandising, production] = RivalSpendingFor(size);
    for (const int each : {merchandising, production, FairTicketPrice(size), WantedTalent(size)})
      spending.push_back(each);
  }
  EXPECT_EQ(spending, (Numbers{100, 80, 60, 80, 80, 60, 40, 60, 60, 40, 30, 50,
                               40,  20, 20, 40, 20, 10, 10, 20, 0,  5,  5,  0}));
  const auto opinion = [](int size) {
    return [size](int price) { return TicketOpinion(size, price); };
  };
  EXPECT_EQ(Steps(0, 200, opinion(kGlobal)), (Numbers{50, 55, 66, 76, 91}));
  EXPECT_EQ(Steps(0, 200, opinion(kBackyard)), Numbers{11}) << "twice the price is too much";
  EXPECT_EQ(Steps(-5, 105, RiskText), (Numbers{21, 41, 61, 81}));
}

TEST(Numbers, OfProductionRaisesGoByTheLevel) {
  for (const auto& [number, sum] : {std::pair(1, 3264540), {2, 14545775}, {3, 27211000}})
    EXPECT_EQ(Sum(0, 100, [&](int level) { return ProductionRaiseCost(level, number); }), sum);
  for (const auto& [money, level, number, raised] :
       {std::tuple(12500, 25, 3, 35), {12499, 25, 3, 25}, {-1, 25, 3, 25}, {520000, 97, 2, 100}}) {
    World world = SmallWorld().Promotion("CWA").Game("CWA");
    Promotion& promotion = world.Player();
    promotion.Money = money;
    promotion.Production = level;
    EXPECT_EQ(RaiseProduction(world, number), raised != level);
    EXPECT_EQ(promotion.Production, raised);
    EXPECT_EQ(promotion.Money, raised == level ? money : 0);
  }
}

TEST(Numbers, OfSponsorsGoByRiskAndPay) {
  Sponsor sponsor;
  sponsor.Morality = 70;
  sponsor.Pay = 99;
  EXPECT_TRUE(BearsRisk(sponsor, 30));
  EXPECT_FALSE(BearsRisk(sponsor, 31));
  EXPECT_EQ(SponsorPayForTv(sponsor, true), 24);
  EXPECT_EQ(SponsorPayForTv(sponsor, false), 9);
  Promotion promotion = Standing(kRegional, 51);
  promotion.Risk = 31;
  sponsor.Pay = 401;
  std::string steps;
  const auto answer = [&] {
    Decision why;
    const SponsorAnswer said = AnswerOf(sponsor, promotion, &why);
    EXPECT_EQ(why.IsYes(), said == SponsorAnswer::Accepts);
    steps.clear();
    for (const ScoreStep& step : why.Steps()) steps += step.Change > 0 ? '+' : '-';
    return said;
  };
  EXPECT_EQ(answer(), SponsorAnswer::TooRisky) << "before the pay";
  EXPECT_EQ(steps, "-");
  promotion.Risk = 30;
  EXPECT_EQ(answer(), SponsorAnswer::Declines);
  EXPECT_EQ(steps, "+-");
  sponsor.Pay = 400;
  EXPECT_EQ(answer(), SponsorAnswer::Accepts);
  EXPECT_EQ(steps, "++");
}

TEST(Numbers, OfALoanGoByItsSizeAndTheDifficulty) {
  EXPECT_EQ(Steps(1, kMostLoanSteps, LoanTerm), (Numbers{11, 26}));
  EXPECT_EQ(LoanTerm(1) + LoanTerm(11) + LoanTerm(26), 12 + 24 + 36);
  EXPECT_EQ(LoanQuote(2500000, 24, kEasy), 10416667) << "to the nearest cent";
  EXPECT_EQ(LoanQuote(1100000, 24, kEasy), 4583333);
  const std::string why = WhyText("a month", LoanQuote(600000, 12, kHard), DollarsAndCents);
  EXPECT_TRUE(why.starts_with("$50000: the equal part of 12 months\n+$30000 ")) << why;
  EXPECT_TRUE(why.ends_with("\n= $80000 a month")) << why;
  EXPECT_EQ(LoanQuote(90'000'000, 1, kHard).Whole(), 9'450'000'000) << "more than an int holds";
  for (const auto& [difficulty, percent] :
       {std::pair(kEasy, 0), {kMedium, 2}, {kHard, 5}, {kRockHard, 8}})
    EXPECT_EQ(LoanQuote(600000, 12, difficulty), 5000000 + percent * 600000);
  for (const auto& [cents, text] :
       {std::pair(833333, "$8333.33"), {500000, "$5000"}, {500005, "$5000.05"}})
    EXPECT_EQ(DollarsAndCents(cents), text);
}

TEST(Numbers, OfAnUnknownSlotAreThoseOfTheNight) {
  Network network;
  network.GraveAudience = 4;
  network.GraveRisk = 8;
  EXPECT_EQ(SlotAudience(network, "X"), 4);
  EXPECT_EQ(SlotRisk(network, "X"), 8);
  EXPECT_EQ(SlotName("X"), "Graveyard");
  EXPECT_EQ(SlotHours("L"), "10:00pm - 12:00am");
}

}  // namespace
}  // namespace grapplemont::test
