#include "business/sponsors.h"

#include <gtest/gtest.h>

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

TEST(SponsorContractCountdown, FreesWhoeverDealsWithNobodyThereQuietly) {
  World world = SmallWorld().Promotion("CWA").OnTheMarket().Sponsor("Gulp").Game("CWA");
  world.Sponsors()[1].Promotion = 77;
  world.Sponsors()[1].ContractMonths = 1;
  SponsorRiskReview(world);
  EXPECT_EQ(world.Sponsors()[1].Promotion, 77);
  SponsorContractCountdown(world);
  EXPECT_EQ(world.Sponsors()[1].Promotion, 0);
  EXPECT_EQ(NewsOf(world), "");
}

}  // namespace
}  // namespace grapplemont::test
