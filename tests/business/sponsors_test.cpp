#include "business/sponsors.h"

#include <gtest/gtest.h>

#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

Change<Sponsor> With(int morality, int pay, int months = 12) {
  return [=](Sponsor& sponsor) {
    sponsor.Morality = morality;
    sponsor.Pay = pay;
    if (sponsor.Promotion != 0) sponsor.ContractMonths = months;
  };
}

using Places = std::vector<int>;
Places PlacesOf(const Promotion& promotion) {
  return {promotion.Sponsor.begin(), promotion.Sponsor.end()};
}

TEST(Sponsors, TakeAPlaceForSevenToTwentyFourMonths) {
  World world =
      SmallWorld().Promotion("CWA").Sponsor("Gulp").Sponsor("Hush").Promotion("NEW").Game("CWA");
  Promotion& player = world.Player();
  Sponsor& gulp = world.Sponsors()[1];
  Sponsor& hush = world.Sponsors()[2];
  ScriptDraws(world, {{18, 1}, {18, 18}});
  SignSponsor(world, player, hush, kMainSponsor);
  EXPECT_EQ(PlacesOf(player), (Places{2, 0, 0, 0})) << "and leaves the one before";
  EXPECT_EQ(hush.ContractMonths, 7);
  EXPECT_EQ(gulp.Promotion + gulp.ContractMonths, 0) << "whose place it was";
  SignSponsor(world, world.Promotions()[2], hush, 3);
  EXPECT_EQ(PlacesOf(player), (Places{0, 0, 0, 0})) << "gone to another";
  EXPECT_EQ(PlacesOf(world.Promotions()[2]), (Places{0, 0, 2, 0}));
  EXPECT_EQ(hush.Promotion, 2);
  EXPECT_EQ(hush.ContractMonths, 24);
}

TEST(Sponsors, MoveWithinTheFourPlaces) {
  World world =
      SmallWorld().Promotion("CWA").Sponsor("Gulp").Sponsor("Hush").Sponsor("Inch").Game("CWA");
  Promotion& player = world.Player();
  MoveSponsor(player, 3, 1);
  EXPECT_EQ(PlacesOf(player), (Places{3, 2, 1, 0})) << "they change places";
  MoveSponsor(player, 3, 4);
  MoveSponsor(player, 77, 1);
  EXPECT_EQ(PlacesOf(player), (Places{0, 2, 1, 3})) << "a stranger has no place";
  EXPECT_EQ(FreeSponsorPlace(world, player), 1);
  EXPECT_EQ(FreeSponsorPlace(world, player, 2), 0);
  player.Sponsor[2] = 77;
  EXPECT_EQ(FreeSponsorPlace(world, player, 2), 3) << "whoever had it is gone";
}

// Who hears of a deal that ends: the player of their own, of a rival's as the option says.
struct Case {
  const char* Player;
  int Option, RivalSize;
  bool Told;
};
constexpr Case kCases[] = {{"CWA", 2, kCult, true},
                           {"NEW", 0, kBackyard, true},
                           {"NEW", 1, kCult, true},
                           {"NEW", 1, kSmall, false},
                           {"NEW", 2, kGlobal, false}};

/// Gulp bears a risk of 40 and has a month to run, Hush one of 41 and two months.
World Deals(const Case& c) {
  return SmallWorld()
      .Promotion("CWA", c.RivalSize, [](Promotion& p) { p.Risk = 41; })
      .Sponsor("Gulp", With(60, 100, 1))
      .Sponsor("Hush", With(59, 100, 2))
      .Promotion("NEW", kCult, [](Promotion& p) { p.Risk = 10; })
      .Sponsor("Inch", With(90, 100, 9))
      .OnTheMarket()
      .Sponsor("Jolt", With(100, 100))
      .Game(c.Player, kGameStart, [&](GameInfo& g) { g.MailSponsor = c.Option; });
}

