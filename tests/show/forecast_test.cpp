#include "show/forecast.h"
#include "show/holdshow.h"

#include "showrig.h"

namespace grapplemont::test {
namespace {

constexpr CommentaryTeam kTable{1, 2, false};

/// A Regional promotion with everything a show needs. Ash and Bea are worlds better than the rest.
SmallWorld Ready(int production = 40, int talent = 40) {
  SmallWorld small;
  small.Promotion("CWA", kRegional, [&](Promotion& p) { p.Production = production; })
      .Staff("Milo Grant", kAnnouncer, talent)
      .Staff("Pia Root", kAnnouncer, talent);
  for (const char* name : {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"})
    small.Worker(name, [&](Worker& w) {
      const bool isGreat = *name <= 'B';
      w.Over = w.Charisma = w.Brawl = isGreat ? 95 : 50;
      w.Potential = 100;
      w.Disposition = *name % 2 == 0 ? "H" : "F";
    });
  return small;
}

World Booked(SmallWorld&& small, const std::vector<Segment>& sheet, int rows = kTvRows) {
  World world = small.Game("CWA");
  world.Segments().Rewrite(std::vector<Segment>(static_cast<std::size_t>(rows), EmptySegment()));
  for (std::size_t row = 0; row < sheet.size(); ++row)
    world.Segments()[static_cast<int>(row) + 1] = sheet[row];
  return world;
}

Segment Bout(int one, int other, int type = kPlainSingles) {
  Segment match = SegmentOf(kMatch, kSingles, type, {one, other});
  match.Winner = one;
  match.Loser = other;
  match.Finish = kClean;
  match.Aftermath = match.Purpose = 1;
  return match;
}

/// Matches and talk of people none of whom comes twice, but for one.
std::vector<Segment> ACard() {
  return {Bout(3, 4, kCage), SegmentOf(kInterview, kSingleTalk, 0, {5}), Bout(6, 7, kHighIncident),
          SegmentOf(kAngle, 25, 0, {3, 8}), Bout(1, 2, kHellInACell)};
}

TEST(ForecastShow, LeavesTheWorldAndItsDrawsAlone) {
  for (const bool isEvent : {false, true}) {
    World world = Booked(Ready(), ACard(), RowsOf(isEvent));
    world.SetChance(std::make_unique<SeededDraws>(7));
    World twin = CopyOf(world);
    twin.SetChance(std::make_unique<SeededDraws>(7));
    const auto before = BytesOf(world);
    const ShowForecast first = ForecastShow(world, isEvent, kTable);
    EXPECT_TRUE(BytesOf(world) == before);
    EXPECT_EQ(world.RandomDraw(1000000), twin.RandomDraw(1000000));
    EXPECT_EQ(world.Prose().Draw(1000000), twin.Prose().Draw(1000000));
    const ShowForecast second = ForecastShow(world, isEvent, kTable);
    EXPECT_EQ(first.Rating, second.Rating) << "the same sheet, the same forecast";
    EXPECT_EQ(first.Rows, second.Rows);
  }
}

TEST(ForecastShow, MovesNoRowThatTheOthersDoNotTouch) {
  std::vector<Segment> sheet = ACard();
  sheet.pop_back();
  const std::vector<Forecast> before = ForecastShow(Booked(Ready(), sheet), false, kTable).Rows;
  // Whom the rows before do not need speaks first, and moves no crowd.
  sheet.insert(sheet.begin(), SegmentOf(kInterview, kSingleTalk, 0, {1}));
  const World world = Booked(Ready(), sheet);
  const std::vector<Forecast> after = ForecastShow(world, false, kTable).Rows;
  for (std::size_t row = 0; row + 1 < sheet.size(); ++row) EXPECT_EQ(before[row], after[row + 1]);
  const RowForecast one = ForecastRow(world, false, 2, sheet[1]);
  EXPECT_EQ(one.Rating, after[1]) << "the wizard foresees what the sheet does";
  EXPECT_GE(int(one.Typical.Overall), one.Rating.Low);
  EXPECT_LE(int(one.Typical.Overall), one.Rating.High);
  EXPECT_FALSE(one.Typical.Overall.Steps().empty());
}

TEST(ForecastShow, HoldsWhatMostShowsComeTo) {
  const World booked = Booked(Ready(), ACard());
  const ShowForecast forecast = ForecastShow(booked, false, kTable);
  EXPECT_LT(forecast.Rating.Low, forecast.Rating.High);
  EXPECT_LT(forecast.Rating.High - forecast.Rating.Low, 20) << "it says something";
  EXPECT_EQ(forecast.Rows[7], (Forecast{0, 0})) << "nothing is booked there";
  int shows = 0;
  std::vector<int> hits(forecast.Rows.size() + 1);
  const auto isHit = [](const Forecast& range, int value) {
    return range.Low <= value && value <= range.High;
  };
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    World world = CopyOf(booked);
    world.SetChance(std::make_unique<SeededDraws>(seed * 7919));
    StartShow(world, false, kTable);
    if (world.ShowRuns()[1].FlatNight) continue;  // a forecast tells of the other nights
    ++shows;
    hits[0] += isHit(forecast.Rating, FinishShow(world, nullptr));
    for (int row = 1; row <= kTvRows; ++row)
      hits[static_cast<std::size_t>(row)] +=
          isHit(forecast.Rows[static_cast<std::size_t>(row - 1)], world.Segments()[row].Rating);
  }
  ASSERT_GT(shows, 150);
  EXPECT_GT(*std::min_element(hits.begin(), hits.end()), shows * 3 / 4);
}

TEST(ForecastShow, IsEmptyForAnEmptySheet) {
  const ShowForecast forecast = ForecastShow(Booked(Ready(), {}), false, kTable);
  EXPECT_EQ(forecast.Rows, std::vector<Forecast>(kTvRows));
  EXPECT_EQ(forecast.Warnings, std::vector<std::string>());
}

using Warnings = std::vector<std::string>;

TEST(ForecastShow, WarnsOfTheTableAndTheProduction) {
  const World good = Booked(Ready(), ACard());
  EXPECT_EQ(ForecastShow(good, false, kTable).Warnings, Warnings());
  EXPECT_EQ(ForecastShow(good, false, {}).Warnings,
            (Warnings{"There is no announcer.", "There is no colour commentator."}));
  const World poor = Booked(Ready(34, 34), ACard());
  EXPECT_EQ(ForecastShow(poor, false, kTable).Warnings,
            (Warnings{"Milo Grant is not an announcer for a show of this size.",
                      "Pia Root is not a colour commentator for a show of this size.",
                      "The production is too poor for a promotion of this size."}));
}

TEST(ForecastShow, WarnsOfWhoIsTiredAndWhoIsOnTooOften) {
  World world = Booked(Ready(), {Bout(3, 4), Bout(3, 5), Bout(6, 7), Bout(3, 8)});
  world.FindWorker(4)->Condition = 59;
  world.FindWorker(6)->Condition = 60;
  world.FindWorker(2)->Condition = 10;  // not on the card
  EXPECT_EQ(ForecastShow(world, false, kTable).Warnings,
            (Warnings{"Cal is on the card 3 times: the fans tire of that.",
                      "Dot is tired (condition 59%)."}));
}

TEST(ForecastShow, WarnsOfWhatTheRoadAgentWouldComplainOf) {
  World world = Booked(std::move(Ready().Title("Crown", "Gus")),
                       {Bout(1, 2), Bout(3, 4), Bout(5, 6), SegmentOf(kAngle, 25, 0, {1, 2})});
  world.Segments()[2].Purpose = int(purpose1::kPutWinnerOver);
  world.FindWorker(4)->Sell = 10;
  world.Segments()[3].TitleName = "Crown";
  EXPECT_EQ(ForecastShow(world, false, kTable).Warnings,
            (Warnings{"Row 2: the crowd will still be spent from the match before.",
                      "Row 2: somebody who must sell will not.",
                      "Row 3: a Title match without its champion confuses the crowd."}));
}

}  // namespace
}  // namespace grapplemont::test
