#include <gtest/gtest.h>

#include "booking/onsheet.h"
#include "booking/showstart.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;
using std::chrono::year;

constexpr Day kEventDay{year{2026} / 3 / 29};
constexpr const char* kTeamText =
    "Are you sure you wish to continue without a full commentary team?";
constexpr const char* kStartText = "Are you sure you wish to start this show?";

SmallWorld Arena(int size = kCult) {
  SmallWorld small;
  small.Network("Harbor 9")
      .Promotion("CWA", size)
      .Staff("Milo Grant", kAnnouncer)
      .Staff("Pia Root", kAnnouncer)
      .Staff("Ref Bell", kReferee)
      .Crew(12)
      .Worker("Chatty", kMidcard, 50, [](Worker& worker) { worker.Announcer = true; })
      .Worker("Chatty And Hurt", kMidcard, 50,
              [](Worker& worker) {
                worker.Announcer = true;
                worker.Status = "Inj";
                worker.StatusMonths = 2;
                worker.InjuryName = "Broken Leg";
              })
      .Event(3, 2, "Marchmania");
  return small;
}

World OnTheDay(SmallWorld&& small) {
  return small.Game("CWA", kEventDay).Build();
}

/// Books what an Event needs at least.
void BookEnough(OnSheet& play) {
  for (int record = 2; record <= 7; ++record)
    play.World().Segments()[record] = Singles(play.World(), "CWA Hand 1", "CWA Hand 2");
  play.Look();
}

TEST(EventSheet, HasNineRowsAndADarkMatch) {
  OnSheet play(OnTheDay(Arena()));
  EXPECT_EQ(play.Desk.TopName(), "frmPPVBooking");
  EXPECT_EQ(play.Desk.Title(), "Event Booking Sheet For Marchmania");
  EXPECT_EQ(play.World().Segments().Count(), 9);
  EXPECT_EQ(play.Desk.Rows("lstrows").size(), 10u);
  EXPECT_EQ(play.Row(0)[1], "Pre-Show Match Description");
  EXPECT_EQ(play.Desk.Text("lblwarn"),
            "Warning : You must have a minimum of 4 matches, and 6 segments overall (not including "
            "the dark match).");
  EXPECT_TRUE(play.Desk.Enabled("cmdbook(1)"));
  play.Book(1, Singles(play.World(), "CWA Hand 1", "CWA Hand 2"));
  EXPECT_EQ(play.Row(1)[1], "CWA Hand 1 over CWA Hand 2");
  EXPECT_EQ(play.Desk.Text("lblcount"), "0 of 4 matches, 0 of 6 segments booked.");
  EXPECT_EQ(play.Desk.Top()->Find("cmdauto"), nullptr);
}

TEST(EventSheet, CallsTheDarkMatchAfterTheTelevisionShowOfTheDay) {
  SmallWorld small = Arena();
  small.Show("Midweek", "Wednesday", "Harbor 9").Show("Tidal Force", "Sunday", "Harbor 9");
  OnSheet play(OnTheDay(std::move(small)));
  EXPECT_EQ(play.Row(0)[1], "Tidal Force Main Event Match Description");
}

TEST(EventSheet, OffersTheExtrasOfThePromotionsSizeAtTheirPrice) {
  struct Extra {
    const char* Name;
    const char* Cost;
    int Bonus;
  };
  const std::pair<int, std::vector<Extra>> kSizes[] = {
      {kCult,
       {{"Have Special On-Screen Graphics", "70000", 5},
        {"Have A New-Look Ring", "125000", 5},
        {"Have A Spectacular Pyro Opening", "100000", 5},
        {"Hire A Big-Screen For This Event", "500000", 15}}},
      {kNational,
       {{"Top National Band To Play", "1500000", 0},
        {"Famous Celebrity As Ring Announcer", "1000000", 0},
        {"Have A New-Look Ring", "125000", 5},
        {"Hold A Fan-Festival Beforehand", "2000000", 30}}},
  };
  for (const auto& [size, extras] : kSizes) {
    SCOPED_TRACE(size);
    OnSheet play(OnTheDay(Arena(size)));
    EXPECT_EQ(play.Desk.Text("cmbspecial"), "None");
    EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $0");
    ASSERT_EQ(play.Desk.Rows("cmbspecial").size(), extras.size() + 1);
    int row = 1;
    for (const Extra& extra : extras) {
      EXPECT_EQ(play.Desk.Rows("cmbspecial")[static_cast<std::size_t>(row)], Names{extra.Name});
      play.Desk.Pick("cmbspecial", ++row);
      EXPECT_EQ(play.Desk.Text("lblcost"), std::string("Cost : $") + extra.Cost) << extra.Name;
      EXPECT_EQ(ExtrasFor(play.World().Player())[static_cast<std::size_t>(row - 2)]->Bonus,
                extra.Bonus)
          << extra.Name;
    }
    play.Desk.Pick("cmbspecial", "None");
    EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $0");
  }
}

