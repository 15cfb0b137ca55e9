#include <gtest/gtest.h>

#include "booking/keptcards.h"
#include "calendar/advanceday.h"
#include "calendar/passing.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/segments.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

SmallWorld Playing(Day today) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kCult).Owner("Ruth Vane").Crew(6);
  small.Show("Friday Fire", "Friday", "Nine").Event(3, 2, "Marchmania");
  small.Game("CWA", today);
  return small;
}

TEST(MainScreen, SaysWhoAndWhenAndWhatIsAhead) {
  GameOnWorld play(Playing(year{2026} / 3 / 24)
                       .Mail("Ruth Vane", "Hello.")
                       .Promotion("NEW")
                       .Show("Rival Hour", "Monday", "Nine"));
  Named(play.World().Promotions(), "CWA").Money = -1250;
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Tuesday, 24 March 2026");
  EXPECT_EQ(play.Desk.Text("cmdfed"), "CWA");
  EXPECT_EQ(play.Desk.Text("lblmoney"), "-$1,250");
  EXPECT_TRUE(play.Desk.Text("lblfacts").starts_with("Nothing is due today. "));
  EXPECT_TRUE(play.Desk.Enabled("imgmail"));
  EXPECT_EQ(play.Desk.Rows("lstmail")[0][1], "Hello.");
  const auto ahead = play.Desk.Rows("lstahead");
  ASSERT_EQ(ahead.size(), 13u);
  EXPECT_EQ(ahead[0][2], "Friday Fire");
  EXPECT_EQ(ahead[1][2], "Marchmania");
  EXPECT_EQ(ahead[1][3], "Event");
  EXPECT_EQ(ahead.back()[3], "No Event");
}

TEST(MainScreen, CountsTheMailOfTheDayThatPassedAndOfToday) {
  World world = Playing(year{2026} / 3 / 24).Mail("CWA News", "Old.").Build();
  AddNews(world, "CWA News", "Today.");
  world.News().Change(1).Date = "22/03/26";
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Badge("cmdnews"), "1");
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Badge("cmdnews"), std::to_string(play.World().News().Count() - 1));
}

TEST(MainScreen, IsADeskWithWhatWantsLookingAt) {
  World world = Playing(year{2026} / 3 / 6).Title("CWA Crown", "CWA Hand 1").Build();
  Worker& hurt = Named(world.Workers(), "CWA Hand 2");
  hurt.Status = "Inj";
  hurt.InjuryName = "Torn Calf";
  hurt.StatusMonths = 2;
  Named(world.Workers(), "CWA Hand 3").Condition = 40;
  Named(world.Workers(), "CWA Hand 4").Morale = 12;
  Named(world.Workers(), "CWA Hand 5").ContractMonths = 1;
  Segment lastWeek = EmptySegment();
  lastWeek.Kind = kMatch;
  lastWeek.Rating = 40;
  world.Segments().Rewrite(std::vector<Segment>(8, lastWeek));
  const CardOwner drafted{"Friday Fire", false, true};
  KeepCard(world, drafted, {lastWeek}, world.Today());
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Rows("lstchampions").at(0)[1], "CWA Crown");
  EXPECT_EQ(play.Desk.FirstColumn("lsthurt"),
            (std::vector<std::string>{"CWA Hand 2", "CWA Hand 3"}));
  EXPECT_EQ(play.Desk.FirstColumn("lstunhappy").at(0), "CWA Hand 4");
  EXPECT_EQ(play.Desk.FirstColumn("lstcontracts").at(0), "CWA Hand 5");
  const auto& image = dynamic_cast<ui::Chart&>(*play.Desk.Top()->Find("chtimage"));
  EXPECT_EQ(image.Lines.Get()[0].Values.back(), double(play.World().Player().Image));
  const std::string facts = play.Desk.Text("lblfacts");
  EXPECT_TRUE(facts.starts_with("Due today: Friday Fire. 2 hurt or worn, ")) << facts;
  ASSERT_TRUE(play.Desk.Visible("cmdbook"));
  for (const std::size_t show : {0U, 1U})
    EXPECT_EQ(play.Desk.Rows("lstahead")[show].at(1).substr(0, 5), show == 0 ? "1 of " : "0 of ");
  KeepCard(play.World(), drafted, {}, play.World().Today());
  play.Desk.OpenRow("lstahead", 2);
  EXPECT_EQ(play.Desk.TopName(), "frmDrafts");
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdbook");
  EXPECT_EQ(play.Desk.TopName(), "frmBooking");
}