void ExpectGulpLost(const World& world, const Case& c, const std::string& ours,
                    const std::string& theirs) {
  SCOPED_TRACE(c.Player + std::to_string(c.Option));
  EXPECT_EQ(NewsOf(world), !c.Told ? "" : c.Player == std::string("CWA") ? ours : theirs);
  EXPECT_EQ(PlacesOf(world.Promotions()[1]), (Places{0, 2, 0, 0}));
  EXPECT_EQ(PlacesOf(world.Promotions()[2]), (Places{3, 0, 0, 0}));
  EXPECT_EQ(world.Sponsors()[1].Promotion + world.Sponsors()[1].ContractMonths, 0);
}

TEST(Sponsors, LeaveWhoShowsMoreThanTheyBear) {
  for (const Case& c : kCases) {
    World world = Deals(c);
    SponsorRiskReview(world);
    ExpectGulpLost(world, c,
                   "News Desk: Gulp have ended our sponsorship deal due to the increasingly risky "
                   "material that we are using.\n",
                   "CWA News: CWA have ended their sponsorship deal with Gulp due to the "
                   "increasingly risky material that they are using.\n");
  }
}

TEST(Sponsors, LeaveWithTheirLastMonth) {
  for (const Case& c : kCases) {
    World world = Deals(c);
    SponsorContractCountdown(world);
    ExpectGulpLost(world, c, "News Desk: Our sponsorship deal with Gulp has now ended.\n",
                   "CWA News: Gulp have ended their sponsorship deal with CWA.\n");
    EXPECT_EQ(world.Sponsors()[2].ContractMonths, 1);
    EXPECT_EQ(world.Sponsors()[4].ContractMonths, 0) << "a free one has nothing to lose";
  }
}

TEST(RiskLimits, AreThoseOfShowsAndSponsors) {
  World world =
      SmallWorld()
          .Network("Nine", [](Network& n) { n.PrimeRisk = 60, n.LateRisk = 70, n.EarlyRisk = 20; })
          .Promotion("CWA")
          .Show("Friday Fire", "Friday", "Nine")
          .Show("Late Fire", "Monday", "Nine", [](Show& s) { s.Slot = "L"; })
          .Sponsor("Gulp", With(55, 100))
          .Sponsor("Crunch", With(0, 100))
          .Promotion("NEW")
          .Show("Theirs", "Friday", "Nine", [](Show& s) { s.Slot = "E"; })
          .Game("CWA");
  std::string lines;
  for (const RiskLimit& limit : RiskLimits(world))
    lines += limit.Who + ": " + limit.What + ", " + std::to_string(limit.Limit) + "\n";
  EXPECT_EQ(lines,
            "Friday Fire: Television, Prime Time on Nine, 60\n"
            "Late Fire: Television, Late Night on Nine, 70\n"
            "Gulp: Main sponsor, 45\nCrunch: Minor sponsor, 100\n");
  for (const auto& [risk, sponsors, slots] :
       {std::tuple(20, 2, 4), {45, 2, 3}, {46, 1, 3}, {71, 1, 0}}) {
    const RiskMarket market = MarketFor(world, risk);
    EXPECT_EQ(market.Sponsors, 2);
    EXPECT_EQ(market.SponsorsThatBear, sponsors) << risk;
    EXPECT_EQ(market.Slots, 4);
    EXPECT_EQ(market.SlotsThatBear, slots) << risk;
  }
}

using Row = std::vector<std::string>;

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
  small.Promotion("CWA", kRegional);
  for (const char* name : {"Ours 1", "Ours 2", "Ours 3", "Ours 4"})
    small.Sponsor(name, With(30, 250));
  small.OnTheMarket().Sponsor("Gulp").Game("CWA");
  return small;
}

Row PlacesShown(GameOnWorld& play) {
  Row names;
  for (const Row& row : play.Desk.Rows("lstplaces")) names.push_back(row[1]);
  return names;
}

