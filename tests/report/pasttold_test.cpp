#include "report/pasttold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "records/segments.h"
#include "report/report.h"
#include "report/teller.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::ScriptedDraws;
using test::SmallWorld;

World Two() {
  return SmallWorld()
      .Promotion("CWA")
      .Worker("Ada Crane")
      .Worker("Bo Pike")
      .Title("Crown")
      .Game("CWA");
}

Segment AdaBeatsBo(const char* title = "None") {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = kSingles;
  segment.MatchType = kPlainSingles;
  segment.Worker[0] = segment.Winner = 1;
  segment.Worker[1] = segment.Loser = 2;
  segment.Finish = kClean;
  segment.TitleName = title;
  return segment;
}

Day Ago(const World& world, int days) {
  return world.Today() - std::chrono::days(days);
}

void Held(World& world, int winner, int days, int rating = 50) {
  HeldMatch bout;
  bout.On = Ago(world, days);
  bout.Promotion = world.PlayerUid();
  bout.Style = kSingles;
  bout.Rating = rating;
  bout.Winners = 1;
  bout.Worker[0] = winner;
  bout.Worker[1] = 3 - winner;
  world.Bouts().Append(bout);
}

void Tally(World& world, int uid, int matches, int lastDaysAgo) {
  MatchTally tally;
  tally.Promotion = world.PlayerUid();
  tally.Worker = uid;
  tally.Won = matches;
  tally.Last = Ago(world, lastDaysAgo);
  world.Tallies().Append(tally);
}

void Reign(World& world, int uid, int from, int until, int defences = 0) {
  TitleReign reign;
  reign.From = Ago(world, from);
  reign.Until = until == 0 ? kNoTitleDate : Ago(world, until);
  reign.Title = "Crown";
  reign.Owner = world.PlayerUid();
  reign.Worker = uid;
  reign.Defences = defences;
  reign.End = until == 0 ? kReignLasts : kReignLost;
  world.Reigns().Append(reign);
}

struct Past {
  std::vector<PastFact> Facts;

  Past(World& world, const Segment& segment, const Scene& scene = {}) {
    LineMemory memory;
    Teller teller(world, segment, scene, memory);
    Facts = PastOf(teller);
  }
  const PastFact* Has(PastKind kind) const {
    const auto found = std::find_if(Facts.begin(), Facts.end(),
                                    [&](const PastFact& fact) { return fact.Is == kind; });
    return found == Facts.end() ? nullptr : &*found;
  }
};

TEST(Past, KnowsWhoHasMetAndWhoWon) {
  World world = Two();
  EXPECT_TRUE(Past(world, AdaBeatsBo()).Facts.empty()) << "a young slot calls nothing a first";
  Held(world, 1, 20);
  const Past once(world, AdaBeatsBo());
  ASSERT_TRUE(once.Has(kMetLately));
  EXPECT_EQ(once.Has(kMetLately)->One, std::vector<int>{1});
  EXPECT_EQ(once.Has(kMetLately)->DaysAgo, 20);
  EXPECT_FALSE(once.Has(kSeriesLevel));
  for (const int winner : {2, 1, 2}) Held(world, winner, 10);
  const Past level(world, AdaBeatsBo());
  ASSERT_TRUE(level.Has(kSeriesLevel));
  EXPECT_EQ(level.Has(kSeriesLevel)->Count, 2);
  EXPECT_EQ(level.Has(kMetLately)->One, std::vector<int>{2}) << "the last one counts";
  for (int i = 0; i < 5; ++i) Held(world, 1, 5);
  const Past often(world, AdaBeatsBo());
  EXPECT_EQ(often.Has(kMetTooOften)->Count, 10);
  EXPECT_EQ(often.Has(kSeriesLed)->Tally, "seven to two");
  for (int i = 9; i < 49; ++i) Held(world, 1, 5);
  EXPECT_EQ(Past(world, AdaBeatsBo()).Facts.front().Is, kMetFiftyTimes);
}

TEST(Past, KnowsRunsReignsAndAbsence) {
  World world = Two();
  for (int i = 0; i < 5; ++i) Held(world, 1, 90);
  Tally(world, 1, 5, 90);
  Tally(world, 2, 9, 3);
  Reign(world, 2, 400, 150);
  Reign(world, 1, 150, 0, 4);
  const Past past(world, AdaBeatsBo("Crown"), {1});
  EXPECT_EQ(past.Has(kWinsInARow)->Count, 5);
  EXPECT_EQ(past.Has(kLossesInARow)->One, std::vector<int>{2});
  EXPECT_EQ(past.Has(kAwayLong)->One, std::vector<int>{1});
  EXPECT_EQ(past.Has(kReignLong)->Count, 150);
  EXPECT_EQ(past.Has(kReignLong)->Tally, "four defences");
  EXPECT_EQ(past.Has(kTitleAgain)->One, std::vector<int>{2}) << "who lost it to the champion";
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
  world.KeptRows()[1].On = Ago(world, 40);
  EXPECT_FALSE(Past(world, AdaBeatsBo()).Has(kWasAttacked));
}

