#include <gtest/gtest.h>

#include "records/houserules.h"
#include "rivals/ambition.h"
#include "rivals/faults.h"
#include "rivals/payscale.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/talenthunt.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

// What rivals can pay, and whom and whose money they go after.

namespace grapplemont::test {
namespace {

Promotion& RivalOf(World& world) {
  return Named(world.Promotions(), "XWF");
}

/// A month that leaves so much before wages, and a fair sum in hand.
void Earn(Promotion& promotion, int income, int leftForWages) {
  promotion.LastMonth.SponsorIncome = income;
  promotion.LastMonth.MerchCost = income - leftForWages;
  promotion.Money = FairSum(promotion.Size);
}

TEST(PayScale, SpreadsWhatTheBooksBearBySquaresOfOver) {
  World world = SmallWorld().Promotion("CWA").Promotion("XWF", kRegional).Crew(30).Game("CWA");
  Promotion& rival = RivalOf(world);
  const int usual = tuning::kTopWage[kRegional - 1];
  EXPECT_NEAR(PayScale(world, rival).For(100), usual, 1) << "no books yet";

  const tuning::SpendingHabit& even = tuning::kHabits[static_cast<int>(Spender::Even)];
  Earn(rival, 1000000, 400000);
  EXPECT_EQ(WageBudget(world, rival), 4000 * even.OfWhatIsLeft);
  rival.LastMonth.WrestlerWages = 250000;
  EXPECT_EQ(WageBudget(world, rival), 4000 * even.OfWhatIsLeft) << "wages are not in the way";
  rival.Money += tuning::kMonthsToFairSum * 1000;
  EXPECT_EQ(WageBudget(world, rival), 4000 * even.OfWhatIsLeft + 1000);
  rival.Money -= 2 * tuning::kMonthsToFairSum * 1000;
  EXPECT_EQ(WageBudget(world, rival), 4000 * even.OfWhatIsLeft - 1000);
  Earn(rival, 1000000, 1000000);
  EXPECT_EQ(WageBudget(world, rival), 10000 * even.MostOfIncome);
  Earn(rival, 1000000, -300000);
  EXPECT_EQ(WageBudget(world, rival), 0);

  // 30 workers of 80, 70, ... 30 are worth 99500 squares.
  Earn(rival, 1000000, 500000);
  const PayScale scale(world, rival);
  const int top = 5 * even.OfWhatIsLeft * 10000 / 99500;
  EXPECT_EQ(scale.For(100), top);
  EXPECT_EQ(scale.For(50), top / 4);
  EXPECT_EQ(scale.For(1), 1);
  EXPECT_EQ(scale.Room(), 5 * even.OfWhatIsLeft - 300) << "30 wages of 10";
}

TEST(PayScale, IsTheOwnersHandAndTheSameWheneverAsked) {
  World world = SmallWorld().Promotion("CWA").Promotion("XWF").Owner("Fist").Game("CWA");
  Staff& owner = Named(world.AllStaff(), "Fist");
  int hands[3] = {}, reckless = 0;
  for (const int talent : {10, 90})
    for (int uid = 1; uid <= 300; ++uid) {
      owner.Uid = uid;
      owner.Talent = talent;
      const Spender hand = SpenderOf(world, RivalOf(world));
      EXPECT_EQ(SpenderOf(world, RivalOf(world)), hand);
      ++hands[static_cast<int>(hand)];
      if (hand == Spender::Reckless) reckless += talent == 90 ? -1 : 1;
    }
  for (const int count : hands) EXPECT_GT(count, 60);
  EXPECT_GT(reckless, 40) << "talent knows what it is doing";
}

TEST(RivalSponsorSigning, DrawsAmongTheWillingThatFitTheClass) {
  const tuning::PayBand& usual = tuning::kUsualPay[kSmall - 1];
  const auto pays = [](int pay, int morality = 10) {
    return [=](Sponsor& sponsor) { sponsor.Pay = pay, sponsor.Morality = morality; };
  };
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kSmall, [](Promotion& p) { p.Image = 60, p.Risk = 50; })
                    .OnTheMarket()
                    .Sponsor("Too Dear", pays(usual.To + 1))
                    .Sponsor("Fine A", pays(usual.To))
                    .Sponsor("Too Moral", pays(usual.To, 51))
                    .Sponsor("Fine B", pays(usual.From))
                    .Sponsor("Cheaper", pays(usual.From - 20))
                    .Sponsor("Too Cheap", pays(usual.From - 1))
                    .Sponsor("Fine C", pays(usual.From))
                    .Game("CWA");
  ScriptDraws(world, {{18, 1}, {18, 1}, {18, 1}, {18, 1}});  // how long they sign for
  ScriptLife(world, {{3, 2}, {2, 2}, {1, 1}});
  RivalOf(world).Sponsor[0] = 900;  // a sponsor who is no more
  RivalSponsorSigning(world);
  const auto& places = RivalOf(world).Sponsor;
  EXPECT_EQ(places[0], Named(world.Sponsors(), "Fine B").Uid);
  EXPECT_EQ(places[1], Named(world.Sponsors(), "Fine C").Uid);
  EXPECT_EQ(places[2], Named(world.Sponsors(), "Fine A").Uid);
  EXPECT_EQ(places[3], Named(world.Sponsors(), "Too Cheap").Uid) << "nearest to them";
}

Change<Worker> Star(int over, int wage = 10, std::string_view contract = "Non", int months = 0) {
  return [=](Worker& worker) {
    worker.Over = worker.Brawl = worker.Technical = worker.Speed = over;
    worker.Wage = wage;
    worker.ContractType = contract;
    worker.ContractMonths = months;
  };
}

/// A rich Cult rival short of people, and what the market has for it.
SmallWorld Market() {
  SmallWorld small;
  small.Promotion("CWA").Promotion("SML", kSmall).Promotion("XWF", kCult).Crew(20);
  return small;
}

/// Who has come to the rival, with his wage.
std::string Newcomers(const World& world) {
  std::string who;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == 3 && worker.Name.View().find("Hand") == std::string_view::npos)
      who += worker.Name.Str() + " " + std::to_string(worker.Wage) + ";";
  return who;
}

