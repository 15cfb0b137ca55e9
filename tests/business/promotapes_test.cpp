#include "business/tvtalks.h"

#include <gtest/gtest.h>

#include "records/notes.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

constexpr const char* kNoBenefit = "we don't feel your shows would benefit our network.";
constexpr const char* kTooSmall = "we don't feel your promotion is really big enough";
constexpr const char* kTooRisky = "we're not comfortable with the riskiness of your product.";
constexpr const char* kNoSpace = "we really don't have any space in our schedule";
constexpr const char* kNotLooking = "we're not currently looking for new programming";
constexpr const char* kInterest =
    "Production: We have recieved interest from Nine! (Go to the 'Television' section)\n";

/// How the player stands and what the network is like.
struct Standing {
  int Size = kRegional, Image = 50, Risk = 60;  // could draw 120
  int Audience = 200, GraveRisk = 60, Shows = 0;
  bool Generic = false;
  int Economy = 50;
};

World TapeUnderWay(const Standing& s) {
  World world =
      SmallWorld()
          .Network("Nine",
                   [&](Network& n) {
                     n.GraveAudience = s.Audience;
                     n.GraveRisk = s.GraveRisk;
                     n.Generic = s.Generic;
                   })
          .Promotion("CWA", s.Size, [&](Promotion& p) { p.Image = s.Image, p.Risk = s.Risk; })
          .Game("CWA", kGameStart, [&](GameInfo& g) { g.Economy = s.Economy; });
  Show show;
  show.Network = 1;
  for (int i = 0; i < s.Shows; ++i) world.Shows().Append(show);
  world.Game().TapeWait = 1;
  return world;
}

TEST(AnswerPromoTapes, TellsTheLastReasonThatAppliesElseDraws) {
  const struct {
    Standing Is;
    const char* Says;
    int Draw = 0;  // 0: none
  } kCases[] = {
      {{.Audience = 202}, kNoBenefit},  // six tenths of 201 are 120
      {{.Audience = 182, .Economy = 15}, kNoBenefit},
      {{.Size = kSmall, .Audience = 2}, kNoBenefit},
      {{.Size = kBackyard, .Audience = 400}, kTooSmall},
      {{.Risk = 61, .Audience = 400}, kTooRisky},
      {{.Shows = 28}, kNoSpace},
      {{.Size = kBackyard, .Risk = 61, .Shows = 28}, kNoSpace},
      {{.Audience = 201}, kNotLooking, 1},
      {{.Audience = 201}, kInterest, 2},
      {{.Audience = 201}, kNotLooking, 3},
      {{.Audience = 202, .Economy = 85}, kNotLooking, 4},
      {{.Shows = 28, .Generic = true}, kNotLooking, 1},
      {{.Shows = 29}, kNotLooking, 1},
      {{.Size = kSmall, .Audience = 1}, kNotLooking, 1},
  };
  for (const auto& c : kCases) {
    World world = TapeUnderWay(c.Is);
    world.Game().TvOfferWait = 9;
    ScriptDraws(world, c.Draw == 0 ? std::vector<int>{} : std::vector{c.Draw});
    AnswerPromoTapes(world);
    EXPECT_NE(NewsOf(world).find(c.Says), std::string::npos) << c.Says << NewsOf(world);
    EXPECT_EQ(world.Game().TapeWait, 0);
    EXPECT_EQ(world.Game().TvOfferWait, c.Draw == 2 ? 1 : 0);
    const auto [whose, why] = NotedAnswer(world, kNoteTape);
    EXPECT_EQ(whose, "Nine");
    EXPECT_EQ(why.IsYes(), c.Draw == 2) << WhyOfTape(world);
    EXPECT_EQ(why.Steps().size(), c.Draw == 0 ? 4u : 5u) << WhyOfTape(world);
  }
  World world = TapeUnderWay({});
  world.Game().TapeWait = 5;  // a network that is gone
  AnswerPromoTapes(world);
  EXPECT_EQ(NewsOf(world), "");
}

/// A show on every day in `days`, in the slot, of the promotion.
void Occupy(World& world, int owner, const char* slot, const Names& days, int network = 1) {
  for (const std::string& day : days) {
    Show show;
    show.Name = std::to_string(owner) + " on " + day;
    show.Owner = owner;
    show.Day = day;
    show.Slot = slot;
    show.Network = network;
    show.ContractWeeks = 10;
    world.Shows().Append(show);
  }
}

TEST(frmPromoTape, SendsOneTapeAMonthAndNoneForAFourthShow) {
  GameOnWorld play(SmallWorld().Network("Nine").Network("Ten").Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmTelevision");
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.Desk.FirstColumn("lstnetworks"), (Names{"Nine", "Ten"}));
  EXPECT_EQ(play.Desk.Tip("cmdsend"), "Choose a network first.");
  play.Desk.Pick("lstnetworks", "Ten");
  play.Desk.ExpectSay("Sent!", "Tape sent!");
  play.Desk.Click("cmdsend");
  EXPECT_EQ(play.World().Game().TapeWait, 2);
  EXPECT_EQ(play.Desk.Text("lblfacts"), "0 of 3 shows on the air. Ten is watching our tape.");
  play.Desk.ExpectSay("Error!", "You can only send out one tape per month.");
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.Desk.TopName(), "frmTelevision");
  play.World().Game().TapeWait = 0;
  Occupy(play.World(), 1, "P", {"Monday", "Tuesday", "Friday"});
  EXPECT_EQ(WhyNoTape(play.World()), "You already have the maximum amount of TV shows allowed.");
}

