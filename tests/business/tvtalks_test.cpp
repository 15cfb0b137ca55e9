#include "business/tvtalks.h"

#include <gtest/gtest.h>

#include "business/tvshows.h"
#include "support/gameonworld.h"

// What a network says of a show of the player's and to their wishes, and what Maeve thinks of it.

namespace grapplemont::test {
namespace {

/// Audience of every slot: half of it is 202.5, seven tenths 283.5, nine tenths 364.5.
constexpr int kAudience = 405;
/// A last rating for each view of the network.
constexpr int kRatingFor[] = {0, 202, 283, 364, 405};

/// A world with a show of this slot, view and risk.
World OnTheAir(const char* slot, NetworkView view, int risk, int size = kRegional) {
  return SmallWorld()
      .Network("Nine",
               [](Network& n) {
                 n.EarlyAudience = n.PrimeAudience = n.LateAudience = n.GraveAudience = kAudience;
                 n.EarlyRisk = 40;
                 n.PrimeRisk = 50;
                 n.LateRisk = 60;
                 n.GraveRisk = 70;
               })
      .Promotion("NEW")
      .Promotion("CWA", size, [&](Promotion& p) { p.Risk = risk; })
      .Show("Friday Fire", "Friday", "Nine",
            [&](Show& s) {
              s.Slot = slot;
              s.Rating1 = s.Rating3 = kRatingFor[view];
              s.ContractWeeks = 12;
            })
      .Game("CWA");
}

/// The talks about that show, opened on a desk.
struct Talks {
  GameOnWorld Play;
  ScriptDesk& Desk = Play.Desk;