TEST(TalentHunt, AsksTheBestWithinTheBudgetAtTheGoingRate) {
  World world = Market()
                    .OnTheMarket()
                    .Worker("Good", Star(60))
                    .Worker("Better", Star(70))
                    .Worker("Best", Star(75))
                    .Worker("Above It All", Star(81))
                    .Worker("Beneath It", Star(40))
                    .Worker("Greedy", Star(72, 81))
                    .Worker("Leaving", Star(74))
                    .Game("CWA");
  Named(world.Workers(), "Leaving").RetiringSoon = true;
  Promotion& rival = RivalOf(world);
  Earn(rival, 2000000, 1200000);
  const PayScale scale(world, rival);
  Rosters rosters(world);
  ScriptDraws(world, std::vector<int>{});
  ScriptLife(world, {{tuning::kTalksFor1, 2}, {tuning::kTalksFor1, 1}});
  GoAfterTalent(world, rival, 2, rosters);
  EXPECT_EQ(Newcomers(world), "Better " + std::to_string(scale.For(70)) + ";");
  EXPECT_EQ(rosters.Of(3), 21);

  Earn(rival, 2000000, 100000);
  ScriptLife(world, {});
  GoAfterTalent(world, rival, 9, rosters);
  EXPECT_EQ(rosters.Of(3), 21) << "no room in the budget";
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(TalentHunt, StealsWhoseContractsEndAndOnlyAsStealingGoes) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("SML", kBackyard)
                    .Worker("Bound", Star(70, 10, "Wri", 1))
                    .Worker("Settled", Star(70, 10, "Non", tuning::kMonthsBeforeTheEnd + 1))
                    .Worker("Ending", Star(70, 10, "Non", tuning::kMonthsBeforeTheEnd))
                    .Promotion("XWF", kCult)
                    .Crew(20)
                    .Game("CWA");
  Earn(RivalOf(world), 2000000, 1200000);
  Rosters rosters(world);
  ScriptLife(world, {{tuning::kTalksFor1, 1}});
  GoAfterTalent(world, RivalOf(world), 9, rosters);
  EXPECT_EQ(Newcomers(world).substr(0, 7), "Ending ");
  EXPECT_EQ(rosters.Of(2), 2);
}

