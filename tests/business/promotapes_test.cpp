#include "business/tvtalks.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kNoBenefit =
    "Nine: Thanks for the promo tapes, but we don't feel your shows would benefit our network.\n";
constexpr const char* kTooSmall =
    "Nine: Thanks for the promo tapes, but we don't feel your promotion is really big enough for "
    "our network to consider working with.\n";
constexpr const char* kTooRisky =
    "Nine: Thanks for the promo tapes, but we're not comfortable with the riskiness of your "
    "product.\n";
constexpr const char* kNoSpace =
    "Nine: Thanks for the promo tapes, but we really don't have any space in our schedule for you "
    "at the moment.\n";
constexpr const char* kNotLooking =
    "Nine: Thanks for the promo tapes - we're not currently looking for new programming, but feel "
    "free to try again in a few months time.\n";
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
  World world = SmallWorld()
                    .Network("Nine",
                             [&](Network& n) {
                               n.GraveAudience = s.Audience;
                               n.GraveRisk = s.GraveRisk;
                               n.Generic = s.Generic;
                             })
                    .Promotion("CWA", s.Size,
                               [&](Promotion& p) {
                                 p.Image = s.Image;
                                 p.Risk = s.Risk;
                               })
                    .Game("CWA", kGameStart, [&](GameInfo& g) { g.Economy = s.Economy; });
  for (int i = 0; i < s.Shows; ++i) {
    Show show;
    show.Name = "Show " + std::to_string(i);
    show.Network = 1;
    world.Shows().Append(show);
  }
  world.Game().TapeWait = 1;
  return world;
}

TEST(AnswerPromoTapes, TellsTheLastReasonThatApplies) {
  struct Case {
    const char* What;
    Standing Is;
    const char* Says;
  };
  const Case kCases[] = {
      {"draws too few", {.Audience = 202}, kNoBenefit},
      {"draws too few in a recession", {.Audience = 182, .Economy = 15}, kNoBenefit},
      {"small draws nobody", {.Size = kSmall, .Audience = 2}, kNoBenefit},
      {"backyard", {.Size = kBackyard, .Audience = 0}, kTooSmall},
      {"risk", {.Risk = 61}, kTooRisky},
      {"no space", {.Shows = 28}, kNoSpace},
      {"backyard, risk", {.Size = kBackyard, .Risk = 61}, kTooRisky},
      {"backyard, risk, no space", {.Size = kBackyard, .Risk = 61, .Shows = 28}, kNoSpace},
      {"backyard draws too few", {.Size = kBackyard, .Audience = 400}, kTooSmall},
      {"risk, draws too few", {.Risk = 61, .Audience = 400}, kTooRisky},
  };
  for (const Case& c : kCases) {
    World world = TapeUnderWay(c.Is);
    ScriptDraws(world, {});
    AnswerPromoTapes(world);
    EXPECT_EQ(NewsOf(world), c.Says) << c.What;
    EXPECT_EQ(world.Game().TapeWait, 0) << c.What;
    EXPECT_EQ(world.Game().TvOfferWait, 0) << c.What;
  }
}

TEST(AnswerPromoTapes, MakesAnOfferOnADrawOfTwo) {
  for (int draw = 1; draw <= 4; ++draw) {
    World world = TapeUnderWay({.Audience = 201});  // six tenths of it are 120
    world.Game().TvOfferWait = 9;
    ScriptDraws(world, {{4, draw}});
    AnswerPromoTapes(world);
    EXPECT_EQ(NewsOf(world), draw == 2 ? kInterest : kNotLooking);
    EXPECT_EQ(world.Game().TvOfferWait, draw == 2 ? 1 : 0);
    EXPECT_EQ(world.Game().TapeWait, 0);
  }
}

