#include "report/pasttold.h"

#include <gtest/gtest.h>

#include <set>

#include "records/segments.h"
#include "report/pastsupport.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::ScriptedDraws;
using test::SmallWorld;

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

/// That who took the Title won their last match as well is no second fact.
TEST(Past, SaysOnceWhoLostTheTitleToWhom) {
  for (const int last : {1, 2}) {
    World world = Two();
    Held(world, 1, 20);
    Held(world, last, 10);
    Reign(world, 2, 400, 20);
    Reign(world, 1, 20, 0);
    const Segment segment = AdaBeatsBo("Crown");
    Scene scene;
    scene.Champion = 1;
    LineMemory memory;
    Teller teller(world, segment, scene, memory);
    TellPast(teller);
    ASSERT_EQ(teller.Told.size(), last == 1 ? 1U : 2U);
    EXPECT_EQ(teller.Told[0].Is, kTitleAgain);
  }
}

TEST(Past, SaysOnceWhoHasWonThemAll) {
  World world = Two();
  for (const int days : {40, 30, 25, 20}) Held(world, 1, days);
  const Past all(world, AdaBeatsBo());
  EXPECT_FALSE(all.Has(kMetLately));
  ASSERT_TRUE(all.Has(kSeriesLed));
  EXPECT_EQ(all.Has(kSeriesLed)->DaysAgo, 20);
  Held(world, 2, 10);
  const Past most(world, AdaBeatsBo());
  EXPECT_TRUE(most.Has(kMetLately)) << "the last one went the other way";
  EXPECT_EQ(most.Has(kSeriesLed)->DaysAgo, -1);
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
  EXPECT_EQ(SinceText(21, today), "that night three weeks ago");
  EXPECT_EQ(SinceText(335, today), "January") << "of this very year";
  EXPECT_EQ(SinceText(400, today), "last year");
  EXPECT_EQ(SinceText(1000, today), "2024");
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
    for (const Family family : {Family::PastOpening, Family::PastEnding, Family::TalkPast}) {
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

/// Which line has been drawn, by the memory of the show.
bool WasSaid(const LineMemory& memory, Family family, int band, int voice) {
  const Block* block = BlockOf(voice, family, band);
  for (std::size_t line = 0; line < block->Lines.size(); ++line)
    if (memory.Used(block, static_cast<int>(line))) return true;
  return false;
}

/// A debt that is paid is no score that has grown.
TEST_P(Voices, SettleAMatchOneWay) {
  World world = Two();
  world.Game().Reporter = GetParam();
  const Segment segment = AdaBeatsBo();
  const Scene scene;
  LineMemory memory;
  Teller teller(world, segment, scene, memory);
  teller.Told = {{kPartnerBeaten, 60, {1}, {2}, 0, 14}, {kMetLately, 50, {1}, {2}, 0, 20}};
  TellPastEnding(teller);
  EXPECT_TRUE(WasSaid(memory, Family::PastEnding, kPaidBack, GetParam()));
  EXPECT_FALSE(WasSaid(memory, Family::PastEnding, kSameAgain, GetParam())) << teller.Text();
  // What whoever had cause to win, or something to keep, comes to when they lose.
  for (const auto& [before, tells] : {std::pair(kWasAttacked, kNotPaidBack),
                                      {kLossesInARow, kSlumpGoesOn},
                                      {kChallenged, kChallengeLost},
                                      {kAwayLong, kBackBeaten},
                                      {kNewAtTheTop, kNewcomerFalls},
                                      {kOnceChampion, kCrownStaysAway},
                                      {kTitleNever, kFirstShotMissed}}) {
    LineMemory lost;
    Teller beaten(world, segment, scene, lost);
    beaten.cast.Set(Item::Title, "the Crown");
    beaten.Told = {{before, 80, {2}, {1}, 5, 7}};
    TellPastEnding(beaten);
    EXPECT_TRUE(WasSaid(lost, Family::PastEnding, tells, GetParam())) << beaten.Text();
    EXPECT_NE(beaten.Text().find("Bo"), std::string::npos) << "it is about the loser";
  }
  // A series to nothing ends as its last match does, one that is only led does not.
  for (const int days : {20, -1}) {
    LineMemory fresh;
    Teller again(world, segment, scene, fresh);
    again.Told = {{kSeriesLed, 50, {1}, {2}, 3, days, "three to nothing"}};
    TellPastEnding(again);
    EXPECT_EQ(WasSaid(fresh, Family::PastEnding, kSameAgain, GetParam()), days >= 0);
  }
}

/// What each beginning comes to by who has won, and what none comes to where nobody has.
TEST_P(Voices, AnswerWhatWasBegun) {
  World world = Two();
  world.Game().Reporter = GetParam();
  Segment segment = AdaBeatsBo("Crown");
  for (const auto& [before, one, whenWon, whenLost] :
       {std::tuple(kReignNew, 1, kNewReignHolds, kNewReignEnds),
        {kNewAtTheTop, 0, kNewcomerStays, kNewcomerFalls},
        {kSeriesLed, 0, kLeadGrows, kLeadShrinks},
        {kMetFirst, 0, kFirstOfThem, kFirstOfThem},
        {kMetLongAgo, 0, kAfterAllThatTime, kAfterAllThatTime},
        {kMetTooOften, 0, kOnceTooOften, kOnceTooOften},
        {kYearsBest, 0, kYearsBestAgain, kYearsBestAgain},
        {kSignedFor, 0, kContractKept, kContractKept}})
    for (const int winner : {1, 2, 0}) {
      segment.Winner = winner;
      segment.Loser = winner == 0 ? 0 : 3 - winner;
      Scene scene;
      scene.Champion = one;
      LineMemory memory;
      Teller teller(world, segment, scene, memory);
      teller.cast.Set(Item::Title, "the Crown");
      teller.Told = {{before, 60, {1}, {2}, 3, before == kSeriesLed ? -1 : 9, "three to one"}};
      TellPastEnding(teller);
      for (const PastOutcome told : {whenWon, whenLost})
        EXPECT_EQ(WasSaid(memory, Family::PastEnding, told, GetParam()),
                  winner != 0 && told == (winner == 1 ? whenWon : whenLost))
            << HeadingOf(Family::PastOpening, before) << " " << winner << " " << teller.Text();
      EXPECT_EQ(WasSaid(memory, Family::PastEnding, kNothingSettled, GetParam()),
                winner == 0 && before == kSignedFor);
    }
  // Whoever keeps a Title by a foul of the other one has a new reign still.
  segment.Winner = 2;
  segment.Loser = 1;
  segment.Finish = kCountOut;
  Scene scene;
  scene.Champion = 1;
  LineMemory memory;
  Teller teller(world, segment, scene, memory);
  teller.cast.Set(Item::Title, "the Crown");
  teller.Told = {{kReignNew, 54, {1}, {2}, 3, 9}};
  TellPastEnding(teller);
  EXPECT_FALSE(WasSaid(memory, Family::PastEnding, kNewReignEnds, GetParam())) << teller.Text();
}

/// Whose manager did the talking has kept no word, and eats none.
TEST_P(Voices, HoldManagersToWhatTheySaid) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Ada Crane")
                    .Worker("Bo Pike")
                    .Worker("Max Teller")
                    .Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment segment = AdaBeatsBo();
  const Scene scene;
  for (const int client : {1, 2}) {
    LineMemory memory;
    Teller teller(world, segment, scene, memory);
    teller.Told = {{kManagerSpoke, 84, {client}, {3 - client}, 0, 0}};
    teller.Told[0].Manager = 3;
    TellPastEnding(teller);
    EXPECT_TRUE(
        WasSaid(memory, Family::PastEnding, client == 1 ? kSaidSo : kSaidTooMuch, GetParam()));
    EXPECT_NE(teller.Text().find("Max Teller"), std::string::npos) << teller.Text();
  }
}

TEST_P(Voices, LookBackOnTheYearAtDecembersEvent) {
  for (const auto& [day, isEvent, overall] : {std::tuple("2026-12-20", true, 50),
                                              {"2026-12-20", true, 95},
                                              {"2026-12-20", false, 50},
                                              {"2026-11-20", true, 50}}) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Worker("Ada Crane")
                      .Worker("Bo Pike")
                      .Game("CWA", *ParseIsoDate(day));
    world.Game().Reporter = GetParam();
    Held(world, 2, 100, 90);
    Scene scene;
    scene.Row = 1;
    scene.IsLast = true;
    scene.IsEvent = isEvent;
    scene.Overall = overall;
    LineMemory memory;
    WriteReport(world, AdaBeatsBo(), scene, memory);
    const bool isYear = isEvent && MonthOf(world.Today()) == 12;
    EXPECT_EQ(WasSaid(memory, Family::PastOpening, kYearRecalled, GetParam()), isYear);
    EXPECT_EQ(WasSaid(memory, Family::PastEnding, kYearStands, GetParam()), isYear && overall < 90);
  }
}

