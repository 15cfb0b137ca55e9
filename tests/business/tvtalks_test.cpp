#include "business/tvtalks.h"

#include <gtest/gtest.h>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

/// Audience of every slot; half of it is 202.5, seven tenths 283.5, nine tenths 364.5.
constexpr int kAudience = 405;
/// A last rating for each view of the network.
constexpr int kRatingFor[] = {0, 202, 283, 364, 405};

void Rate(Show& show, NetworkView view) {
  show.Rating1 = kRatingFor[view];
  show.Rating3 = kRatingFor[view];
}

SmallWorld OnTheAir(int size = kRegional) {
  SmallWorld small;
  small
      .Network("Nine",
               [](Network& n) {
                 n.EarlyAudience = n.PrimeAudience = n.LateAudience = n.GraveAudience = kAudience;
                 n.EarlyRisk = 40;
                 n.PrimeRisk = 50;
                 n.LateRisk = 60;
                 n.GraveRisk = 70;
               })
      .Promotion("NEW")
      .Promotion("CWA", size, [](Promotion& p) { p.Risk = 30; })
      .Show("Friday Fire", "Friday", "Nine")
      .Game("CWA");
  return small;
}

/// The talks about a show of this slot, view and risk, opened on a desk.
struct Talks {
  GameOnWorld Play;
  ScriptDesk& Desk = Play.Desk;

  Talks(const char* slot, NetworkView view, int risk, int size = kRegional) : Play(OnTheAir(size)) {
    TheShow().Slot = slot;
    Rate(TheShow(), view);
    Play.World().Player().Risk = risk;
    Desk.Open("frmTelevision");
    Desk.Click("cmdnegotiate");
  }
  Show& TheShow() { return Named(Play.World().Shows(), "Friday Fire"); }
};

TEST(NetworkView, ChangesAtItsLimits) {
  constexpr int kCases[][2] = {{0, kTerrible}, {202, kTerrible}, {203, kLow},   {283, kLow},
                               {284, kHappy},  {364, kHappy},    {365, kGreat}, {900, kGreat}};
  for (const char* slot : {"E", "P", "L", "G"}) {
    Network network;
    network.EarlyAudience = network.PrimeAudience = network.LateAudience = network.GraveAudience =
        kAudience;
    Show show;
    show.Slot = slot;
    show.Rating3 = 900;
    EXPECT_EQ(ViewOf(show, network), kUnseen) << "the highest rating tells that it was held";
    show.Rating1 = 1;
    for (const auto& [rating, view] : kCases) {
      show.Rating3 = rating;
      EXPECT_EQ(ViewOf(show, network), view) << rating;
    }
  }
}

TEST(frmTVContract, AsksTheNetwork) {
  struct Case {
    NetworkView View;
    const char *Title, *Text;
  };
  constexpr Case kCases[] = {
      {kTerrible, "Terrible ratings!",
       "Network: 'We are extremely concerned about the poor ratings that this show is getting.'"},
      {kLow, "Low ratings!",
       "Network: 'We are concerned about the ratings that this show is getting.'"},
      {kHappy, "Happy.", "Network: 'We are happy with the ratings for this show.'"},
      {kGreat, "Great ratings!", "Network: 'We are very happy with the ratings for this show.'"}};
  for (const int risk : {50, 51}) {
    for (const Case& c : kCases) {
      Talks talks("P", c.View, risk);
      if (risk > 50)
        talks.Desk.ExpectSay("Too risky!",
                             "Network: 'We are not happy with the risky nature of your product.'");
      talks.Desk.ExpectSay(c.Title, c.Text);
      talks.Desk.Click("cmdask");
    }
    Talks unseen("P", kUnseen, risk);
    unseen.Desk.ExpectSay("No shows", "Network: 'We haven't seen any shows yet.'");
    unseen.Desk.Click("cmdask");
  }
}