TEST(frmFedSponsor, ListsThemHearsRefusalsAndSigns) {
  GameOnWorld play(Market());
  play.Desk.Open("frmFedSponsor");
  EXPECT_EQ(play.Desk.Rows("lstsponsors")[0],
            (Row{"Theirs", "$100,000", "Medium", "50", "NEW", "12"}));
  EXPECT_EQ(play.Desk.Rows("lstsponsors")[3], (Row{"Huge", "$301,000", "Low", "71", "Free", ""}));
  EXPECT_EQ(play.Desk.Tip("cmd2"), "Choose a sponsor first.");
  play.Desk.Pick("lstsponsors", "Theirs");
  EXPECT_EQ(play.Desk.Tip("cmd1"), "Theirs have a deal with NEW.");
  play.Desk.Check("chkfilter", true);
  EXPECT_EQ(play.Desk.FirstColumn("lstsponsors"), (Row{"Gulp", "Prim", "Huge"}));
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
  EXPECT_NE(play.Desk.Text("txtwhy").find("they pay $301,000."), std::string::npos);
  play.Desk.Pick("lstsponsors", "Gulp");
  EXPECT_EQ(play.Desk.Text("cmd1"), "Offer Main Sponsorship");
  EXPECT_EQ(play.Desk.Text("cmd2"), "Offer Minor Sponsorship");
  ScriptDraws(play.World(), {{18, 5}});
  play.Desk.ExpectSay("Accepted!", kAnyText);
  play.Desk.Click("cmd2");
  EXPECT_EQ(play.Desk.Rows("lstplaces")[0], (Row{"Main", "None", "", "", ""}));
  EXPECT_EQ(play.Desk.Rows("lstplaces")[1], (Row{"Minor", "Gulp", "$30,000", "$300,000", "11"}));
}

TEST(frmFedSponsor, UpgradesDemotesAndEndsDeals) {
  GameOnWorld play(Full());
  play.Desk.Open("frmFedSponsor");
  play.Desk.Pick("lstsponsors", "Gulp");
  EXPECT_EQ(play.Desk.Tip("cmd1"), "We have a main sponsor already.");
  EXPECT_EQ(play.Desk.Tip("cmd2"), "We have three minor sponsors already.");
  play.Desk.Pick("lstplaces", 1);
  EXPECT_EQ(play.Desk.Text("cmd1"), "Demote To Minor Sponsor");
  EXPECT_FALSE(play.Desk.Enabled("cmd1")) << "no minor place is free";
  play.Desk.Pick("lstsponsors", "Ours 3");
  EXPECT_EQ(play.Desk.Selected("lstplaces"), std::vector{3});
  EXPECT_EQ(play.Desk.Text("cmd1"), "Upgrade To Main Sponsor");
  play.Desk.Click("cmd1");
  EXPECT_EQ(PlacesShown(play), (Row{"Ours 3", "Ours 2", "Ours 1", "Ours 4"}));

  play.Desk.Pick("lstsponsors", "Ours 2");
  const std::string question = "Are you sure? This would cost $3000000 in legal payments!";
  play.Desk.ExpectAsk("End deal?", question, false, ui::Default::No);
  play.Desk.Click("cmd2");
  play.Desk.ExpectAsk("End deal?", question, true);
  play.Desk.ExpectSay("Done!", "Sponsorship ended!");
  play.Desk.Click("cmd2");
  EXPECT_EQ(play.World().Player().Money, 2'000'000 - 3'000'000) << "into debt, if need be";
  play.Desk.Pick("lstsponsors", "Ours 3");
  play.Desk.Click("cmd1");
  EXPECT_EQ(PlacesShown(play), (Row{"None", "Ours 3", "Ours 1", "Ours 4"}));
  EXPECT_EQ(Named(play.World().Sponsors(), "Ours 3").ContractMonths, 12) << "the deal runs on";
  LoseSponsor(play.World(), Named(play.World().Sponsors(), "Ours 3"));
  play.Desk.ExpectSay("Error!", "This deal has changed in the meantime.");
  play.Desk.Click("cmd2");
}

}  // namespace
}  // namespace grapplemont::test