/// A Title that is won in no time has words of its own; any other squash is as short as it is, and
/// so is one whose end is no fall.
TEST_P(Voices, MakeAnEventOfATitleSquash) {
  World world = Two();
  world.Game().Reporter = GetParam();
  int told = 0;
  for (int round = 0; round < 120; ++round) {
    for (const char* title : {"Crown", "None"}) {
      LineMemory memory;
      Scene scene;
      scene.Champion = 2;
      Segment segment = AdaBeatsBo(title);
      if (round % 3 == 0) segment.Finish = kCountOut;
      WriteReport(world, segment, scene, memory);
      const bool begins = WasSaid(memory, Family::Squash, kSquashBegins, GetParam());
      const bool isTurned = WasSaid(memory, Family::Counter, 0, GetParam());
      const bool isDone = WasSaid(memory, Family::Squash, kSquashDone, GetParam());
      EXPECT_EQ(begins, isDone && !isTurned) << "the other one had the first word";
      EXPECT_TRUE(!begins || (title == std::string("Crown") && segment.Finish == kClean));
      told += begins;
    }
  }
  EXPECT_GT(told, 0);
  EXPECT_LT(told, 40) << "one shape of four";
}

/// Also when the game was closed between: who speaks has the line that they have not said.
TEST_P(Voices, GiveNobodyTheSameOpeningTwice) {
  World world = Two();
  world.Game().Reporter = GetParam();
  Segment talk = EmptySegment();
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Worker[0] = 1;
  const Scene scene;
  std::set<int> said;
  const auto lines = BlockOf(GetParam(), Family::TalkOpening, kSingleTalk)->Lines.size();
  for (std::size_t show = 0; show < lines; ++show) {
    LineMemory memory;
    Teller teller(world, talk, scene, memory);
    teller.SayAs('T', Family::TalkOpening, kSingleTalk);
    for (std::size_t line = 0; line < lines; ++line)
      if (memory.Used(BlockOf(GetParam(), Family::TalkOpening, kSingleTalk), int(line)))
        said.insert(int(line));
  }
  EXPECT_EQ(said.size(), lines);
  LineMemory before, reopened;
  Teller first(world, talk, scene, before), second(world, talk, scene, reopened);
  const int band = TalkBand(kSingleTalk, kVerbalAttack);
  const auto speeches = BlockOf(GetParam(), Family::Speech, band)->Lines.size();
  for (std::size_t each = 0; each < speeches; ++each) first.SayNew(Family::Speech, band);
  EXPECT_FALSE(second.SayNew(Family::Speech, band)) << "the show has heard them all";
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

/// What is told apart from the slot still says a line another way the second time.
TEST(SaidLines, CountForThemselvesWhereTheyAreApart) {
  World world = Two();
  const std::int32_t key = LineKey(kQvd, "Cover.");
  SaidLines apart(true);
  apart.Say(world, key);
  EXPECT_EQ(apart.Times(world, key), 1);
  EXPECT_EQ(SaidLines().Times(world, key), 0) << "the slot does not know of it";
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