TEST(MainScreen, HasALineOfFiguresThatOpenTheirPages) {
  World world = Playing(year{2026} / 3 / 6)
                    .Mail("Ruth Vane", "Hello.")
                    .Mail("NEW News", "A signing.")
                    .Mail("NEW News", "A firing.")
                    .Build();
  Promotion& player = world.Player();
  player.Money = 12000;
  player.MoneyBefore[0] = 15000;
  player.Image = 37;
  player.Rank[0] = StandingScore(player) - 12;
  Worker& away = Named(world.Workers(), "CWA Hand 1");
  away.Status = "Sus";
  away.StatusMonths = 1;
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  const std::string money =
      "-$3,000 this month, " + Dollars(DueOnTheFirst(play.World())) + " due on the 1st";
  EXPECT_GE(DueOnTheFirst(play.World()), 60000) << "six wages of $10,000";
  const char* const kFigures[][3] = {{"Money $12,000", money.c_str(), "frmFinance"},
                                     {"Image 37%", "63 points short of National", "frmFed"},
                                     {"Momentum +12", "This month; no show yet", "frmResults"},
                                     {"Mail 2 unread", "1 for you, 1 digest", "frmNews"},
                                     {"Roster 6", "1 away, 0 unhappy", "frmRoster"}};
  EXPECT_TRUE(play.Desk.Tip("cmdtile(3)").starts_with("+12 from before what is remembered. "));
  int place = 0;
  for (const auto& figure : kFigures) {
    const std::string number = "(" + std::to_string(++place) + ")";
    EXPECT_EQ(play.Desk.Text("cmdtile" + number), figure[0]);
    EXPECT_EQ(play.Desk.Text("lbltile" + number), figure[1]);
    play.Desk.Click("cmdtile" + number);
    EXPECT_EQ(play.Desk.TopName(), figure[2]);
    play.Desk.Click(play.Desk.Top()->Layout().Cancel->Name());
  }
  EXPECT_EQ(play.Desk.Text("cmdtile(4)"), "Mail 1 unread") << "what was shown has been read";
  play.World().Player().Image = 91;
  play.Desk.Click("cmdtile(2)");
  EXPECT_EQ(play.Desk.TopName(), "frmProspect") << "the next class is in sight";
}

TEST(MainScreen, ItsBarFollowsWhatIsSpentAndReadOnAnyPage) {
  GameOnWorld play(Playing(year{2026} / 3 / 6).Mail("Ruth Vane", "Hello."));
  play.Desk.Open("frmMainScreen");
  ui::Screen& main = *play.Desk.Top();
  play.Desk.Click("cmdfinance");
  play.Desk.Event([&] { play.World().Player().Money = 4321; });
  EXPECT_EQ(main.Find("lblmoney")->Text.Get(), "$4,321");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.Badge("cmdnews"), "1");
  play.Desk.Click("cmdnews");
  EXPECT_EQ(dynamic_cast<ui::Button&>(*main.Find("cmdnews")).Badge.Get(), "");
}

TEST(MainScreen, LeadsToEveryScreenOfTheSideBar) {
  GameOnWorld play(Playing(year{2026} / 3 / 2));  // the day of the staff meeting
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Badge("cmdmeeting"), "today");
  int screens = 0;
  const std::vector<ui::SideGroup> side = play.Desk.Top()->Layout().Side;
  for (const ui::SideGroup& group : side)
    for (const auto& command : group.Commands) {
      const std::string button = command.Press->Name();
      if (button == "cmdquit") continue;
      play.Desk.Click(button);
      EXPECT_NE((command.Pages + " ").find(play.Desk.TopName() + " "), std::string::npos) << button;
      play.Desk.Click(play.Desk.Top()->Layout().Cancel->Name());
      EXPECT_EQ(play.Desk.TopName(), "frmMainScreen") << button;
      ++screens;
    }
  EXPECT_EQ(screens, 21);
}

TEST(MainScreen, MovesAPlainDayAndKeepsItOnDisk) {
  GameOnWorld play(Playing(year{2026} / 3 / 2));
  play.Desk.Open("frmMainScreen");
  play.World().Session.ShowRating = 55;
  bool waited = false;
  play.Desk.OnRepaint = [&] { waited |= play.Desk.TopName() == "frmWait"; };
  play.Desk.Click("cmdnext");
  EXPECT_TRUE(waited);
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Tuesday, 03 March 2026");
  EXPECT_EQ(play.World().Session.ShowRating, 0);
  play.Reopen();
  EXPECT_EQ(IsoDate(play.World().Today()), "2026-03-03");
}

