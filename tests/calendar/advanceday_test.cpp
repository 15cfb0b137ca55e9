#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

#include "calendar/advanceday.h"
#include "calendar/events.h"
#include "records/checks/checkworld.h"
#include "records/fields/fields.h"
#include "support/gameonworld.h"
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

std::vector<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

// Each step reads what the last one wrote. The first of June is a Monday, too.
TEST(AdvanceDay, RunsItsBlocksInTheirFixedOrder) {
  EXPECT_EQ(StepsOfDayInto(year{2026} / 6 / 1),
            Words("OwnerlessPromotions RivalWorkerHiring RivalStaffHiring RivalSponsorSigning "
                  "DailyWorkerUpkeep "
                  "RivalPositions RivalHouseShows WriterWorkload TvContractReview "
                  "SponsorRiskReview EconomyDrift RivalAdvertising RosterSizeReview "
                  "PoorFormMorale DiscoverFreeAgents DevelopmentMonth TrainingCampMonth "
                  "StatusCountdown AgeAndRetire RivalNewTvShows PayWagesAndContracts "
                  "RivalContractRenewals SponsorContractCountdown LoanRepayments "
                  "MerchandiseIncome MonthlyCosts MonthlyReview CloseMonthBooks BankruptcyCheck "
                  "NewPromotionCheck "
                  "IncidentRoll SweepDeadPromotions SweepDeadShows UpdateReigns GiveAwards"));
  EXPECT_EQ(StepsOfDayInto(year{2026} / 3 / 3).size(), 5u + 5);
  EXPECT_EQ(StepsOfDayInto(year{2026} / 3 / 9).size(), 5u + 8 + 5);
  EXPECT_EQ(StepsOfDayInto(year{2026} / 5 / 1).size(), 5u + 17 + 5);
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

using namespace std::chrono_literals;
using std::chrono::year;

TEST(Events, AreEnsuredForTheMonthsThatLackOne) {
  World world =
      SmallWorld().Promotion("CWA").Promotion("NEW").Event(5, 1, "May Mayhem").Game("CWA");
  const Promotion& rival = Named(world.Promotions(), "NEW");
  EnsureEvents(world, rival);
  ASSERT_EQ(world.Events().Count(), 12);
  EXPECT_EQ(world.Events()[1].Name.View(), "May Mayhem");
  EXPECT_EQ(world.Events()[12].Name.View(), "NEW in December");
}

using std::chrono::year;

/// CWA with Events in March and May; a rival with one in April.
SmallWorld Planned(int size = kRegional) {
  SmallWorld small;
  small.Promotion("NEW")
      .Event(4, 3, "Rival Rumpus")
      .Promotion("CWA", size)
      .Event(3)
      .Event(5, 3, "May Mayhem");
  return small;
}

TEST(EventDays, AreTheLastSundaysFromTodayOn) {
  const struct {
    Day Today;
    int Month;
    Day Next;
  } rows[] = {{year{2026} / 3 / 1, 3, year{2026} / 3 / 29},
              {year{2026} / 3 / 29, 3, year{2026} / 3 / 29},
              {year{2026} / 3 / 30, 3, year{2027} / 3 / 28},
              {year{2026} / 3 / 1, 2, year{2027} / 2 / 28},
              {year{2026} / 3 / 1, 12, year{2026} / 12 / 27}};
  for (const auto& row : rows) {
    World world = Planned().Game("CWA", row.Today);
    EXPECT_EQ(NextEventDay(world, row.Month), row.Next);
  }
}

TEST(EventTypes, AreAllOpenButPayPerViewsOfTheSmall) {
  for (int size = kGlobal; size <= kBackyard; ++size) {
    World world = Planned(size).Game("CWA");
    for (int type = 1; type <= 4; ++type)
      EXPECT_EQ(WhyNotEventType(world.Player(), type).empty(), type != 1 || size <= kRegional)
          << size << type;
    for (const int none : {0, 5}) EXPECT_NE(WhyNotEventType(world.Player(), none), "");
  }
  World small = Planned(kSmall).Game("CWA");
  EXPECT_EQ(WhyNotEventType(small.Player(), 1),
            "Nobody would watch a Pay-Per-View of a promotion that is Small.");
}

TEST(EventNames, AreThePlayersOwnAndFit) {
  World world = Planned().Game("CWA");
  const struct {
    int Month;
    const char* Name;
    const char* Why;
  } rows[] = {
      {3, " ", "Type a name first."},
      {3, "None", "\"None\" stands for nothing at all and cannot be a name."},
      {3, "To Be Deleted", "\"To Be Deleted\" has a meaning of its own and cannot be a name."},
      {3, "A Night Of Twenty-One", "A name has at most 20 letters. This one has 21."},
      {3, "May Mayhem", "You have an Event called May Mayhem already."},
      {5, "May Mayhem", ""},
      {3, "Rival Rumpus", ""}};
  for (const auto& row : rows)
    EXPECT_EQ(WhyNotEventName(world, row.Month, row.Name), row.Why) << row.Name;
}

TEST(EventScreen, ShowsTheYearAndMarksTheOneThatIsDue) {
  struct Case {
    int Day;
    bool Planned;
    const char* Mark;
  };
  constexpr Case kCases[] = {{1, true, "Due"},      {29, true, "Tonight"},  {30, true, "Over"},
                             {1, false, "Missing"}, {29, false, "Missing"}, {31, false, "Over"}};
  for (const Case& c : kCases) {
    World world = Planned().Game("CWA", year{2026} / 3 / c.Day);
    if (!c.Planned) DropEvent(world, 3);
    GameOnWorld play(std::move(world));
    play.Desk.Open("frmEvent");
    const auto rows = play.Desk.Rows("lstevents");
    ASSERT_EQ(rows.size(), 12u);
    EXPECT_EQ(rows[2][0], "March");
    EXPECT_EQ(rows[2][1], c.Planned ? "CWA in March" : "Nothing planned");
    for (std::size_t month = 0; month < 12; ++month)
      EXPECT_EQ(rows[month][5], month == 2 ? c.Mark : "") << month;
    EXPECT_EQ(rows[4][1], "May Mayhem");
    EXPECT_EQ(rows[4][3], "$25,000");
    EXPECT_EQ(rows[3][1], "Nothing planned") << "the rival's is not ours";
    EXPECT_EQ(play.Desk.Selected("lstevents"), std::vector<int>{3});
  }
}

TEST(EventScreen, PlansRenamesChangesAndDrops) {
  GameOnWorld play(Planned().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmEvent");
  EXPECT_EQ(desk.Tip("cmdadd"), "There is an Event in this month already.");
  desk.Pick("lstevents", "July");
  EXPECT_EQ(desk.Tip("cmddrop"), "There is no Event in this month.");
  EXPECT_EQ(desk.Text("txtname"), "CWA in July");
  EXPECT_EQ(desk.Text("cmbtype"), "Medium, $25,000") << "what fits is proposed";
  desk.Type("txtname", "May Mayhem");
  desk.ExpectSay("Error!", "You have an Event called May Mayhem already.");
  desk.Click("cmdadd");
  desk.Type("txtname", "Hot July");
  desk.Click("cmdadd");
  desk.Type("txtname", "Hotter July");
  desk.Click("cmdrename");
  desk.Pick("cmbtype", "Pay-Per-View, $1,500,000");
  desk.Click("cmdtype");
  EXPECT_EQ(desk.Text("lblfacts"), "3 of 12 months have an Event");
  desk.Pick("lstevents", "March");
  desk.ExpectAsk(
      "Drop Event?",
      "Are you sure you wish to drop CWA in March? A month without an Event costs image.", false,
      ui::Default::No);
  desk.Click("cmddrop");
  desk.ExpectAsk("Drop Event?", kAnyText, true);
  desk.Click("cmddrop");
  EXPECT_EQ(desk.Text("lblfacts"), "2 of 12 months have an Event");
  play.Reopen();
  const World& world = play.World();
  EXPECT_EQ(PlayerEvent(world, 3), nullptr);
  ASSERT_NE(PlayerEvent(world, 7), nullptr);
  EXPECT_EQ(PlayerEvent(world, 7)->Name.View(), "Hotter July");
  EXPECT_EQ(PlayerEvent(world, 7)->Type, 1);
  EXPECT_EQ(world.Events().Count(), 3);
  EXPECT_TRUE(CheckWorld(world).empty());
}

TEST(Events, TakeThePlacesThatPromotionsHaveLeft) {
  World world = Planned().Game("CWA");
  Named(world.Events(), "Rival Rumpus").Owner = 0;
  EventThisMonth(world, Named(world.Promotions(), "NEW"));
  EXPECT_EQ(world.Events().Count(), 3);
  EXPECT_EQ(world.Events()[1].Name.Str(), "NEW in March");
  EXPECT_EQ(world.Events()[1].Owner, 1);

  Named(world.Events(), "NEW in March").Owner = 0;
  PlanEvent(world, 7, "Heat", 3);
  EXPECT_EQ(world.Events().Count(), 3);
  EXPECT_EQ(world.Events()[1].Name.Str(), "Heat");
}

TEST(Events, AreNoMoreThanTheFileHolds) {
  World world = Planned().Game("CWA");
  const Event taken = world.Events()[1];
  while (!world.Events().Full()) world.Events().Append(taken);
  EXPECT_EQ(EventThisMonth(world, Named(world.Promotions(), "NEW")), 0);
  EnsureEvents(world, Named(world.Promotions(), "NEW"));
  EXPECT_EQ(WhyNotPlan(world, 7, "Heat", 3), "No more Events can be kept.");
  world.Events()[1].Owner = 0;
  EXPECT_EQ(WhyNotPlan(world, 7, "Heat", 3), "");
}

}  // namespace
}  // namespace grapplemont::test