TEST(AnswerPromoTapes, ConsidersWhomItNeedNotRefuse) {
  const Standing kStandings[] = {{.Audience = 202, .Economy = 85},
                                 {.Shows = 28, .Generic = true},
                                 {.Shows = 29},
                                 {.Size = kSmall, .Audience = 1},
                                 {.Size = kSmall, .Audience = 0}};
  for (const Standing& standing : kStandings) {
    World world = TapeUnderWay(standing);
    ScriptDraws(world, {{4, 1}});
    AnswerPromoTapes(world);
    EXPECT_EQ(NewsOf(world), kNotLooking);
  }
}

TEST(AnswerPromoTapes, LosesATapeToANetworkThatIsGone) {
  World world = TapeUnderWay({});
  world.Game().TapeWait = 5;
  ScriptDraws(world, {});
  AnswerPromoTapes(world);
  EXPECT_EQ(NewsOf(world), "");
  EXPECT_EQ(world.Game().TapeWait, 0);
}

TEST(frmPromoTape, SendsOneTapeAMonth) {
  GameOnWorld play(SmallWorld().Network("Nine").Network("Ten").Promotion("CWA").Game("CWA"));
  play.Desk.Open("frmTelevision");
  EXPECT_EQ(play.Desk.Text("cmdpromo"), "Send Out Promo Tapes");
  play.Desk.Click("cmdpromo");
  ASSERT_EQ(play.Desk.TopName(), "frmPromoTape");
  EXPECT_EQ(play.Desk.FirstColumn("lstnetworks"), (Names{"Nine", "Ten"}));
  EXPECT_FALSE(play.Desk.Enabled("cmdsend"));
  EXPECT_EQ(play.Desk.Tip("cmdsend"), "Choose a network first.");
  play.Desk.Pick("lstnetworks", "Ten");
  play.Desk.ExpectSay("Sent!", "Tape sent!");
  play.Desk.Click("cmdsend");
  EXPECT_EQ(play.World().Game().TapeWait, 2);
  EXPECT_EQ(play.Desk.Text("lblfacts"), "0 of 3 shows on the air. Ten is watching our tape.");
  play.Desk.ExpectSay("Error!", "You can only send out one tape per month.");
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.Desk.TopName(), "frmTelevision");
}

TEST(frmPromoTape, SendsNoneForAFourthShow) {
  GameOnWorld play(SmallWorld()
                       .Network("Nine")
                       .Promotion("CWA")
                       .Show("One", "Monday", "Nine")
                       .Show("Two", "Tuesday", "Nine")
                       .Show("Three", "Friday", "Nine")
                       .Game("CWA"));
  play.Desk.Open("frmTelevision");
  play.Desk.ExpectSay("Error!", "You already have the maximum amount of TV shows allowed.");
  play.Desk.Click("cmdpromo");
  play.World().Game().TapeWait = 1;
  play.Desk.ExpectSay("Error!", "You can only send out one tape per month.");
  play.Desk.Click("cmdpromo");
}

/// A network whose every spot is bigger than the player's 120 until `change` makes it smaller.
SmallWorld Offered(int size = kRegional, const Change<Network>& change = {}) {
  SmallWorld small;
  small
      .Network("Nine",
               [&](Network& n) {
                 n.EarlyAudience = n.PrimeAudience = n.LateAudience = n.GraveAudience = 900;
                 if (change) change(n);
               })
      .Promotion("NEW")
      .Promotion("CWA", size)
      .Game("CWA", kGameStart, [](GameInfo& g) { g.TvOfferWait = 1; });
  return small;
}

TEST(TvOffer, LastsByTheSize) {
  const int kWeeks[] = {52, 24, 12, 12, 6, 6};
  for (int size = kGlobal; size <= kBackyard; ++size) {
    GameOnWorld play(Offered(size));
    play.Desk.Open("frmTvOffer");
    EXPECT_EQ(play.Desk.Text("txtlength"), std::to_string(kWeeks[size - 1]) + " Weeks");
  }
}

