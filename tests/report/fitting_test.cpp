#include <gtest/gtest.h>

#include <algorithm>

#include "report/report.h"
#include "report/ring.h"
#include "report/stages.h"
#include "report/teller.h"
#include "report/tenworkers.h"

// Which lines fit how a match stands, how it went, and who watches.

namespace grapplemont {
namespace {

using test::HasWord;
using test::Match;
using test::Ten;

class Fitting : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Each, Fitting, testing::Values(kLamplighter, kTolland, kQvd));

/// A band that judges has words for every match, and a hall of every mood finds some in each.
TEST_P(Fitting, HasAFittingLineForEveryRatingAndEveryCrowd) {
  const auto fitting = [](std::span<const TaggedLine> lines, unsigned all, unsigned tag) {
    return std::count_if(lines.begin(), lines.end(), [&](const TaggedLine& line) {
      return ((line.Tags & all) == 0 || (line.Tags & tag) != 0) && !line.Is(kCleanTag);
    });
  };
  for (const FamilyRow& row : AllFamilies())
    for (int band = row.Bands.First; band <= row.Bands.Last; ++band) {
      const auto lines = ReadLinesOf(GetParam(), row.Of, band);
      if (!row.Has(band) || row.Only != kEveryVoice) continue;
      for (const unsigned tag : {kLowTag, kMidTag, kHighTag})
        EXPECT_GE(fitting(lines, kLevelTags, tag), 1) << HeadingOf(row.Of, band);
      for (const unsigned tag : {kColdTag, kWarmTag, kHotTag})
        EXPECT_GE(fitting(lines, kColdTag | kWarmTag | kHotTag, tag), 1) << HeadingOf(row.Of, band);
    }
}

/// Who lies or is held does so until something is said of it.
TEST_P(Fitting, LetsNobodyUpBeforeACountOrOutOfAHold) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment match = Match(kSingles);
  const Scene scene;
  for (const int band : {kHurting, kDesperate, kDoubt})
    for (const auto& [under, isCover] :
         {std::pair(Footing::Down, true), {Footing::Held, false}, {Footing::Down, false}}) {
      LineMemory memory;
      Teller teller(world, match, scene, memory);
      Person *one = teller.cast.Find(world, 1), *two = teller.cast.Find(world, 2);
      teller.IsCoverNext = isCover;
      teller.Act(one, two);
      teller.Under = under;
      for (int i = 0; i < 4; ++i) {
        teller.Say(Family::Interlude, band);
        if (isCover || under == Footing::Held) {
          EXPECT_EQ(teller.Under, under) << teller.Text();
        }
      }
      teller.Under = Footing::Held;
      teller.TurnRound(two, one);
      EXPECT_EQ(teller.Under, Footing::Held) << "a counter finds the hold still on";
      teller.Act(one, two);
      EXPECT_EQ(teller.Under, Footing::Up) << "nothing has put the other one down";
    }
}

TEST_P(Fitting, PutsWhomeverItPinsDownFirst) {
  World world = Ten().Game("CWA");
  for (Worker& worker : world.Workers()) worker.Finisher1 = worker.Finisher2 = "None";
  for (int i = 0; i < 20; ++i) {
    Segment match = Match(kTag);
    world.Game().Reporter = GetParam();
    const Scene scene;
    LineMemory memory;
    Teller teller(world, match, scene, memory);
    TellFinish(teller, *FindBout(kTag, kPlainTag));
    EXPECT_EQ(teller.Under, Footing::Down) << teller.Text();
  }
}

TEST_P(Fitting, WalksOutOnACornerThatIsEmpty) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment match = Match(kFourOnFour);
  const Scene scene;
  LineMemory memory;
  for (std::size_t line = 0; line < ReadLinesOf(GetParam(), Family::TurnWalksOut, 0).size();
       ++line) {
    Teller teller(world, match, scene, memory);
    teller.cast.Set('t', teller.cast.Find(world, 5));
    teller.cast.Set('v', nullptr);
    EXPECT_TRUE(teller.Say(Family::TurnWalksOut)) << line;
    EXPECT_TRUE(HasWord(teller.Text(), "Eex") || HasWord(teller.Text(), "Eoe")) << teller.Text();
  }
}

/// Nobody is helped up by who has just cheated them, or is about to beat them down.
TEST_P(Fitting, IsKindOnlyBehindACleanWin) {
  Segment match = Match(kSingles);
  EXPECT_TRUE(EndsCleanly(match));
  match.Aftermath = after1::kBeatDown;
  EXPECT_FALSE(EndsCleanly(match));
  match.Aftermath = after1::kHandshake;
  EXPECT_TRUE(EndsCleanly(match));
  match.Finish = kCheating;
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Scene scene;
  LineMemory memory;
  Teller teller(world, match, scene, memory);
  const auto lines = ReadLinesOf(GetParam(), Family::Interlude, kAfterBell);
  for (int i = 0; i < 6; ++i) teller.Say(Family::Interlude, kAfterBell);
  for (std::size_t line = 0; line < lines.size(); ++line)
    EXPECT_FALSE(
        lines[line].Is(kCleanTag) &&
        memory.Used(BlockOf(GetParam(), Family::Interlude, kAfterBell), static_cast<int>(line)))
        << lines[line].Text;
}

/// Words that the reports have had from their first day.
TEST(Words, KeepTheOldLines) {
  struct Old {
    int Voice;
    Family Of;
    std::string_view Says;
  };
  for (const Old& old :
       {Old{kLamplighter, Family::ThreeCount, "1 - 2 - 3. "},
        {kQvd, Family::ThreeCount, "Cover! 1....2....3! Ring the bell. "},
        {kQvd, Family::ThreeCount, "Pin : 1....2....3! "},
        {kLamplighter, Family::TwoCount, "1 - 2 - shoulder up."},
        {kTolland, Family::RefBump, "goes down after accidentally getting caught"}}) {
    const auto lines = ReadLinesOf(old.Voice, old.Of, 0);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const TaggedLine& line) {
      return line.Text.find(old.Says) != std::string_view::npos;
    })) << old.Says;
  }
}

}  // namespace
}  // namespace grapplemont