TEST(EventSheet, FillsTheColourListAnewWithStaffOrWorkers) {
  OnSheet play(OnTheDay(Arena()));
  const std::vector<Names> staff{{"None"}, {"Milo Grant"}, {"Pia Root"}};
  EXPECT_EQ(play.Desk.Rows("cmbannouncer"), staff);
  EXPECT_EQ(play.Desk.Rows("cmbcolour"), staff);
  play.Desk.Pick("cmbcolour", "Pia Root");
  play.Desk.Check("chkcolour", true);
  EXPECT_EQ(play.Desk.Rows("cmbcolour"), (std::vector<Names>{{"None"}, {"Chatty"}}));
  EXPECT_EQ(play.Desk.Text("cmbcolour"), "None");
  EXPECT_EQ(play.Desk.Rows("cmbannouncer"), staff);
  play.Desk.Check("chkcolour", false);
  EXPECT_EQ(play.Desk.Rows("cmbcolour"), staff);
}

TEST(EventSheet, AsksAboutItsCommentatorsBeforeItStarts) {
  struct Case {
    const char* Announcer;
    const char* Colour;
    bool Wrestler;
    bool Incomplete, Same;
  };
  const Case kCases[] = {
      {"None", "None", false, true, false},
      {"Milo Grant", "None", false, true, false},
      {"None", "Pia Root", false, true, false},
      {"Milo Grant", "Pia Root", false, false, false},
      {"Milo Grant", "Milo Grant", false, false, true},
      {"Milo Grant", "Chatty", true, false, false},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.Announcer) + ", " + c.Colour);
    OnSheet play(OnTheDay(Arena()));
    BookEnough(play);
    play.Desk.Check("chkcolour", c.Wrestler);
    play.Desk.Pick("cmbannouncer", c.Announcer);
    play.Desk.Pick("cmbcolour", c.Colour);
    if (c.Incomplete) {
      play.Desk.ExpectAsk("Continue?", kTeamText, false);
      play.Desk.Click("cmddoshow");
      play.Desk.ExpectAsk("Continue?", kTeamText, true);
    }
    if (c.Same)
      play.Desk.ExpectSay("Error!", "The same person cannot be announcer and colour commentator");
    else
      play.Desk.ExpectAsk("Sure?", kStartText, false);
    play.Desk.Click("cmddoshow");
    EXPECT_EQ(play.Desk.TopName(), "frmPPVBooking");
    EXPECT_EQ(play.World().ShowRuns().Count(), 0);
  }
}

TEST(EventSheet, DoesNotTakeAWorkerForTheAnnouncerOfTheSameNumber) {
  World same = OnTheDay(Arena());
  const int announcer = Named(same.AllStaff(), "Milo Grant").Uid;
  for (Worker& worker : same.Workers())
    if (worker.Uid == announcer) worker.Announcer = true;
  OnSheet play(std::move(same));
  BookEnough(play);
  play.Desk.Check("chkcolour", true);
  play.Desk.Pick("cmbannouncer", "Milo Grant");
  play.Desk.Pick("cmbcolour", play.World().FindWorker(announcer)->Name);
  play.Desk.ExpectAsk("Sure?", kStartText, false);
  play.Desk.Click("cmddoshow");
}