TEST(Past, SaysHowLongAgoAndHowOften) {
  const Day today = *ParseIsoDate("2026-12-10");
  EXPECT_EQ(AgoText(0, today), "earlier tonight");
  EXPECT_EQ(AgoText(7, today), "a week ago");
  EXPECT_EQ(AgoText(100, today), "in September");
  EXPECT_EQ(AgoText(400, today), "a year ago");
  EXPECT_EQ(AgoText(1000, today), "three years ago");
  EXPECT_EQ(SinceText(7, today), "last week");
  EXPECT_EQ(SinceText(100, today), "September");
  EXPECT_EQ(SinceText(1000, today), "three years back");
  EXPECT_EQ(NthText(3), "third");
  EXPECT_EQ(NthText(21) + NthText(112) + NthText(50), "21st112th50th");
}

class Voices : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Each, Voices, testing::Values(kLamplighter, kTolland, kQvd));

/// Every band of the past finds words without a hole in them.
TEST_P(Voices, TellThePastInWholeSentences) {
  World world = Two();
  world.Game().Reporter = GetParam();
  const Segment segment = AdaBeatsBo("Crown");
  const Scene scene;
  LineMemory memory;
  for (int round = 0; round < 8; ++round)
    for (const Family family : {Family::PastOpening, Family::PastEnding}) {
      for (int band = 0; band <= RowOf(family).Bands.Last; ++band) {
        Teller teller(world, segment, scene, memory);
        teller.cast.Set('m', teller.cast.Find(world, 2));
        for (const Item item : {Item::Count, Item::Nth, Item::When, Item::Since, Item::Tally})
          teller.cast.Set(item, "three");
        EXPECT_TRUE(teller.Say(family, band)) << HeadingOf(family, band);
        EXPECT_EQ(teller.Text().find_first_of("[]{}|"), std::string::npos) << teller.Text();
      }
    }
}

/// What matters is told at length, three times the row at most; what does not stays short.
TEST_P(Voices, GiveAMatchTheRoomThatItMatters) {
  World world = Two();
  world.Game().Reporter = GetParam();
  std::size_t letters[3] = {};
  for (int round = 0; round < 40; ++round) {
    for (int each = 0; each < 3; ++each) {
      LineMemory memory;
      Scene scene;
      scene.Overall = each == 2 ? 90 : 30;
      scene.Crowd = 70;
      scene.IsLast = each == 2;
      scene.Champion = each == 2 ? 1 : 0;
      letters[each] += WriteReport(world, AdaBeatsBo(each == 2 ? "Crown" : "None"),
                                   each == 0 ? Scene{} : scene, memory)
                           .size();
    }
  }
  EXPECT_GT(letters[2], letters[1] * 3 / 2);
  EXPECT_LT(letters[2], letters[1] * 4);
  EXPECT_LT(letters[1], letters[0] * 3 / 2);
}

TEST(SaidLines, GiveTheLongestUnusedLineAndTheNextWayOfSayingIt) {
  World world = Two();
  ScriptedDraws draws{{3, 1}, {1, 1}, {3, 2}};
  LineMemory memory;
  const int band = 0, days[] = {0, 7, 14};
  EXPECT_EQ(memory.Pick(draws, &band, 3, days), 2) << "not said for the longest time";
  EXPECT_EQ(memory.Pick(draws, &band, 3, days), 1) << "then the next";
  const std::int32_t key = LineKey(kQvd, "Cover.");
  SaidLines said;
  EXPECT_EQ(said.DaysSince(world, key), SaidLines::kNever);
  said.Say(world, key);
  said.Say(world, key);
  world.Game().Today = Ago(world, -7);
  SaidLines later;
  EXPECT_EQ(later.DaysSince(world, key), 7);
  EXPECT_EQ(later.Times(world, key), 2);
  EXPECT_EQ(later.DaysSince(world, LineKey(kTolland, "Cover.")), SaidLines::kNever);
  world.Said().Remove();
  EXPECT_EQ(later.DaysSince(world, key), SaidLines::kNever) << "a missing file does no harm";
  EXPECT_EQ(SaidIn("[One|Two|Three] [a|b].", 4), "Two a.");
  EXPECT_EQ(WaysToSay("[One|Two|Three] [a|b]."), 6);
  EXPECT_EQ(WhyNoWays("[One|Two]"), "");
  for (const char* wrong : {"[One", "One]", "[One]", "[a[b|c]|d]", "a|b"})
    EXPECT_NE(WhyNoWays(wrong), "") << wrong;
}

}  // namespace
}  // namespace grapplemont
