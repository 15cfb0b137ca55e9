#include <gtest/gtest.h>

#include <fstream>

#include "business/tvtalks.h"
#include "futures/futures.h"
#include "futures/screens/futurescreens.h"
#include "records/houserules.h"
#include "records/store/disk.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

SmallWorld Company() {
  SmallWorld small;
  small.Network("Nine")
      .Network("Seven")
      .Promotion("CWA", kCult, [](Promotion& p) { p.Money = 9000000; })
      .Owner("Ruth Vane")
      .Crew(14)
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Sunday Slam", "Sunday", "Nine")
      .Promotion("XWF", kRegional)
      .Crew(10)
      .OnTheMarket()
      .Worker("Cal Drift", kMidcard, 40)
      .Sponsor("Gulp");
  return small;
}

/// A game in which what is asked is caught instead of played.
struct Asking {
  explicit Asking(World world) : Play(std::move(world)) {
    Play.Play.OpenWhatIf = [this](WhatIf asked) { Asked = std::move(asked); };
  }
  /// A copy of the world with that answer.
  World With(const Answer& answer) {
    World copy;
    copy.CopyFrom(Play.World());
    if (answer.Give) answer.Give(copy);
    return copy;
  }
  GameOnWorld Play;
  std::optional<WhatIf> Asked;
};

