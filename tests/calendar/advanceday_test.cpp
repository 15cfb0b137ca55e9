#include "calendar/advanceday.h"

#include <gtest/gtest.h>

#include "calendar/ahead.h"
#include "calendar/daysteps.h"
#include "records/checks/checkworld.h"
#include "records/fields/fields.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

std::vector<std::string> StepsOfDayInto(Day morning) {
  World world = SmallWorld().Promotion("CWA").Game("CWA", morning - std::chrono::days{1});
  std::vector<std::string> steps;
  AdvanceDay(world, false, [&](std::string_view step) { steps.emplace_back(step); });
  EXPECT_EQ(world.Today(), morning);
  return steps;
}

const std::vector<std::string> kDailyNames = {"OwnerlessPromotions", "RivalWorkerHiring",
                                              "RivalStaffHiring", "RivalSponsorSigning",
                                              "DailyWorkerUpkeep"};
const std::vector<std::string> kMondayNames = {
    "RivalPositions",    "RivalHouseShows", "WriterWorkload",   "TvContractReview",
    "SponsorRiskReview", "EconomyDrift",    "RivalAdvertising", "RosterSizeReview"};
const std::vector<std::string> kFirstNames = {"PoorFormMorale",        "DiscoverFreeAgents",
                                              "DevelopmentMonth",      "TrainingCampMonth",
                                              "StatusCountdown",       "AgeAndRetire",
                                              "RivalNewTvShows",       "PayWagesAndContracts",
                                              "RivalContractRenewals", "SponsorContractCountdown",
                                              "LoanRepayments",        "MerchandiseIncome",
                                              "MonthlyCosts",          "MonthlyReview",
                                              "CloseMonthBooks",       "BankruptcyCheck",
                                              "NewPromotionCheck"};
const std::vector<std::string> kClosingNames = {"IncidentRoll", "SweepDeadPromotions",
                                                "SweepDeadShows", "UpdateReigns", "GiveAwards"};

std::vector<std::string> Joined(std::initializer_list<std::vector<std::string>> blocks) {
  std::vector<std::string> all;
  for (const auto& block : blocks) all.insert(all.end(), block.begin(), block.end());
  return all;
}

TEST(AdvanceDay, RunsItsBlocksInTheirFixedOrder) {
  EXPECT_EQ(StepsOfDayInto(year{2026} / 3 / 3), Joined({kDailyNames, kClosingNames}));
  EXPECT_EQ(StepsOfDayInto(year{2026} / 3 / 9), Joined({kDailyNames, kMondayNames, kClosingNames}));
  EXPECT_EQ(StepsOfDayInto(year{2026} / 5 / 1), Joined({kDailyNames, kFirstNames, kClosingNames}));
  EXPECT_EQ(StepsOfDayInto(year{2026} / 6 / 1),
            Joined({kDailyNames, kMondayNames, kFirstNames, kClosingNames}));
}

TEST(AdvanceDay, AnswersTapesOnlyOnTheFirstOfAMonth) {
  for (const auto& [morning, left] :
       {std::pair<Day, int>{year{2026} / 3 / 31, 4}, {year{2026} / 4 / 1, 0}}) {
    World world =
        SmallWorld().Network("Nine").Promotion("CWA").Game("CWA", morning - std::chrono::days{1});
    world.Game().TapeWait = 4;
    AdvanceDay(world, false);
    EXPECT_EQ(world.Game().TapeWait, left) << IsoDate(morning);
  }
}

