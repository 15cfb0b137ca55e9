#include <gtest/gtest.h>

#include "business/networks.h"
#include "business/tvshows.h"
#include "records/severing.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// "NEW", a rival, and "CWA", the player's; each with a show that the network is content with.
SmallWorld TwoShows(int rivalSize = kRegional) {
  SmallWorld small;
  small.Network("Nine", [](Network& n) { n.PrimeAudience = 405; })
      .Promotion("NEW", rivalSize, [](Promotion& p) { p.Risk = 60; })
      .Show("New Hour", "Friday", "Nine", [](Show& s) { s.Rating1 = s.Rating3 = 400; })
      .Promotion("CWA", kRegional)
      .Show("Our Hour", "Monday", "Nine", [](Show& s) { s.Rating1 = s.Rating3 = 400; })
      .Game("CWA");
  return small;
}

TEST(TvContractReview, CountsTheWeeksOfEveryShow) {
  World world = TwoShows();
  world.Shows()[1].ContractWeeks = 4;
  world.Shows()[2].ContractWeeks = 500;
  world.Shows()[2].Rating4 = 2;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[1].ContractWeeks, 3);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 499);
  EXPECT_EQ(NewsOf(world), "");
}

TEST(TvContractReview, RenewsARivalsShowAtTwoWeeks) {
  struct Case {
    int Risk, Rating, Weeks;
  };
  // Seven tenths of 405 are 283, eight tenths 324.
  constexpr Case kCases[] = {{60, 282, 2},  {60, 283, 20}, {60, 324, 20},
                             {60, 325, 27}, {61, 400, 2},  {0, 0, 2}};
  for (const Case& c : kCases) {
    World world = TwoShows();
    Show& show = world.Shows()[1];
    show.ContractWeeks = 3;
    show.Rating3 = c.Rating;
    world.Promotions()[1].Risk = c.Risk;
    TvContractReview(world);
    EXPECT_EQ(show.ContractWeeks, c.Weeks) << c.Rating << " at " << c.Risk;
    EXPECT_EQ(NewsOf(world), c.Weeks == 2
                                 ? ""
                                 : "TV News: NEW's New Hour has been renewed for a further " +
                                       std::to_string(c.Weeks - 2) + " weeks!\n");
  }
}

TEST(TvContractReview, MeasuresARenewalByTheShowsOwnSlot) {
  for (const auto& [slot, weeks] : {std::pair("L", 27), {"P", 2}, {"G", 2}}) {
    World world = TwoShows();
    world.Networks()[1].PrimeAudience = 900;
    world.Networks()[1].LateAudience = 405;
    world.Networks()[1].LateRisk = 60;
    world.Networks()[1].GraveRisk = 59;
    world.Networks()[1].GraveAudience = 405;
    world.Shows()[1].Slot = slot;
    world.Shows()[1].ContractWeeks = 3;
    TvContractReview(world);
    EXPECT_EQ(world.Shows()[1].ContractWeeks, weeks) << slot;
  }
}

TEST(TvContractReview, NeverRenewsThePlayersShow) {
  World world = TwoShows();
  world.Shows()[2].ContractWeeks = 3;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 2);
  EXPECT_EQ(NewsOf(world), "");
}

struct End {
  const char* What;
  int Weeks, Strikes;
  const char* Told;  // nullptr: the show goes on
};
constexpr End kEnds[] = {
    {"the last week", 1, 0, " has not been renewed by Nine!"},
    {"three strikes", 9, 3, " has been dropped by Nine!"},
    {"both at once", 1, 3, " has not been renewed by Nine!"},
    {"two strikes", 9, 2, nullptr},
    {"four strikes", 9, 4, nullptr},
};

TEST(TvContractReview, EndsShows) {
  for (const End& end : kEnds)
    for (const int number : {1, 2}) {
      World world = TwoShows();
      Show& show = world.Shows()[number];
      const std::string name = show.Name.Str();
      show.ContractWeeks = end.Weeks;
      show.Rating4 = end.Strikes;
      TvContractReview(world);
      EXPECT_EQ(show.Name.Str(), end.Told ? std::string(kToBeDeleted) : name) << end.What;
      EXPECT_EQ(NewsOf(world), end.Told ? "TV News: " + name + end.Told + "\n" : "") << end.What;
      SweepDeadShows(world);
      EXPECT_EQ(world.Shows().Count(), end.Told ? 1 : 2) << end.What;
    }
}

