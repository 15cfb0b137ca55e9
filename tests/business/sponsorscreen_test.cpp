#include <gtest/gtest.h>

#include <set>

#include "business/sponsors.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Row = std::vector<std::string>;
using Names = std::vector<std::string>;

Change<Sponsor> With(int morality, int pay) {
  return [=](Sponsor& sponsor) {
    sponsor.Morality = morality;
    sponsor.Pay = pay;
  };
}

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

TEST(frmFedSponsor, WelcomesDealsInThreeWays) {
  GameOnWorld play(Market());
  play.Desk.Open("frmFedSponsor");
  for (int deal = 0; deal < 40; ++deal) {
    play.Desk.Pick("lstsponsors", "Gulp");
    play.Desk.ExpectSay("Accepted!", kAnyText);
    play.Desk.Click("cmd2");
    play.Desk.ExpectAsk(kAnyText, kAnyText, true);
    play.Desk.ExpectSay("Done!", "Sponsorship ended!");
    play.Desk.Click("cmd2");
  }
  std::set<std::string> said;
  for (const auto& box : play.Desk.Boxes())
    if (box.Title == "Accepted!") said.insert(box.Text);
  EXPECT_EQ(said, (std::set<std::string>{
                      "They accept the deal. Here's to a great partnership!",
                      "They accept the deal. We hope this deal will be beneficial to both parties.",
                      "They accept the deal. We look forward to working with you."}));
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

TEST(frmFedSponsor, SaysSoWhenThereIsNobody) {
  GameOnWorld play(SmallWorld().Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmFedSponsor");
  EXPECT_TRUE(play.Desk.Rows("lstsponsors").empty());
  EXPECT_EQ(PlacesShown(play), (Names{"None", "None", "None", "None"}));
  EXPECT_FALSE(play.Desk.Enabled("cmd1"));
}

}  // namespace
}  // namespace grapplemont::test
