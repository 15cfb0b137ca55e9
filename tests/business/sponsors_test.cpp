#include <gtest/gtest.h>
#include <set>

#include "business/sponsors.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Change<Sponsor> With(int morality, int pay, int months = 12) {
  return [=](Sponsor& sponsor) {
    sponsor.Morality = morality;
    sponsor.Pay = pay;
    if (sponsor.Promotion != 0) sponsor.ContractMonths = months;
  };
}

std::vector<int> PlacesOf(const Promotion& promotion) {
  return {promotion.Sponsor.begin(), promotion.Sponsor.end()};
}

TEST(Sponsors, SignForSevenToTwentyFourMonths) {
  for (const auto& [draw, months] : {std::pair(1, 7), {18, 24}}) {
    World world =
        SmallWorld().Promotion("CWA").Promotion("NEW").OnTheMarket().Sponsor("Gulp").Game("CWA");
    for (Promotion& promotion : world.Promotions()) {
      ScriptDraws(world, {{18, draw}});
      Sponsor& gulp = world.Sponsors()[1];
      SignSponsor(world, promotion, gulp, 3);
      EXPECT_EQ(PlacesOf(promotion), (std::vector<int>{0, 0, gulp.Uid, 0}));
      EXPECT_EQ(gulp.Promotion, promotion.Uid);
      EXPECT_EQ(gulp.ContractMonths, months);
    }
    EXPECT_EQ(PlacesOf(world.Promotions()[1]), (std::vector<int>{0, 0, 0, 0}))
        << "nobody keeps a sponsor who has gone to another";
  }
}

TEST(Sponsors, TakeAPlaceFromWhoeverHasIt) {
  World world = SmallWorld().Promotion("CWA").Sponsor("Gulp").Sponsor("Hush").Game("CWA");
  Promotion& player = world.Player();
  Sponsor& gulp = Named(world.Sponsors(), "Gulp");
  Sponsor& hush = Named(world.Sponsors(), "Hush");
  ScriptDraws(world, {{18, 4}});
  SignSponsor(world, player, hush, kMainSponsor);
  EXPECT_EQ(PlacesOf(player), (std::vector<int>{hush.Uid, 0, 0, 0}));
  EXPECT_EQ(gulp.Promotion, 0);
  EXPECT_EQ(gulp.ContractMonths, 0);
}

TEST(Sponsors, MoveWithinTheFourPlaces) {
  World world =
      SmallWorld().Promotion("CWA").Sponsor("Gulp").Sponsor("Hush").Sponsor("Inch").Game("CWA");
  Promotion& player = world.Player();
  MoveSponsor(player, 3, 1);
  EXPECT_EQ(PlacesOf(player), (std::vector<int>{3, 2, 1, 0})) << "they change places";
  MoveSponsor(player, 3, 4);
  EXPECT_EQ(PlacesOf(player), (std::vector<int>{0, 2, 1, 3}));
  EXPECT_EQ(FreeSponsorPlace(world, player), 1);
  EXPECT_EQ(FreeSponsorPlace(world, player, 2), 0);
  player.Sponsor[2] = 77;
  EXPECT_EQ(FreeSponsorPlace(world, player, 2), 3) << "whoever had it is gone";
  player.Sponsor[2] = 1;
  MoveSponsor(player, 77, 1);
  EXPECT_EQ(PlacesOf(player), (std::vector<int>{0, 2, 1, 3})) << "a stranger has no place";
}

