
#include <gtest/gtest.h>

#include "records/modVar.h"
#include "rivals/faults.h"
#include "rivals/rivalcards.h"
#include "session/home.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

SmallWorld TwoPromotions() {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", kRegional)
      .Owner("Ruth Vane")
      .Crew(4)
      .Promotion("XWF", kCult, [](Promotion& p) { p.Money = -1, p.Image = 12; })
      .Owner("Gus Hubcap", [](Staff& owner) { owner.Wage = 4; })
      .Staff("Voice", kAnnouncer, 61)
      .Worker("Low", kJobber, 10)
      .Worker("Corner", kManager, 90)
      .Worker("Star", kMainEvent, 77)
      .Title("XWF Crown", "Star")
      .Title("XWF Juniors", {}, {}, [](Title& title) { title.Lightweight = true; })
      .Show("Slam", "Monday", "Nine", [](Show& show) { show.Rating3 = 205; })
      .Sponsor("Gulp")
      .Event(3, 2)
      .Game("CWA");
  return small;
}

TEST(frmOtherFed, ShowsEveryPromotionByItsStanding) {
  GameOnWorld play(TwoPromotions());
  play.Desk.Open("frmOtherFed");
  EXPECT_EQ(play.Desk.Rows("lstfeds"),
            (std::vector<Names>{{"XWF Wrestling", "Cult", "12", "3", "XWF"},
                                {"CWA Wrestling", "Regional", "50", "4", "CWA"}}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "2 promotions, yours in gold.");
  EXPECT_EQ(play.Desk.Text("txtabout"),
            "Size: Cult\nImage: 12%\nMoney: In debt\nOwner: Gus Hubcap\nLooks for: High-flyers\n"
            "Commissioner: None\nRiskiness: 30%\nProduction values: 40%\nTicket price: $30\n"
            "Training camp: None\nDevelopment territory: None");
  EXPECT_EQ(play.Desk.FirstColumn("lstroster"), (Names{"Star", "Low", "Corner"}));
  EXPECT_EQ(play.Desk.Rows("lststaff"),
            (std::vector<Names>{{"Gus Hubcap", "Owner", "50"}, {"Voice", "Announcer", "61"}}));
  EXPECT_EQ(play.Desk.Rows("lstshows"),
            (std::vector<Names>{{"Slam", "Monday", "Prime Time", "Nine", "2. 05"}}));
  EXPECT_EQ(play.Desk.Rows("lstevents"), (std::vector<Names>{{"XWF in March", "March", "Large"}}));
  EXPECT_EQ(play.Desk.Rows("lsttitles"),
            (std::vector<Names>{{"XWF Crown", "Singles", "Star", "", "50"},
                                {"XWF Juniors", "Light", "Vacant", "", "50"}}));
  EXPECT_EQ(play.Desk.Rows("lstsponsors"), (std::vector<Names>{{"Gulp", "Main", "12"}}));
  EXPECT_EQ(play.Desk.Rows("lstpast"),
            (std::vector<Names>{{"Last month end", "Cult", "12", "In debt"}}));
  EXPECT_TRUE(play.Desk.Enabled("cmdbuyout"));
}

TEST(frmOtherFed, FollowsTheSelection) {
  GameOnWorld play(TwoPromotions());
  play.Desk.Open("frmOtherFed");
  play.Desk.Pick("lstfeds", "CWA Wrestling");
  EXPECT_EQ(play.Desk.FirstColumn("lstroster").size(), 4u);
  EXPECT_FALSE(play.Desk.Enabled("cmdbuyout"));
  EXPECT_EQ(play.Desk.Tip("cmdbuyout"), "This is your own promotion.");
  play.Desk.OpenRow("lstroster", "CWA Hand 1");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
}

TEST(frmCards, ShowsTheCardOfARivalsShow) {
  GameOnWorld play(TwoPromotions().Worker("Rookie", kOpener, 40).Worker("Veteran", kOpener, 41));
  play.Desk.Open("frmOtherFed");
  play.Desk.Pick("lstfeds", "CWA Wrestling");
  EXPECT_EQ(play.Desk.Tip("cmdcards"), "Your own shows are under Results.");
  play.Desk.Pick("lstfeds", "XWF Wrestling");
  play.Desk.Click("cmdcards");
  EXPECT_EQ(play.Desk.TopName(), "frmCards");
  EXPECT_EQ(play.Desk.Rows("lstshows").size(), 0u);
  play.Desk.Click("cmdback");
  const Promotion& rival = play.World().Promotions()[2];
  HoldCard(play.World(), rival, kUnseenTv);
  NoteShow(play.World(), kDeedTvHeld, rival, "Slam", 44, 205, 300);
  HoldCard(play.World(), rival, kUnseenHouseShow);
  play.Desk.Click("cmdcards");
  const std::vector<Names> rows = play.Desk.Rows("lstshows");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0][1], "House show");
  EXPECT_EQ(rows[0][3], "");
  EXPECT_EQ(rows[1][1], "Slam");
  EXPECT_EQ(rows[1][3], "44");
  play.Desk.Pick("lstshows", 2);
  EXPECT_NE(play.Desk.Text("txtcard").find("A television rating of 2. 05. 300 people"),
            std::string::npos)
      << play.Desk.Text("txtcard");
  EXPECT_NE(play.Desk.Text("txtcard").find("The rest of the card"), std::string::npos)
      << "the results stand apart from the report: " << play.Desk.Text("txtcard");
}

