#include "show/holdshow.h"

#include "showrig.h"

namespace grapplemont::test {
namespace {

SmallWorld Promoter(int size = kRegional, int production = 100) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", size, [&](Promotion& p) { p.Production = production; });
  return small;
}

/// A show under way with this sum of ratings behind it.
ShowRun& Under(World& world, bool isEvent, int sum, int segments, int lastOverall) {
  ShowRun run;
  run.Stage = kShowRuns;
  run.IsEvent = isEvent;
  run.ShowSum = sum;
  run.ShowSegments = segments;
  run.LastOverall = lastOverall;
  world.ShowRuns().Rewrite({run});
  return world.ShowRuns()[1];
}

TEST(Commentary, ChargesEveryLimitThatIsPassed) {
  // Size, talent, what the announcer costs and the colour commentator.
  constexpr int kRows[][4] = {
      {kGlobal, 75, 0, 0}, {kGlobal, 59, 60, 30}, {kGlobal, 49, 100, 60}, {kSmall, 0, 40, 15}};
  for (const auto& [size, talent, announcer, colour] : kRows) {
    SCOPED_TRACE(testing::Message() << "size " << size << " talent " << talent);
    const auto speaks = [&, t = talent](bool can) {
      return [=](Worker& w) { w.Charisma = t, w.Speaks = can; };
    };
    World world = Promoter(size)
                      .Staff("Gil", kAnnouncer, talent)
                      .Worker("Ann", speaks(true))
                      .Worker("Mum", speaks(false))
                      .Game("CWA");
    const int gil = Named(world.AllStaff(), "Gil").Uid;
    EXPECT_EQ(7 - announcer, WithAnnouncer(world, gil, 7));
    EXPECT_EQ(7 - colour, WithColour(world, gil, false, 7));
    EXPECT_EQ(7 - colour, WithColour(world, Named(world.Workers(), "Ann").Uid, true, 7));
    EXPECT_EQ(7 - colour - 100, WithColour(world, Named(world.Workers(), "Mum").Uid, true, 7));
  }
}

TEST(Commentary, AnEmptyChairSetsTheSum) {
  const World world = Promoter().Game("CWA");
  EXPECT_EQ(0, WithAnnouncer(world, 0, 57));
  EXPECT_EQ(-1, WithAnnouncer(world, 0, 100));
  EXPECT_EQ(0, WithColour(world, 0, false, -60));
  EXPECT_EQ(-1, WithColour(world, 0, true, 40));
}

TEST(TheClose, TakesTheMeanWithTheLastSegmentTwice) {
  const struct {
    const char* What;
    int Production, Sum, Segments, Last, Rating;
  } rows[] = {{"rounded down, less the production", 34, 120, 2, 60, 56},
              {"never below 0", 100, -300, 3, 20, 0},
              {"never above 100", 100, 700, 5, 100, 100}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.What);
    World world = Promoter(kRegional, row.Production).Game("CWA");
    Under(world, false, row.Sum, row.Segments, row.Last);
    EXPECT_EQ(row.Rating, CloseShow(world));
    EXPECT_TRUE(ShowIsClosed(world));
    EXPECT_EQ(row.Rating, world.Session.ShowRating);
    EXPECT_EQ(row.Segments + 1, world.Session.ShowFlag);
    world.Session = {};
    LeaveShow(world);
    EXPECT_EQ(row.Rating, world.Session.ShowRating);
    EXPECT_FALSE(world.ShowRuns().Exists());
  }
}

TEST(TheClose, WearsOffPopularityAndSoursStarsAtHome) {
  const struct {
    const char* What;
    int Kind, Style, Rows, Position, Condition;
    std::vector<int> Draws;
    int Over, Morale;
    bool Debuted;
  } rows[] = {{"a star left at home", kMatch, kSingles, 0, 2, 86, {8}, 50, 42, false},
              {"a midcarder", kMatch, kSingles, 0, kMidcard, 100, {}, 50, 50, false},
              {"three times", kMatch, kSingles, 3, 1, 100, {2}, 48, 50, true},
              {"four times", kMatch, kSingles, 4, 1, 100, {3}, 45, 50, true},
              {"eleven times", kMatch, kSingles, 11, 1, 100, {}, 44, 50, true},
              {"in interviews", kInterview, 1, 5, kMidcard, 100, {}, 50, 50, false},
              {"in debut videos", kAngle, 65, 5, kMidcard, 100, {}, 50, 50, false},
              {"in development", kMatch, kSingles, 5, kDevelopmentDeal, 100, {}, 50, 50, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.What);
    World world = Promoter()
                      .Worker("Star",
                              [&](Worker& w) {
                                w.Position = row.Position;
                                w.Condition = row.Condition;
                                w.Over = w.Morale = 50;
                                w.Debuted = false;
                              })
                      .Game("CWA");
    const Worker& star = Named(world.Workers(), "Star");
    for (int number = 1; number <= 11; ++number) {
      const bool isSeen = number <= row.Rows;
      world.Segments().Append(isSeen ? SegmentOf(row.Kind, row.Style, 1, {}) : EmptySegment());
      if (!isSeen) continue;
      if (row.Kind == kMatch)
        world.Segments()[number].Other4 = star.Uid;
      else
        world.Segments()[number].Worker[0] = star.Uid;
    }
    Under(world, false, 50, 1, 50);
    ScriptDraws(world, row.Draws);
    CloseShow(world);
    EXPECT_EQ(row.Over, star.Over);
    EXPECT_EQ(row.Morale, star.Morale);
    EXPECT_EQ(row.Debuted, bool(star.Debuted));
  }
}

TEST(TheClose, OfAnEventCoolsFeudsAndFadesTitlesThatItDidNotUse) {
  World world = Promoter()
                    .Worker("Ann")
                    .Worker("Bob")
                    .Title("Defended", "Ann")
                    .Title("Lucky", "Ann")
                    .Title("Shelved", "Ann", {}, [](Title& t) { t.Suspended = true; })
                    .Title("Idle", "Ann", {}, [](Title& t) { t.Image = 55; })
                    .Promotion("NEW")
                    .Title("Theirs")
                    .Game("CWA")
                    .Feud("Ann", "Bob", Hot(57));
  ShowRun& run = Under(world, true, 50, 1, 50);
  world.Segments().Append(MatchOf(kSingles)).TitleName = "Defended";  // of Ann and Bob
  for (const bool isUsed : {true, false}) {
    run.FeudTouched[0] = isUsed;
    // Each slot that was not used draws, the empty ones too; then each Title that was not at stake.
    std::vector<ScriptedDraw> draws(isUsed ? 7U : 8U, ScriptedDraw(3, 2));
    draws.insert(draws.end(), {{3, 2}, {3, isUsed ? 2 : 1}});
    ScriptDraws(world, draws);
    CloseShow(world);
    EXPECT_EQ(isUsed ? 57 : 52, world.Feuds()[1].Heat);
  }
  std::string images;
  for (const Title& title : world.Titles())
    images += title.Name.Str() + " " + std::to_string(title.Image) + ", ";
  EXPECT_EQ(images, "Defended 50, Lucky 50, Shelved 50, Idle 49, Theirs 50, ");
}

}  // namespace
}  // namespace grapplemont::test
