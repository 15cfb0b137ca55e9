#include "business/tvshows.h"

#include <gtest/gtest.h>

#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

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