TEST(frmOtherFed, RemembersMonthsByTheName) {
  GameOnWorld play(TwoPromotions());
  for (const auto& [name, image] : {std::pair("Who Was Here Before", 99), {"XWF Wrestling", 40}}) {
    HistoryEntry entry;
    entry.On = Day{std::chrono::year{2026} / 2 / 1};
    entry.Kind = kPastMonth;
    entry.Promotion = 2;
    entry.Name = name;
    entry.Size = kNational;
    entry.Image = image;
    entry.Money = 30000000;
    play.World().History().Append(entry);
  }
  play.Desk.Open("frmOtherFed");
  EXPECT_EQ(play.Desk.Rows("lstpast"),
            (std::vector<Names>{{"January 2026", "National", "40", "Rich"}}));
}

TEST(frmPromotion, IsWhatAPromotionsNameLeadsTo) {
  GameOnWorld play(TwoPromotions());
  play.Desk.Open("frmMainScreen");
  play.Play.OpenPromotion(2);
  ASSERT_EQ(play.Desk.TopName(), "frmPromotion");
  EXPECT_EQ(play.Desk.Title(), "XWF Wrestling");
  EXPECT_EQ(play.Desk.FirstColumn("lstroster"), (Names{"Star", "Low", "Corner"}));
  play.Play.OpenPromotion(2);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen") << "one page is enough";
  play.Desk.ExpectSay("Gone", "This promotion is not in the business any more.");
  play.Play.OpenPromotion(9);
}

TEST(frmTheEnd, TellsWhyTheCareerIsOver) {
  for (const auto& [code, headline, body] :
       {std::tuple(1, "CWA fire Sam Archer!",
                   "released their general manager Sam Archer. According to reports, a loan taken "
                   "out by Sam Archer had caused"),
        {2, "CWA go bankrupt!", "the inability of general manager Sam Archer to handle"},
        {3, "CWA fire Sam Archer!",
         "The mismanagement of Sam Archer is seen as the main reason why CWA have fallen to "
         "Regional level"},
        {4, "CWA part with Sam Archer!",
         "CWA Wrestling and their general manager Sam Archer today went their separate ways."},
        {9, "CWA part with Sam Archer!", "went their separate ways"}}) {
    GameOnWorld play(TwoPromotions());
    play.World().Game().EndCode = code;
    play.Desk.Open("frmMainScreen");
    ASSERT_EQ(play.Desk.TopName(), "frmTheEnd");
    const std::string story = play.Desk.Text("txtstory");
    EXPECT_TRUE(story.starts_with(std::string(headline) + "\n")) << story;
    EXPECT_NE(story.find(body), std::string::npos) << story;
    EXPECT_TRUE(story.ends_with("The Turnbuckle Courier")) << story;
  }
}

TEST(frmTheEnd, LeavesTheWorldToRead) {
  GameOnWorld play(TwoPromotions());
  play.World().Game().EndCode = 2;
  play.Desk.Open("frmMainScreen");
  EXPECT_NE(play.Desk.Text("txtcareer").find("Last job: CWA Wrestling, Regional"),
            std::string::npos);
  play.Desk.Click("cmdlook");
  ASSERT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_FALSE(play.Desk.Enabled("cmdnext"));
  EXPECT_FALSE(play.Desk.Enabled("cmduntil"));
  EXPECT_EQ(play.Desk.Tip("cmdnext"), kCareerIsOver);
  for (const char* said : {kCareerIsOver, "Play On", "Back In Time"})
    EXPECT_NE(play.Desk.Text("lblfacts").find(said), std::string::npos)
        << play.Desk.Text("lblfacts");
  play.Desk.Click("cmdotherfed");
  EXPECT_EQ(play.Desk.Tip("cmdbuyout"), kCareerIsOver);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen") << "the news is told once";
}

