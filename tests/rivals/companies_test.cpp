#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

// What makes a rival a company: a purse, renewals, house shows, Titles, a market.

namespace grapplemont::test {
namespace {

Promotion WithMoney(int money, std::array<int, 3> before, int wages) {
  Promotion promotion;
  promotion.Money = money;
  for (Cash& past : promotion.MoneyBefore) past = kNoEnd;
  for (std::size_t i = 0; i < before.size(); ++i) promotion.MoneyBefore[i] = before[i];
  promotion.LastMonth.WrestlerWages = wages - 100;
  promotion.LastMonth.StaffWages = 100;
  return promotion;
}

TEST(Purse, IsJudgedByTheReserveAndTwoMonths) {
  struct Row {
    int Money;
    std::array<int, 3> Before;
    Purse Expected;
  };
  const Row kRows[] = {{-1, {10, 5, 1}, Purse::Saving},
                       {5999, {10, 20, 30}, Purse::Saving},
                       {6000, {10, 20, 30}, Purse::Steady},
                       {5999, {10, 20, 20}, Purse::Steady},
                       {5999, {30, 20, 10}, Purse::Steady},
                       {6000, {30, 20, 10}, Purse::Spending},
                       {6000, {30, 20, 20}, Purse::Steady},
                       {6000, {30, 20, kNoEnd}, Purse::Steady},
                       {5999, {10, kNoEnd, kNoEnd}, Purse::Steady}};
  for (const Row& row : kRows)
    EXPECT_EQ(PurseOf(WithMoney(row.Money, row.Before, 1000)), row.Expected)
        << row.Money << " after " << row.Before[0] << ", " << row.Before[1] << ", "
        << row.Before[2];
}

TEST(Purse, IsToldInWords) {
  const std::pair<int, const char*> kWords[] = {
      {6000000, "Rich"},          {5999999, "Comfortable"},
      {2000000, "Comfortable"},   {1999999, "Sound"},
      {800000, "Sound"},          {799999, "Short of money"},
      {200000, "Short of money"}, {199999, "Scraping by"},
      {0, "Scraping by"},         {-1, "In debt"},
      {-2300000, "In debt"},      {-2300001, "Close to bankruptcy"}};
  for (const auto& [money, words] : kWords) EXPECT_EQ(MoneyInWords(kRegional, money), words);
}

World Backyard(int crew) {
  return SmallWorld().Promotion("CWA").Promotion("XWF", kBackyard).Crew(crew).Game("CWA");
}

void MakeSaving(World& world) {
  world.Promotions()[2].Money = -100;
}
void MakeSpending(World& world) {
  Promotion& rival = world.Promotions()[2];
  rival.Money = 1000000;
  for (std::size_t i = 0; i < 3; ++i) rival.MoneyBefore[i] = 900000 - 1000 * static_cast<int>(i);
}

TEST(RosterSizeReview, LetsTheMostOverpaidGoWhileItSaves) {
  const int least = tuning::kRosters[kBackyard - 1].Least;
  World world = Backyard(least + 1);
  MakeSaving(world);
  Named(world.Workers(), "XWF Hand 4").Wage = 40;
  Named(world.Workers(), "XWF Hand 5").Wage = 50;
  Named(world.Workers(), "XWF Hand 5").Unsackable = true;
  RosterSizeReview(world);
  EXPECT_EQ(Named(world.Workers(), "XWF Hand 4").Employer, 0);
  EXPECT_EQ(Rosters(world).Of(2), least);
  RosterSizeReview(world);
  EXPECT_EQ(Rosters(world).Of(2), least) << "not below its band";
}

TEST(RosterSizeReview, SignsSomebodyWhileItSpends) {
  const auto& band = tuning::kRosters[kBackyard - 1];
  World world = Backyard(band.Least);
  Worker free = Named(world.Workers(), "XWF Hand 1");
  free.Uid = 90;
  free.Name = "Free Hand";
  free.Employer = 0;
  free.Over = 15;
  world.Workers().Append(free);
  MakeSpending(world);
  ScriptDraws(world, {{10, 1}});
  RosterSizeReview(world);
  EXPECT_EQ(world.FindWorker(90)->Employer, 2);

  World full = Backyard(band.Most);
  MakeSpending(full);
  ScriptDraws(full, std::vector<int>{});
  RosterSizeReview(full);
  World steady = Backyard(band.Least);
  ScriptDraws(steady, std::vector<int>{});
  RosterSizeReview(steady);
}

TEST(RivalAdvertising, FollowsTheStandingAndHalvesInDebt) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult, [](Promotion& p) { p.Advertising = 7; })
                    .Promotion("XWF", kCult)
                    .Promotion("YWF", kCult, [](Promotion& p) { p.Money = -1; })
                    .Game("CWA");
  RivalAdvertising(world);
  EXPECT_EQ(world.Promotions()[1].Advertising, 7);
  EXPECT_EQ(world.Promotions()[2].Advertising, 55);
  EXPECT_EQ(world.Promotions()[3].Advertising, 27);
}

