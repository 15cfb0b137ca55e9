#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <set>
#include <string>

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
      constexpr unsigned kAsksMore =
          kCleanTag | kTroubleTag | kWornTag | kTiredTag | kLongTag | kGreatTag;
      return ((line.Tags & all) == 0 || (line.Tags & tag) != 0) && (line.Tags & kAsksMore) == 0;
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

/// Nobody stamps on a foot from under a half crab.
TEST_P(Fitting, GetsOutOfAHoldOnTheMatWithoutStanding) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment match = Match(kSingles);
  const Scene scene;
  LineMemory memory;
  Teller teller(world, match, scene, memory);
  Person *one = teller.cast.Find(world, 1), *two = teller.cast.Find(world, 2);
  for (int i = 0; i < 12; ++i) {
    teller.Act(one, two);
    teller.Say(Family::Spot, kHoldSpot, kHoldTag);
    ASSERT_EQ(teller.Under, Footing::Held);
    teller.TurnRound(two, one);
    teller.Say(Family::Counter);
  }
  const auto lines = ReadLinesOf(GetParam(), Family::Counter, 0);
  for (std::size_t line = 0; line < lines.size(); ++line)
    EXPECT_FALSE(lines[line].Is(kUpTag) &&
                 memory.Used(BlockOf(GetParam(), Family::Counter, 0), static_cast<int>(line)))
        << lines[line].Text;
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

/// A line that puts somebody down comes once: before the next cover another one does, or a trip.
TEST_P(Fitting, PutsNobodyDownTwiceInTheSameWords) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment match = Match(kSingles);
  const Scene scene;
  for (const Family family : {Family::OffenceA, Family::OffenceB, Family::OffenceC})
    for (int band = kBrawlLow; band <= kSpeedHigh; ++band) {
      const auto lines = ReadLinesOf(GetParam(), family, band);
      const auto unfloored = std::count_if(lines.begin(), lines.end(), [](const TaggedLine& line) {
        return (line.Tags & (kFloorTag | kWornTag | kTroubleTag | kTiredTag)) == 0;
      });
      LineMemory memory;
      Teller teller(world, match, scene, memory);
      Person *one = teller.cast.Find(world, 1), *two = teller.cast.Find(world, 2);
      for (int said = 0; said < unfloored; ++said) {
        teller.Act(one, two);
        teller.Under = Footing::Up;
        teller.Say(family, band, kDownTag);
      }
      int used = 0;
      for (std::size_t line = 0; line < lines.size(); ++line)
        used += memory.Used(BlockOf(GetParam(), family, band), static_cast<int>(line));
      EXPECT_EQ(used, unfloored) << HeadingOf(family, band);
    }
}