/// An offer of a network whose every spot is bigger than the player's 120 until `change` makes it
/// smaller.
World Offered(int size = kRegional, const Change<Network>& change = {}) {
  return SmallWorld()
      .Network("Nine",
               [&](Network& n) {
                 n.EarlyAudience = n.PrimeAudience = n.LateAudience = n.GraveAudience = 900;
                 if (change) change(n);
               })
      .Promotion("NEW")
      .Promotion("CWA", size)
      .Game("CWA", kGameStart, [](GameInfo& g) { g.TvOfferWait = 1; });
}

TEST(TvOffer, HasWeeksASlotAndDays) {
  std::vector<int> weeks;
  for (int size = kGlobal; size <= kBackyard; ++size)
    weeks.push_back(OfferOnTheTable(Offered(size))->Weeks);
  EXPECT_EQ(weeks, (std::vector{52, 24, 12, 12, 6, 6}));
  constexpr struct {
    int Early, Late, Prime;
    const char* Slot;  // the last that the promotion outdraws
  } kCases[] = {{120, 120, 120, "G"}, {119, 120, 120, "E"}, {119, 119, 120, "L"},
                {119, 119, 119, "P"}, {120, 119, 120, "L"}, {120, 120, 119, "P"}};
  for (const auto& c : kCases) {
    const World world = Offered(kRegional, [&](Network& n) {
      n.EarlyAudience = c.Early;
      n.LateAudience = c.Late;
      n.PrimeAudience = c.Prime;
    });
    EXPECT_EQ(OfferOnTheTable(world)->Slot, c.Slot);
  }
  for (const bool generic : {false, true}) {
    World world = Offered();
    world.Networks()[1].Generic = generic;
    Occupy(world, 1, "G", {"Wednesday", "Sunday"});
    Occupy(world, 1, "P", {"Thursday"});
    Occupy(world, 2, "E", {"Tuesday"});
    Occupy(world, 1, "G", {"Friday"}, 99);
    EXPECT_EQ(OfferOnTheTable(world)->Days,
              (generic ? std::vector{1, 3, 4, 5, 6, 7} : std::vector{1, 4, 5, 6}));
  }
}

TEST(TvOffer, WantsANameOfItsOwnAndAPlaceInTheWeek) {
  GameOnWorld play(Offered());
  Occupy(play.World(), 1, "P", {"Monday"});
  play.Desk.Open("frmTvOffer");
  const auto refused = [&](const char* name, const char* says) {
    play.Desk.Type("txtname", name);
    play.Desk.ExpectSay("Error!", says);
    play.Desk.Click("cmdaccept");
  };
  refused("   ", "Type a name first.");
  refused("To Be Deleted", "No show can be called that.");
  refused("Twenty-one letters it", "A name has at most 20 letters. This one has 21.");
  refused(" 1 on Monday ", "The show name needs to be unique!");
  play.Desk.Pick("cmbdays", "Tuesday");
  Occupy(play.World(), 1, "G", {"Tuesday"});
  refused("Late", "That day has gone to another show meanwhile. Choose another.");
  EXPECT_EQ(play.Desk.Text("cmbdays"), "Monday");
  Occupy(play.World(), 2, "P", {"Wednesday", "Thursday", "Friday"});
  refused("Fourth", "You already have the maximum amount of TV shows allowed.");
  EXPECT_EQ(play.World().Shows().Count(), 5);
  EXPECT_EQ(play.World().Game().TvOfferWait, 1);
}

TEST(TvOffer, IsTurnedDownOrWithdrawn) {
  GameOnWorld play(Offered());
  GameInfo& game = play.World().Game();
  play.Desk.Open("frmTelevision");
  play.Desk.Click("cmdpromo");
  play.Desk.Click("cmdback");
  EXPECT_EQ(game.TvOfferWait, 1) << "left for later";
  game.TapeWait = 1;
  play.Desk.Click("cmdpromo");
  play.Desk.Click("cmdreject");
  EXPECT_EQ(game.TvOfferWait + game.TapeWait, 0);
  EXPECT_FALSE(OfferOnTheTable(play.World()));
  game.TvOfferWait = 1;
  Occupy(play.World(), 1, "G",
         {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"});
  play.Desk.ExpectSay("No offer",
                      "Sorry, scheduling conflicts mean that the network have removed the offer.");
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.Desk.TopName(), "frmTelevision");
  EXPECT_EQ(game.TvOfferWait, 0);
}

}  // namespace
}  // namespace grapplemont::test
