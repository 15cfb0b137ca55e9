#include <gtest/gtest.h>

#include "records/angles.h"
#include "report/pastsupport.h"

// That no fact of the past is told that was not one.

namespace grapplemont {
namespace {

/// Talk that threatens nobody, and a beating that the feud's book counts against another.
TEST(Past, RecallsNothingThatWasNotThere) {
  World world = Two();
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Worker[0] = 2;
  talk.Worker[1] = 1;
  world.Segments().Append(talk);
  Scene scene;
  scene.Row = 2;
  for (const auto& [purpose, threatens] : {std::pair(kVerbalAttack, true),
                                           {kHypeMatch, true},
                                           {kTalkTurn, false},
                                           {kTalkNone, false}}) {
    world.Segments()[1].Purpose = purpose;
    EXPECT_EQ(Past(world, AdaBeatsBo(), scene).Has(kThreatened) != nullptr, threatens);
  }
  // A run-in by Bo on the first of a match that the other one won.
  Segment beaten = AdaBeatsBo();
  beaten.Worker[1] = beaten.Winner = 7;
  beaten.Loser = 1;
  beaten.Aftermath = after1::kRunInOnFirst;
  beaten.Other1 = 2;
  world.Segments()[1] = beaten;
  ASSERT_TRUE(Past(world, AdaBeatsBo(), scene).Has(kWasAttacked));
  EXPECT_EQ(Past(world, AdaBeatsBo(), scene).Has(kWasAttacked)->One, std::vector<int>{1});
  world.Segments()[1].Aftermath = after1::kRunInOnSecond;
  EXPECT_FALSE(Past(world, AdaBeatsBo(), scene).Has(kWasAttacked));
  world.Segments()[1].Aftermath = after1::kNothing;
  world.Segments()[1].Finish = kBotchedInterference;
  EXPECT_FALSE(Past(world, AdaBeatsBo(), scene).Has(kWasAttacked)) << "nobody meant to hit them";
}

TEST(Past, RecallsWhatWasSaidAndDoneBefore) {
  World world = Two();
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Purpose = kVerbalAttack;
  talk.Worker[0] = 2;
  talk.Worker[1] = 1;
  world.Segments().Append(talk);
  Scene scene;
  scene.Row = 2;
  const Past tonight(world, AdaBeatsBo(), scene);
  ASSERT_TRUE(tonight.Has(kThreatened));
  EXPECT_EQ(tonight.Has(kThreatened)->One, std::vector<int>{2});
  KeptRow kept{};
  kept.Booked = EmptySegment();
  kept.Booked.Kind = kAngle;
  kept.Booked.Style = kAmbush;
  kept.Booked.Worker[0] = 1;  // the ambushee
  kept.Booked.Worker[1] = 2;
  kept.On = Ago(world, 7);
  world.KeptRows().Append(kept);
  EXPECT_EQ(Past(world, AdaBeatsBo()).Has(kWasAttacked)->One, std::vector<int>{1});
  // Of two it is the later one, and who has asked for a match is not who was asked.
  world.KeptRows()[1].On = Ago(world, 30);
  kept.On = Ago(world, 20);
  world.KeptRows().Append(kept);
  EXPECT_EQ(Past(world, AdaBeatsBo()).Has(kWasAttacked)->DaysAgo, 20);
  world.KeptRows()[1].Booked.Style = kChallenge;
  const Past asked(world, AdaBeatsBo());
  ASSERT_TRUE(asked.Has(kChallenged));
  EXPECT_EQ(asked.Has(kChallenged)->One, std::vector<int>{1});
  EXPECT_EQ(asked.Has(kChallenged)->Two, std::vector<int>{2});
  world.KeptRows()[2].On = Ago(world, 40);
  EXPECT_FALSE(Past(world, AdaBeatsBo()).Has(kWasAttacked));
}

/// One of the year's best is one that few were better than.
TEST(Past, KeepsTheYearsListShort) {
  World world = test::SmallWorld()
                    .Promotion("CWA")
                    .Worker("Ada Crane")
                    .Worker("Bo Pike")
                    .Game("CWA", *ParseIsoDate("2026-12-20"));
  Held(world, 1, 100, 82);
  ASSERT_TRUE(Past(world, AdaBeatsBo()).Has(kYearsBest));
  EXPECT_EQ(Past(world, AdaBeatsBo()).Has(kYearsBest)->DaysAgo, 100);
  for (int better = 0; better < 10; ++better) {
    EXPECT_TRUE(Past(world, AdaBeatsBo()).Has(kYearsBest)) << better;
    Held(world, 1, 90, 83);
    world.Bouts().Change(world.Bouts().Count()).Worker[1] = 7;
  }
  EXPECT_FALSE(Past(world, AdaBeatsBo()).Has(kYearsBest));
  // Those of another year are on no list of this one.
  world.Bouts().Change(2).On = Ago(world, 400);
  EXPECT_TRUE(Past(world, AdaBeatsBo()).Has(kYearsBest));
}

World Four() {
  test::SmallWorld small;
  small.Promotion("CWA");
  for (const char* name : {"Ada Crane", "Bo Pike", "Cy Marsh", "Di Holt"}) small.Worker(name);
  return small.Title("Crown").Game("CWA");
}

Segment Teams(const char* title) {
  Segment segment = AdaBeatsBo(title);
  segment.Style = kTag;
  for (int place = 1; place <= 4; ++place) segment.Worker[std::size_t(place - 1)] = place;
  segment.Loser = 3;
  return segment;
}

TEST(Past, NamesThoseOfASideWhomItIsAbout) {
  World world = Four();
  Segment angle = EmptySegment();
  angle.Kind = kAngle;
  angle.Style = kParamedics;
  angle.Worker[0] = 2;
  angle.Worker[1] = 3;
  world.Segments().Append(angle);
  Scene scene;
  scene.Row = 2;
  const Past past(world, Teams("None"), scene);
  ASSERT_TRUE(past.Has(kWasAttacked));
  EXPECT_EQ(past.Has(kWasAttacked)->One, std::vector<int>{2});
  EXPECT_EQ(past.Has(kWasAttacked)->Two, std::vector<int>{3});
}

TEST(Past, KnowsATitleOfTeamsAndOfThree) {
  World world = Four();
  Reign(world, 4, 300, 200);
  world.Reigns().Change(1).Partner = 1;
  world.Reigns().Change(1).End = kReignVacated;
  Reign(world, 2, 21, 0, 3);
  Segment three = AdaBeatsBo("Crown");
  three.Style = kThreeWay;
  three.Worker[2] = 4;
  const Past past(world, three, {2});
  EXPECT_FALSE(past.Has(kReignLong)) << "three weeks are no age, however busy";
  ASSERT_TRUE(past.Has(kOnceChampion)) << "as the partner of somebody";
  EXPECT_EQ(past.Has(kOnceChampion)->One, std::vector<int>{1}) << "now against the other";
  EXPECT_FALSE(past.Has(kTitleAgain)) << "nobody lost a vacated Title";
  for (int uid = 1; uid <= 4; ++uid) Tally(world, uid, 20, 7);
  Held(world, 1, 400);
  world.Reigns().Change(1).Partner = 0;
  EXPECT_FALSE(Past(world, Teams("Crown"), {2}).Has(kTitleNever)) << "one of the two has had it";
  world.Reigns().Change(1).Worker = 0;
  EXPECT_TRUE(Past(world, Teams("Crown"), {2}).Has(kTitleNever));
  world.Reigns().Change(2).From = Ago(world, 300);
  const Past ofOld(world, Teams("Crown"), {2});
  ASSERT_TRUE(ofOld.Has(kReignLong));
  EXPECT_EQ(ofOld.Has(kReignLong)->One, std::vector<int>{2}) << "a partner is no champion";
}

TEST(Past, CallsOneMatchTheReturnAndOneTheFirst) {
  World world = Four();
  Reign(world, 2, 400, 100);
  Reign(world, 1, 100, 0, 4);
  Held(world, 1, 30);
  EXPECT_TRUE(Past(world, AdaBeatsBo("Crown"), {1}).Has(kTitleAgain)) << "that was for no Title";
  world.Bouts().Change(1).Title = "Crown";
  const Past later(world, AdaBeatsBo("Crown"), {1});
  EXPECT_FALSE(later.Has(kTitleAgain));
  ASSERT_TRUE(later.Has(kOnceChampion));
  EXPECT_EQ(later.Has(kOnceChampion)->One, std::vector<int>{2});
  world.Bouts().Change(1).On = Ago(world, 100);
  EXPECT_TRUE(Past(world, AdaBeatsBo("Crown"), {1}).Has(kTitleAgain)) << "that is how it went";
  world.Bouts().Change(1).Worker[1] = 3;
  EXPECT_FALSE(Past(world, AdaBeatsBo("Crown"), {1}).Has(kTitleAgain)) << "it went without them";
  world.Bouts().Change(1).Worker[1] = 2;

  world.Bouts().Change(1).On = Ago(world, 200);
  for (int uid = 1; uid <= 4; ++uid) Tally(world, uid, 20, 7);
  Segment first = AdaBeatsBo();
  first.Worker[1] = first.Loser = 3;
  EXPECT_TRUE(Past(world, first).Has(kMetFirst));
  world.Bouts().Change(1).Style = kThreeWay;
  world.Bouts().Change(1).Worker[2] = 3;
  EXPECT_FALSE(Past(world, first).Has(kMetFirst)) << "three had the ring together";
}

TEST(Past, SeesNobodyAsAwayWhoWasOnACard) {
  World world = Two();
  Tally(world, 1, 9, 90);
  EXPECT_TRUE(Past(world, AdaBeatsBo()).Has(kAwayLong));
  KeptRow kept{};
  kept.Booked = EmptySegment();
  kept.Booked.Kind = kInterview;
  kept.Booked.Style = kSingleTalk;
  kept.Booked.Worker[0] = 1;
  kept.On = Ago(world, 7);
  world.KeptRows().Append(kept);
  EXPECT_FALSE(Past(world, AdaBeatsBo()).Has(kAwayLong));
}

}  // namespace
}  // namespace grapplemont