TEST(Sponsors, JudgeTheRiskFirstAndThenTheStanding) {
  struct Case {
    int Size, Image, Risk, Morality, Pay;
    SponsorAnswer Answer;
  };
  using enum SponsorAnswer;
  constexpr Case kCases[] = {
      {kGlobal, 51, 30, 70, 1000, Accepts},   {kGlobal, 51, 31, 70, 1, TooRisky},
      {kGlobal, 51, 30, 70, 1001, Declines},  {kGlobal, 51, 31, 70, 1001, TooRisky},
      {kGlobal, 50, 30, 70, 800, Accepts},    {kGlobal, 50, 30, 70, 801, Declines},
      {kNational, 51, 0, 100, 750, Accepts},  {kNational, 51, 0, 100, 751, Declines},
      {kNational, 50, 1, 100, 1, TooRisky},   {kNational, 50, 100, 0, 650, Accepts},
      {kNational, 50, 100, 0, 651, Declines}, {kCult, 51, 50, 50, 575, Accepts},
      {kCult, 51, 50, 50, 576, Declines},     {kCult, 50, 50, 50, 475, Accepts},
      {kCult, 50, 50, 50, 476, Declines},     {kRegional, 51, 50, 50, 400, Accepts},
      {kRegional, 51, 50, 50, 401, Declines}, {kRegional, 50, 50, 50, 300, Accepts},
      {kRegional, 50, 50, 50, 301, Declines}, {kSmall, 51, 50, 50, 150, Accepts},
      {kSmall, 51, 50, 50, 151, Declines},    {kSmall, 50, 50, 50, 100, Accepts},
      {kSmall, 50, 50, 50, 101, Declines},    {kBackyard, 51, 50, 50, 50, Accepts},
      {kBackyard, 51, 50, 50, 51, Declines},  {kBackyard, 50, 50, 50, 10, Accepts},
      {kBackyard, 50, 50, 50, 11, Declines}};
  for (const Case& c : kCases) {
    Promotion promotion;
    promotion.Size = c.Size;
    promotion.Image = c.Image;
    promotion.Risk = c.Risk;
    Sponsor sponsor;
    sponsor.Morality = c.Morality;
    sponsor.Pay = c.Pay;
    EXPECT_EQ(AnswerOf(sponsor, promotion), c.Answer)
        << c.Size << " at " << c.Image << ", risk " << c.Risk << ", pay " << c.Pay;
  }
}

TEST(SponsorRiskReview, LosesThoseWhoBearNoMore) {
  struct Case {
    const char* Player;
    int Option, RivalSize;
    const char* News;
  };
  constexpr const char* kOwn =
      "News Desk: Gulp have ended our sponsorship deal due to the increasingly risky material that "
      "we are using.\n";
  constexpr const char* kRival =
      "CWA News: CWA have ended their sponsorship deal with Gulp due to the increasingly risky "
      "material that they are using.\n";
  constexpr Case kCases[] = {
      {"CWA", 2, kCult, kOwn}, {"NEW", 0, kBackyard, kRival}, {"NEW", 1, kCult, kRival},
      {"NEW", 1, kSmall, ""},  {"NEW", 2, kGlobal, ""},
  };
  for (const Case& c : kCases) {
    World world = SmallWorld()
                      .Promotion("CWA", c.RivalSize, [](Promotion& p) { p.Risk = 41; })
                      .Sponsor("Gulp", With(60, 100, 9))
                      .Sponsor("Hush", With(59, 100, 9))
                      .Promotion("NEW", kCult, [](Promotion& p) { p.Risk = 10; })
                      .Sponsor("Inch", With(90, 100, 9))
                      .OnTheMarket()
                      .Sponsor("Jolt", With(100, 100))
                      .Game(c.Player, kGameStart, [&](GameInfo& g) { g.MailSponsor = c.Option; });
    SponsorRiskReview(world);
    EXPECT_EQ(NewsOf(world), c.News) << c.Player << " " << c.Option << " " << c.RivalSize;
    EXPECT_EQ(PlacesOf(world.Promotions()[1]), (std::vector<int>{0, 2, 0, 0}));
    EXPECT_EQ(PlacesOf(world.Promotions()[2]), (std::vector<int>{3, 0, 0, 0}));
    const Sponsor& gulp = Named(world.Sponsors(), "Gulp");
    EXPECT_EQ(gulp.Promotion, 0);
    EXPECT_EQ(gulp.ContractMonths, 0);
    EXPECT_EQ(Named(world.Sponsors(), "Hush").ContractMonths, 9) << "risk of exactly 41 is borne";
    EXPECT_EQ(Named(world.Sponsors(), "Inch").Promotion, 2);
  }
}