std::string File(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(frmWhatIf, ShowsBothAnswersAndChangesNothing) {
  GameOnWorld play(Company().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmTicket");
  desk.Slide("hsticket", 90);
  const World before = CopyOf(play.World());
  desk.Click("cmdwhatif");
  ASSERT_EQ(desk.TopName(), "frmWhatIf");
  EXPECT_EQ(desk.Text("lblquestion"), "Ask $90 for a ticket?");
  EXPECT_EQ(desk.Text("lbldone"), "4 of 4 worlds");
  EXPECT_EQ(desk.Value("hsdone"), 4);
  EXPECT_FALSE(desk.Visible("cmdlook"));
  EXPECT_FALSE(desk.Enabled("cmdstop"));
  const auto rows = desk.Rows("lstspread");
  ASSERT_EQ(rows.size(), 14u);
  EXPECT_EQ(rows.front().size(), 8u);
  EXPECT_EQ(rows.front()[2], rows.front()[5]) << "one and the same morning";
  desk.Pick("cmbmeasure", "Money");
  EXPECT_EQ(desk.Rows("lstspread").front()[2], "$9,000,000");
  EXPECT_EQ(desk.FirstColumn("lstchances"),
            (std::vector<std::string>{"Dismissed by the board", "Dismissed over a loan",
                                      "Bankruptcy", "A fall of class", "A rise of class"}));
  EXPECT_NE(desk.Text("lblassumes").find("Nothing here changes your game."), std::string::npos);
  desk.ExpectPrompt("What If", kAnyText, "look.csv", "what-if.csv");
  desk.Click("cmdexport");
  const std::string csv = File(play.Play.Home() + "/look.csv");
  EXPECT_TRUE(csv.starts_with("About,Of,Answer,Date,What,Low,")) << csv.substr(0, 200);
  EXPECT_NE(csv.find("\nMoney,,Yes,2026-03-01,,9000000,"), std::string::npos);
  EXPECT_NE(csv.find("\nChampion,CWA Crown,No,"), std::string::npos);
  desk.Click("cmdback");
  EXPECT_EQ(desk.TopName(), "frmTicket");
  EXPECT_EQ(desk.Value("hsticket"), 90);
  ExpectSame(play.World(), before);
  play.Reopen();
  ExpectSame(play.World(), before);
}

TEST(frmWhatIf, AsksForATicketPriceThatTheOfficeKeeps) {
  Asking asking(Company().Game("CWA"));
  asking.Play.Desk.Open("frmTicket");
  EXPECT_FALSE(asking.Play.Desk.Enabled("cmdwhatif"));
  asking.Play.Desk.Slide("hsticket", 44);
  asking.Play.Desk.Click("cmdwhatif");
  ASSERT_TRUE(asking.Asked);
  World copy = asking.With(asking.Asked->Yes);
  EXPECT_EQ(copy.Player().TicketPrice, 44);
  copy.Player().TicketPrice = 1;
  asking.Asked->Yes.Keep(copy);
  EXPECT_EQ(copy.Player().TicketPrice, 44);
  EXPECT_EQ(asking.With(asking.Asked->No).Player().TicketPrice,
            asking.Play.World().Player().TicketPrice);
}

TEST(frmWhatIf, AsksForASponsorAndANetwork) {
  Asking asking(Company().Game("CWA", kGameStart, [](GameInfo& game) { game.TvOfferWait = 2; }));
  ScriptDesk& desk = asking.Play.Desk;
  desk.Open("frmFedSponsor");
  desk.Pick("lstsponsors", "Gulp");
  desk.Click("cmdwhatif");
  ASSERT_TRUE(asking.Asked);
  EXPECT_EQ(asking.Asked->Question, "Sign Gulp as our main sponsor?");
  EXPECT_EQ(asking.With(asking.Asked->Yes).Sponsors()[1].Promotion,
            asking.Play.World().PlayerUid());
  EXPECT_EQ(asking.Play.World().Sponsors()[1].Promotion, 0);
  asking.Asked.reset();
  desk.Open("frmTvOffer");
  desk.Click("cmdwhatif");
  ASSERT_TRUE(asking.Asked);
  EXPECT_EQ(asking.With(asking.Asked->Yes).Shows().Count(), 2);
  World turned = asking.With(asking.Asked->No);
  EXPECT_EQ(turned.Shows().Count(), 1);
  EXPECT_FALSE(OfferOnTheTable(turned));
  EXPECT_TRUE(OfferOnTheTable(asking.Play.World()));
}

TEST(frmWhatIf, AsksForContracts) {
  Asking asking(Company().Game("CWA"));
  ScriptDesk& desk = asking.Play.Desk;
  desk.IsEasy = true;
  const int cal = Named(asking.Play.World().Workers(), "Cal Drift").Uid;
  const int hand = Named(asking.Play.World().Workers(), "CWA Hand 5").Uid;
  const auto talk = [&](int uid) {
    asking.Play.Play.OpenWorker(uid);
    desk.Click("cmdcontract");
    desk.Pick("cmbnewlength", "3 Years");
    desk.Slide("hsnewwage", 9);
    desk.Click("cmdwhatif");
  };
  talk(cal);
  ASSERT_TRUE(asking.Asked);
  EXPECT_EQ(asking.Asked->Question, "Sign Cal Drift for 3 Years at $9,000 a month?");
  EXPECT_EQ(asking.With(asking.Asked->Yes).FindWorker(cal)->Employer,
            asking.Play.World().PlayerUid());
  EXPECT_EQ(asking.Play.World().FindWorker(cal)->Employer, 0);
  talk(hand);
  EXPECT_EQ(asking.Asked->Question, "Keep CWA Hand 5 for 3 Years at $9,000 a month?");
  EXPECT_EQ(asking.With(asking.Asked->Yes).FindWorker(hand)->ContractMonths, 36);
}

TEST(frmWhatIf, AsksForTheShowOnTheSheet) {
  Asking asking(Company().Game("CWA"));  // a Sunday
  ScriptDesk& desk = asking.Play.Desk;
  desk.Open("frmBooking");
  EXPECT_FALSE(desk.Enabled("cmdwhatif")) << "nothing is booked";
  desk.IsEasy = true;
  desk.Click("cmdauto");
  desk.Click("cmdsheet");
  ASSERT_EQ(desk.TopName(), "frmBooking");
  desk.Click("cmdwhatif");
  ASSERT_TRUE(asking.Asked);
  EXPECT_EQ(asking.Asked->Question, "Hold Sunday Slam as it stands on the sheet?");
  World copy = asking.With(asking.Asked->Yes);
  EXPECT_EQ(copy.ShowRuns().Count(), 1) << "it has begun, and goes to its end by habit";
  EXPECT_EQ(copy.Segments().Count(), asking.Play.World().Segments().Count());
  EXPECT_EQ(asking.Play.World().ShowRuns().Count(), 0);
}

TEST(frmFutures, ShowWhatBecomesOfEverybody) {
  GameOnWorld play(Company().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmMainScreen");
  desk.Click("cmdfutures");
  ASSERT_EQ(desk.TopName(), "frmFutures");
  EXPECT_FALSE(desk.Enabled("cmdexport"));
  const World before = CopyOf(play.World());
  desk.Click("cmdplay");
  EXPECT_EQ(desk.Text("lbldone"), "4 of 4 worlds");
  EXPECT_EQ(desk.Rows("lstspread").size(), 13u) << "each first of a month";
  const auto titles = desk.Rows("lsttitles");
  ASSERT_EQ(titles.size(), 1u);
  EXPECT_EQ(titles[0][0], "CWA Crown");
  EXPECT_EQ(titles[0][3], "CWA Hand 1");
  const auto houses = desk.Rows("lstfeds");
  ASSERT_EQ(houses.size(), 2u);
  EXPECT_EQ(houses[0][1], "Cult");
  EXPECT_TRUE(desk.Enabled("cmdexport"));
  EXPECT_FALSE(desk.Enabled("cmdplay")) << "the same again would come to the same";
  ExpectSame(play.World(), before);
  desk.Pick("cmbyears", "2 years");
  EXPECT_TRUE(desk.Rows("lsttitles").empty());
  desk.Click("cmdplay");
  EXPECT_EQ(desk.Rows("lstspread").size(), 25u);
}

TEST(frmFutures, AreStoppedByWhoWaitsNoLonger) {
  GameOnWorld play(Company().Game("CWA"));
  ScriptDesk& desk = play.Desk;
  desk.Open("frmFutures");
  EXPECT_EQ(desk.Top()->Layout().Then->Name(), "cmdstop") << "Enter ends no day while it plays";
  desk.Pick("cmbyears", "10 years");
  const World before = CopyOf(play.World());
  desk.IsImpatient = true;
  desk.Click("cmdplay");
  EXPECT_TRUE(desk.Text("lbldone").starts_with("Stopped at ")) << desk.Text("lbldone");
  EXPECT_FALSE(desk.Enabled("cmdstop"));
  EXPECT_TRUE(desk.Enabled("cmdplay")) << "to play them after all";
  ExpectSame(play.World(), before);
}

TEST(frmFutures, SayWhatIsAssumedInOneSentence) {
  World world = Company().Game("CWA");
  EXPECT_TRUE(HabitsText(world, "they agree")
                  .starts_with("Assumed: they agree; the auto booker books every show, the office"))
      << HabitsText(world, "they agree");
  HouseRules rules{};
  rules.On[static_cast<std::size_t>(HouseRule::NoAutoBooker)] = true;
  world.Of<HouseRules>().Rewrite({rules});
  EXPECT_NE(HabitsText(world).find("a rule of the house forbids it"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
