#include <gtest/gtest.h>

#include "business/past.h"
#include "business/tvshows.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

using Table = std::vector<Names>;

Change<Show> Slot(const char* slot, int highest, int lowest, int last) {
  return [=](Show& s) { s.Slot = slot, s.Rating1 = highest, s.Rating2 = lowest, s.Rating3 = last; };
}

SmallWorld Air() {
  SmallWorld small;
  small.Network("Nine")
      .Network("Open", [](Network& n) { n.Generic = true; })
      .Promotion("NEW")
      .Staff("Foreign", kAnnouncer)
      .Show("New Prime", "Friday", "Open", Slot("P", 310, 200, 301))
      .Show("New Late", "Friday", "Nine", Slot("L", 0, 0, 0))
      .Show("New Monday", "Monday", "Open", Slot("P", 500, 500, 500))
      .Promotion("CWA")
      .Staff("Nigel", kAnnouncer, 70)
      .Staff("Carol", kAnnouncer, 40)
      .Staff("Pen", kWriter, 90)
      .Worker("Bram", [](Worker& w) { w.Announcer = true, w.Charisma = 66; })
      .Worker("Mute", [](Worker& w) { w.Announcer = true, w.Speaks = false; })
      .Worker("Hurt", [](Worker& w) { w.Announcer = true, w.Status = "Sus", w.StatusMonths = 1; })
      .Worker("Silent")
      .Show("Friday Fire", "Friday", "Nine", Slot("P", 310, 205, 301))
      .Show("Sunday Slam", "Sunday", "Open", Slot("E", 0, 0, 0))
      .Game("CWA");
  return small;
}

Show& Fire(GameOnWorld& play) {
  return Named(play.World().Shows(), "Friday Fire");
}

TEST(frmTelevision, ShowsTheChosenShow) {
  GameOnWorld play(Air());
  ScriptDesk& desk = play.Desk;
  Fire(play).Announcer = 2;
  Fire(play).Colour = 1;
  Fire(play).ColourIsWorker = true;
  Fire(play).ContractWeeks = 7;
  desk.Open("frmTelevision");
  std::string facts;
  for (const char* name :
       {"lblfacts", "cmdshow(2)", "txtname", "txttime", "txtnetwork", "txtcontract", "txthighest",
        "txtlowest", "txtlast", "txtannouncer", "txtcolour"})
    facts += desk.Text(name) + "; ";
  EXPECT_EQ(facts,
            "2 of 3 shows on the air.; Sunday Slam; Friday Fire; Friday, Prime Time; Nine; 7 "
            "weeks; 3.10; 2. 05; 3. 01; Nigel; Bram; ");
  EXPECT_FALSE(desk.Visible("cmdshow(3)"));
  desk.Click("cmdshow(2)");
  EXPECT_EQ(desk.Text("txtname"), "Sunday Slam");
  EXPECT_EQ(desk.Text("txtannouncer"), "None");
  EXPECT_TRUE(desk.Top()->Find("cmdshow(2)")->Colour == ui::Tone::Gold);
  Fire(play).Network = 9;
  desk.Click("cmdshow(1)");
  EXPECT_EQ(desk.Text("txtwants"), "No network airs this show.");
  for (const char* button : {"cmdnegotiate", "cmdmaeve"}) EXPECT_FALSE(desk.Enabled(button));
}

void Remember(World& world, int day, const char* name, int viewers, int attendance,
              const std::function<void(HistoryEntry&)>& change = {}) {
  HistoryEntry entry;
  entry.On = kGameStart + std::chrono::days(day);
  entry.Kind = kPastTv;
  entry.Promotion = world.PlayerUid();
  entry.Name = name;
  entry.Viewers = viewers;
  entry.Attendance = attendance;
  if (change) change(entry);
  world.History().Append(entry);
}

TEST(frmTelevision, DrawsThePastOfTheShowForAYear) {
  GameOnWorld play(Air());
  World& world = play.World();
  Remember(world, 5, "Friday Fire", 205, 800);
  Remember(world, 6, "Sunday Slam", 999, 999);
  Remember(world, 12, "Friday Fire", 1, 1, [](HistoryEntry& e) { e.CalledOff = true; });
  Remember(world, 12, "Friday Fire", 1, 1, [](HistoryEntry& e) { e.Kind = kPastEvent; });
  Remember(world, 12, "Friday Fire", 1, 1, [](HistoryEntry& e) { e.Promotion = 1; });
  Remember(world, 19, "Friday Fire", 310, 950);
  play.Desk.Open("frmTelevision");
  const auto* ratings = dynamic_cast<ui::Chart*>(play.Desk.Top()->Find("chtratings"));
  const auto* attendance = dynamic_cast<ui::Chart*>(play.Desk.Top()->Find("chtattendance"));
  ASSERT_TRUE(ratings && attendance);
  EXPECT_EQ(ratings->Captions.Get(), (Names{"06 Mar", "20 Mar"}));
  EXPECT_EQ(ratings->Lines.Get()[0].Values, (std::vector<double>{2.05, 3.1}));
  EXPECT_EQ(attendance->Lines.Get()[0].Values, (std::vector<double>{800, 950}));
  EXPECT_FALSE(play.Desk.Visible("txtratings"));
  world.History().Remove();
  play.Desk.Click("cmdshow(2)");
  EXPECT_EQ(play.Desk.Text("txtattendance"), "Sunday Slam has not been held under this name yet.");
  for (int week = 0; week < 60; ++week) Remember(world, week * 7, "Friday Fire", week, week);
  const TvPast past = TvPastOf(world, "Friday Fire");
  EXPECT_EQ(past.Days.size(), 52u);
  EXPECT_EQ(past.Ratings.size(), 52u);
  EXPECT_EQ(past.Attendance.front(), 8);
  EXPECT_EQ(past.Attendance.back(), 59);
}