TEST(TalentHunt, AFullRosterWantsOnlyWhoeverIsBetterThanItsWeakest) {
  const int most = tuning::kRosters[kCult - 1].Most;
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("SML", kSmall)
                    .Promotion("XWF", kCult)
                    .Crew(most)
                    .OnTheMarket()
                    .Worker("Good", Star(60))
                    .Game("CWA");
  Earn(RivalOf(world), 2000000, 1500000);
  for (Worker& worker : world.Workers())
    if (worker.Employer == 3) Star(61, 5, "Wri", 9)(worker);
  Rosters rosters(world);
  ScriptLife(world, {});
  GoAfterTalent(world, RivalOf(world), 1, rosters);
  Named(world.Workers(), "XWF Hand 3").Over = 41;
  ScriptLife(world, {{tuning::kTalksFor1, 1}});
  GoAfterTalent(world, RivalOf(world), 1, rosters);
  EXPECT_EQ(rosters.Of(3), most + 1) << "tomorrow the weakest goes";
}

TEST(TalentHunt, KeepsTheRulesOfTheHouseForThePlayer) {
  World world = SmallWorld()
                    .Promotion("SML", kBackyard)
                    .Worker("Taken", Star(70, 10, "Non", 1))
                    .Promotion("XWF", kCult)
                    .Crew(20)
                    .OnTheMarket()
                    .Worker("Old", Star(75))
                    .Worker("Young", Star(60))
                    .Game("XWF");
  Named(world.Workers(), "Taken").Age = Named(world.Workers(), "Young").Age = 23;
  Named(world.Workers(), "Old").Age = 24;
  HouseRules rules{};
  rules.On[static_cast<std::size_t>(HouseRule::Homegrown)] = true;
  world.Of<HouseRules>().Rewrite({rules});
  Earn(RivalOf(world), 2000000, 1200000);
  Rosters rosters(world);
  ScriptDraws(world, {{10, 1}, {10, 1}, {10, 1}});
  EXPECT_EQ(FindCandidate(world, RivalOf(world), kAllRound)->Name.Str(), "Young");
  ScriptLife(world, {{tuning::kTalksFor1, 1}});
  GoAfterTalent(world, RivalOf(world), 9, rosters);
  EXPECT_EQ(Named(world.Workers(), "Young").Employer, 2);
  EXPECT_EQ(rosters.Of(2), 21);
}

TEST(RivalContractRenewals, LeaveTheBandFullAndLoseTheTempted) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("BIG", kGlobal).Crew(1).Promotion("XWF", kNational);
  for (int i = 1; i <= 20; ++i) small.Worker("Hand " + std::to_string(i), Star(30, 10, "Wri", 1));
  for (const char* name : {"Loyal", "Tempted"}) small.Worker(name, Star(80, 50, "Wri", 1));
  World world = small.Game("CWA");
  Earn(Named(world.Promotions(), "BIG"), 20000000, 12000000);
  Earn(RivalOf(world), 3000000, 800000);
  ScriptDraws(world, std::vector<int>{});
  ScriptLife(world, {{tuning::kTemptedIn, 2}, {tuning::kTemptedIn, 1}});
  RivalContractRenewals(world);
  for (const Worker& worker : world.Workers())
    if (worker.Employer == 3) {
      EXPECT_EQ(worker.ContractMonths, worker.Name == "Tempted" ? 1 : 25) << worker.Name.View();
    }
}

TEST(RivalContractRenewals, GoDownToTheRateAtOnceWhereMoneyIsShort) {
  for (const bool isShort : {false, true}) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Promotion("XWF", kRegional)
                      .Worker("Dear", Star(50, 60, "Non", 1))
                      .Game("CWA");
    if (isShort) RivalOf(world).Money = -1;
    const int fair = PayScale(world, RivalOf(world)).For(50);
    EXPECT_LT(fair, 60);
    RivalContractRenewals(world);
    EXPECT_EQ(Named(world.Workers(), "Dear").Wage, isShort ? fair : (60 + fair + 1) / 2);
  }
}

