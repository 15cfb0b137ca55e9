#include "show/runsegment.h"
#include "report/report.h"
#include "show/ratings.h"
#include "showrig.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

/// The world with this show under way; every draw is as low as can be.
World Tonight(World world, const std::vector<Segment>& sheet, bool isEvent = false) {
  for (const Segment& segment : sheet) world.Segments().Append(segment);
  ShowRun show{};
  show.Stage = kShowRuns;
  show.IsEvent = isEvent;
  world.ShowRuns().Append(show);
  world.SetChance(std::make_unique<SteadyDraws>(1));
  return world;
}

const ShowRun& ShowOf(const World& world) {
  return world.ShowRuns()[1];
}

TEST(RunSegment, StoresTheRatingAndAddsItToTheShowButForAnEventsFirst) {
  for (const bool isEvent : {false, true}) {
    World world = Tonight(
        Cast().Game("CWA"),
        {SegmentOf(kInterview, kSingleTalk, 0, {1}), MatchOf(kSingles), EmptySegment()}, isEvent);
    EXPECT_EQ(RunSegment(world, 1, nullptr).Overall, 43);  // of 50
    EXPECT_EQ(world.Segments()[1].Rating, 43);
    EXPECT_EQ(ShowOf(world).LastOverall, 43);
    EXPECT_EQ(ShowOf(world).ShowSum, isEvent ? 0 : 43);
    EXPECT_EQ(RunSegment(world, 2, nullptr).Overall, 51);
    EXPECT_EQ(ShowOf(world).PreviousCrowd, 47);
    EXPECT_EQ(ShowOf(world).ShowSum, isEvent ? 51 : 43 + 51);
    EXPECT_EQ(ShowOf(world).ShowSegments, isEvent ? 1 : 2);
    const World before = CopyOf(world);
    EXPECT_EQ(RunSegment(world, 3, nullptr).Overall, 0);
    ExpectSame(world, before);  // an empty place changes nothing
  }
}

TEST(RunSegment, HalvesATitleMatchBeforeTheBurnOutAndTellsAllOfIt) {
  World world = Tonight(Cast(31, [](Worker& w) { w.Over = 89, w.Potential = 89; })
                            .Title("Crown", "Hand 31")
                            .Game("CWA"),
                        {MatchOf(kSpecial, kRoyalRumble), MatchOf(kSpecial, kRoyalRumble)});
  world.Segments()[1].TitleName = "Crown";
  world.FindWorker(1)->Morale = 29;
  world.ShowRuns()[1].PreviousCrowd = 81;
  const ToldSegment told = RunSegment(world, 1, nullptr);
  EXPECT_EQ(told.Crowd, 32) << StepsText(told.Crowd);  // of 80
  EXPECT_EQ(told.Crowd.Steps().size(), 3u);
  EXPECT_EQ(told.Overall, 43);
  EXPECT_EQ(ShowOf(world).PreviousCrowd, 32);
  EXPECT_EQ(told.Notes.find("Ash was sluggish"), 0u);
  EXPECT_NE(told.Notes.find("when the champion wasn't involved. This affected"), std::string::npos);
  EXPECT_LT(told.Notes.find("the champion wasn't"), told.Notes.find("pumped up"));
  EXPECT_EQ(RunSegment(world, 2, nullptr).Crowd, 80) << "compared with 32";
}

TEST(RunSegment, TakesSellingBeforeSoftWork) {
  World world = Tonight(Cast().Game("CWA"), {MatchOf(kSingles)});
  Segment& match = world.Segments()[1];
  match.Winner = 1;
  match.Loser = 2;
  match.Finish = kClean;
  match.Purpose = int(purpose1::kPutWinnerOver);
  world.FindWorker(2)->Sell = 0;
  world.FindWorker(2)->Stiff = 24;
  const ToldSegment told = RunSegment(world, 1, nullptr);
  EXPECT_EQ(StepsText(told.Quality),
            "mean work of Ash 55, Bea 54 +54, Bea sold nothing -16, Bea worked too softly -4");
}

/// A Segment of any kind with codes that may be in use, among people who may be there.
Segment RandomSegment(Dice& dice) {
  const int kind = dice.From(kMatch, kAngle);
  const int style = dice.From(1, kind == kMatch ? 9 : kind == kInterview ? 4 : 79);
  Segment segment =
      SegmentOf(kind, style, kind == kMatch ? dice.From(1, style == 1 ? 19 : 5) : 0, {});
  for (Word& uid : segment.Worker) uid = dice.From(0, 34);
  for (Word* uid : {&segment.Other1, &segment.Other2, &segment.Other3, &segment.Other4})
    *uid = dice.From(0, 34);
  segment.Winner = dice.OneIn(3) ? 0 : int(segment.Worker[0]);
  segment.Loser = segment.Winner == 0 ? kNoLoser : int(segment.Worker[1]);
  segment.Finish = dice.From(0, 13);
  segment.Purpose = dice.From(0, 12);
  segment.Aftermath = dice.From(0, 27);
  if (dice.OneIn(2)) segment.TitleName = dice.OneIn(2) ? "Crown" : "Twins";
  if (dice.OneIn(2)) segment.Text = "Pack";
  return segment;
}

