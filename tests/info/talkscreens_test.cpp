#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "info/meetingpoints.h"
#include "records/modVar.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

/// A Monday, the meeting's day.
constexpr Day kMeeting{std::chrono::year{2026} / 3 / 2};

// What fits each place of the card in a Regional promotion.
constexpr int kOverOfPlace[] = {60, 50, 40, 30, 15, 5};

void People(SmallWorld& small, const std::string& house, int count) {
  for (int i = 1; i <= count; ++i) {
    const int place = (i - 1) * 6 / count;
    small.Worker(house + " " + std::to_string(i), kMainEvent + place, kOverOfPlace[place],
                 [i](Worker& w) {
                   w.Disposition = i % 2 == 0 ? "H" : "F";
                   w.Debuted = true;
                   w.Condition = 100;
                   w.Morale = 70;
                   w.Loyalty = 60;
                   w.Behaviour = 60;
                 });
  }
}

void Staffed(SmallWorld& small) {
  small.Owner("Ruth Vane");
  for (const auto& [name, post] : {std::pair{"Abel Mike", kAnnouncer},
                                   {"Bea Count", kReferee},
                                   {"Cy Lamp", kProduction},
                                   {"Dot Plaster", kMedical},
                                   {"Eve Pen", kWriter},
                                   {"Eva Ink", kWriter},
                                   {"Fay Road", kRoadAgent},
                                   {"Gil Drill", kTrainer}})
    small.Staff(name, post, 60);
}

/// A Regional promotion in which all is as it should be: nobody at its meeting asks for anything.
/// Its people are "CWA 1" to "CWA 18", six to a row of the card from the top; the rival NEW is
/// Small and has six, "NEW 1" to "NEW 6".
SmallWorld CalmWorld() {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional, [](Promotion& p) {
    p.TicketPrice = 30;
    p.Production = 40;
    p.Merchandising = 25;
  });
  Staffed(small);
  People(small, "CWA", 18);
  small.Title("CWA Crown", "CWA 1", {}, [](Title& t) { t.Image = 60; })
      .Show("Friday Fire", "Friday", "Nine",
            [](Show& s) { s.Announcer = 2, s.Colour = 3, s.Rating1 = s.Rating2 = s.Rating3 = 400; })
      .Event(3);
  for (int i = 1; i <= 4; ++i) small.Sponsor("Sponsor " + std::to_string(i));
  small.Promotion("NEW", kSmall).Owner("Tom Rival");
  People(small, "NEW", 6);
  small.Game("CWA", kMeeting, [](GameInfo& g) { g.Economy = 50; });
  for (const auto& [one, two] : {std::pair{"CWA 1", "CWA 2"}, {"CWA 3", "CWA 4"}})
    small.Feud(one, two, [](Feud& f) { f.Heat = 50, f.Started = kMeeting; });
  return small;
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(TalkScreen, OpensOnTheMeetingsDayAlone) {
  GameOnWorld play(CalmWorld());
  play.Desk.Open("frmMainScreen");
  EXPECT_TRUE(play.Desk.Enabled("cmdmeeting"));
  play.World().Player().MeetingDay = "Sunday";
  play.Play.Commit();
  play.Play.RefreshMainScreen();
  EXPECT_FALSE(play.Desk.Enabled("cmdmeeting"));
  EXPECT_EQ(play.Desk.Tip("cmdmeeting"), "The staff meet on Sunday, 08 March 2026.");
  play.Desk.Open("frmTalk");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "The staff meet on Sunday, 08 March 2026.");
  EXPECT_TRUE(play.Desk.Rows("lsttalk").empty());
  play.World().Player().MeetingDay = "Someday";
  EXPECT_FALSE(NextMeeting(play.World()));
  EXPECT_NE(WhyNoMeeting(play.World()), "");
  EXPECT_FALSE(play.Desk.Enabled("cmdgo"));
}

TEST(TalkScreen, TellsAPointAndLeadsToWhereItIsSeenTo) {
  GameOnWorld play(CalmWorld());
  play.World().Player().TicketPrice = 20;
  for (Worker& worker : play.World().Workers()) worker.Morale = 80;
  play.Play.Commit();
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdmeeting");
  ASSERT_EQ(play.Desk.TopName(), "frmTalk");
  ASSERT_EQ(play.Desk.FirstColumn("lsttalk"), (std::vector<std::string>{"Soon", "Good news"}));
  EXPECT_TRUE(Has(play.Desk.Text("txtsays"), "Ruth Vane (Owner)"));
  EXPECT_TRUE(Has(play.Desk.Text("txtsays"), "Set the price to $30."));
  const std::string words = play.Desk.Text("txtsays");
  play.Desk.Click("cmdgo");
  ASSERT_EQ(play.Desk.TopName(), "frmTicket");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.Text("txtsays"), words) << "the same words on coming back";
  play.World().Player().TicketPrice = 30;
  play.Play.Commit();
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdmeeting");
  EXPECT_EQ(play.Desk.FirstColumn("lsttalk"), (std::vector<std::string>{"Good news"}));
}