/// A melee says more moves than a family has; a match of one against one keeps to its row.
TEST_P(Fitting, BorrowsMovesWhereAMatchHasSaidThemAll) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  for (Worker& worker : world.Workers()) worker.Brawl = 100;
  const Scene scene;
  constexpr int kMoves = 25;
  for (const int style : {int(kSingles), int(kFourOnFour)}) {
    const Segment match = Match(style);
    LineMemory memory;
    Teller teller(world, match, scene, memory);
    for (int said = 0; said < kMoves; ++said) {
      teller.Act(teller.cast.Find(world, 1), teller.cast.Find(world, 5));
      teller.Under = Footing::Up;
      teller.SayOffence(Family::OffenceA);
    }
    int used = 0, borrowed = 0;
    for (const FamilyRow& row : AllFamilies())
      for (int band = row.Bands.First; row.Of <= Family::OffenceE && band <= row.Bands.Last; ++band)
        for (int line = 0; line < row.Lines; ++line)
          if (memory.Used(BlockOf(GetParam(), row.Of, band), line))
            ++(row.Of == Family::OffenceA ? used : borrowed);
    EXPECT_EQ(borrowed > 0, style != kSingles);
    EXPECT_TRUE(style == kSingles || used + borrowed == kMoves) << teller.Text();
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

/// Nobody is spent who has taken two moves, and no squash is praised for its length.
TEST_P(Fitting, SaysNothingThatTheMatchHasNotShown) {
  World world = Ten().Game("CWA");
  world.Game().Reporter = GetParam();
  const Segment match = Match(kSingles);
  struct Claim {
    Family Of;
    int Band;
    LineTag Tag;
  };
  for (const bool isShown : {false, true})
    for (const Claim& claim : {Claim{Family::PurposeEnding, kGoodMatchTold, kGreatTag},
                               {Family::PurposeEnding, kGoodMatchTold, kLongTag},
                               {Family::Interlude, kDesperate, kTiredTag}}) {
      Scene scene;
      scene.Overall = isShown ? 91 : 90;
      LineMemory memory;
      Teller teller(world, match, scene, memory);
      Person *one = teller.cast.Find(world, 1), *two = teller.cast.Find(world, 2);
      teller.Act(one, two);
      one->Taken = isShown ? 3 : 2;
      teller.IsBrief = !isShown;
      const auto lines = ReadLinesOf(GetParam(), claim.Of, claim.Band);
      for (std::size_t i = 0; i < 2 * lines.size(); ++i) teller.Say(claim.Of, claim.Band);
      bool isSaid = false;
      for (std::size_t line = 0; line < lines.size(); ++line)
        isSaid |= lines[line].Is(claim.Tag) &&
                  memory.Used(BlockOf(GetParam(), claim.Of, claim.Band), static_cast<int>(line));
      EXPECT_EQ(isSaid, isShown) << kLineTags[std::countr_zero(unsigned{claim.Tag})];
    }
}

/// Two careers do not begin in the same words, and each always begins in its own.
TEST_P(Fitting, BeginsAnotherWayUnderEachPromotion) {
  const Segment match = Match(kSingles);
  const auto said = [&](int promotion) {
    World world = Ten().Game("CWA");
    world.Game().Reporter = GetParam();
    world.Game().PlayerPromotion = promotion;
    const Scene scene;
    LineMemory memory;
    std::set<std::string> counts;
    for (std::size_t i = 0; i < ReadLinesOf(GetParam(), Family::TwoCount, 0).size(); ++i) {
      Teller teller(world, match, scene, memory);
      teller.Say(Family::TwoCount);
      counts.insert(teller.Text());
    }
    return counts;
  };
  EXPECT_EQ(said(1), said(1));
  EXPECT_NE(said(1), said(2));
}

constexpr int kAnyVoice = -1;

/// Whether a line of the family says this, in this voice or in any.
bool Says(int voice, Family family, std::string_view words) {
  for (const int each : {kLamplighter, kTolland, kQvd}) {
    if (voice != kAnyVoice && voice != each) continue;
    const BandRange& bands = RowOf(family).Bands;
    for (int band = bands.First; band <= bands.Last; ++band)
      for (const TaggedLine& line : ReadLinesOf(each, family, band))
        if (line.Text.find(words) != std::string_view::npos) return true;
  }
  return false;
}

/// Words that the reports have had from their first day.
TEST(Words, KeepTheOldLines) {
  using enum Family;
  struct Old {
    int Voice;
    Family Of;
    std::vector<std::string_view> Says;
  };
  for (const Old& old : std::initializer_list<Old>{
           {kAnyVoice, OffenceA, {" uses a neckbreaker on ", "Forearm to the face from "}},
           {kAnyVoice,
            OffenceA,
            {" gets hip tossed by ", " takes a chop from ", ", executed well"}},
           {kAnyVoice, OffenceC, {" hits a bulldog off the ropes. ", "Big clothesline from "}},
           {kAnyVoice, OffenceC, {"Messed up bodyslam by "}},
           {kAnyVoice, OffenceD, {"Side suplex from ", ", looked crap", "Powerbomb on "}},
           {kAnyVoice, OffenceE, {"Kick from ", "Right hand from ", " strikes "}},
           {kAnyVoice, Counter, {" counters a backdrop with a kick to the face."}},
           {kAnyVoice, Counter, {" ducks a clothesline attempt."}},
           {kLamplighter, TwoCount, {"1 - 2 - shoulder up.", "Hooks the leg for a two count."}},
           {kAnyVoice, NearFall, {"1 - 2 - 2.999", "Pinfall attempt gets a 2.9999."}},
           {kLamplighter, ThreeCount, {"1 - 2 - 3. ", " defeats "}},
           {kQvd, ThreeCount, {"Cover! 1....2....3! Ring the bell.", "Pin : 1....2....3!"}},
           {kAnyVoice, PinNoRef, {"Hooks the leg, but the referee is still out."}},
           {kLamplighter, RefBump, {" runs into the referee. ", "Hah, die referee scum!"}},
           {kTolland,
            RefBump,
            {"We have our mandatory ref bump, as he goes down after "
             "accidentally getting caught"}},
           {kAnyVoice,
            RefBump,
            {"The referee bumps after catching a wild right hand and is down."}},
           {kAnyVoice, DoubleTeam, {", then hit a double suplex."}},
           {kAnyVoice, DoubleTeam, {" into the ropes and hit a double clothesline."}},
           {kAnyVoice, DoubleDq, {"calls for the bell. This is a double DQ."}},
           {kAnyVoice, LadderSpot, {" drives the ladder into ", "Whip into the ladder by "}},
           {kAnyVoice, WeaponSpot, {"Frying pan shot by ", " with a plastic dinosaur."}},
           {kLamplighter, OffenceB, {"Yeah! Violence rules."}},
           {kLamplighter, TableSpot, {"Running table shot by ", " through the table!"}},
           {kAnyVoice, TagOut, {"Tag between ", " tags out to "}},
           {kAnyVoice, EliminationTry, {" tried to eliminate ", " held onto the ropes."}},
           {kAnyVoice, Elimination, {" got thrown over the top rope by ", " was eliminated by "}},
           {kAnyVoice, Elimination, {"(Elimination #"}},
           {kAnyVoice, RumbleStart, {"Entry #", " are the first two competitors."}},
           {kLamplighter,
            TurnCosts,
            {"partner with a right hand to the jaw, then drops down off t",
             " leaves the ring with the chair in hand. ",
             " scores with a quick small package on "}}})
    for (const std::string_view words : old.Says)
      EXPECT_TRUE(Says(old.Voice, old.Of, words)) << words;
}

/// {when} is "in March" or "a week ago": it is no subject, and stands behind no word that wants the
/// name of a day. A Title of two is not one thing, and how often somebody has won before is not
/// known where a win comes again and again.
TEST(Words, FitWhateverThePastHolds) {
  constexpr std::string_view kNever[] = {
      " of {when}",     " since {when}",   " until {when}",     " from {when}",  " by {when}",
      " before {when}", " after {when}",   " remembers {when}", "{F:s} {when}.", ". {when} was",
      ". {when} stays", ". {when} stands", "and {when} sits"};
  constexpr std::string_view kNotOfTitles[] = {" won it",         " keep it",      " takes it",
                                               " fingerprint it", " want{F:s} it", " want{S:s} it"};
  constexpr std::string_view kCounts[] = {"twice", "second", "third", "first"};
  const auto holds = [](const std::string& text, std::span<const std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return text.find(word) != std::string::npos; });
  };
  for (int voice = kLamplighter; voice <= kQvd; ++voice)
    for (const Family family : {Family::PastOpening, Family::PastEnding, Family::TitleOpening})
      for (int band = 0; band <= RowOf(family).Bands.Last; ++band)
        for (const TaggedLine& line : ReadLinesOf(voice, family, band)) {
          const std::string text = ". " + std::string(line.Text);
          EXPECT_FALSE(holds(text, kNever)) << text;
          EXPECT_FALSE(text.find("{title}") != text.npos && holds(text, kNotOfTitles)) << text;
          const bool again = (family == Family::PastEnding && band == kSameAgain) ||
                             (family == Family::PastOpening && band == kMetLately);
          EXPECT_FALSE(again && holds(text, kCounts)) << text;
        }
}

/// A draw of three picks one; the lowest band has two.
TEST(Words, RateWithThreeLinesABand) {
  const BandRange& bands = RowOf(Family::Verdict).Bands;
  for (int band = bands.First; band <= bands.Last; ++band)
    EXPECT_EQ(ReadLinesOf(kTolland, Family::Verdict, band).size(), band == bands.First ? 2U : 3U)
        << kVerdictsUpTo[band];
}

}  // namespace
}  // namespace grapplemont
