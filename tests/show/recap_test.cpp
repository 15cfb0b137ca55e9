#include "show/recap.h"
#include "show/holdshow.h"
#include "show/ratings.h"

#include "showrig.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

/// A show that has closed with these Segments, rated 10, 20 and so on.
World Closed(const std::vector<Segment>& segments, const Change<ShowRun>& change = {}) {
  World world =
      Cast(30).Network("Nine").Show("Fire", DayName(kGameStart), "Nine").Event(3, 2).Game("CWA");
  std::vector<Segment> sheet = segments;
  for (std::size_t i = 0; i < sheet.size(); ++i) sheet[i].Rating = 10 * (static_cast<int>(i) + 1);
  world.Segments().Rewrite(sheet);
  ShowRun run;
  run.Stage = kShowClosed;
  run.Current = static_cast<int>(sheet.size());
  if (change) change(run);
  world.ShowRuns().Rewrite({run});
  return world;
}

Segment Won(int style, int type, int winner, int loser) {
  Segment match = MatchOf(style, type);
  match.Winner = winner;
  match.Loser = loser;
  return match;
}

TEST(Recap, TellsEachResultInALine) {
  const World world =
      Closed({Won(kSingles, 1, 2, 1), Won(kThreeTeams, 2, 3, 1), Won(kFourTeams, 2, 8, 1),
              Won(kSpecial, 1, 5, kNoLoser), Won(kSpecial, 2, 6, kNoLoser),
              Won(kSpecial, 3, 7, kNoLoser), EmptySegment(), SegmentOf(kInterview, 1, 0, {4, 5})});
  const ShowRecap recap = RecapOf(world);
  std::string told;
  for (const RecapLine& line : recap.Lines)
    told +=
        std::to_string(line.Number) + " " + line.What + " " + std::to_string(line.Rating) + "\n";
  EXPECT_EQ(told,
            "1 Bea over Ash 10\n"
            "2 Cal \\ Dot won a triangle tag match 20\n"
            "3 Gus \\ Hal won a four-way tag match 30\n"
            "4 Eli won a Royal Rumble 40\n"
            "5 Fay won a 20 Man Battle Royal 50\n"
            "6 Gus won a 10 Man Battle Royal 60\n"
            "8 Interview with Dot 80\n");
  EXPECT_EQ(recap.Best, "Interview with Dot, 80%");
  EXPECT_EQ(recap.Worst, "Bea over Ash, 10%");
}

TEST(Recap, AddsUpTheSumOfAnEventWithoutItsDarkMatch) {
  const World world = Closed({Won(kSingles, 1, 1, 2), Won(kSingles, 1, 3, 4)}, [](ShowRun& run) {
    run.IsEvent = true;
    run.AnnouncerCharge = -20;
    run.ExtraBonus = 5;
    run.LastOverall = 20;
    run.ProductionCharge = -10;
    run.ShowSegments = 2;
    run.ShowSum = 7;
  });
  std::string sum;
  for (const ScoreStep& step : RecapOf(world).Sum)
    sum += step.Why + " " + std::to_string(step.Change) + "\n";
  EXPECT_EQ(sum,
            "The announcer -20\nThe extra of the Event 5\nThe Segments 20\n"
            "The closing Segment once more 20\nPoor production -10\nTogether 15\n"
            "Over 2 ratings 7\n");
}

TEST(Recap, StandsOnItsSheet) {
  GameOnWorld play(Closed({Won(kSingles, 1, 2, 1), Won(kSpecial, 3, 7, kNoLoser)},
                          [](ShowRun& run) { run.ShowSum = 64; }));
  play.Desk.Open("frmPostShow");
  EXPECT_EQ(play.Desk.Title(), "Recap Sheet For Fire");
  EXPECT_EQ(play.Desk.Text("lblrating"), "The show is rated 64%.");
  const std::vector<std::vector<std::string>> expected = {
      {"1", "Bea over Ash", "10%"}, {"2", "Gus won a 10 Man Battle Royal", "20%"}};
  EXPECT_EQ(play.Desk.Rows("lstrecap"), expected);
}

}  // namespace
}  // namespace grapplemont::test