TEST(TvContractReview, AlwaysTellsOfThePlayersOwnShow) {
  for (const End& end : kEnds) {
    World world = TwoShows();
    world.Game().MailTv = 2;
    world.Shows()[2].ContractWeeks = end.Weeks;
    world.Shows()[2].Rating4 = end.Strikes;
    TvContractReview(world);
    EXPECT_EQ(world.News().Count(), end.Told ? 1 : 0) << end.What;
  }
}

TEST(TvContractReview, BearsShowsWithoutNetworkOrOwner) {
  World world = TwoShows();
  world.Shows()[1].Network = 9;
  world.Shows()[1].ContractWeeks = 3;
  world.Shows()[2].Owner = 0;
  world.Shows()[2].ContractWeeks = 0;
  TvContractReview(world);
  EXPECT_EQ(world.Shows()[1].ContractWeeks, 2);
  EXPECT_EQ(world.Shows()[2].ContractWeeks, 0);
  EXPECT_EQ(NewsOf(world), "");
}

using Boxes = std::vector<std::pair<std::string, std::string>>;

const Boxes::value_type kNoAnnouncer = {"No Announcer!",
                                        "Maeve: 'You need to assign an announcer to this show!'"};
const Boxes::value_type kPoorAnnouncer = {
    "Poor Announcer!", "Maeve: 'You need to assign a better announcer to this show!'"};
const Boxes::value_type kNoColour = {
    "No Colour Commentator!", "Maeve: 'You need to assign a colour commentator to this show!'"};
const Boxes::value_type kPoorColour = {
    "Poor Colour Commentator!",
    "Maeve: 'You need to assign a better colour commentator to this show!'"};
const Boxes::value_type kDuh = {
    "Duh!", "Maeve: 'What are you expecting me to say? We haven't even debuted this show yet!'"};
const Boxes::value_type kVeryBad = {
    "Uh-oh!",
    "Maeve: 'Our ratings are well below what the network expects, something needs to change very "
    "soon!'"};
const Boxes::value_type kBad = {
    "Uh-oh!",
    "Maeve: 'Our ratings are below what the network expects, something needs to change!'"};
const Boxes::value_type kSuperb = {
    "Great!", "Maeve: 'Our ratings are superb, the network are very happy with us!'"};
const Boxes::value_type kGood = {
    "OK!", "Maeve: 'Our ratings are good, the network appears to be happy with us.'"};
const Boxes::value_type kRisky = {
    "Too Risky!",
    "Maeve: 'We need to tone down the riskiness of the show if we want to stay on the air!'"};
const Boxes::value_type kSilent = {"Nothing's Happening!", "Maeve: 'I have nothing to report.'"};

/// A National show whose slot wants 402 and bears 60; 60 is what its public expects of
/// commentators. Nothing is wrong with it, and nothing is worth a word.
SmallWorld Quiet(int size = kNational) {
  SmallWorld small;
  small.Network("Nine", [](Network& n) { n.PrimeAudience = 402; })
      .Promotion("CWA", size)
      .Staff("Nigel", kAnnouncer, 90)
      .Staff("Carol", kAnnouncer, 90)
      .Worker("Bram", [](Worker& w) { w.Charisma = 90; })
      .Show("Friday Fire", "Friday", "Nine",
            [](Show& s) {
              s.Announcer = 1;
              s.Colour = 2;
              s.Rating1 = 500;
              s.Rating3 = 300;
            })
      .Game("CWA");
  return small;
}

/// The boxes that come up in the order in which Maeve speaks.
void ExpectAdvice(const std::function<void(World&, Show&)>& change, const Boxes& boxes,
                  const std::string& what, int size = kNational) {
  SCOPED_TRACE(what);
  GameOnWorld play(Quiet(size));
  change(play.World(), play.World().Shows()[1]);
  play.Desk.Open("frmTelevision");
  for (const auto& [title, text] : boxes) play.Desk.ExpectSay(title, text);
  play.Desk.Click("cmdmaeve");
}

TEST(Maeve, SpeaksOfTheAnnouncer) {
  for (const int talent : {50, 49})
    ExpectAdvice([&](World& w, Show&) { w.FindStaff(1)->Talent = talent; },
                 talent == 50 ? Boxes{kSilent} : Boxes{kPoorAnnouncer, kSilent},
                 std::to_string(talent));
  ExpectAdvice([](World&, Show& s) { s.Announcer = 0; }, {kNoAnnouncer, kSilent}, "nobody");
  ExpectAdvice([](World&, Show& s) { s.Announcer = 9; }, {kNoAnnouncer, kSilent}, "no more");
}

