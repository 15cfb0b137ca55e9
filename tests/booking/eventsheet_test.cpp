#include <gtest/gtest.h>

#include "booking/onsheet.h"
#include "booking/showstart.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

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
  SmallWorld small = Arena();
  small.Show("Midweek", "Wednesday", "Harbor 9").Show("Tidal Force", "Sunday", "Harbor 9");
  EXPECT_EQ(OnSheet(OnTheDay(std::move(small))).Row(0)[1],
            "Tidal Force Main Event Match Description");
}

TEST(EventSheet, OffersTheExtrasOfThePromotionsSizeAtTheirPrice) {
  const std::pair<int, std::vector<Names>> kSizes[] = {
      {kCult,
       {{"Have Special On-Screen Graphics", "70000"},
        {"Have A New-Look Ring", "125000"},
        {"Have A Spectacular Pyro Opening", "100000"},
        {"Hire A Big-Screen For This Event", "500000"}}},
      {kBackyard, {{"Local College Band To Play", "1000"}, {"Hire A Better Ring", "5000"}}}};
  for (const auto& [size, extras] : kSizes) {
    SCOPED_TRACE(size);
    OnSheet play(OnTheDay(Arena(size)));
    EXPECT_EQ(play.Desk.Text("cmbspecial"), "None");
    EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $0");
    EXPECT_EQ(play.Desk.Rows("cmbspecial").size(), extras.size() + 1);
    for (const Names& extra : extras) {
      play.Desk.Pick("cmbspecial", extra[0]);
      EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $" + extra[1]);
    }
  }
  // The last of the rows that have the name.
  EXPECT_EQ(CostOfExtra("Have The Event Logo On The Ring Apron"), 30000);
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

TEST(EventSheet, SeatsItsTableWhenTheRestIsFilled) {
  OnSheet play(OnTheDay(Arena()));
  EXPECT_EQ(play.Row(1).back(), "Dark match");
  EXPECT_EQ(play.Row(9).back(), "Main event");
  play.Desk.Click("cmdfill");
  ASSERT_EQ(play.Desk.TopName(), "frmFill");
  EXPECT_NE(play.Desk.Text("txtchanges").find(" calls the show."), std::string::npos);
  play.Desk.Click("cmdsheet");
  EXPECT_EQ(play.Desk.TopName(), "frmPPVBooking");
  EXPECT_NE(play.World().Segments()[2].Kind, kEmptySegment);
  EXPECT_NE(play.Desk.Text("cmbannouncer"), "None");
  EXPECT_NE(play.Desk.Text("cmbcolour"), "None");
  EXPECT_NE(play.Desk.Text("cmbannouncer"), play.Desk.Text("cmbcolour"));
}

TEST(EventSheet, AsksAboutItsCommentatorsBeforeItStarts) {
  const struct {
    const char *Announcer, *Colour;
    bool Wrestler;
    bool Incomplete, Same;
  } kCases[] = {
      {"None", "None", false, true, false},
      {"Milo Grant", "None", false, true, false},
      {"Milo Grant", "Pia Root", false, false, false},
      {"Milo Grant", "Milo Grant", false, false, true},
      // The worker has the number of the announcer.
      {"Milo Grant", "CWA Hand 1", true, false, false},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.Announcer) + ", " + c.Colour);
    World world = OnTheDay(Arena());
    Named(world.Workers(), "CWA Hand 1").Announcer = true;
    OnSheet play(std::move(world));
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

TEST(EventSheet, IsLeftForNothingAndCancelledForItsCharge) {
  OnSheet play(OnTheDay(Arena()));
  BookEnough(play);
  const int money = play.World().Player().Money;
  play.Desk.Pick("cmbannouncer", "Milo Grant");
  play.Desk.Pick("cmbspecial", "Have A New-Look Ring");
  play.Look();
  EXPECT_EQ(play.Desk.Text("lblcount"), "6 matches (at least 4), 6 of 6 segments booked.");
  EXPECT_EQ(play.Desk.Text("cmbannouncer"), "Milo Grant") << "after a screen at its side";
  EXPECT_EQ(play.Desk.Text("lblcost"), "Cost : $125000");
  play.Desk.ExpectAsk("Confirm", kAnyText, true, ui::Default::No);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.World().Player().Money, money);
  play.Desk.Click("cmdnext");
  play.Desk.ExpectAsk("Cancel?", "Are You Sure You Wish To Cancel The Show?", true,
                      ui::Default::No);
  play.Desk.Click("cmdcancel");
  EXPECT_FALSE(play.Lies("frmPPVBooking"));
  EXPECT_EQ(play.World().Today(), kEventDay + std::chrono::days{1});
  EXPECT_EQ(play.World().Player().Money, money - 1000000) << "the charge, without the extra";
  EXPECT_EQ(play.World().ShowRuns().Count(), 0);
}

}  // namespace
}  // namespace grapplemont::test