TEST(GoingRate, RisesWithTheSquareOfPopularity) {
  EXPECT_EQ(GoingRate(kGlobal, 100), 300);
  EXPECT_EQ(GoingRate(kGlobal, 50), 75);
  EXPECT_EQ(GoingRate(kRegional, 50), 15);
  EXPECT_EQ(GoingRate(kBackyard, 5), 1);
}

/// Twenty workers of a Regional rival, their Brawl from 1 up by three, with a month left.
World LastMonths(const Change<Worker>& change = {}) {
  SmallWorld small;
  small.Promotion("CWA").Promotion("XWF", kRegional).Owner("Fist", [](Staff& s) { s.Wage = 1; });
  for (int i = 1; i <= 20; ++i)
    small.Worker("Hand " + std::to_string(i), [&](Worker& worker) {
      worker.Brawl = 3 * i;
      worker.Over = 40;
      worker.Wage = 20;
      worker.ContractMonths = 1;
      if (change) change(worker);
    });
  return small.Game("CWA");
}

TEST(RivalContractRenewals, KeepAllButTheLeastWanted) {
  World world = LastMonths();
  RivalContractRenewals(world);
  for (int i = 1; i <= 20; ++i) {
    const Worker& worker = Named(world.Workers(), "Hand " + std::to_string(i));
    EXPECT_EQ(worker.ContractMonths, i <= 3 ? 1 : 13) << i;
    EXPECT_EQ(worker.Wage, i <= 3 ? 20 : (20 + 9 + 1) / 2) << i;
    EXPECT_EQ(worker.ContractType.Str(), i <= 3 ? "Wri" : "Non") << i;
  }
}

TEST(RivalContractRenewals, PayNoMoreThanBeforeWhileSaving) {
  World world = LastMonths([](Worker& worker) { worker.Wage = 3; });
  RivalContractRenewals(world);
  EXPECT_EQ(Named(world.Workers(), "Hand 20").Wage, 6);
  World poor = LastMonths([](Worker& worker) { worker.Wage = 3; });
  poor.Promotions()[2].Money = -1;
  RivalContractRenewals(poor);
  EXPECT_EQ(Named(poor.Workers(), "Hand 20").Wage, 3);
}

TEST(RivalContractRenewals, LetTheOutgrownTheRetiringAndOtherMonthsBe) {
  World world = LastMonths();
  Named(world.Workers(), "Hand 20").Over = 61;
  Named(world.Workers(), "Hand 19").RetiringSoon = true;
  Named(world.Workers(), "Hand 18").ContractMonths = 2;
  RivalContractRenewals(world);
  EXPECT_EQ(Named(world.Workers(), "Hand 20").ContractMonths, 1);
  EXPECT_EQ(Named(world.Workers(), "Hand 19").ContractMonths, 1);
  EXPECT_EQ(Named(world.Workers(), "Hand 18").ContractMonths, 2);
  EXPECT_EQ(Named(world.Workers(), "Hand 17").ContractMonths, 13);
}

