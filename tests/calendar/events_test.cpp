#include "calendar/events.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

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

TEST(Events, AreNotPlannedInAFullFile) {
  World world = Planned().Game("CWA");
  Event rivals;
  rivals.Owner = Named(world.Promotions(), "NEW").Uid;
  world.Events().Rewrite(std::vector<Event>(10000, rivals));
  EXPECT_EQ(WhyNotPlan(world, 7, "Hot July", 3), "No more Events can be kept.");
  EXPECT_EQ(WhyNotEventName(world, 7, "Hot July"), "");
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

TEST(EventScreen, RefusesAPayPerViewToTheSmall) {
  GameOnWorld play(Planned(kSmall).Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmEvent");
  for (const char* button : {"cmdtype", "cmdadd"}) {
    if (button == std::string_view("cmdadd")) desk.Pick("lstevents", "July");
    desk.Pick("cmbtype", "Pay-Per-View, $1,500,000");
    desk.ExpectSay("Error!", "Nobody would watch a Pay-Per-View of a promotion that is Small.");
    desk.Click(button);
  }
  EXPECT_EQ(PlayerEvent(play.World(), 3)->Type, 3);
  EXPECT_EQ(PlayerEvent(play.World(), 7), nullptr);
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