TEST(TalkScreen, KnowsEveryPlaceItLeadsTo) {
  GameOnWorld play(CalmWorld());
  for (const PointRow& row : PointRows())
    EXPECT_TRUE(*row.Screen == 0 || play.Desk.Knows(row.Screen)) << row.Screen;
}

TEST(ProspectScreen, TriesTheNextClassOutAndLeavesTheWorldAsItIs) {
  GameOnWorld play(CalmWorld());
  play.World().Player().Image = 89;
  play.Play.Commit();
  play.Desk.Open("frmTalk");
  EXPECT_FALSE(Has(play.Desk.Text("txtsays"), "Cult")) << "nothing is in sight at 89";
  play.World().Player().Image = 92;
  play.World().Player().Money = 9000000;
  Named(play.World().Workers(), "NEW 1").Over = 70;
  Named(play.World().Workers(), "NEW 1").Morale = 40;
  play.Play.Commit();
  const World before = CopyOf(play.World());
  play.Desk.Click("cmdback");
  play.Desk.Open("frmTalk");
  const auto says = play.Desk.Rows("lsttalk");
  const auto next = std::ranges::find_if(says, [](auto& row) { return Has(row[2], "Cult"); });
  ASSERT_NE(next, says.end());
  play.Desk.OpenRow("lsttalk", static_cast<int>(next - says.begin()) + 1);
  ASSERT_EQ(play.Desk.TopName(), "frmProspect");
  EXPECT_EQ(play.Desk.Title(), "Ready For Cult?");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "Our image is 92%; at 100% we rise to Cult.");
  EXPECT_TRUE(Has(play.Desk.Text("txtprospect"), "An Event of ours would be rated "))
      << play.Desk.Text("txtprospect");
  const auto bands = play.Desk.Rows("lstbands");
  EXPECT_EQ(bands.front()[0], "90 to 100");
  EXPECT_EQ(std::ranges::count_if(bands, [](auto& row) { return row[3] == "Ours"; }), 1);
  ASSERT_FALSE(play.Desk.Rows("lstsign").empty());
  EXPECT_EQ(play.Desk.FirstColumn("lstsign").front(), "NEW 1");
  ExpectSame(play.World(), before);
  play.World().Player().Image = 10;
  play.Play.Commit();
  play.Desk.Click("cmdback");
  play.Desk.Open("frmProspect");
  EXPECT_EQ(play.Desk.Title(), "What Awaits Us At Small");
}

TEST(TalkScreen, LeadsToThePageOfWhomAPointIsAboutAndOfWhoeverIsNamed) {
  GameOnWorld play(CalmWorld());
  Named(play.World().Workers(), "CWA 9").ContractMonths = 1;
  play.Play.Commit();
  play.Desk.Open("frmTalk");
  ASSERT_TRUE(Has(play.Desk.Text("txtsays"), "CWA 9")) << play.Desk.Text("txtsays");
  play.Desk.Click("cmdgo");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
  play.Desk.Click("cmdback");
  EXPECT_EQ(ui::Follow(play.Desk, *play.Desk.Top(), "CWA 9"), "");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
}

TEST(InternetScreen, SpeaksWhereThereIsNothing) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdnet");
  ASSERT_EQ(play.Desk.TopName(), "frmInternet");
  EXPECT_TRUE(play.Desk.Rows("lstnews").empty());
  EXPECT_TRUE(Has(play.Desk.Text("txtrumours"), "Nobody whispers"));
  EXPECT_TRUE(Has(play.Desk.Text("txtfans"), "No show has been held"));
}

TEST(Deeds, AFullFileDropsTheOldest) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  const int limit = world.Deeds().Layout()->Limit;
  for (int i = 1; i <= limit; ++i) NoteDeed(world, kDeedSigned, nullptr, std::to_string(i));
  NoteDeed(world, kDeedSigned, nullptr, "newest");
  EXPECT_EQ(world.Deeds().Count(), limit - 499);
  EXPECT_EQ(world.Deeds()[1].Who, "501");
  EXPECT_EQ(world.Deeds()[world.Deeds().Count()].Who, "newest");
}

}  // namespace
}  // namespace grapplemont::test