TEST(Maeve, SpeaksOfTheColourCommentator) {
  for (const int talent : {50, 49})
    for (const bool isWorker : {false, true})
      ExpectAdvice(
          [&](World& w, Show& s) {
            w.FindStaff(2)->Talent = isWorker ? 0 : talent;
            if (!isWorker) return;
            s.Colour = 1;
            s.ColourIsWorker = true;
            w.FindWorker(1)->Charisma = talent;
          },
          talent == 50 ? Boxes{kSilent} : Boxes{kPoorColour, kSilent}, std::to_string(talent));
  ExpectAdvice([](World&, Show& s) { s.Colour = 0; }, {kNoColour, kSilent}, "nobody");
}

TEST(Maeve, ExpectsLessOfSmallerPromotions) {
  constexpr int kWanted[] = {80, 60, 50, 40, 20, 0};
  for (int size = kGlobal; size <= kSmall; ++size) {
    const int wanted = kWanted[size - 1];
    for (const int talent : {wanted - 10, wanted - 11})
      ExpectAdvice([&](World& w, Show&) { w.FindStaff(1)->Talent = talent; },
                   talent == wanted - 10 ? Boxes{kSilent} : Boxes{kPoorAnnouncer, kSilent},
                   std::to_string(size), size);
  }
  ExpectAdvice([](World& w, Show&) { w.FindStaff(1)->Talent = 0; }, {kSilent}, "Backyard",
               kBackyard);
}

TEST(Maeve, SpeaksOfTheRatings) {
  // Of 402: 241.2, 281.4, 321.6 and 361.8.
  const std::pair<int, Boxes> kCases[] = {
      {0, {kVeryBad}},  {241, {kVeryBad}}, {242, {kBad}},  {281, {kBad}},    {282, {kSilent}},
      {321, {kSilent}}, {322, {kGood}},    {361, {kGood}}, {362, {kSuperb}}, {800, {kSuperb}}};
  for (const auto& [rating, boxes] : kCases)
    ExpectAdvice([&](World&, Show& s) { s.Rating3 = rating; }, boxes, std::to_string(rating));
}

TEST(Maeve, HoldsAShowAtALimitForTheMiddlingSide) {
  const std::pair<int, Boxes> kCases[] = {{239, {kVeryBad}}, {240, {kBad}},    {279, {kBad}},
                                          {280, {kSilent}},  {320, {kSilent}}, {321, {kGood}},
                                          {360, {kGood}},    {361, {kSuperb}}};
  for (const auto& [rating, boxes] : kCases)
    ExpectAdvice(
        [&](World& w, Show& s) {
          w.Networks()[1].PrimeAudience = 400;
          s.Rating3 = rating;
        },
        boxes, std::to_string(rating));
}

TEST(Maeve, SpeaksOfTheRiskWhenTheRatingsAreNotWorthAWord) {
  const auto risky = [](int rating) {
    return [rating](World& w, Show& s) {
      w.Player().Risk = 61;
      s.Rating3 = rating;
    };
  };
  ExpectAdvice(risky(300), {kRisky}, "silent");
  ExpectAdvice(risky(241), {kVeryBad}, "bad ratings");
  ExpectAdvice(risky(362), {kSuperb}, "superb ratings");
  ExpectAdvice([](World& w, Show&) { w.Player().Risk = 60; }, {kSilent}, "at the limit");
}

TEST(Maeve, SaysNothingMoreOfAShowThatNobodyHasSeen) {
  ExpectAdvice(
      [](World& w, Show& s) {
        w.Player().Risk = 99;
        s.Rating1 = 0;
        s.Announcer = 0;
        s.Colour = 0;
      },
      {kNoAnnouncer, kNoColour, kDuh}, "unseen");
}

TEST(NetworkWants, AreToldInWords) {
  GameOnWorld play(Quiet());
  play.World().Networks()[1].Production = 45;
  play.World().Player().Production = 44;
  const std::pair<int, const char*> kStrikes[] = {
      {0, "No strikes."},
      {1, "One strike. At three the network drops the show."},
      {2, "Two strikes. One more, and the network drops the show."},
      {3, "Three strikes: the network will drop the show on Monday."},
      {4, "4 strikes, and somehow nobody has noticed."}};
  for (const auto& [strikes, words] : kStrikes) {
    play.World().Shows()[1].Rating4 = strikes;
    play.Desk.Open("frmTelevision");
    EXPECT_EQ(play.Desk.Text("txtwants"),
              "Nine measures the show against a rating of 4. 02 in Prime Time.\n"
              "It bears a risk of 60 there. Ours is 30.\n"
              "It asks for production values of 45. Ours are 44.\n" +
                  std::string(words));
    play.Desk.Click("cmdback");
  }
}

}  // namespace
}  // namespace grapplemont::test
