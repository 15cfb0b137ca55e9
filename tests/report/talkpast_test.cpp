#include "report/talkpast.h"

#include <gtest/gtest.h>

#include <functional>

#include "records/angles.h"
#include "report/pastsupport.h"

// What interviews and angles recall, of whom, and what they leave alone.

namespace grapplemont {
namespace {

Segment Talk(int speaker, int target, int purpose = kVerbalAttack) {
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Purpose = purpose;
  talk.Worker[0] = speaker;
  talk.Worker[1] = target;
  return talk;
}

Segment Between(int angle, int one, int two) {
  Segment segment = EmptySegment();
  segment.Kind = kAngle;
  segment.Style = angle;
  segment.Worker[0] = one;
  segment.Worker[1] = two;
  return segment;
}

void Kept(World& world, const Segment& booked, int days, int row = 1) {
  KeptRow kept{};
  kept.Booked = booked;
  kept.On = Ago(world, days);
  kept.Row = row;
  world.KeptRows().Append(kept);
}

/// In a match that Ada lost.
void Hurt(World& world, int days) {
  Held(world, 2, days);
  Deed deed{};
  deed.On = Ago(world, days);
  deed.Kind = kDeedInjured;
  deed.Promotion = world.PlayerUid();
  deed.Who = "Ada Crane";
  deed.Number = 3;
  world.Deeds().Append(deed);
}

std::optional<TalkFact> Recalled(World& world, const Segment& segment, int row = 0) {
  LineMemory memory;
  Scene scene;
  scene.Row = row;
  Teller teller(world, segment, scene, memory);
  return PastOfTalk(teller);
}

/// What has been before, and what Ada says of it, or Bo.
struct Before {
  TalkRecalls Is;
  int About;
  std::function<void(World&)> Happened;
};

void ExpectRecalled(const std::vector<Before>& each) {
  for (const Before& before : each) {
    World world = Two();
    before.Happened(world);
    const auto fact = Recalled(world, Talk(1, 2));
    const std::string name = HeadingOf(Family::TalkPast, before.Is);
    ASSERT_TRUE(fact) << name;
    EXPECT_EQ(HeadingOf(Family::TalkPast, fact->Is), name);
    EXPECT_EQ(fact->Of.One, std::vector<int>{before.About}) << name;
  }
}

TEST(TalkPast, RecallsWhatLiesBehindASpeaker) {
  ExpectRecalled({
      {kWasHit, 1, [](World& w) { Kept(w, Between(kAmbush, 1, 2), 7); }},
      {kHasHit, 1, [](World& w) { Kept(w, Between(kAmbush, 2, 1), 7); }},
      {kSpoke, 2, [](World& w) { Kept(w, Talk(2, 1), 7); }},
      {kCalledOut, 2, [](World& w) { Kept(w, Between(kChallenge, 2, 1), 7); }},
      {kSignedTogether, 1, [](World& w) { Kept(w, Between(kContractSigning, 1, 2), 7); }},
      {kSaidAndDid, 1, [](World& w) { Kept(w, Talk(1, 2), 14), Held(w, 1, 7); }},
      {kSaidAndDidNot, 1, [](World& w) { Kept(w, Talk(1, 2), 14), Held(w, 2, 7); }},
      {kTheyAteIt, 1, [](World& w) { Kept(w, Talk(2, 1), 14), Held(w, 1, 7); }},
      {kLastMet, 2, [](World& w) { Held(w, 2, 7); }},
      {kCrownWon, 1, [](World& w) { Reign(w, 2, 400, 7), Reign(w, 1, 7, 0); }},
      {kCrownLost, 1,
       [](World& w) {
         Reign(w, 1, 400, 7), Reign(w, 2, 7, 0), Held(w, 2, 7);
         w.Bouts().Change(1).Title = "Crown";
       }},
      {kHurtAndBack, 1, [](World& w) { Hurt(w, 100); }},
      {kHurtAndBack, 1, [](World& w) { Hurt(w, 100), Held(w, 2, 14); }},
      {kChangedWays, 1,
       [](World& w) {
         test::Named(w.Workers(), "Ada Crane").LastTurn = Ago(w, 7);
         Kept(w, Talk(1, 0, kTalkTurn), 7);
       }},
  });
  for (const int winner : {1, 2}) {
    World world = Two();
    for (int match = 0; match < 6; ++match) Held(world, winner, 30);
    Held(world, 3 - winner, 20);
    const auto fact = Recalled(world, Talk(1, 2));
    ASSERT_TRUE(fact);
    EXPECT_EQ(fact->Is, winner == 1 ? kRunBroken : kSlumpBroken);
    EXPECT_EQ(fact->Of.Count, 6);
    EXPECT_EQ(fact->Of.Two, std::vector<int>{2});
  }
}

/// A word that a manager spoke is no word of the one who stood beside.
TEST(TalkPast, HoldsManagersToTheirWords) {
  for (const int winner : {1, 2}) {
    World world = test::SmallWorld()
                      .Promotion("CWA")
                      .Worker("Ada Crane")
                      .Worker("Bo Pike")
                      .Worker("Max Teller")
                      .Game("CWA");
    Segment talk = Talk(1, 3, kHypeMatch);
    talk.Style = kManagedTalk;
    talk.Worker[2] = 2;
    Kept(world, talk, 14);
    const auto open = Recalled(world, Talk(1, 2));
    ASSERT_TRUE(open);
    EXPECT_EQ(open->Is, kSpoke);
    EXPECT_EQ(open->Of.One, std::vector<int>{3});
    EXPECT_FALSE(Recalled(world, Talk(1, 0, kSelfPromotion))) << "neither of the two is there";
    Held(world, winner, 7);
    const auto settled = Recalled(world, Talk(1, 2));
    ASSERT_TRUE(settled);
    EXPECT_EQ(settled->Is, winner == 1 ? kManagerWasRight : kManagerWasWrong);
    EXPECT_EQ(settled->Of.Manager, 3);
  }
}

/// What has been settled, is too old, or happened in another order is not said.
TEST(TalkPast, RecallsNothingThatIsNotSo) {
  ExpectRecalled({
      {kLastMet, 1, [](World& w) { Kept(w, Between(kAmbush, 1, 2), 14), Held(w, 1, 7); }},
      {kLastMet, 2, [](World& w) { Kept(w, Between(kChallenge, 1, 2), 14), Held(w, 2, 7); }},
      {kLastMet, 2, [](World& w) { Kept(w, Talk(1, 2), 20), Held(w, 1, 14), Held(w, 2, 9); }},
      {kCrownWon, 1,
       [](World& w) { Reign(w, 1, 400, 20), Reign(w, 2, 20, 10), Reign(w, 1, 10, 0); }},
      // It went by a match of others.
      {kLastMet, 2, [](World& w) { Reign(w, 1, 400, 7), Reign(w, 2, 7, 0), Held(w, 2, 7); }},
      // So it did before the two met for it.
      {kLastMet, 2,
       [](World& w) {
         Reign(w, 1, 400, 7), Reign(w, 3, 7, 7), Reign(w, 2, 7, 0), Held(w, 2, 7);
         w.Bouts().Change(1).Title = "Crown";
       }},
  });
  for (const int row : {1, 3}) {
    World world = Two();
    Kept(world, Talk(1, 2), 7, 2);
    Held(world, 1, 7);
    world.Bouts().Change(1).Row = row;
    EXPECT_EQ(Recalled(world, Talk(1, 2))->Is, row == 1 ? kSpoke : kSaidAndDid)
        << "a match before the word keeps none";
  }
  World world = Two();
  test::Named(world.Workers(), "Ada Crane").LastTurn = Ago(world, 9);  // on nobody's card
  Kept(world, Between(kAmbush, 1, 2), 40);
  Kept(world, Between(kAmbush, 1, 9), 7);  // by somebody who has left
  Kept(world, Talk(2, 1, kTalkNone), 7);
  Hurt(world, 100);
  Held(world, 1, 60);  // and back for long
  EXPECT_FALSE(Recalled(world, Talk(1, 2)));
  Kept(world, Between(kAmbush, 1, 2), 7);
  world.KeptRows().Change(world.KeptRows().Count()).IsDraft = true;
  EXPECT_FALSE(Recalled(world, Talk(1, 2)));
  world = Two();
  Hurt(world, 100);
  test::Named(world.Workers(), "Ada Crane").Status = "Inj";
  EXPECT_FALSE(Recalled(world, Talk(1, 2)));
}

TEST(TalkPast, KeepsToWhomTheTalkIsAbout) {
  World world = test::SmallWorld()
                    .Promotion("CWA")
                    .Worker("Ada Crane")
                    .Worker("Bo Pike")
                    .Worker("Cy Marsh")
                    .Game("CWA");
  Kept(world, Between(kAmbush, 1, 3), 20);
  world.Segments().Append(Talk(2, 1));
  EXPECT_EQ(Recalled(world, Talk(1, 2), 2)->Is, kSpoke) << "earlier tonight";
  EXPECT_EQ(Recalled(world, Talk(1, 0, kSelfPromotion), 2)->Is, kWasHit);
  EXPECT_EQ(Recalled(world, Between(kAmbush, 2, 1), 2)->Is, kSpoke) << "the third is not there";
}

class TalkVoices : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Each, TalkVoices, testing::Values(kLamplighter, kTolland, kQvd));

/// Before the speech and before the angle, but behind the blow that answers one.
TEST_P(TalkVoices, SayItWhereItBelongs) {
  constexpr int kStaredown = 29;
  for (const auto& [segment, is, by, at] : {std::tuple(Talk(1, 2), kWasHit, 1, 1),
                                            {Between(kStaredown, 1, 2), kWasHit, 1, 0},
                                            {Between(kAmbush, 2, 1), kHitBack, 1, -1},
                                            {Between(kAmbush, 1, 2), kHitAgain, 2, -1}}) {
    World world = Two();
    world.Game().Reporter = GetParam();
    Kept(world, Between(kAmbush, 1, 2), 7);
    const auto fact = Recalled(world, segment);
    ASSERT_TRUE(fact);
    EXPECT_EQ(fact->Is, is);
    EXPECT_EQ(fact->Of.One, std::vector<int>{by});
    LineMemory memory;
    std::vector<SaidSentence> sentences;
    const std::string text = WriteReport(world, segment, {}, memory, &sentences);
    std::vector<Family> order;
    for (const SaidSentence& said : sentences)
      if (order.empty() || order.back() != said.Of) order.push_back(said.Of);
    const std::size_t place = at < 0 ? order.size() - 1 : static_cast<std::size_t>(at);
    ASSERT_LT(place, order.size());
    EXPECT_EQ(order[place], Family::TalkPast) << text;
    EXPECT_EQ(std::count(order.begin(), order.end(), Family::TalkPast), 1) << text;
  }
}

}  // namespace
}  // namespace grapplemont
