#include <gtest/gtest.h>

#include "halls/hall.h"
#include "halls/recordbook.h"
#include "pastworld.h"
#include "storylines/lineages.h"
#include "support/gameonworld.h"
#include "words/segments.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;
using std::chrono::days;

/// Two who team up and a month that has been counted.
SmallWorld CountedMonth() {
  SmallWorld small;
  small.Promotion("CWA")
      .Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Cal Drift", kMidcard, 60)
      .Worker("Dan Dale", kMidcard, 60)
      .Worker("Ilya Marsh", kMidcard, 55)
      .Title("CWA Crown", "Bram Okafor")
      .Game("CWA");
  return small;
}

void Count(World& world) {
  CardMatch match{};
  match.On = kGameStart + days{1};
  match.Promotion = world.PlayerUid();
  match.Show = kUnseenEvent;
  match.Row = 1;
  match.Style = kTag;
  match.MatchType = kPlainTag;
  match.Winners = 2;
  for (std::size_t i = 0; i < 4; ++i)
    match.Worker[i] = int(world.Workers()[static_cast<int>(i) + 1].Uid);
  match.Rating = 77;
  world.RivalCards().Append(match);
  UpdateReigns(world);
  world.Game().Today = kGameStart + days{31};
  CountThePast(world);
}

TEST(frmRecords, ShowsATableOfTheWorldAndOfAPromotion) {
  GameOnWorld play(CountedMonth());
  Count(play.World());
  play.Desk.Open("frmRecords");
  EXPECT_EQ(play.Desk.Rows("lsttables").size(), RecordTables().size());
  play.Desk.Pick("lsttables", "Best matches");
  EXPECT_EQ(play.Desk.Rows("lstplaces"),
            (std::vector<Names>{{"1", "Bram Okafor \\ Cal Drift vs Dan Dale \\ Ilya Marsh", "77%",
                                 "an Event (CWA)", "02 Mar 2026"}}));
  play.Desk.Pick("cmbfeds", "CWA");
  play.Desk.Pick("lsttables", "Most matches");
  EXPECT_EQ(play.Desk.Rows("lstplaces").size(), 4u);
  EXPECT_FALSE(play.Desk.Enabled("cmdpage"));
  play.Desk.OpenRow("lstplaces", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmRecords");
  EXPECT_EQ(play.Desk.Rows("lstplaces").size(), 4u) << "as it was left";
}

TEST(frmHall, ShowsTheRuleTheMembersAndWhoIsNext) {
  GameOnWorld play(CountedMonth());
  Count(play.World());
  HallMember& member = play.World().Of<HallMember>().Append({});
  member.On = kGameStart;
  member.Name = "Old Gus";
  member.Initials = "CWA";
  member.Count[1] = 3;
  member.Points[1] = 6;
  play.Desk.Open("frmHall");
  EXPECT_EQ(play.Desk.FirstColumn("lstmembers"), Names{"Old Gus"});
  EXPECT_NE(play.Desk.Text("txtmember").find("Reigns: 3 (6 points)"), std::string::npos);
  for (const HallMerit& merit : Merits())
    EXPECT_NE(play.Desk.Text("txtrule").find(merit.Name), std::string::npos);
  EXPECT_FALSE(play.Desk.Enabled("cmdpage")) << "has left the world";
  play.Desk.Pick("lstnext", 1);
  EXPECT_EQ(play.Desk.Selected("lstmembers"), std::vector<int>{});
  play.Desk.Click("cmdpage");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
}

TEST(frmHall, SaysWhoOnlyWaitsForOthers) {
  GameOnWorld play(CountedMonth());
  Ledger ledger(play.World());
  for (Worker& worker : play.World().Workers()) {
    worker.Age = kHallAge;
    MakeCareer(ledger, play.World(), worker.Name, kHallBar);
  }
  ledger.Keep(play.World());
  play.Desk.Open("frmHall");
  for (int place = 1; place <= 4; ++place) {
    play.Desk.Pick("lstnext", place);
    EXPECT_EQ(play.Desk.Text("txtmember").find("if two others") != std::string::npos,
              place > kElectedAYear)
        << place;
    EXPECT_NE(play.Desk.Text("txtmember").find("Would be elected today"), std::string::npos);
  }
}

TEST(frmYearbook, TurnsItsPagesAndLeavesOneSection) {
  GameOnWorld play(CountedMonth());
  Count(play.World());
  play.Desk.Open("frmYearbook");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "The year is not over yet.");
  play.Desk.Pick("cmbsection", "Best matches");
  EXPECT_EQ(play.Desk.FirstColumn("lstpage"), Names{"Best matches"});
  EXPECT_FALSE(play.Desk.Enabled("cmdolder"));
  play.World().Game().Today = kGameStart + days{400};
  play.Desk.Click("cmdback");
  play.Desk.Open("frmYearbook");
  EXPECT_EQ(play.Desk.Text("cmbyear"), "2026") << "the last one that is over";
  play.Desk.Click("cmdnewer");
  EXPECT_EQ(play.Desk.Text("cmbyear"), "2027");
  EXPECT_FALSE(play.Desk.Enabled("cmdnewer"));
}

TEST(frmFamilyTree, IsReachedFromATitleAndShowsTeams) {
  GameOnWorld play(CountedMonth());
  Count(play.World());
  play.Desk.Open("frmBelts");
  play.Desk.Click("cmdtree");
  ASSERT_EQ(play.Desk.TopName(), "frmFamilyTree");
  EXPECT_EQ(play.Desk.Rows("lstreigns")[0][1], "Bram Okafor");
  play.Desk.Pick("lstpeople", "Cal Drift");
  ASSERT_EQ(play.Desk.Rows("lsttree").size(), 1u);
  EXPECT_EQ(play.Desk.Rows("lsttree")[0][0], "Bram Okafor");
  EXPECT_EQ(play.Desk.Rows("lsttree")[0][5], "1") << "won";
  play.Desk.OpenRow("lsttree", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
  EXPECT_EQ(play.Desk.Title(), "Bram Okafor");
}

}  // namespace
}  // namespace grapplemont::test