World RandomNight(std::uint64_t seed, const std::vector<Segment>& sheet) {
  Dice dice(seed);
  World world = Cast(30,
                     [&](Worker& w) {
                       for (Percent* skill : {&w.Brawl, &w.Technical, &w.Speed, &w.Stiff, &w.Sell,
                                              &w.Over, &w.Charisma, &w.Condition, &w.Morale})
                         *skill = dice.From(0, 100);
                       w.Potential = 100;
                       w.SuperstarLook = dice.OneIn(3);
                       w.Disposition = dice.OneIn(3) ? "T" : dice.OneIn(2) ? "F" : "H";
                       w.TurnPending = dice.OneIn(2);
                     })
                    .Stable("Pack", {"Ash", "Dot", "Hand 12"})
                    .Team("Rats", "Ash", "Bea")
                    .Title("Crown", "Cal")
                    .Title("Twins", "Eli", "Fay")
                    .Feud("Ash", "Bea", Hot(dice.From(0, 100)))
                    .TagFeud("Ash", "Bea", "Cal", "Dot", Hot(dice.From(0, 100)))
                    .Game("CWA");
  world = Tonight(std::move(world), sheet);
  world.SetChance(std::make_unique<SeededDraws>(seed));
  return world;
}

TEST(RunSegment, TellsStepsThatAddUpToTheNumbersShown) {
  Dice dice(11);
  for (int night = 0; night < 200; ++night) {
    std::vector<Segment> sheet;
    for (int i = 0; i < 9; ++i) sheet.push_back(RandomSegment(dice));
    World world = RandomNight(static_cast<std::uint64_t>(night), sheet);
    for (int number = 1; number <= 9; ++number) {
      SCOPED_TRACE("night " + std::to_string(night) + ", " + std::to_string(number));
      const ToldSegment told = RunSegment(world, number, nullptr);
      for (const Score* score : {&told.Quality, &told.Crowd, &told.Overall}) {
        long long sum = 0;
        for (const ScoreStep& step : score->Steps()) {
          EXPECT_NE(step.Change, 0);
          EXPECT_NE(step.Why, "");
          sum += step.Change;
        }
        EXPECT_EQ(sum, score->Whole());
      }
      EXPECT_EQ(told.Overall, world.Segments()[number].Rating);
      EXPECT_TRUE(told.Overall >= 0 && told.Overall <= 100);
      EXPECT_TRUE(told.Quality >= 0 && told.Quality <= 100);
      EXPECT_TRUE(told.Crowd >= 0 && told.Crowd <= 100);
      if (world.Segments()[number].Kind != kMatch) continue;
      EXPECT_EQ(ShowOf(world).PreviousCrowd, told.Crowd);
    }
  }
}

TEST(RunSegment, GivesTheSameResultWithProseAndWithout) {
  Dice dice(12);
  std::vector<Segment> sheet;
  for (int i = 0; i < 9; ++i) sheet.push_back(RandomSegment(dice));
  World told = RandomNight(5, sheet), silent = RandomNight(5, sheet);
  LineMemory memory;
  for (int number = 1; number <= 9; ++number) {
    RunSegment(told, number, &memory);
    EXPECT_EQ(RunSegment(silent, number, nullptr).Report, "");
  }
  told.Said().Remove();  // which lines were said is all that prose leaves
  ExpectSame(told, silent);
}

TEST(RunSegment, SurvivesSegmentsOfAnyBytes) {
  Dice dice(13);
  for (int night = 0; night < 300; ++night) {
    Segment segment;
    auto* bytes = reinterpret_cast<std::byte*>(&segment);
    for (std::size_t i = 0; i < sizeof segment; ++i) bytes[i] = dice.Byte();
    segment.Kind = dice.From(0, 4);
    if (dice.OneIn(2)) segment.Style = dice.From(-1, 10);
    if (dice.OneIn(2)) segment.MatchType = dice.From(-1, 20);
    World world = RandomNight(static_cast<std::uint64_t>(night), {segment});
    const ToldSegment told = RunSegment(world, 1, nullptr);
    EXPECT_TRUE(told.Overall >= 0 && told.Overall <= 100);
  }
}

}  // namespace
}  // namespace grapplemont::test