TEST(MainScreen, LetsPlainDaysPassUntilTheNextShowAndOpensItsSheet) {
  GameOnWorld play(Playing(year{2026} / 3 / 2));
  play.World().Player().MeetingDay = "Wednesday";
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmduntil");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Friday, 06 March 2026");
  EXPECT_TRUE(play.Desk.Text("lblfacts").starts_with("Due today: Friday Fire. "));
  EXPECT_TRUE(play.Desk.Text("lblfacts").ends_with("Passed on the way: 1 staff meeting."));
  for (const char* way : {"cmduntil", "cmdnext"}) {
    play.Desk.Click(way);
    EXPECT_EQ(play.Desk.Title(), "Television Booking Sheet For Friday Fire");
    const char* question =
        "Are you sure you wish to go back? It will erase any booking you have done so far.";
    play.Desk.ExpectAsk("Confirm", question, true, ui::Default::No);
    play.Desk.Click("cmdback");
    EXPECT_EQ(play.Desk.Text("txtdate"), "Friday, 06 March 2026");
  }
}

TEST(DaysThatPass, SayWhatTheyHavePassedBy) {
  World world = SmallWorld().Promotion("CWA", kSmall).Owner("Ruth Vane").Crew(2).Game("CWA");
  world.Player().MeetingDay = "Thursday";
  const auto passed = [&](Day from, Day to) {
    world.Game().Today = from;
    const Passing passing(world);
    world.Game().Today = to;
    return passing.Text(world);
  };
  constexpr Day kThursday{year{2026} / 5 / 28};
  EXPECT_EQ(passed(year{2026} / 4 / 27, kThursday),
            "Passed on the way: 4 staff meetings and 6 ventures of the month.");
  MonthPlan plan;
  plan.Month = Day{year{2026} / 4 / 1};
  plan.Done[2] = true;
  world.MonthPlans().Rewrite({plan});
  EXPECT_EQ(passed(year{2026} / 4 / 30, year{2026} / 5 / 7),
            "Passed on the way: 5 ventures of the month.")
      << "its own meeting was known of, and the last day's is still to come";
  EXPECT_EQ(passed(year{2026} / 5 / 20, kThursday), "Passed on the way: 1 staff meeting.");
  world.Player().Size = kRegional;
  EXPECT_EQ(passed(year{2026} / 4 / 30, year{2026} / 5 / 7), "");
}

TEST(MainScreen, MovesOnFromACancelledEvent) {
  GameOnWorld play(Playing(year{2026} / 3 / 29));
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Title(), "Event Booking Sheet For Marchmania");
  play.Desk.ExpectAsk("Cancel?", "Are You Sure You Wish To Cancel The Show?", true,
                      ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Monday, 30 March 2026");
}

TEST(MainScreen, AsksWhetherAMonthShallPassWithoutAnEvent) {
  GameOnWorld play(Playing(year{2026} / 4 / 26));
  const std::string text =
      "It is the end of the month, yet you have no major show planned!\nAre you sure you wish to "
      "not hold a big event this month?";
  play.Desk.Open("frmMainScreen");
  play.Desk.ExpectAsk("No Show!", text, false);
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Sunday, 26 April 2026");
  play.Desk.ExpectAsk("No Show!", text, true);
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Text("txtdate"), "Monday, 27 April 2026");
}

TEST(MainScreen, KeepsAYearOfNextDays) {
  World world = Playing(year{2026} / 3 / 1);
  world.Player().Size = kBackyard;  // from where a year of called-off shows cannot fall
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  for (int presses = 0; presses < 1000 && play.World().Today() < Day{year{2027} / 3 / 1};
       ++presses) {
    if (IsEventDay(play.World().Today()) && MonthOf(play.World().Today()) != 3)
      play.Desk.ExpectAsk("No Show!", kAnyText, true);
    play.Desk.Click("cmdnext");
    while (play.Desk.TopName() == "frmIncident") play.Desk.Click("cmdignore");
    if (play.Desk.TopName() == "frmMainScreen") continue;
    play.Desk.ExpectAsk("Cancel?", kAnyText, true);
    play.Desk.Click("cmdcancel");
  }
  EXPECT_EQ(play.Desk.Text("txtdate"), "Monday, 01 March 2027");
  const World shown = CopyOf(play.World());
  play.Reopen();
  ExpectSame(play.World(), shown);
}

}  // namespace
}  // namespace grapplemont::test