TEST(frmTheEnd, LeadsToTheMenuAndTheSlotSaysSo) {
  GameOnWorld play(TwoPromotions());
  play.World().Game().EndCode = 3;
  play.Desk.Open("frmMainScreen");
  const std::string folder = play.Play.SlotFolder(1);
  play.Desk.Click("cmdmenu");
  EXPECT_EQ(play.Desk.TopName(), "frmGameMenu");
  EXPECT_FALSE(play.Play.HasWorld());
  const SlotSummary summary = ReadSlotSummary(play.Play.Disk(), folder);
  EXPECT_TRUE(summary.Playable);
  EXPECT_TRUE(summary.Details.ends_with("The career has ended.")) << summary.Details;
  play.Desk.Open("frmLoadGame");
  EXPECT_EQ(play.Desk.Text("lbldetails1"), summary.Details);
}

TEST(frmPinky, LetsTheGameGoOnWithANewRival) {
  GameOnWorld play(SmallWorld().Promotion("CWA", kGlobal).Game("CWA"));
  play.World().Game().EndCode = kStrangerWaits;
  play.Desk.Open("frmMainScreen");
  ASSERT_EQ(play.Desk.TopName(), "frmPinky");
  EXPECT_NE(play.Desk.Text("txtwords").find("Pinkney Presents Wrestling"), std::string::npos);
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_TRUE(play.Desk.Enabled("cmdnext"));
  play.Reopen();
  EXPECT_EQ(play.World().Game().EndCode, 0);
  EXPECT_EQ(play.World().Promotions()[2].Initials.Str(), "PPW");
  EXPECT_EQ(FaultsOf(play.World()), "");
}

/// The board loses its patience whenever it may.
class HardBoard : public SeededDraws {
 public:
  HardBoard() : SeededDraws(3) {}
  int Draw(int n) override { return n == 3 ? 3 : SeededDraws::Draw(n); }
};

struct RoadToTheEnd {
  int Code;
  Day From;
  Change<World> Prepare;
};
const RoadToTheEnd kRoads[] = {
    {kEndLoan, std::chrono::year{2026} / 3 / 30,
     [](World& world) {
       Promotion& player = world.Player();
       player.Money = 0;
       player.LoanAmount = 5000000;
       player.LoanMonths = 12;
       player.LoanMissed = 2;
     }},
    {kEndBankrupt, std::chrono::year{2026} / 3 / 30,
     [](World& world) { world.Player().Money = -5000000; }},
    {kEndBoard, std::chrono::year{2026} / 3 / 29, [](World& world) { world.Player().Image = 1; }},
};

SmallWorld OnTheRoad(const RoadToTheEnd& road) {
  SmallWorld small;
  small.Promotion("CWA", kRegional).Owner("Ruth Vane").Crew(8).Game("CWA", road.From);
  return small;
}

TEST(TheEnd, ComesUponThePlayerByEachOfItsRoads) {
  for (const RoadToTheEnd& road : kRoads)
    for (const char* way : {"cmdnext", "cmduntil"}) {
      SCOPED_TRACE(std::string(way) + " to " + std::to_string(road.Code));
      GameOnWorld play(OnTheRoad(road));
      road.Prepare(play.World());
      play.World().SetChance(std::make_unique<HardBoard>());
      play.Desk.Open("frmMainScreen");
      if (road.Code == kEndBoard) play.Desk.ExpectAsk("No Show!", kAnyText, true);
      play.Desk.Click(way);
      if (way == std::string("cmdnext") && road.Code != kEndBoard) {
        ASSERT_EQ(play.Desk.TopName(), "frmMainScreen");
        play.Desk.Click(way);
      }
      ASSERT_EQ(play.Desk.TopName(), "frmTheEnd");
      EXPECT_EQ(play.World().Game().EndCode, road.Code);
      EXPECT_EQ(play.World().Today(), road.Code == kEndBoard ? Day{std::chrono::year{2026} / 3 / 30}
                                                             : Day{std::chrono::year{2026} / 4 / 1})
          << "no day passes beyond it";
      play.Reopen();
      EXPECT_EQ(play.World().Game().EndCode, road.Code) << "the day that brought it is kept";
    }
}

}  // namespace
}  // namespace grapplemont::test