TEST(AdvanceDay, SweepsAwayWhatHasCeasedToExist) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA")
                    .Promotion("DED")
                    .Worker("Gone Under", kMainEvent, 85)
                    .Show("Last Hour", "Friday", "Nine")
                    .Game("CWA");
  Named(world.Promotions(), "DED").Name = kToBeDeleted;
  AdvanceDay(world, false);
  EXPECT_EQ(world.Promotions().Count(), 1);
  EXPECT_EQ(world.Shows().Count(), 0);
  EXPECT_EQ(Named(world.Workers(), "Gone Under").Employer, 0);
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST(AdvanceDay, KeepsAWorldSoundForAYear) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA")
                    .Owner("Ruth Vane")
                    .Crew(20)
                    .Show("Friday Fire", "Friday", "Nine")
                    .Promotion("NEW", kSmall)
                    .Crew(12)
                    .Game("CWA");
  for (int day = 1; day <= 366; ++day) {
    AdvanceDay(world, false);
    const auto faults = CheckWorld(world);
    ASSERT_TRUE(faults.empty()) << IsoDate(world.Today()) << ": " << faults.front().Line();
  }
  EXPECT_EQ(IsoDate(world.Today()), "2027-03-02");
}

struct EconomyCase {
  int Before;
  bool Rising;
  std::vector<int> Draws;
  int After;
  bool RisingAfter;
};

TEST(EconomyDrift, MovesByItsBands) {
  const EconomyCase kCases[] = {
      {50, true, {8}, 51, true},         {50, false, {8}, 49, false}, {50, true, {9}, 50, true},
      {20, false, {1}, 19, false},       {80, true, {1}, 81, true},   {81, true, {}, 82, true},
      {19, true, {}, 26, true},          {19, false, {}, 12, false},  {99, true, {}, 100, false},
      {100, false, {}, 99, false},       {7, false, {}, 0, true},     {0, true, {}, 7, true},
      {5, false, {}, -2, false},         {-2, false, {}, -9, false},  {-7, true, {}, 0, true},
      {-32765, false, {}, -32768, false}};
  for (const EconomyCase& c : kCases) {
    World world = SmallWorld().Promotion("CWA").Game("CWA");
    world.Game().Economy = c.Before;
    world.Game().EconomyRising = c.Rising;
    ScriptDraws(world, c.Draws);
    EconomyDrift(world);
    EXPECT_EQ(world.Game().Economy, c.After) << "from " << c.Before;
    EXPECT_EQ(world.Game().EconomyRising, c.RisingAfter) << "from " << c.Before;
  }
}

TEST(WriterWorkload, BringsAMailWhenTheWritersAreTooFew) {
  struct Case {
    int Shows;
    int Writers;
    bool Mail;
  };
  constexpr Case kCases[] = {{0, 0, false}, {1, 1, true}, {1, 2, false}, {2, 3, true},
                             {2, 4, false}, {3, 5, true}, {3, 6, false}, {1, 0, true}};
  constexpr const char* kDays[] = {"Monday", "Tuesday", "Wednesday"};
  for (const Case& c : kCases) {
    SmallWorld small;
    small.Network("Nine").Promotion("CWA");
    for (int i = 0; i < c.Shows; ++i) small.Show("Show " + std::to_string(i), kDays[i], "Nine");
    for (int i = 0; i < c.Writers; ++i) small.Staff("Pen " + std::to_string(i), kWriter);
    World world = small.Promotion("NEW").Staff("Rival Pen", kWriter).Game("CWA");
    WriterWorkload(world);
    EXPECT_EQ(world.News().Count(), c.Mail ? 1 : 0) << c.Shows << " shows, " << c.Writers;
    if (c.Mail) {
      EXPECT_EQ(world.News()[1].From.View(), "Maeve");
    }
  }
}

TEST(ComingShows, ListTelevisionAndEventsOfThePlayer) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA")
                    .Show("Sunday Slam", "Sunday", "Nine")
                    .Event(3, 1, "Marchmania")
                    .Promotion("NEW")
                    .Show("Rival Hour", "Monday", "Nine")
                    .Game("CWA", year{2026} / 3 / 22);
  const auto coming = ComingShows(world, 36);
  ASSERT_EQ(coming.size(), 6u);
  EXPECT_EQ(coming[0].What, "Sunday Slam");
  EXPECT_EQ(coming[1].What, "Marchmania") << "the Event takes the last Sunday from television";
  EXPECT_EQ(coming[5].Kind, "No Event");
  EXPECT_EQ(IsoDate(coming[5].On), "2026-04-26");
}

}  // namespace
}  // namespace grapplemont::test