TEST(RivalContractRenewals, KeepStaffNearTheBestInTheirPost) {
  SmallWorld small;
  small.Promotion("CWA").Staff("Mine", kWriter, 90).Promotion("XWF", kRegional);
  for (const int talent : {80, 32, 31})
    small.Staff("Pen " + std::to_string(talent), kWriter, talent);
  World world = small.Game("CWA");
  for (Staff& staff : world.AllStaff()) staff.ContractMonths = 1;
  RivalContractRenewals(world);
  const std::pair<const char*, int> kMonths[] = {
      {"Mine", 1}, {"Pen 80", 13}, {"Pen 32", 13}, {"Pen 31", 1}};
  for (const auto& [name, months] : kMonths)
    EXPECT_EQ(Named(world.AllStaff(), name).ContractMonths, months) << name;
}

TEST(RivalHouseShows, EarnALittleAndTireTheCrew) {
  for (const int crew : {7, 8}) {
    World world = Backyard(crew);
    world.Game().Today = Day{std::chrono::year{2026} / 3 / 9};
    Named(world.Workers(), "XWF Hand 2").Condition = 50;
    ScriptDraws(world, crew == 8 ? std::vector<ScriptedDraw>{{3, 1},
                                                             {3, 3},
                                                             {3, 1},
                                                             {3, 1},
                                                             {3, 1},
                                                             {3, 1},
                                                             {3, 1},
                                                             {3, 2}}
                                 : std::vector<ScriptedDraw>{});
    const int before = world.Promotions()[2].Money;
    RivalHouseShows(world);
    const int earned = crew == 8 ? 250 + 125 : 0;
    EXPECT_EQ(world.Promotions()[2].Money - before, earned);
    EXPECT_EQ(world.Promotions()[2].ThisMonth.TicketIncome, earned);
    EXPECT_EQ(Named(world.Workers(), "XWF Hand 2").Condition, crew == 8 ? 47 : 50);
  }
}

/// The Monday after an Event, and a rival with a crew, a team and Titles.
World TitleNight(const Change<Title>& change = {}) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Mine", kMainEvent, 90)
                    .Title("CWA Crown")
                    .Promotion("XWF", kBackyard)
                    .Worker("Best", kMainEvent, 60)
                    .Worker("Second", kMainEvent, 50)
                    .Worker("Third", kMainEvent, 40)
                    .Worker("Hurt", kMainEvent, 70,
                            [](Worker& w) {
                              w.Status = "Inj";
                              w.StatusMonths = 2;
                            })
                    .Worker("Corner", kManager, 80)
                    .Title("XWF Crown", "Best", {}, change)
                    .Game("CWA", Day{std::chrono::year{2026} / 3 / 30});
  return world;
}

Title& Crown(World& world) {
  return Named(world.Titles(), "XWF Crown");
}

TEST(RivalTitles, ChangeHandsTheSoonerTheLongerTheReign) {
  for (const auto& [days, chance] :
       {std::pair(180, 50), {179, 35}, {90, 35}, {89, 18}, {45, 18}, {44, 4}, {1, 4}})
    for (const int over : {0, 1}) {
      World world = TitleNight();
      Crown(world).Reigns[0].Won = world.Today() - std::chrono::days{days};
      std::vector<ScriptedDraw> draws{{100, chance + over}};
      if (over == 0) draws.push_back({2, 2});
      ScriptDraws(world, draws);
      RivalHouseShows(world);
      EXPECT_EQ(Crown(world).Reigns[0].Holder.Str(), over == 0 ? "Third" : "Best") << days;
      EXPECT_EQ(Crown(world).Image, over == 0 ? 49 : 51) << "a step towards the champion's Over";
      EXPECT_EQ(FaultsOf(world), "");
    }
}