TEST(EventSheet, StartsWithItsExtraPaidAndItsBonusDrawn) {
  OnSheet play(OnTheDay(Arena()));
  BookEnough(play);
  play.World().Player().Money = 1000;
  play.Desk.Pick("cmbannouncer", "Milo Grant");
  play.Desk.Check("chkcolour", true);
  play.Desk.Pick("cmbcolour", "Chatty");
  play.Desk.Pick("cmbspecial", "Hire A Big-Screen For This Event");
  ScriptDraws(play.World(), {2, {15, 11}});
  play.Desk.ExpectAsk("Sure?", kStartText, true);
  play.Desk.Click("cmddoshow");
  EXPECT_FALSE(play.Lies("frmPPVBooking"));
  EXPECT_EQ(play.World().Player().Money, 1000 - 500000);
  ASSERT_EQ(play.World().ShowRuns().Count(), 1);
  const ShowRun& run = play.World().ShowRuns()[1];
  EXPECT_TRUE(run.IsEvent);
  EXPECT_EQ(run.Announcer, Named(play.World().AllStaff(), "Milo Grant").Uid);
  EXPECT_EQ(run.Colour, Named(play.World().Workers(), "Chatty").Uid);
  EXPECT_TRUE(run.ColourIsWorker);
  EXPECT_EQ(run.ExtraBonus, 11);
}

TEST(EventSheet, DrawsNothingForAnExtraThatBringsNothing) {
  OnSheet play(OnTheDay(Arena(kRegional)));
  BookEnough(play);
  const int money = play.World().Player().Money;
  play.Desk.Pick("cmbspecial", "Have Pyros For Ring Entrances");
  ScriptDraws(play.World(), {2});
  play.Desk.ExpectAsk("Continue?", kTeamText, true);
  play.Desk.ExpectAsk("Sure?", kStartText, true);
  play.Desk.Click("cmddoshow");
  EXPECT_EQ(play.World().Player().Money, money - 80000);
  EXPECT_EQ(play.World().ShowRuns()[1].ExtraBonus, 0);
}

TEST(EventSheet, IsCancelledAfterAsking) {
  OnSheet play(OnTheDay(Arena()));
  BookEnough(play);
  const int money = play.World().Player().Money;
  play.Desk.Pick("cmbspecial", "Have A New-Look Ring");
  const char* text = "Are You Sure You Wish To Cancel The Show?";
  play.Desk.ExpectAsk("Cancel?", text, false, ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_EQ(play.Desk.TopName(), "frmPPVBooking");
  EXPECT_EQ(play.World().Today(), kEventDay);
  play.Desk.ExpectAsk("Cancel?", text, true, ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_FALSE(play.Lies("frmPPVBooking"));
  EXPECT_EQ(play.World().Today(), kEventDay + std::chrono::days{1});
  EXPECT_EQ(play.World().Player().Money, money - 1000000) << "the charge, without the extra";
  EXPECT_EQ(play.World().Segments()[2].Kind, kEmptySegment);
  EXPECT_EQ(play.World().ShowRuns().Count(), 0);
}

TEST(EventSheet, KeepsItsBookingsAndBoxesOverAScreenAtItsSide) {
  OnSheet play(OnTheDay(Arena()));
  BookEnough(play);
  play.Desk.Pick("cmbannouncer", "Milo Grant");
  play.Desk.Check("chkcolour", true);
  play.Desk.Pick("cmbcolour", "Chatty");
  play.Desk.Pick("cmbspecial", "Have A New-Look Ring");
  for (const char* button : {"cmddebut", "cmdfeuds", "cmdmanagers", "cmdroster", "cmdstables",
                             "cmdstats", "cmdteams", "cmdtitles", "cmdturns", "cmdnotepad"}) {
    play.Desk.Click(button);
    ASSERT_NE(play.Desk.TopName(), "frmPPVBooking");
    play.Desk.Click(play.Desk.Top()->Layout().Cancel->Name());
    ASSERT_EQ(play.Desk.TopName(), "frmPPVBooking") << button;
    EXPECT_EQ(play.Desk.Text("lblcount"), "6 of 4 matches, 6 of 6 segments booked.");
    EXPECT_EQ(play.Desk.Text("cmbannouncer"), "Milo Grant");
    EXPECT_TRUE(play.Desk.Checked("chkcolour"));
    EXPECT_EQ(play.Desk.Text("cmbcolour"), "Chatty");
    EXPECT_EQ(play.Desk.Text("cmbspecial"), "Have A New-Look Ring");
    EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $125000");
  }
}

TEST(EventSheet, CostsNothingWhenItIsLeft) {
  OnSheet play(OnTheDay(Arena()));
  const int money = play.World().Player().Money;
  play.Desk.Pick("cmbspecial", "Have A New-Look Ring");
  play.Desk.ExpectAsk("Confirm", kAnyText, true, ui::Default::No);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.World().Player().Money, money);
}

}  // namespace
}  // namespace grapplemont::test