TEST(SponsorContractCountdown, EndsDealsAtTheirLastMonth) {
  struct Case {
    const char* Player;
    int Option, RivalSize;
    const char* News;
  };
  constexpr const char* kOwn = "News Desk: Our sponsorship deal with Gulp has now ended.\n";
  constexpr const char* kRival = "CWA News: Gulp have ended their sponsorship deal with CWA.\n";
  constexpr Case kCases[] = {
      {"CWA", 2, kCult, kOwn}, {"NEW", 0, kBackyard, kRival}, {"NEW", 1, kCult, kRival},
      {"NEW", 1, kSmall, ""},  {"NEW", 2, kGlobal, ""},
  };
  for (const Case& c : kCases) {
    World world = SmallWorld()
                      .Promotion("CWA", c.RivalSize)
                      .Sponsor("Gulp", With(50, 100, 1))
                      .Sponsor("Hush", With(50, 100, 2))
                      .Promotion("NEW", kCult)
                      .OnTheMarket()
                      .Sponsor("Jolt")
                      .Game(c.Player, kGameStart, [&](GameInfo& g) { g.MailSponsor = c.Option; });
    SponsorContractCountdown(world);
    EXPECT_EQ(NewsOf(world), c.News) << c.Player << " " << c.Option << " " << c.RivalSize;
    EXPECT_EQ(PlacesOf(world.Promotions()[1]), (std::vector<int>{0, 2, 0, 0}));
    EXPECT_EQ(Named(world.Sponsors(), "Gulp").Promotion, 0);
    EXPECT_EQ(Named(world.Sponsors(), "Gulp").ContractMonths, 0);
    EXPECT_EQ(Named(world.Sponsors(), "Hush").ContractMonths, 1);
    EXPECT_EQ(Named(world.Sponsors(), "Jolt").ContractMonths, 0)
        << "a free one has nothing to lose";
    SponsorContractCountdown(world);
    EXPECT_EQ(Named(world.Sponsors(), "Hush").Promotion, 0);
    EXPECT_EQ(PlacesOf(world.Promotions()[1]), (std::vector<int>{0, 0, 0, 0}));
  }
}

using Row = std::vector<std::string>;
using Names = std::vector<std::string>;

/// Regional with a fair image: limits of 301, a risk of 40.
SmallWorld Market() {
  SmallWorld small;
  small.Promotion("CWA", kRegional, [](Promotion& p) { p.Risk = 40; })
      .Promotion("NEW")
      .Sponsor("Theirs")
      .OnTheMarket()
      .Sponsor("Gulp", With(60, 300))
      .Sponsor("Prim", With(61, 20))
      .Sponsor("Huge", With(29, 301))
      .Game("CWA");
  return small;
}

/// The same with the player's four places taken: Ours 1 the main one.
SmallWorld Full() {
  SmallWorld small;
  small.Promotion("CWA", kRegional, [](Promotion& p) { p.Risk = 40; })
      .Sponsor("Ours 1")
      .Sponsor("Ours 2", With(30, 250))
      .Sponsor("Ours 3")
      .Sponsor("Ours 4")
      .OnTheMarket()
      .Sponsor("Gulp", With(60, 300))
      .Game("CWA");
  return small;
}

Names PlacesShown(GameOnWorld& play) {
  Names names;
  for (const Row& row : play.Desk.Rows("lstplaces")) names.push_back(row[1]);
  return names;
}