TEST(frmTVContract, RejectsAnExtensionForTheFirstReason) {
  struct Case {
    NetworkView View;
    int Risk, Weeks;
    const char* Text;
  };
  constexpr Case kCases[] = {
      {kUnseen, 51, 13,
       "Network: 'We are not going to negotiate until you lower your product's risk value!'"},
      {kUnseen, 50, 13, "Network: 'We are not going to negotiate without having seen a show!'"},
      {kTerrible, 50, 13,
       "Network: 'We are not looking to extend the contract at the present time.'"},
      {kLow, 50, 12, "Network: 'We are not looking to extend the contract at the present time.'"},
      {kHappy, 50, 13,
       "Network: 'We do not want to enter negotiations when the contract still has over 3 months "
       "to run.'"},
      {kGreat, 50, 13,
       "Network: 'We do not want to enter negotiations when the contract still has over 3 months "
       "to run.'"}};
  for (const Case& c : kCases) {
    Talks talks("P", c.View, c.Risk);
    talks.TheShow().ContractWeeks = c.Weeks;
    talks.Desk.ExpectSay("Rejection!", c.Text);
    talks.Desk.Click("cmdcontract");
    EXPECT_EQ(talks.TheShow().ContractWeeks, c.Weeks);
  }
}

TEST(frmTVContract, ExtendsTheDeal) {
  struct Case {
    NetworkView View;
    const char* Text;
    int Weeks;
  };
  constexpr Case kCases[] = {
      {kHappy, "Network: 'We are willing to offer a 6 month extension on the deal.'\nAccept?", 36},
      {kGreat, "Network: 'We are willing to offer a 9 month extension on the deal.'\nAccept?", 48}};
  for (const Case& c : kCases) {
    Talks talks("P", c.View, 50);
    talks.TheShow().ContractWeeks = 12;
    talks.Desk.ExpectAsk("Offer!", c.Text, false);
    talks.Desk.Click("cmdcontract");
    EXPECT_EQ(talks.TheShow().ContractWeeks, 12);
    talks.Desk.ExpectAsk("Offer!", c.Text, true);
    talks.Desk.Click("cmdcontract");
    EXPECT_EQ(talks.TheShow().ContractWeeks, c.Weeks);
    talks.Desk.Click("cmdback");
    EXPECT_EQ(talks.Desk.Text("txtcontract"), std::to_string(c.Weeks) + " weeks");
  }
}

TEST(frmTVContract, EndsABadShowForNothing) {
  Talks talks("P", kTerrible, 90);
  const int money = talks.Play.World().Player().Money;
  talks.Desk.ExpectAsk("End Deal?", "Network: 'We are happy to mutually end this deal.'\nContinue?",
                       true, ui::Default::No);
  talks.Desk.Click("cmdend");
  EXPECT_EQ(talks.Desk.TopName(), "frmTelevision");
  EXPECT_EQ(talks.Desk.Text("lblfacts"), "0 of 3 shows on the air.");
  EXPECT_EQ(talks.Play.World().Shows().Count(), 0);
  EXPECT_EQ(talks.Play.World().Player().Money, money);
}

TEST(frmTVContract, EndsAnyOtherShowForAPenaltyByTheSize) {
  constexpr int kPenalties[] = {20000000, 20000000, 15000000, 8000000, 6000000, 2000000};
  for (int size = kGlobal; size <= kBackyard; ++size) {
    // A show that has never been held costs as much as a good one.
    constexpr NetworkView kViews[] = {kUnseen, kLow, kHappy, kGreat};
    Talks talks("P", kViews[size % 4], 30, size);
    talks.Play.World().Player().Money = 1000;
    const int penalty = kPenalties[size - 1];
    const std::string text =
        "Network: 'We do not wish to end this deal.If you breach the contract, we will sue you "
        "for $" +
        std::to_string(penalty) + ".'\nContinue?";
    talks.Desk.ExpectAsk("End Deal?", text, false);
    talks.Desk.Click("cmdend");
    EXPECT_EQ(talks.Play.World().Player().Money, 1000);
    EXPECT_EQ(talks.Play.World().Shows().Count(), 1);
    talks.Desk.ExpectAsk("End Deal?", text, true);
    talks.Desk.Click("cmdend");
    EXPECT_EQ(talks.Play.World().Player().Money, 1000 - penalty);
    EXPECT_EQ(talks.Play.World().Shows().Count(), 0);
  }
}

constexpr const char* kBack =
    "Network: 'We would be willing to move this show back, but only if your promotion reduced its "
    "risk level.'";
constexpr const char* kDownToGrave =
    "Network: 'We would be happy to move this show down to a graveyard slot.'";