TEST(RivalTitles, FindChampionsAmongThoseWhoMayHoldThem) {
  World world = TitleNight();
  Title& crown = Crown(world);
  crown.Holder = 0;
  crown.Reigns[0].Holder = "Vacant";
  crown.Woman = true;
  ScriptDraws(world, std::vector<int>{});
  RivalHouseShows(world);
  EXPECT_EQ(crown.Holder, 0) << "no woman is there";
  crown.Woman = false;
  crown.Lightweight = true;
  Named(world.Workers(), "Second").Weight = "L";
  ScriptDraws(world, {{1, 1}});
  RivalHouseShows(world);
  EXPECT_EQ(crown.Reigns[0].Holder.Str(), "Second");
  EXPECT_EQ(Day(crown.Reigns[0].Won), world.Today());

  crown.Suspended = true;
  ScriptDraws(world, std::vector<int>{});
  RivalHouseShows(world);
  EXPECT_EQ(Named(world.Titles(), "CWA Crown").Holder, 0) << "the player books his own";
}

TEST(RivalTitles, GoToTeamsThatStandBeforeAnyPair) {
  const std::pair<bool, int> kNights[] = {{true, 50}, {false, 50}, {false, 30}};
  for (const auto& [hasTeam, second] : kNights) {
    World world = TitleNight();
    Named(world.Workers(), "Second").Over = second;
    Title tag = Crown(world);
    Crown(world).Suspended = true;
    tag.Name = "XWF Tag Titles";
    tag.Singles = false;
    tag.Holder = 0;
    tag.Reigns[0].Holder = "Vacant";
    world.Titles().Append(tag);
    const auto uid = [&](const char* name) { return int(Named(world.Workers(), name).Uid); };
    if (hasTeam) {
      Team team;
      team.Name = "The Odds";
      team.Worker1 = uid("Best");
      team.Worker2 = uid("Third");
      world.Teams().Append(team);
    }
    ScriptDraws(world, {{1, 1}});
    RivalHouseShows(world);
    const Title& crowned = Named(world.Titles(), "XWF Tag Titles");
    EXPECT_EQ(crowned.Reigns[0].Holder.Str(), hasTeam        ? "The Odds"
                                              : second == 50 ? "Best \\ Second"
                                                             : "Best \\ Third")
        << "neighbours on the card, not in the file";
    EXPECT_EQ(FaultsOf(world), "");
  }
}

TEST(RivalTitles, AreDefendedTheDayAfterAnEventAlone) {
  World world = TitleNight();
  world.Game().Today = Day{std::chrono::year{2026} / 3 / 23};
  ScriptDraws(world, std::vector<int>{});
  RivalHouseShows(world);
}

TEST(DiscoverFreeAgents, BringsTalentWhileFewAreFree) {
  for (const auto& [free, come] : {std::pair(20, 8), {40, 0}}) {
    SmallWorld small;
    small.Promotion("CWA").Promotion("XWF").Crew(100 - free).OnTheMarket().Crew(free);
    World world = small.Game("CWA");
    world.SetChance(std::make_unique<SeededDraws>(4));
    DiscoverFreeAgents(world);
    EXPECT_EQ(world.Workers().Count(), 100 + come);
    EXPECT_EQ(FaultsOf(world), "");
  }
}

TEST(DiscoverFreeAgents, MakesWhoeverWaitsAskForLess) {
  SmallWorld small;
  small.Promotion("CWA").Worker("Mine", [](Worker& w) { w.Wage = 100; }).OnTheMarket();
  for (const int wage : {100, 19, 3, 2, 0})
    small.Worker("Free " + std::to_string(wage), [&](Worker& w) { w.Wage = wage; });
  World world = small.Game("CWA");
  DiscoverFreeAgents(world);
  const std::pair<const char*, int> kWages[] = {{"Mine", 100}, {"Free 100", 95}, {"Free 19", 18},
                                                {"Free 3", 2}, {"Free 2", 2},    {"Free 0", 0}};
  for (const auto& [name, wage] : kWages)
    EXPECT_EQ(Named(world.Workers(), name).Wage, wage) << name;
}

}  // namespace
}  // namespace grapplemont::test
