#include <gtest/gtest.h>

#include "info/calmworld.h"
#include "info/meetingpoints.h"
#include "info/worldnews.h"
#include "records/modVar.h"
#include "support/gameonworld.h"
#include "ui/acts.h"

namespace grapplemont::test {
namespace {

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

TEST(TalkScreen, OpensThePageOfWhoeverIsNamed) {
  GameOnWorld play(CalmWorld());
  Named(play.World().Workers(), "CWA 9").Condition = 30;
  play.Play.Commit();
  play.Desk.Open("frmTalk");
  EXPECT_EQ(ui::Follow(play.Desk, *play.Desk.Top(), "CWA 9"), "");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
}

TEST(TalkScreen, LeadsToThePageOfTheOneThatAPointIsAbout) {
  GameOnWorld play(CalmWorld());
  Named(play.World().Workers(), "CWA 9").ContractMonths = 1;
  play.Play.Commit();
  play.Desk.Open("frmTalk");
  ASSERT_TRUE(Has(play.Desk.Text("txtsays"), "CWA 9")) << play.Desk.Text("txtsays");
  play.Desk.Click("cmdgo");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
}

TEST(InternetScreen, ShowsAllItsSites) {
  GameOnWorld play(CalmWorld());
  NoteDeed(play.World(), kDeedRetired, nullptr, "Old Hand");
  play.World().Player().Image = 95;
  Named(play.World().Promotions(), "NEW").Money = -1;
  NoteShow(play.World(), kDeedTvHeld, Named(play.World().Promotions(), "NEW"), "NEW Hour", 60, 205,
           500);
  play.Play.Commit();
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdnet");
  ASSERT_EQ(play.Desk.TopName(), "frmInternet");
  bool told = false;
  for (const auto& row : play.Desk.Rows("lstnews")) told |= Has(row.at(3), "Old Hand");
  EXPECT_TRUE(told);
  EXPECT_TRUE(Has(play.Desk.Text("txtrumours"), "NEW"));
  EXPECT_TRUE(Has(play.Desk.Text("txtfans"), "NEW Hour, NEW, 02 March 2026"));
  EXPECT_TRUE(Has(play.Desk.Text("txtfans"), "A television rating of 2. 05. 500 people"));
  for (const Ranking& ranking : Rankings()) {
    play.Desk.Pick("cmbrank", ranking.Title);
    EXPECT_EQ(play.Desk.Rows("lstrank").size(), RowsOf(play.World(), ranking).size())
        << ranking.Title;
  }
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
}

TEST(InternetScreen, SpeaksWhereThereIsNothing) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmInternet");
  EXPECT_TRUE(play.Desk.Rows("lstnews").empty());
  EXPECT_TRUE(Has(play.Desk.Text("txtrumours"), "Nobody whispers"));
  EXPECT_TRUE(Has(play.Desk.Text("txtfans"), "No show has been held"));
}

}  // namespace
}  // namespace grapplemont::test
