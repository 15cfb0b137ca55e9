#include <gtest/gtest.h>

#include "business/past.h"
#include "calendar/advanceday.h"
#include "calendar/events.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

// In what order the steps of a block follow each other is seen in the golden months.
TEST(AdvanceDay, RunsTheBlocksOfItsDay) {
  for (const auto& [morning, isMonday, isFirst] :
       {std::tuple(Day{year{2026} / 3 / 3}, false, false),
        {Day{year{2026} / 3 / 9}, true, false},
        {Day{year{2026} / 5 / 1}, false, true},
        {Day{year{2026} / 6 / 1}, true, true}}) {
    std::vector<std::string_view> expected, steps;
    for (const auto& [block, runs] : {std::pair(kDayBlocks.Daily, true),
                                      {kDayBlocks.Monday, isMonday},
                                      {kDayBlocks.FirstOfMonth, isFirst},
                                      {kDayBlocks.Closing, true}})
      for (const Step& step : block)
        if (runs) expected.push_back(step.Name);
    World world = SmallWorld().Promotion("CWA").Game("CWA", morning - std::chrono::days{1});
    AdvanceDay(world, false, [&](std::string_view step) { steps.push_back(step); });
    EXPECT_EQ(world.Today(), morning);
    EXPECT_EQ(steps, expected) << IsoDate(morning);
  }
}

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
  } rows[] = {{year{2026} / 3 / 29, 3, year{2026} / 3 / 29},
              {year{2026} / 3 / 30, 3, year{2027} / 3 / 28},
              {year{2026} / 3 / 1, 2, year{2027} / 2 / 28}};
  for (const auto& row : rows) {
    World world = Planned().Game("CWA", row.Today);
    EXPECT_EQ(NextEventDay(world, row.Month), row.Next);
  }
}

TEST(EventTypes, AreAllOpenButPayPerViewsOfTheSmall) {
  for (const int size : {kRegional, kSmall}) {
    World world = Planned(size).Game("CWA");
    for (int type = 2; type <= 4; ++type) EXPECT_EQ(WhyNotEventType(world.Player(), type), "");
    EXPECT_EQ(
        WhyNotEventType(world.Player(), 1),
        size == kRegional ? "" : "Nobody would watch a Pay-Per-View of a promotion that is Small.");
    for (const int none : {0, 5})
      EXPECT_EQ(WhyNotEventType(world.Player(), none), "Choose a type first.");
  }
}

TEST(EventNames, AreThePlayersOwnAndFit) {
  World world = Planned().Game("CWA");
  const struct {
    int Month;
    const char *Name, *Why;
  } rows[] = {{3, " ", "Type a name first."},
              {3, "May Mayhem", "You have an Event called May Mayhem already."},
              {5, "May Mayhem", ""},
              {3, "Rival Rumpus", ""}};
  for (const auto& row : rows)
    EXPECT_EQ(WhyNotEventName(world, row.Month, row.Name), row.Why) << row.Name;
}

TEST(EventScreen, ShowsTheYearAndMarksTheOneThatIsDue) {
  constexpr struct {
    int Day;
    bool Planned;
    const char* Mark;
  } kCases[] = {
      {1, true, "Due"}, {29, true, "Tonight"}, {30, true, "Over"}, {29, false, "Missing"}};
  for (const auto& c : kCases) {
    World world = Planned().Game("CWA", year{2026} / 3 / c.Day);
    if (!c.Planned) DropEvent(world, 3);
    GameOnWorld play(std::move(world));
    play.Desk.Open("frmEvent");
    const auto rows = play.Desk.Rows("lstevents");
    ASSERT_EQ(rows.size(), 12u);
    EXPECT_EQ(rows[2][0], "March");
    EXPECT_EQ(rows[2][1], c.Planned ? "CWA in March" : "Nothing planned");
    for (std::size_t month = 0; month < 12; ++month)
      EXPECT_EQ(rows[month][3], month == 2 ? c.Mark : "") << month;
    EXPECT_EQ(rows[4][5], "$25,000");
    EXPECT_EQ(rows[3][1], "Nothing planned") << "the rival's is not ours";
    EXPECT_EQ(play.Desk.Selected("lstevents"), std::vector<int>{3});
  }
}

TEST(EventScreen, ShowsWhatCameOfTheMonthsEarlierEvents) {
  World world = Planned().Game("CWA", year{2026} / 3 / 1);
  const std::pair<Day, const char*> kHeld[] = {{year{2024} / 3 / 31, "First Bash"},
                                               {year{2025} / 3 / 30, "Bash"},
                                               {year{2025} / 4 / 27, "Spring"}};
  for (const auto& [on, name] : kHeld) {
    HistoryEntry held = EntryOf(world, world.Player(), kPastEvent);
    held.On = on;
    held.Name = name;
    held.Rating = 61;
    held.Income = 5000;
    held.Costs = 8000;
    Remember(world, held);
  }
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmEvent");
  const auto held = play.Desk.Rows("lstheld");
  ASSERT_EQ(held.size(), 2u) << "those of March";
  EXPECT_EQ(held[0][1], "Bash") << "the latest first";
  EXPECT_EQ(held[1][1], "First Bash");
  EXPECT_EQ(held[1][5], "-$3,000");
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
  ExpectSound(world);
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
