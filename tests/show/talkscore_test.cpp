#include "show/talkscore.h"

#include <set>

#include "show/showfeuds.h"
#include "showrig.h"
#include "storylines/feuds.h"

namespace grapplemont::test {
namespace {

/// Ash talks for 30, Bea for 33, Cal for 42, Dot for 51; Eli, who leads the Pack, for 60.
SmallWorld Talkers() {
  static constexpr int kCharisma[] = {50, 55, 70, 85, 100};
  SmallWorld small = Cast(6, [](Worker& w) {
    w.Over = 0;
    w.Charisma = w.Uid <= 5 ? kCharisma[w.Uid - 1] : 10;
  });
  small.Stable("Pack", {"Eli", "Fay"});
  return small;
}

Segment AngleOf(int number, const std::vector<int>& uids = UidsUpTo(4)) {
  Segment angle = SegmentOf(kAngle, number, 0, uids);
  angle.Text = "Pack";
  return angle;
}

/// The feuds of all pairs that a Segment sets against each other.
SmallWorld Rivals() {
  SmallWorld small = Talkers();
  small.Feud("Ash", "Bea").Feud("Ash", "Cal").Feud("Ash", "Dot").Feud("Bea", "Cal");
  small.Feud("Bea", "Dot").Feud("Cal", "Dot").Feud("Eli", "Ash").Feud("Eli", "Bea");
  return small;
}

/// Who has scored against whom, by the pairs' feuds: "1>2 4>3".
std::string TalliesOf(const World& world) {
  std::set<std::string> tallies;
  for (const Feud& feud : world.Feuds()) {
    const std::string one = std::to_string(feud.Worker1), two = std::to_string(feud.Worker2);
    for (int times = 0; times < FeudWins(feud).One; ++times) tallies.insert(one + ">" + two);
    for (int times = 0; times < FeudWins(feud).Two; ++times) tallies.insert(two + ">" + one);
  }
  std::string text;
  for (const std::string& tally : tallies) text += (text.empty() ? "" : " ") + tally;
  return text;
}

int CrowdOfAngle(SmallWorld&& small, int number) {
  Rig rig(small.Game("CWA"), AngleOf(number));
  rig.W.Player().Production = 83;  // 41, and then 20
  rig.W.SetChance(std::make_unique<SteadyDraws>(3));
  ScoreAngle(rig.Run);
  return rig.Run.Crowd;
}

TEST(ScoreAngle, TakesTheMeanOfThoseWhoCountTheirFeudAndTheirTallies) {
  constexpr struct {
    int Number;
    int Crowd;
    char Feud;  // P the first two's lifts, T the teams' lifts, - none
    const char* Tallies;
  } kCases[] = {
      {1, 31, '-', ""},
      {26, 34, '-', ""},
      {6, 31, 'P', "2>1"},
      {23, 31, 'P', "1>2"},
      {3, 31, '-', "2>1 3>1 4>2 4>3"},
      {47, 35, 'P', "2>1 3>1"},
      {46, 39, 'T', "1>3 2>4"},
      {48, 39, 'T', ""},
      {55, 41, '-', "5>1 5>2"},
      {78, 38, '-', "4>1"},
      {62, 80, '-', ""},
      {70, 65, '-', ""},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.Number);
    EXPECT_EQ(CrowdOfAngle(Talkers(), c.Number), c.Crowd);
    EXPECT_EQ(CrowdOfAngle(std::move(Talkers().Feud("Ash", "Bea", Hot(90))), c.Number),
              c.Crowd + (c.Feud == 'P' ? 8 : 0));
    EXPECT_EQ(
        CrowdOfAngle(std::move(Talkers().TagFeud("Cal", "Dot", "Bea", "Ash", Hot(90))), c.Number),
        c.Crowd + (c.Feud == 'T' ? 8 : 0));
    Rig rig(Rivals().Game("CWA"), AngleOf(c.Number));
    rig.W.SetChance(std::make_unique<SteadyDraws>(1));
    ScoreAngle(rig.Run);
    EXPECT_EQ(TalliesOf(rig.W), c.Tallies);
  }
}

TEST(ScoreAngle, CountsOnlyWhoeverIsNamed) {
  const struct {
    int Number;
    std::vector<int> Uids;
    const char *Stable, *Steps, *Tallies;
  } kCases[] = {{78, {1, 2}, "Pack", "mean talk of Bea 33, Ash 30 +31", ""},
                {16, {1, 2}, "Pack", "mean talk of Ash 30, Bea 33 +31", "2>1"},
                {1, {1, 99}, "Pack", "mean talk of Ash 30, nobody 0 +15", ""},
                {50, {1}, "Nobody's", "talk of Ash 30 +30", ""},
                {62, {}, "None", "", ""},
                {70, {4}, "Pack", "mean talk of Dot 51, the guest 100 +75", ""},
                {80, {1, 2}, "Pack", "", ""},
                {0, {1, 2}, "Pack", "", ""}};
  for (const auto& c : kCases) {
    Rig rig(Rivals().Game("CWA"), AngleOf(c.Number, c.Uids));
    rig.S.Text = c.Stable;
    rig.W.Player().Production = 3;
    rig.Script({});
    ScoreAngle(rig.Run);
    EXPECT_EQ(StepsText(rig.Run.Crowd), c.Steps) << "angle " << c.Number;
    EXPECT_EQ(TalliesOf(rig.W), c.Tallies) << "angle " << c.Number;
  }
}

TEST(ScoreAngle, LimitsSpectaclesAlone) {
  const auto stars = [] { return Cast(2, [](Worker& w) { w.Over = w.Charisma = 98; }); };
  Rig spectacle(stars().Game("CWA"), AngleOf(26));
  ScoreAngle(spectacle.Run);
  EXPECT_EQ(StepsText(spectacle.Run.Crowd),
            "mean talk of Ash 97, Bea 97 +97, spectacle +9, limit -6");
  Rig video(stars().Game("CWA"), AngleOf(61));
  video.W.Player().Production = 100;
  ScoreAngle(video.Run);
  EXPECT_EQ(video.Run.Crowd, 122);
}

TEST(ScoreInterview, HearsOneOrTwoAndTalliesAgainstTheOneSpokenOf) {
  const struct {
    int Style, Crowd;
    std::vector<int> Uids;
    const char* Tallies;
  } kCases[] = {{kSingleTalk, 30, {1, 2}, "1>2"},
                {kTeamTalk, 31, {1, 2, 3}, "1>3"},
                {kTeamTalk, 31, {1, 2}, ""},
                {kManagedTalk, 30, {1, 2, 3}, "1>3 2>3"},
                {kManagedTeamTalk, 30, {1, 2, 3, 4}, "1>4 2>4"},
                {kManagedTeamTalk, 30, {1, 2, 3}, ""}};
  for (const auto& c : kCases) {
    Rig rig(Rivals().Game("CWA"), SegmentOf(kInterview, c.Style, 0, c.Uids));
    for (Feud& feud : rig.W.Feuds()) feud.Heat = 20;
    const bool isOfSomebody = *c.Tallies != 0;
    ScriptDraws(rig.W, isOfSomebody ? std::vector{1} : std::vector<int>());
    ScoreInterview(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd) << "style " << c.Style;
    EXPECT_EQ(TalliesOf(rig.W), c.Tallies) << "style " << c.Style;
  }
}

TEST(Writers, CapTheQualityOfAnAngle) {
  const struct {
    std::vector<int> Talents;
    int Quality, Then;
  } kCases[] = {{{}, 90, 90}, {{40, 61}, 66, 65}, {{40, 61}, 65, 65}, {{0, 99, 0}, 90, 76}};
  for (const auto& c : kCases) {
    SmallWorld small = Cast();
    int number = 0;
    for (const int talent : c.Talents)
      small.Staff("Writer " + std::to_string(++number), kWriter, talent);
    small.Staff("Booker", kOwner, 99).Promotion("NEW").Staff("Stranger", kWriter, 100);
    Rig rig(small.Game("CWA"), AngleOf(1));
    rig.Run.Quality.Add(c.Quality, "start");
    CapByWriters(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Then);
    EXPECT_EQ(rig.Run.Notes,
              c.Then == c.Quality
                  ? ""
                  : " This angle would have been better if we had a better writing team. ");
  }
}

TEST(Heat, FollowsARatingInFourSteps) {
  constexpr int kMoves[][3] = {{51, 50, 50}, {56, 50, 55}, {57, 50, 52}, {66, 50, 57},
                               {76, 50, 61}, {49, 50, 50}, {44, 50, 45}, {43, 50, 48},
                               {34, 50, 43}, {24, 50, 39}, {3, -9, 0},   {98, 130, 100}};
  for (const auto& [heat, rating, then] : kMoves) {
    Rig rig(Cast().Feud("Ash", "Bea", Hot(heat)).Game("CWA"), MatchOf(kSingles));
    rig.Run.Quality.Add(rating, "start");
    rig.Run.Crowd.Add(rating, "start");
    HeatFollowsMatch(rig.Run);
    EXPECT_EQ(rig.W.Feuds()[1].Heat, then) << heat << " to " << rating;
  }
}

TEST(Heat, OfTalkAimsAboveItAndIsHeldBackNearTheTop) {
  constexpr int kCases[][4] = {{57, 10, 80, 75},  // crowd, draw, heat, then: towards 73
                               {57, 10, 72, 73},  {0, 1, 15, 16},    {-30, 1, 16, 1},
                               {100, 15, 65, 80}, {100, 15, 66, 75}, {100, 15, 74, 79},
                               {100, 15, 85, 86}, {100, 15, 89, 90}, {100, 15, 90, 90}};
  for (const auto& [crowd, draw, heat, then] : kCases) {
    Rig rig(Cast().Feud("Ash", "Bea", Hot(heat)).Game("CWA"),
            SegmentOf(kInterview, kSingleTalk, 0, {1, 2}));
    rig.Run.Crowd.Add(crowd, "start");
    rig.Script({{15, draw}});
    HeatFollowsTalk(rig.Run);
    EXPECT_EQ(rig.W.Feuds()[1].Heat, then) << crowd << " at " << heat;
  }
}

TEST(Heat, FollowsTalkInEveryFeudBetweenSpeakersAndThoseSpokenOf) {
  // Slots: 1 Ash-Bea, 2 Ash-Cal, 3 Bea+Hal-Cal+Dot, 4 Cal-Dot, 5 Gus+Eli-Cal+Hal, 6 Bea-Dot.
  const struct {
    int Kind, Style;
    std::vector<int> Touched;
  } kCases[] = {{kInterview, kSingleTalk, {1}},
                {kInterview, kTeamTalk, {2, 3, 6}},
                {kInterview, kManagedTalk, {2, 3}},
                {kInterview, kManagedTeamTalk, {3, 4, 5, 6}},
                {kAngle, kBetterEnemies, {1, 3, 4, 5, 6}},
                {kAngle, 46, {}}};
  for (const auto& c : kCases) {
    Rig rig(Cast()
                .Feud("Bea", "Ash")
                .Feud("Ash", "Cal")
                .TagFeud("Bea", "Hal", "Cal", "Dot")
                .Feud("Cal", "Dot")
                .TagFeud("Gus", "Eli", "Hal", "Cal")
                .Feud("Dot", "Bea")
                .Game("CWA"),
            SegmentOf(c.Kind, c.Style, 0, UidsUpTo(5)));
    // One target for all: of talk a low one, of an angle always the same.
    ScriptDraws(rig.W, c.Kind == kInterview ? std::vector{15} : std::vector<int>());
    HeatFollowsTalk(rig.Run);
    EXPECT_EQ(rig.Touched(), c.Touched) << "style " << c.Style;
    for (int slot = 1; slot <= 6; ++slot)
      EXPECT_EQ(rig.W.Feuds()[slot].Heat, std::count(c.Touched.begin(), c.Touched.end(), slot) == 0
                                              ? 50
                                          : c.Kind == kAngle ? 35
                                                             : 41)
          << "style " << c.Style << " slot " << slot;
  }
}

}  // namespace
}  // namespace grapplemont::test