TEST(frmShowName, RenamesOrRefuses) {
  GameOnWorld play(Air());
  play.Desk.Open("frmTelevision");
  play.Desk.Click("cmdshow(2)");
  play.Desk.Click("cmdname");
  EXPECT_EQ(play.Desk.Text("txtname"), "Sunday Slam");
  for (const auto& [name, says] : {std::pair(" To Be Deleted ", "No show can be called that."),
                                   {" New Prime ", "This show name already exists!"}}) {
    play.Desk.Type("txtname", name);
    play.Desk.ExpectSay("Error!", says);
    play.Desk.Click("cmdchange");
  }
  play.Desk.Type("txtname", "Sunday Slam");  // its own: nothing to do
  play.Desk.Click("cmdchange");
  play.Desk.Click("cmdname");
  play.Desk.Type("txtname", " Dimanch\xE9! ");
  play.Desk.Click("cmdchange");
  EXPECT_EQ(play.Desk.Text("txtname"), "Dimanch\xE9!") << "still the chosen show";
  play.Reopen();
  EXPECT_EQ(play.World().Shows()[5].Name.View(), "Dimanch\xE9!");
}

TEST(Commentators, SitAtTheTable) {
  GameOnWorld play(Air());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmTelevision");
  desk.Click("cmdchangea");
  EXPECT_EQ(
      desk.Rows("lststaff"),
      (Table{{"None", "", "", ""}, {"Nigel", "Staff", "70", ""}, {"Carol", "Staff", "40", ""}}));
  desk.OpenRow("lststaff", "Carol");
  EXPECT_EQ(desk.Text("txtannouncer"), "Carol");
  desk.Click("cmdchangea");
  EXPECT_EQ(desk.Selected("lststaff"), std::vector{3});
  desk.OpenRow("lststaff", "None");
  EXPECT_EQ(Fire(play).Announcer, 0);
  desk.Click("cmdchangec");
  EXPECT_EQ(desk.FirstColumn("lststaff"), (Names{"None", "Nigel", "Carol", "Bram", "Mute"}));
  EXPECT_EQ(desk.Rows("lststaff")[3], (Names{"Bram", "Worker", "66", ""}));
  EXPECT_EQ(desk.Rows("lststaff")[4][3], "Cannot speak");
  desk.OpenRow("lststaff", "Bram");
  EXPECT_EQ(desk.Text("txtcolour"), "Bram");
  EXPECT_TRUE(Fire(play).ColourIsWorker);
  desk.Click("cmdchangec");
  EXPECT_EQ(desk.Selected("lststaff"), std::vector{4});
  ExpectSound(play.World());
}

TEST(Commentators, AreTwoPeople) {
  EXPECT_EQ(WhyNoTable(2, 2, false), "The same person cannot be announcer and colour commentator");
  EXPECT_EQ(WhyNoTable(2, 2, true), "") << "a worker may have the number of a member of staff";
  EXPECT_EQ(WhyNoTable(0, 0, false), "");
  EXPECT_EQ(WhyNoTable(2, 3, false), "");
  GameOnWorld play(Air());
  for (const auto& [button, announcer, colour] :
       {std::tuple("cmdchangea", 0, 2), {"cmdchangec", 2, 0}}) {
    Fire(play).Announcer = announcer;
    Fire(play).Colour = colour;
    play.Desk.Open("frmTelevision");
    play.Desk.Click(button);
    play.Desk.ExpectSay("Error!", kAnyText);
    play.Desk.OpenRow("lststaff", "Nigel");
  }
}

TEST(TvLists, ShowTheShowsOfTheWorld) {
  GameOnWorld play(Air());
  ScriptDesk& desk = play.Desk;
  desk.Open("frmViewShows");
  EXPECT_EQ(desk.Rows("lstshows")[2], (Names{"Friday Fire", "3. 01", "CWA", "Friday", "Prime Time",
                                             "Nine", "24", "3.10", "2. 05"}));
}

TEST(TvScreens, CloseOverAShowThatIsGone) {
  for (const auto& [opens, acts] : {std::pair("cmdname", "cmdchange"),
                                    {"cmdchangea", "cmdassign"},
                                    {"cmdnegotiate", "cmdcontract"}}) {
    GameOnWorld play(Air());
    play.Desk.Open("frmTelevision");
    play.Desk.Click(opens);
    play.World().Shows().Erase(4);
    play.Desk.ExpectSay("Error!", "Friday Fire is no longer one of our shows.");
    play.Desk.Click(acts);
    EXPECT_EQ(play.Desk.Text("txtname"), "Sunday Slam") << acts;
  }
}

}  // namespace
}  // namespace grapplemont::test