constexpr const char* kPrimeOnRisk =
    "Network: 'We would be willing to move this show to prime time, but only if your promotion "
    "reduced its risk level.'";

struct Move {
  const char* From;
  NetworkView View;
  const char* To;
  int Risk;  // the limit below which it must be
  const char *Offer, *TooRisky;
};
constexpr Move kMoves[] = {
    {"E", kTerrible, "G", 70, "Network: 'We would be happy to move this show to a graveyard slot.'",
     kBack},
    {"E", kHappy, "L", 60, "Network: 'We are willing to move this show to a late evening slot.'",
     "Network: 'We would be willing to move this show to a late evening slot, but only if your "
     "promotion reduced its risk level.'"},
    {"E", kGreat, "P", 50, "Network: 'We are willing to move this show to prime time.'",
     kPrimeOnRisk},
    {"P", kTerrible, "G", 60, kDownToGrave, kBack},
    {"P", kLow, "L", 60,
     "Network: 'We would be happy to move this show down to a late evening slot.'", kBack},
    {"L", kTerrible, "G", 70, kDownToGrave, kBack},
    {"L", kLow, "G", 70, kDownToGrave, kBack},
    {"L", kGreat, "P", 50, "Network: 'We are willing to move this show to a prime time slot.'",
     kPrimeOnRisk},
    {"G", kGreat, "L", 60, "Network: 'We are willing to move this show to a late evening slot.'",
     "Network: 'We would be willing to move this show forward, but only if your promotion reduced "
     "its risk level.'"}};

std::string TakenText(std::string_view slot) {
  const std::string name = slot == "G" ? "graveyard" : slot == "L" ? "late night" : "prime time";
  return "Network: 'We would move you to a " + name + " slot, but we already have a show then.'";
}

/// Another promotion's show of the network in that slot, on another day.
void Occupy(World& world, const char* slot) {
  Show show = world.Shows()[1];
  show.Name = "In the way";
  show.Owner = 1;
  show.Day = "Tuesday";
  show.Slot = slot;
  world.Shows().Append(show);
}

TEST(frmTVContract, MovesAShowUnderTheLimitOfRiskWhateverOtherNetworksAir) {
  for (const Move& move : kMoves) {
    SCOPED_TRACE(std::string(move.From) + std::to_string(move.View));
    Talks talks(move.From, move.View, move.Risk - 1);
    Occupy(talks.Play.World(), move.To);
    talks.Play.World().Shows()[2].Network = 99;
    const std::string text = move.Offer + std::string("\nContinue?");
    talks.Desk.ExpectAsk("Offer!", text, false);
    talks.Desk.Click("cmdtime");
    EXPECT_EQ(talks.TheShow().Slot.View(), move.From);
    talks.Desk.ExpectAsk("Offer!", text, true);
    talks.Desk.Click("cmdtime");
    EXPECT_EQ(talks.TheShow().Slot.View(), move.To);
  }
}

TEST(frmTVContract, MovesNoShowThatIsTooRiskyWhateverElse) {
  for (const Move& move : kMoves)
    for (const int risk : {move.Risk, move.Risk + 1}) {
      SCOPED_TRACE(std::string(move.From) + std::to_string(move.View));
      Talks talks(move.From, move.View, risk);
      Occupy(talks.Play.World(), move.To);
      talks.Desk.ExpectSay("Rejection!", move.TooRisky);
      talks.Desk.Click("cmdtime");
      EXPECT_EQ(talks.TheShow().Slot.View(), move.From);
    }
}

TEST(frmTVContract, MovesAShowToATakenSlotOfAGenericNetworkAlone) {
  for (const Move& move : kMoves) {
    SCOPED_TRACE(std::string(move.From) + std::to_string(move.View));
    Talks talks(move.From, move.View, move.Risk - 1);
    Occupy(talks.Play.World(), move.To);
    talks.Desk.ExpectSay("Rejection!", TakenText(move.To));
    talks.Desk.Click("cmdtime");
    EXPECT_EQ(talks.TheShow().Slot.View(), move.From);
    talks.Play.World().Networks()[1].Generic = true;
    talks.Desk.ExpectAsk("Offer!", kAnyText, true);
    talks.Desk.Click("cmdtime");
    EXPECT_EQ(talks.TheShow().Slot.View(), move.To);
  }
}

}  // namespace
}  // namespace grapplemont::test
