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
  const struct {
    int Money;
    std::array<int, 3> Before;
    Purse Expected;
  } kRows[] = {{-1, {10, 5, 1}, Purse::Saving},
               {5999, {10, 20, 30}, Purse::Saving},
               {6000, {10, 20, 30}, Purse::Steady},
               {5999, {10, 20, 20}, Purse::Steady},
               {5999, {30, 20, 10}, Purse::Steady},
               {6000, {30, 20, 10}, Purse::Spending},
               {6000, {30, 20, 20}, Purse::Steady},
               {6000, {30, 20, kNoEnd}, Purse::Steady},
               {5999, {10, kNoEnd, kNoEnd}, Purse::Steady}};
  for (const auto& row : kRows)
    EXPECT_EQ(PurseOf(WithMoney(row.Money, row.Before, 1000)), row.Expected)
        << row.Money << " after " << row.Before[0] << ", " << row.Before[1] << ", "
        << row.Before[2];
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

TEST(RosterSizeReview, LetsTheLowestScoreGoWhileItSaves) {
  const int least = tuning::kRosters[kBackyard - 1].Least * tuning::kLeastWhileSaving / 100;
  World world = Backyard(least + 1);
  MakeSaving(world);
  Named(world.Workers(), "XWF Hand 4").Wage = 40;
  Named(world.Workers(), "XWF Hand 6").Unsackable = true;
  RosterSizeReview(world);
  EXPECT_EQ(Named(world.Workers(), "XWF Hand 5").Employer, 0) << "of 40 there, not who costs most";
  EXPECT_EQ(Rosters(world).Of(2), least);
  RosterSizeReview(world);
  EXPECT_EQ(Rosters(world).Of(2), least) << "not below its band";
}

TEST(RosterSizeReview, SignsSomebodyWhileItSpends) {
  const auto& band = tuning::kRosters[kBackyard - 1];
  struct Row {
    int Crew;
    bool Spends, Signs;
  };
  for (const Row& row :
       {Row{band.Least, true, true}, {band.Most, true, false}, {band.Least, false, false}}) {
    World world = Backyard(row.Crew);
    Worker free = Named(world.Workers(), "XWF Hand 1");
    free.Uid = 90;
    free.Name = "Free Hand";
    free.Employer = 0;
    free.Over = 15;
    world.Workers().Append(free);
    for (Worker& worker : world.Workers()) worker.Wage = 1;
    if (row.Spends) MakeSpending(world);
    world.SetLife(std::make_unique<ScriptedDraws>(
        row.Signs ? std::vector<ScriptedDraw>{{tuning::kTalksFor1, 1}}
                  : std::vector<ScriptedDraw>{}));
    ScriptDraws(world, std::vector<int>{});
    RosterSizeReview(world);
    EXPECT_EQ(world.FindWorker(90)->Employer, row.Signs ? 2 : 0);
  }
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

TEST(RivalContractRenewals, KeepAllButTheLeastWantedTheOutgrownAndTheRetiring) {
  for (const bool saves : {false, true})
    for (const int wage : {20, 3}) {
      World world = LastMonths([&](Worker& worker) { worker.Wage = wage; });
      Named(world.Workers(), "Hand 20").Over = 61;
      Named(world.Workers(), "Hand 19").RetiringSoon = true;
      Named(world.Workers(), "Hand 18").ContractMonths = 2;
      if (saves) world.Promotions()[2].Money = -1;
      RivalContractRenewals(world);
      for (int i = 1; i <= 20; ++i) {
        const Worker& worker = Named(world.Workers(), "Hand " + std::to_string(i));
        const bool stays = i > 3 && i < 18;
        EXPECT_EQ(worker.ContractMonths, stays ? 13 : i == 18 ? 2 : 1) << i;
        const int going = 9;
        const int renewed =
            !saves ? (wage == 20 ? (20 + going + 1) / 2 : going) : std::min(wage, going);
        const int runningOn = wage == 3 && !saves ? 3 + 1 : wage;
        EXPECT_EQ(worker.Wage, stays ? renewed : i == 18 ? runningOn : wage) << i;
        EXPECT_EQ(worker.ContractType.Str(), stays ? "Non" : "Wri") << i;
      }
    }
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

}  // namespace
}  // namespace grapplemont::test