  explicit Talks(World world) : Play(std::move(world)) {
    Desk.Open("frmTelevision");
    Desk.Click("cmdnegotiate");
  }
  Show& TheShow() { return Play.World().Shows()[1]; }
};

TEST(NetworkView, ChangesAtItsLimits) {
  World world = OnTheAir("P", kUnseen, 30);
  Show& show = world.Shows()[1];
  std::string views;
  for (const int rating : {202, 203, 283, 284, 364, 365}) {
    show.Rating3 = rating;
    EXPECT_EQ(ViewOf(show, world.Networks()[1]), kUnseen) << "until the highest is one";
    show.Rating1 = rating;
    views += std::to_string(ViewOf(show, world.Networks()[1]));
    show.Rating1 = 0;
  }
  EXPECT_EQ(views, "122334");
}

TEST(AskNetwork, HearsOfTheRiskAndTheRatings) {
  const std::string risky = "Too risky!;";
  for (const auto& [view, risk, titles] : {std::tuple(kUnseen, 51, std::string("No shows;")),
                                           {kTerrible, 50, "Terrible ratings!;"},
                                           {kLow, 51, risky + "Low ratings!;"},
                                           {kHappy, 50, "Happy.;"},
                                           {kGreat, 51, risky + "Great ratings!;"}}) {
    const World world = OnTheAir("P", view, risk);
    std::string said;
    for (const TvRemark& remark : AskNetwork(world.Player(), world.Shows()[1], world.Networks()[1]))
      said += remark.Title + ";";
    EXPECT_EQ(said, titles);
  }
}

TEST(frmTVContract, ExtendsTheDealOrSaysWhyNot) {
  Talks talks(OnTheAir("P", kGreat, 50));
  for (const bool answer : {false, true}) {
    talks.Desk.ExpectAsk(
        "Offer!", "Network: 'We are willing to offer a 9 month extension on the deal.'\nAccept?",
        answer);
    talks.Desk.Click("cmdcontract");
    EXPECT_EQ(talks.TheShow().ContractWeeks, answer ? 48 : 12);
  }
  const auto rejected = [&](const std::string& why) {
    talks.Desk.ExpectSay("Rejection!", "Network: 'We " + why + "'");
    talks.Desk.Click("cmdcontract");
  };
  talks.TheShow().ContractWeeks = 13;
  rejected("do not want to enter negotiations when the contract still has over 3 months to run.");
  talks.TheShow().Rating3 = kRatingFor[kLow];
  rejected("are not looking to extend the contract at the present time.");
  talks.TheShow().Rating1 = 0;
  rejected("are not going to negotiate without having seen a show!");
  talks.Play.World().Player().Risk = 51;
  rejected("are not going to negotiate until you lower your product's risk value!");
  EXPECT_EQ(talks.TheShow().ContractWeeks, 13);
  const World happy = OnTheAir("P", kHappy, 50);
  EXPECT_EQ(TalkOfExtension(happy.Player(), happy.Shows()[1], happy.Networks()[1]).Weeks, 24);
}

TEST(TheNetwork, WeighsWhatItAnswers) {
  for (const char* slot : {"E", "P", "L", "G"})
    for (const NetworkView view : {kUnseen, kTerrible, kLow, kHappy, kGreat})
      for (const int risk : {0, 90})
        for (const int weeks : {12, 13}) {
          World world = OnTheAir(slot, view, risk);
          world.Shows()[1].ContractWeeks = weeks;
          const Show& show = world.Shows()[1];
          const Network& nine = world.Networks()[1];
          const ExtensionTalk more = TalkOfExtension(world.Player(), show, nine);
          EXPECT_EQ(more.Why.IsYes(), more.Weeks > 0) << WhyText(more.Text, more.Why);
          const MoveTalk move = TalkOfMove(world, world.Player(), show, nine);
          EXPECT_EQ(move.Why.IsYes(), !move.Slot.empty()) << WhyText(move.Text, move.Why);
          const EndingTalk end = TalkOfEnding(world.Player(), show, nine);
          EXPECT_EQ(end.Why.IsYes(), end.Penalty == 0) << WhyText(end.Text, end.Why);
          Decision why;
          AskNetwork(world.Player(), show, nine, &why);
          EXPECT_EQ(why.IsYes(), view >= kHappy && risk == 0) << WhyText("", why);
        }
}

TEST(frmTVContract, OpensItsLastAnswer) {
  Talks talks(OnTheAir("P", kLow, 50));
  EXPECT_EQ(talks.Desk.Tip("cmdwhy"), "Ask them something first.");
  talks.Desk.ExpectSay("Rejection!", kAnyText);
  talks.Desk.Click("cmdcontract");
  talks.Desk.Click("cmdwhy");
  EXPECT_EQ(talks.Desk.Text("txtwhy"),
            "+ Our risk is 50; they bear up to 50\n"
            "- Measured against a rating of 4.05, the last one of 2.83 is above 50% of it\n"
            "= Network: 'We are not looking to extend the contract at the present time.'");
}

TEST(frmTVContract, EndsABadShowForNothingAndAnyOtherForAPenalty) {
  std::vector<int> penalties;
  for (int size = kGlobal; size <= kBackyard; ++size) {
    const World world = OnTheAir("P", size == kCult ? kUnseen : kLow, 30, size);
    penalties.push_back(
        TalkOfEnding(world.Player(), world.Shows()[1], world.Networks()[1]).Penalty);
  }
  EXPECT_EQ(penalties, (std::vector{20000000, 20000000, 15000000, 8000000, 6000000, 2000000}));
  for (const NetworkView view : {kTerrible, kGreat}) {
    Talks talks(OnTheAir("P", view, 90));
    const int money = talks.Play.World().Player().Money;
    talks.Desk.ExpectAsk(
        "End Deal?",
        view == kTerrible
            ? "Network: 'We are happy to mutually end this deal.'\nContinue?"
            : "Network: 'We do not wish to end this deal.If you breach the contract, we will sue "
              "you for $8000000.'\nContinue?",
        true, ui::Default::No);
    talks.Desk.Click("cmdend");
    EXPECT_EQ(talks.Desk.Text("lblfacts"), "0 of 3 shows on the air.");
    EXPECT_EQ(talks.Play.World().Player().Money, money - (view == kTerrible ? 0 : 8000000));
  }
}

TEST(frmTVContract, MovesAShowUnderTheLimitOfRisk) {
  constexpr struct {
    const char* From;
    NetworkView View;
    const char* To;
    int Risk;  // the limit below which it must be
  } kMoves[] = {{"E", kTerrible, "G", 70}, {"E", kHappy, "L", 60}, {"E", kGreat, "P", 50},
                {"P", kTerrible, "G", 60}, {"P", kLow, "L", 60},   {"L", kTerrible, "G", 70},
                {"L", kLow, "G", 70},      {"L", kGreat, "P", 50}, {"G", kGreat, "L", 60}};
  std::size_t offers = 0;
  for (const char* from : {"E", "P", "L", "G"})
    for (const NetworkView view : {kUnseen, kTerrible, kLow, kHappy, kGreat})
      if (const World w = OnTheAir(from, view, 0);
          !TalkOfMove(w, w.Player(), w.Shows()[1], w.Networks()[1]).Slot.empty())
        ++offers;
  EXPECT_EQ(offers, std::size(kMoves)) << "and nothing else";
  for (const auto& move : kMoves) {
    SCOPED_TRACE(std::string(move.From) + std::to_string(move.View));
    World world = OnTheAir(move.From, move.View, move.Risk);
    const auto talk = [&] {
      return TalkOfMove(world, world.Player(), world.Shows()[1], world.Networks()[1]);
    };
    EXPECT_NE(talk().Text.find("but only if your promotion reduced"), std::string::npos);
    EXPECT_EQ(talk().Slot, "");
    world.Player().Risk = move.Risk - 1;
    EXPECT_EQ(talk().Slot, move.To);
    Show other = world.Shows()[1];
    other.Day = "Tuesday";
    other.Slot = move.To;
    world.Shows().Append(other);
    EXPECT_NE(talk().Text.find("but we already have a show then.'"), std::string::npos);
    world.Networks()[1].Generic = true;
    EXPECT_EQ(talk().Slot, move.To) << "room for any number";
    world.Networks()[1].Generic = false;
    world.Shows()[2].Network = 99;
    EXPECT_EQ(talk().Slot, move.To) << "whatever other networks air";
  }
  Talks talks(OnTheAir("E", kGreat, 49));
  for (const bool answer : {false, true}) {
    talks.Desk.ExpectAsk(
        "Offer!", "Network: 'We are willing to move this show to prime time.'\nContinue?", answer);
    talks.Desk.Click("cmdtime");
    EXPECT_EQ(talks.TheShow().Slot.View(), answer ? "P" : "E");
  }
  talks.Desk.ExpectSay("Rejection!",
                       "Network: 'We do not wish to move the time slot of this show.'");
  talks.Desk.Click("cmdtime");
}

/// The first words of each thing that Maeve says of a National show whose slot wants 402 and bears
/// 60; 60 is what its public expects of commentators.
std::string Advice(const std::function<void(World&, Show&)>& change, int size = kNational) {
  World world =
      SmallWorld()
          .Network("Nine", [](Network& n) { n.PrimeAudience = 402; })
          .Promotion("CWA", size)
          .Staff("Nigel", kAnnouncer, 90)
          .Staff("Carol", kAnnouncer, 90)
          .Worker("Bram", [](Worker& w) { w.Charisma = 49; })
          .Show("Friday Fire", "Friday", "Nine",
                [](Show& s) { s.Announcer = 1, s.Colour = 2, s.Rating1 = 500, s.Rating3 = 300; })
          .Game("CWA");
  Show& show = world.Shows()[1];
  change(world, show);
  std::string titles;
  for (const TvRemark& remark : TvAdvice(world, show, world.Networks()[1])) {
    EXPECT_EQ(remark.Text.find("Maeve: '"), 0u);
    titles += (titles.empty() ? "" : " ") + remark.Title;
  }
  return titles;
}

TEST(Maeve, SpeaksOfTheTable) {
  const std::string quiet = "Nothing's Happening!";
  EXPECT_EQ(Advice([](World&, Show&) {}), quiet);
  EXPECT_EQ(Advice([](World&, Show& s) { s.Announcer = 0; }), "No Announcer! " + quiet);
  EXPECT_EQ(Advice([](World&, Show& s) { s.Colour = 9; }), "No Colour Commentator! " + quiet);
  EXPECT_EQ(Advice([](World& w, Show&) { w.FindStaff(2)->Talent = 50; }), quiet);
  EXPECT_EQ(Advice([](World& w, Show&) { w.FindStaff(2)->Talent = 49; }),
            "Poor Colour Commentator! " + quiet);
  const auto bram = [](World&, Show& s) {
    s.Colour = 1;
    s.ColourIsWorker = true;
  };
  EXPECT_EQ(Advice(bram), "Poor Colour Commentator! " + quiet) << "by their charisma";
  EXPECT_EQ(Advice(bram, kSmall), quiet) << "less is expected there";
}

TEST(Maeve, SpeaksOfTheRatingsElseOfTheRisk) {
  // Of 402: 241.2, 281.4, 321.6 and 361.8. Of 400: 240, 280, 320 and 360.
  constexpr struct {
    int Audience, Rating, Risk;
    const char* Says;
  } kCases[] = {{402, 281, 99, "Uh-oh!"},
                {402, 282, 60, "Nothing's Happening!"},
                {402, 321, 61, "Too Risky!"},
                {402, 322, 61, "OK!"},
                {402, 362, 61, "Great!"},
                {400, 279, 60, "Uh-oh!"},
                {400, 320, 60, "Nothing's Happening!"},
                {400, 360, 60, "OK!"}};
  for (const auto& c : kCases)
    EXPECT_EQ(Advice([&](World& w, Show& s) {
                w.Networks()[1].PrimeAudience = c.Audience;
                w.Player().Risk = c.Risk;
                s.Rating3 = c.Rating;
              }),
              c.Says)
        << c.Rating;
  World world = OnTheAir("P", kLow, 30);
  world.Networks()[1].PrimeAudience = 400;
  for (const auto& [rating, well] : {std::pair(239, true), {240, false}}) {
    world.Shows()[1].Rating3 = rating;
    const auto advice = TvAdvice(world, world.Shows()[1], world.Networks()[1]);
    EXPECT_EQ(advice.back().Text.find("well below") != std::string::npos, well) << rating;
  }
  EXPECT_EQ(Advice([](World&, Show& s) { s.Rating1 = 0; }), "Duh!");
}

TEST(NetworkWants, AreToldInWords) {
  World world = OnTheAir("P", kHappy, 30);
  for (const auto& [strikes, words] :
       {std::pair(0, "No strikes."), {4, "4 strikes, and somehow nobody has noticed."}}) {
    world.Shows()[1].Rating4 = strikes;
    EXPECT_EQ(NetworkWants(world.Player(), world.Shows()[1], world.Networks()[1]),
              std::string("Nine measures the show against a rating of 4. 05 in Prime Time.\n"
                          "It bears a risk of 50 there. Ours is 30.\n"
                          "It asks for production values of 10. Ours are 20.\n") +
                  words);
  }
}

}  // namespace
}  // namespace grapplemont::test