TEST(frmFedSponsor, ListsAllOrThoseWhoMatter) {
  GameOnWorld play(Market());
  play.Desk.Open("frmFedSponsor");
  EXPECT_EQ(play.Desk.Rows("lstsponsors"),
            (std::vector<Row>{{"Theirs", "$100,000", "Medium", "50", "NEW", "12"},
                              {"Gulp", "$300,000", "Medium", "40", "Free", ""},
                              {"Prim", "$20,000", "Medium", "39", "Free", ""},
                              {"Huge", "$301,000", "Low", "71", "Free", ""}}));
  EXPECT_EQ(play.Desk.Rows("lstplaces"), (std::vector<Row>{{"Main", "None", "", "", ""},
                                                           {"Minor", "None", "", "", ""},
                                                           {"Minor", "None", "", "", ""},
                                                           {"Minor", "None", "", "", ""}}));
  EXPECT_FALSE(play.Desk.Enabled("cmd1")) << "nobody is chosen";
  EXPECT_EQ(play.Desk.Tip("cmd2"), "Choose a sponsor first.");
  play.Desk.Pick("lstsponsors", "Theirs");
  EXPECT_FALSE(play.Desk.Enabled("cmd1"));
  EXPECT_FALSE(play.Desk.Enabled("cmd2"));
  EXPECT_EQ(play.Desk.Tip("cmd1"), "Theirs have a deal with NEW.");
  play.Desk.Check("chkfilter", true);
  EXPECT_EQ(play.Desk.FirstColumn("lstsponsors"), (Names{"Gulp", "Prim", "Huge"}));
  play.Desk.Check("chkfilter", false);
  EXPECT_EQ(play.Desk.FirstColumn("lstsponsors").size(), 4u);
}

TEST(frmFedSponsor, HearsRefusalsFromEitherOffer) {
  GameOnWorld play(Market());
  play.Desk.Open("frmFedSponsor");
  for (const char* offer : {"cmd1", "cmd2"}) {
    play.Desk.Pick("lstsponsors", "Prim");
    play.Desk.ExpectSay("Rejection!",
                        "They reject the deal. They feel the risky nature of your product could "
                        "harm their image.");
    play.Desk.Click(offer);
    play.Desk.Pick("lstsponsors", "Huge");
    play.Desk.ExpectSay("Rejection!", "They reject the deal.");
    play.Desk.Click(offer);
  }
  EXPECT_EQ(PlacesShown(play), (Names{"None", "None", "None", "None"}));
}

TEST(frmFedSponsor, SignsWhoeverAccepts) {
  struct Case {
    const char* Button;
    const char* Caption;
    Row Place;
    int At;
  };
  const Case kCases[] = {
      {"cmd1", "Offer Main Sponsorship", {"Main", "Gulp", "$75,000", "$300,000", "11"}, 1},
      {"cmd2", "Offer Minor Sponsorship", {"Minor", "Gulp", "$30,000", "$300,000", "11"}, 2}};
  for (const Case& c : kCases) {
    GameOnWorld play(Market());
    play.Desk.Open("frmFedSponsor");
    play.Desk.Pick("lstsponsors", "Gulp");
    EXPECT_EQ(play.Desk.Text(c.Button), c.Caption);
    ScriptDraws(play.World(), {{18, 5}});
    play.Desk.ExpectSay("Accepted!", kAnyText);
    play.Desk.Click(c.Button);
    EXPECT_EQ(play.Desk.Rows("lstplaces")[static_cast<std::size_t>(c.At - 1)], c.Place);
    play.Reopen();
    EXPECT_EQ(SponsorPlace(play.World().Player(), Named(play.World().Sponsors(), "Gulp").Uid),
              c.At);
    EXPECT_EQ(Named(play.World().Sponsors(), "Gulp").ContractMonths, 11);
  }
}