/// A Cult rival with an image and a crew from 30 to 80, beside a star of a National one and those
/// of others of its own class.
World NearTheEdge(int image, int others) {
  SmallWorld small;
  small.Promotion("CWA");
  for (int i = 0; i < others; ++i)
    small.Promotion("P" + std::to_string(i), i == 0 ? kNational : kCult)
        .Worker("Star " + std::to_string(i), Star(85, 10, "Wri", 9));
  small.Promotion("XWF", kCult, [=](Promotion& p) { p.Image = image; }).Crew(24);
  return small.Game("CWA");
}

SizeAim RivalsAim(const World& world) {
  return SizeAimOf(world, Named(world.Promotions(), "XWF"), Rosters(world));
}

TEST(RivalAmbition, StaysBelowNearARiseItIsNotReadyFor) {
  EXPECT_EQ(RivalsAim(NearTheEdge(tuning::kNearARise - 1, 1)), SizeAim::None);
  World near = NearTheEdge(tuning::kNearARise, 1);
  EXPECT_EQ(RivalsAim(near), SizeAim::StayBelow);

  RivalOf(near).Money = FairSum(kNational);
  Named(near.Workers(), "Star 0").Over = 60;
  EXPECT_TRUE(IsReadyToRise(near, RivalOf(near), Rosters(near))) << "rich and as good as they are";
  EXPECT_EQ(RivalsAim(near), SizeAim::None);
  RivalOf(near).Money -= 1;
  EXPECT_FALSE(IsReadyToRise(near, RivalOf(near), Rosters(near)));
  Named(near.Promotions(), "P0").Size = kCult;
  EXPECT_TRUE(IsReadyToRise(near, RivalOf(near), Rosters(near))) << "nobody is up there";
}

TEST(RivalAmbition, StaysUpNearAFallWhereItIsAtHome) {
  EXPECT_EQ(RivalsAim(NearTheEdge(tuning::kNearAFall, 2)), SizeAim::None) << "its peers are better";
  EXPECT_EQ(RivalsAim(NearTheEdge(tuning::kNearAFall + 1, 1)), SizeAim::None);
  World home = NearTheEdge(tuning::kNearAFall, 1);
  EXPECT_EQ(RivalsAim(home), SizeAim::StayUp);
  RivalOf(home).Size = kBackyard;
  EXPECT_EQ(RivalsAim(home), SizeAim::None) << "there is nothing to fall to";
}

TEST(TalentHunt, IsNotForWhoeverWouldStayBelow) {
  for (const bool isReady : {false, true}) {
    SmallWorld small;
    small.Promotion("CWA")
        .Promotion("BIG", kNational, [](Promotion& p) { p.Money = -1; })
        .Worker("Star", Star(85, 10, "Wri", 9));
    small.Promotion("XWF", kCult, [](Promotion& p) { p.Image = tuning::kNearARise; }).Crew(24);
    World world = small.OnTheMarket().Worker("Free", Star(70)).Game("CWA");
    Earn(RivalOf(world), 2000000, 1200000);
    if (isReady) RivalOf(world).Image -= 1;
    ScriptLife(world, isReady ? std::vector<ScriptedDraw>{{tuning::kTalksFor1, 1}}
                              : std::vector<ScriptedDraw>{});
    RivalContractRenewals(world);
    EXPECT_EQ(Named(world.Workers(), "Free").Employer == RivalOf(world).Uid, isReady);
  }
}

TEST(RivalAdvertising, SpendsRichesOnCampaignsAndNothingInDebt) {
  World world = SmallWorld().Promotion("CWA").Promotion("XWF", kRegional).Game("CWA");
  Promotion& rival = RivalOf(world);
  const int kept = tuning::kFairSumsKept * FairSum(kRegional);
  rival.Money = kept + 1000 * tuning::kWeeksOfCampaigns;
  RivalAdvertising(world);
  EXPECT_EQ(rival.Money, kept + 1000 * (tuning::kWeeksOfCampaigns - 1));
  EXPECT_EQ(rival.ThisMonth.AdvertisingCost, 1000);
  EXPECT_GT(rival.Advertising, 0);
  rival.Money = kept;
  RivalAdvertising(world);
  EXPECT_EQ(rival.Money, kept);
  rival.Money = -1;
  RivalAdvertising(world);
  EXPECT_EQ(rival.Advertising, 0);
}

}  // namespace
}  // namespace grapplemont::test