TEST(TvOffer, TakesTheLastSlotThatThePromotionOutdraws) {
  struct Case {
    int Early, Late, Prime;
    const char* Slot;
  };
  constexpr Case kCases[] = {{120, 120, 120, "Graveyard [12:00am - 2:00am]"},
                             {119, 120, 120, "Early Evening [6:00pm - 8:00pm]"},
                             {119, 119, 120, "Late Evening [10:00pm - 12:00am]"},
                             {119, 119, 119, "Prime Time [8:00pm - 10:00pm]"},
                             {120, 119, 120, "Late Evening [10:00pm - 12:00am]"},
                             {120, 120, 119, "Prime Time [8:00pm - 10:00pm]"}};
  for (const Case& c : kCases) {
    GameOnWorld play(Offered(kRegional, [&](Network& n) {
      n.EarlyAudience = c.Early;
      n.LateAudience = c.Late;
      n.PrimeAudience = c.Prime;
      n.GraveAudience = 0;
    }));
    play.Desk.Open("frmTvOffer");
    EXPECT_EQ(play.Desk.Text("txttime"), c.Slot);
  }
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

TEST(TvOffer, HasTheDaysOnWhichBothAreFree) {
  for (const bool generic : {false, true}) {
    GameOnWorld play(Offered(kRegional, [&](Network& n) { n.Generic = generic; }));
    Occupy(play.World(), 1, "G", {"Wednesday", "Sunday"});
    Occupy(play.World(), 1, "P", {"Thursday"});
    Occupy(play.World(), 2, "E", {"Tuesday"});
    Occupy(play.World(), 1, "G", {"Friday"}, 99);
    play.Desk.Open("frmTvOffer");
    const Names days =
        generic ? Names{"Monday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"}
                : Names{"Monday", "Thursday", "Friday", "Saturday"};
    EXPECT_EQ(play.Desk.FirstColumn("cmbdays"), days);
    EXPECT_EQ(play.Desk.Text("cmbdays"), "Monday");
  }
}

TEST(TvOffer, BecomesAShow) {
  GameOnWorld play(Offered());
  play.Desk.Open("frmTelevision");
  EXPECT_EQ(play.Desk.Text("cmdpromo"), "View TV Offer!");
  EXPECT_EQ(play.Desk.Tip("cmdpromo"), "You have an offer from a network to consider!");
  play.Desk.Click("cmdpromo");
  ASSERT_EQ(play.Desk.TopName(), "frmTvOffer");
  play.Desk.Pick("cmbdays", "Thursday");
  play.Desk.Type("txtname", "  Sl\xE1inte Thursday ");
  play.Desk.Click("cmdaccept");
  ASSERT_EQ(play.Desk.TopName(), "frmTelevision");
  EXPECT_EQ(play.Desk.Text("txttime"), "Thursday, Graveyard");
  EXPECT_EQ(play.Desk.Text("cmdpromo"), "Send Out Promo Tapes");
  play.Reopen();
  World& world = play.World();
  ASSERT_EQ(world.Shows().Count(), 1);
  const Show& show = world.Shows()[1];
  EXPECT_EQ(show.Name.View(), "Sl\xE1inte Thursday");
  EXPECT_EQ(show.Owner, world.PlayerUid());
  EXPECT_EQ(show.Day.View(), "Thursday");
  EXPECT_EQ(show.Slot.View(), "G");
  EXPECT_EQ(show.Network, 1);
  EXPECT_EQ(show.ContractWeeks, 12);
  for (const int empty :
       {int(show.Announcer), int(show.Colour), int(show.ColourIsWorker), int(show.Rating1),
        int(show.Rating2), int(show.Rating3), int(show.Rating4)})
    EXPECT_EQ(empty, 0);
  EXPECT_EQ(world.Game().TvOfferWait, 0);
  for (const auto& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST(TvOffer, WantsANameOfItsOwn) {
  GameOnWorld play(Offered());
  Occupy(play.World(), 1, "P", {"Monday"});
  play.World().MarkCommitted();
  const World before = CopyOf(play.World());
  play.Desk.Open("frmTvOffer");
  const std::pair<const char*, const char*> kNames[] = {
      {"", "Type a name first."},
      {"   ", "Type a name first."},
      {"None", "\"None\" stands for nothing at all and cannot be a name."},
      {"To Be Deleted", "No show can be called that."},
      {"Twenty-one letters it", "A name has at most 20 letters. This one has 21."},
      {"1 on Monday", "The show name needs to be unique!"},
      {" 1 on Monday ", "The show name needs to be unique!"}};
  for (const auto& [name, says] : kNames) {
    play.Desk.Type("txtname", name);
    play.Desk.ExpectSay("Error!", says);
    play.Desk.Click("cmdaccept");
  }
  ExpectSame(play.World(), before);
}

TEST(TvOffer, CanBeTurnedDownOrLeftForLater) {
  GameOnWorld play(Offered());
  play.Desk.Open("frmTelevision");
  play.Desk.Click("cmdpromo");
  play.Desk.Click("cmdback");
  EXPECT_EQ(play.World().Game().TvOfferWait, 1);
  play.World().Game().TapeWait = 1;
  play.Desk.Click("cmdpromo");
  play.Desk.Click("cmdreject");
  EXPECT_EQ(play.World().Game().TvOfferWait, 0);
  EXPECT_EQ(play.World().Game().TapeWait, 0);
  EXPECT_EQ(play.Desk.Text("cmdpromo"), "Send Out Promo Tapes");
  EXPECT_EQ(play.World().Shows().Count(), 0);
}

constexpr const char* kWithdrawn =
    "Sorry, scheduling conflicts mean that the network have removed the offer.";
const Names kWholeWeek = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                          "Friday", "Saturday", "Sunday"};

TEST(TvOffer, IsWithdrawnWhenNoDayIsLeft) {
  GameOnWorld play(Offered());
  Occupy(play.World(), 1, "G", kWholeWeek);
  play.Desk.Open("frmTelevision");
  play.Desk.ExpectSay("No offer", kWithdrawn);
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.Desk.TopName(), "frmTelevision");
  EXPECT_EQ(play.World().Game().TvOfferWait, 0);
  EXPECT_EQ(play.Desk.Text("cmdpromo"), "Send Out Promo Tapes");
}

TEST(TvOffer, IsWithdrawnWhenItsNetworkIsGone) {
  GameOnWorld play(Offered());
  play.World().Game().TvOfferWait = 3;
  play.Desk.Open("frmTelevision");
  play.Desk.ExpectSay("No offer", kWithdrawn);
  play.Desk.Click("cmdpromo");
  EXPECT_EQ(play.World().Game().TvOfferWait, 0);
}

TEST(TvOffer, AsksForAnotherDayWhenTheChosenOneIsGone) {
  GameOnWorld play(Offered());
  play.Desk.Open("frmTvOffer");
  play.Desk.Type("txtname", "Late");
  play.Desk.Pick("cmbdays", "Tuesday");
  Occupy(play.World(), 1, "G", {"Tuesday"});
  play.Desk.ExpectSay("Error!", "That day has gone to another show meanwhile. Choose another.");
  play.Desk.Click("cmdaccept");
  EXPECT_EQ(play.Desk.Text("cmbdays"), "Monday");
  play.Desk.Click("cmdaccept");
  EXPECT_EQ(Named(play.World().Shows(), "Late").Day.View(), "Monday");
}

TEST(TvOffer, GivesNobodyAFourthShow) {
  GameOnWorld play(Offered());
  Occupy(play.World(), 2, "P", {"Monday", "Tuesday", "Friday"});
  play.Desk.Open("frmTvOffer");
  play.Desk.Type("txtname", "Fourth");
  play.Desk.ExpectSay("Error!", "You already have the maximum amount of TV shows allowed.");
  play.Desk.Click("cmdaccept");
  EXPECT_EQ(play.World().Shows().Count(), 3);
  EXPECT_EQ(play.World().Game().TvOfferWait, 1);
}

}  // namespace
}  // namespace grapplemont::test