TEST(frmFedSponsor, UpgradesAndDemotesWithoutAWord) {
  GameOnWorld play(Full());
  play.Desk.Open("frmFedSponsor");
  play.Desk.Pick("lstsponsors", "Gulp");
  EXPECT_EQ(play.Desk.Tip("cmd1"), "We have a main sponsor already.");
  EXPECT_EQ(play.Desk.Tip("cmd2"), "We have three minor sponsors already.");
  play.Desk.Pick("lstplaces", 1);
  EXPECT_EQ(play.Desk.Text("cmd1"), "Demote To Minor Sponsor");
  EXPECT_EQ(play.Desk.Text("cmd2"), "End Sponsorship Deal");
  EXPECT_FALSE(play.Desk.Enabled("cmd1")) << "no minor place is free";

  play.Desk.Pick("lstsponsors", "Ours 3");
  EXPECT_EQ(play.Desk.Selected("lstplaces"), std::vector{3});
  EXPECT_EQ(play.Desk.Text("cmd1"), "Upgrade To Main Sponsor");
  play.Desk.Click("cmd1");
  EXPECT_EQ(PlacesShown(play), (Names{"Ours 3", "Ours 2", "Ours 1", "Ours 4"}));

  play.Desk.Pick("lstsponsors", "Ours 2");
  play.Desk.ExpectAsk(kAnyText, kAnyText, true);
  play.Desk.ExpectSay("Done!", "Sponsorship ended!");
  play.Desk.Click("cmd2");
  play.Desk.Pick("lstsponsors", "Ours 3");
  EXPECT_EQ(play.Desk.Text("cmd1"), "Demote To Minor Sponsor");
  play.Desk.Click("cmd1");
  EXPECT_EQ(PlacesShown(play), (Names{"None", "Ours 3", "Ours 1", "Ours 4"}));
  EXPECT_EQ(Named(play.World().Sponsors(), "Ours 3").ContractMonths, 12) << "the deal runs on";
  play.Reopen();
  EXPECT_EQ(play.World().Player().Sponsor[0], 0);
}

TEST(frmFedSponsor, EndsADealAgainstTheRestOfIt) {
  GameOnWorld play(Full());
  const int before = play.World().Player().Money;
  play.Desk.Open("frmFedSponsor");
  play.Desk.Pick("lstsponsors", "Ours 2");
  const std::string question = "Are you sure? This would cost $3000000 in legal payments!";
  play.Desk.ExpectAsk(kAnyText, question, false);
  play.Desk.Click("cmd2");
  EXPECT_EQ(PlacesShown(play), (Names{"Ours 1", "Ours 2", "Ours 3", "Ours 4"}));
  play.Desk.ExpectAsk(kAnyText, question, true);
  play.Desk.ExpectSay("Done!", "Sponsorship ended!");
  play.Desk.Click("cmd2");
  EXPECT_EQ(play.Desk.Text("cmd2"), "Offer Minor Sponsorship") << "it is free now";
  play.Reopen();
  EXPECT_EQ(play.World().Player().Money, before - 3'000'000) << "into debt, if need be";
  EXPECT_EQ(Named(play.World().Sponsors(), "Ours 2").Promotion, 0);
}

TEST(frmFedSponsor, NoticesWhoHasGoneOrWasTaken) {
  GameOnWorld play(Full());
  play.Desk.Open("frmFedSponsor");
  World& world = play.World();
  play.Desk.Pick("lstplaces", 4);
  LoseSponsor(world, Named(world.Sponsors(), "Ours 4"));
  play.Desk.ExpectSay("Error!", "This deal has changed in the meantime.");
  play.Desk.Click("cmd2");
  EXPECT_EQ(PlacesShown(play), (Names{"Ours 1", "Ours 2", "Ours 3", "None"}));

  play.Desk.Pick("lstsponsors", "Gulp");
  Named(world.Sponsors(), "Gulp").Promotion = 77;
  play.Desk.ExpectSay("Error!", "Gulp have a deal with None.");
  play.Desk.Click("cmd2");
  EXPECT_FALSE(play.Desk.Enabled("cmd2"));

  play.Desk.Pick("lstsponsors", "Ours 3");
  world.Sponsors().Keep([](const Sponsor& sponsor) { return !(sponsor.Name == "Ours 3"); });
  play.Desk.ExpectSay("Error!", "This sponsor has gone.");
  play.Desk.Click("cmd2");
  EXPECT_EQ(PlacesShown(play), (Names{"Ours 1", "Ours 2", "None", "None"}));
  EXPECT_EQ(world.Player().Money, 2'000'000);
}

}  // namespace
}  // namespace grapplemont::test
