#include <set>

#include "show/showfeuds.h"
#include "show/talkscore.h"
#include "showrig.h"
#include "storylines/feuds.h"

namespace grapplemont::test {
namespace {

/// Ash talks for 30, Bea for 33, Cal for 42, Dot for 51; Eli, who leads the Pack, for 60. The
/// means of any of them that count together differ.
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

/// Who has scored against whom, by the pairs' feuds: "1>2 4>3". The feuds are of all pairs that a
/// Segment sets against each other.
SmallWorld Rivals() {
  SmallWorld small = Talkers();
  small.Feud("Ash", "Bea").Feud("Ash", "Cal").Feud("Ash", "Dot").Feud("Bea", "Cal");
  small.Feud("Bea", "Dot").Feud("Cal", "Dot").Feud("Eli", "Ash").Feud("Eli", "Bea");
  return small;
}

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

struct AngleCase {
  std::vector<int> Numbers;
  int Crowd;  // of the mean
  char Feud;  // P the first two's lifts, T the teams' lifts, - none
  const char* Tallies;
};
const AngleCase kAngleCases[] = {
    {{1, 2, 21, 22, 28, 29, 30, 33, 34, 35, 42, 49, 73, 74}, 31, '-', ""},
    {{26, 37, 38}, 31, '-', ""},
    {{4, 5, 6, 9, 10, 13, 14, 15, 18, 24, 25, 27, 39, 64}, 31, 'P', "2>1"},
    {{23, 40, 41, 63, 67, 68, 69}, 31, 'P', "1>2"},
    {{19}, 31, 'P', ""},
    {{3, 16}, 31, '-', "2>1 3>1 4>2 4>3"},
    {{12}, 36, '-', "3>1 3>2 4>1 4>2"},
    {{20, 31, 32, 36, 43, 44, 60, 65}, 30, '-', ""},
    {{45}, 30, 'P', "1>2"},
    {{47}, 35, 'P', "2>1 3>1"},
    {{7}, 35, '-', "1>3 2>3"},
    {{8}, 35, '-', ""},
    {{72}, 35, '-', ""},
    {{11}, 39, '-', ""},
    {{17}, 39, '-', "2>1 3>1 4>1"},
    {{46, 56, 57, 58, 59}, 39, 'T', "1>3 2>4"},
    {{48}, 39, 'T', ""},
    {{50}, 45, '-', ""},
    {{51, 52, 53, 54}, 45, '-', "5>1"},
    {{55}, 41, '-', "5>1 5>2"},
    {{75, 76, 77, 79}, 45, '-', "5>1"},
    {{78}, 38, '-', "4>1"},
    {{61, 66}, 31, '-', ""},
    {{71}, 31, '-', ""},
    {{62}, 60, '-', ""},
    {{70}, 65, '-', ""},
};

/// What the later steps make of the crowd; everybody who is no diva costs 5 and a draw of 3.
int Finished(int number, int crowd) {
  const auto isOneOf = [&](std::initializer_list<int> numbers) {
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
  };
  if (isOneOf({60, 61, 62, 65, 66})) return crowd + 20;
  if (isOneOf({15, 19})) return crowd - 16;
  return isOneOf({24, 25, 26, 37, 38, 58, 59}) ? crowd * 11 / 10 : crowd;
}

int CrowdOfAngle(SmallWorld&& small, int number) {
  Rig rig(small.Game("CWA"), AngleOf(number));
  rig.TheWorld.Player().Production = 83;  // 41, and then 20
  rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(3));
  ScoreAngle(rig.Run);
  EXPECT_EQ(rig.Run.Quality, 0);
  EXPECT_EQ(rig.Run.Strain, 1);
  return rig.Run.Crowd;
}

TEST(ScoreAngle, TakesTheMeanOfThoseWhoCountTheirFeudAndTheirTallies) {
  std::set<int> seen;
  for (const AngleCase& c : kAngleCases)
    for (const int number : c.Numbers) {
      SCOPED_TRACE(number);
      EXPECT_TRUE(seen.insert(number).second);
      EXPECT_EQ(CrowdOfAngle(Talkers(), number), Finished(number, c.Crowd));
      EXPECT_EQ(CrowdOfAngle(std::move(Talkers().Feud("Ash", "Bea", Hot(90))), number),
                Finished(number, c.Crowd + (c.Feud == 'P' ? 8 : 0)));
      EXPECT_EQ(
          CrowdOfAngle(std::move(Talkers().TagFeud("Cal", "Dot", "Bea", "Ash", Hot(90))), number),
          Finished(number, c.Crowd + (c.Feud == 'T' ? 8 : 0)));
      Rig rig(Rivals().Game("CWA"), AngleOf(number));
      rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(1));
      ScoreAngle(rig.Run);
      EXPECT_EQ(TalliesOf(rig.TheWorld), c.Tallies);
    }
  EXPECT_EQ(seen.size(), 79u);
  for (const auto& [number, tallies] :
       {std::pair{3, "2>1"}, {12, ""}, {16, "2>1"}, {17, "2>1"}, {78, ""}}) {
    Rig rig(Rivals().Game("CWA"), AngleOf(number, {1, 2}));
    ScoreAngle(rig.Run);
    EXPECT_EQ(TalliesOf(rig.TheWorld), tallies) << "angle " << number << " of two";
  }
}

TEST(ScoreAngle, CountsOnlyWhoeverIsNamed) {
  struct Case {
    int Number;
    std::vector<int> Uids;
    const char* Stable;
    const char* Steps;
  };
  const Case kCases[] = {{78, {1, 2}, "Pack", "mean talk of Bea 33, Ash 30 +31"},
                         {8, {1, 0, 3}, "Pack", "mean talk of Ash 30, Cal 42 +36"},
                         {1, {1, 99}, "Pack", "mean talk of Ash 30, nobody 0 +15"},
                         {50, {1}, "Pack", "mean talk of Ash 30, Eli 60 +45"},
                         {50, {1}, "Nobody's", "talk of Ash 30 +30"},
                         {62, {}, "None", ""},
                         {70, {4}, "Pack", "mean talk of Dot 51, the guest 100 +75"},
                         {80, {1, 2}, "Pack", ""},
                         {0, {1, 2}, "Pack", ""}};
  for (const Case& c : kCases) {
    Rig rig(Talkers().Promotion("NEW").Game("CWA"), AngleOf(c.Number, c.Uids));
    rig.Booked.Text = c.Stable;
    rig.TheWorld.Player().Production = 3;
    rig.Script({});
    ScoreAngle(rig.Run);
    EXPECT_EQ(StepsText(rig.Run.Crowd), c.Steps) << "angle " << c.Number;
  }
}

TEST(ScoreAngle, ChargesForEachOfTheTwoWhoIsNoDiva) {
  for (const int number : {15, 19}) {
    Rig rig(Talkers().Game("CWA"), AngleOf(number));
    rig.Who(1).Diva = true;  // talks for 38 as one
    rig.Script({{6, 6}});
    ScoreAngle(rig.Run);
    EXPECT_EQ(StepsText(rig.Run.Crowd), "mean talk of Ash 38, Bea 33 +35, Bea is no diva -11");
    Rig neither(Talkers().Game("CWA"), AngleOf(number));
    neither.Script({{6, 1}, {6, 4}});
    ScoreAngle(neither.Run);
    EXPECT_EQ(StepsText(neither.Run.Crowd),
              "mean talk of Ash 30, Bea 33 +31, Ash is no diva -6, Bea is no diva -9");
  }
}

TEST(ScoreAngle, LimitsSpectaclesAlone) {
  SmallWorld stars = Cast(2, [](Worker& w) { w.Over = w.Charisma = 98; });
  Rig spectacle(stars.Game("CWA"), AngleOf(26));
  ScoreAngle(spectacle.Run);
  EXPECT_EQ(StepsText(spectacle.Run.Crowd),
            "mean talk of Ash 97, Bea 97 +97, spectacle +9, limit -6");
  SmallWorld others = Cast(2, [](Worker& w) { w.Over = w.Charisma = 98; });
  Rig video(others.Game("CWA"), AngleOf(61));
  video.TheWorld.Player().Production = 100;
  ScoreAngle(video.Run);
  EXPECT_EQ(video.Run.Crowd, 122);
}

TEST(ScoreInterview, HearsOneOrTwoAndTalliesAgainstTheOneSpokenOf) {
  struct Case {
    int Style, Crowd;
    std::vector<int> Uids;
    const char* Tallies;
  };
  const Case kCases[] = {{1, 30, {1, 2}, "1>2"},           {1, 30, {1}, ""},
                         {2, 31, {1, 2, 3}, "1>3"},        {2, 31, {1, 2}, ""},
                         {3, 30, {1, 2, 3}, "1>3 2>3"},    {3, 30, {1, 2}, ""},
                         {4, 30, {1, 2, 3, 4}, "1>4 2>4"}, {4, 30, {1, 2, 3}, ""}};
  for (const Case& c : kCases) {
    Rig rig(Rivals().Game("CWA"), SegmentOf(kInterview, c.Style, 0, c.Uids));
    for (Feud& feud : rig.TheWorld.Feuds()) feud.Heat = 20;
    const bool isOfSomebody = *c.Tallies != 0;
    ScriptDraws(rig.TheWorld, isOfSomebody ? std::vector{1} : std::vector<int>());
    ScoreInterview(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd) << "style " << c.Style;
    EXPECT_EQ(TalliesOf(rig.TheWorld), c.Tallies) << "style " << c.Style;
  }
}

TEST(ScoreInterview, IsLiftedByAFeudOfItsFirstTwoWhateverItsStyle) {
  for (int style = 1; style <= 4; ++style) {
    Rig rig(Cast().Feud("Ash", "Bea", Hot(80)).Game("CWA"),
            SegmentOf(kInterview, style, 0, UidsUpTo(5)));
    rig.Script({{5, 2}, {15, 10}});
    ScoreInterview(rig.Run);
    EXPECT_EQ(StepsText(rig.Run.Crowd),
              std::string(style == 2 ? "mean talk of Ash 50, Bea 50" : "talk of Ash 50") +
                  " +50, feud of Ash and Bea, up to its heat 80 +7");
    EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, style == 1 ? 75 : 80);  // towards 73
    EXPECT_EQ(rig.Touched(), std::vector{1});
  }
}

TEST(Writers, CapTheQualityOfAnAngle) {
  struct Case {
    std::vector<int> Talents;
    int Quality, Then;
  };
  const Case kCases[] = {{{}, 90, 90},   {{40, 61}, 66, 65},     {{40, 61}, 65, 65},
                         {{30}, 90, 40}, {{100, 100}, 100, 100}, {{0, 99, 0}, 90, 76}};
  for (const Case& c : kCases) {
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

TEST(RateTalk, TakesMostOfTheCrowdAndADraw) {
  struct Case {
    int Crowd, Draw, Overall;
  };
  constexpr Case kCases[] = {{57, 10, 58}, {100, 15, 100}, {122, 1, 100}, {0, 1, 1},
                             {-30, 15, 0}, {-10, 9, 0},    {-10, 10, 1}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), AngleOf(1));
    rig.Run.Crowd.Add(c.Crowd, "start");
    rig.Script({{15, c.Draw}});
    RateTalk(rig.Run);
    EXPECT_EQ(rig.Run.Overall, c.Overall) << c.Crowd;
  }
  Rig told(Cast().Game("CWA"), AngleOf(1));
  told.Run.Crowd.Add(57, "start");
  told.Script({10});
  RateTalk(told.Run);
  EXPECT_EQ(StepsText(told.Run.Overall), "85% of Crowd 57 and a draw of 10 out of 15 +58");
}

struct Move {
  int Heat, Target, Then;
};

TEST(MoveHeat, TestsFourTimesEachWay) {
  constexpr Move kMoves[] = {
      {50, 50, 50}, {51, 50, 50},  {56, 50, 55}, {57, 50, 52}, {61, 50, 56}, {65, 50, 60},
      {66, 50, 57}, {71, 50, 62},  {75, 50, 60}, {76, 50, 61}, {80, 50, 65}, {100, 0, 85},
      {49, 50, 50}, {44, 50, 45},  {43, 50, 48}, {39, 50, 44}, {35, 50, 40}, {34, 50, 43},
      {25, 50, 40}, {24, 50, 39},  {20, 50, 35}, {0, 100, 15}, {1, 0, 0},    {99, 100, 100},
      {3, -9, 0},   {98, 130, 100}};
  for (const Move& m : kMoves)
    EXPECT_EQ(MoveHeat(m.Heat, m.Target, HeatRise::Free), m.Then) << m.Heat << " to " << m.Target;
}

TEST(MoveHeat, IsHeldBackNearTheTopByTalk) {
  constexpr Move kMoves[] = {{60, 100, 75}, {65, 100, 80}, {66, 100, 75}, {73, 100, 82},
                             {74, 100, 79}, {78, 100, 83}, {80, 100, 85}, {84, 100, 89},
                             {85, 100, 86}, {89, 100, 90}, {90, 100, 90}, {80, 50, 65},
                             {66, 50, 57},  {20, 50, 35},  {100, 15, 85}};
  for (const Move& m : kMoves)
    EXPECT_EQ(MoveHeat(m.Heat, m.Target, HeatRise::HeldBack), m.Then)
        << m.Heat << " to " << m.Target;
}

TEST(HeatFollowsTalk, MovesEveryFeudBetweenSpeakersAndThoseSpokenOf) {
  struct Case {
    int Style;
    std::vector<int> Touched;
  };
  // Slots: 1 Ash-Bea, 2 Ash-Cal, 3 Bea+Hal-Cal+Dot, 4 Cal-Dot, 5 Gus+Eli-Cal+Hal, 6 Bea-Dot.
  const Case kCases[] = {{1, {1}},          {2, {2, 3, 6}}, {3, {2, 3}},
                         {4, {4, 5, 6, 3}}, {5, {}},        {46, {}}};
  for (const Case& c : kCases) {
    Rig rig(Cast()
                .Feud("Bea", "Ash")
                .Feud("Ash", "Cal")
                .TagFeud("Bea", "Hal", "Cal", "Dot")
                .Feud("Cal", "Dot")
                .TagFeud("Gus", "Eli", "Hal", "Cal")
                .Feud("Dot", "Bea")
                .Game("CWA"),
            SegmentOf(kInterview, c.Style, 0, UidsUpTo(5)));
    rig.Script({{15, 15}});  // one target for all
    HeatFollowsTalk(rig.Run);
    std::vector<int> touched = c.Touched;
    std::sort(touched.begin(), touched.end());
    EXPECT_EQ(rig.Touched(), touched) << "style " << c.Style;
    for (int slot = 1; slot <= 6; ++slot)
      EXPECT_EQ(rig.TheWorld.Feuds()[slot].Heat,
                std::count(touched.begin(), touched.end(), slot) ? 41 : 50)
          << "style " << c.Style << " slot " << slot;
  }
}

TEST(HeatFollowsTalk, AimsAboveTheTalkButNotBeyondTheTop) {
  struct Case {
    int Crowd, Draw, Heat, Then;
  };
  constexpr Case kCases[] = {{57, 10, 80, 75},  // towards 73
                             {57, 10, 74, 73},  {57, 10, 72, 73}, {100, 15, 99, 99},
                             {100, 15, 89, 90}, {0, 1, 16, 16},   {0, 1, 15, 16},
                             {-30, 1, 16, 1}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Feud("Ash", "Bea", Hot(c.Heat)).Game("CWA"),
            SegmentOf(kInterview, kSingleTalk, 0, {1, 2}));
    rig.Run.Crowd.Add(c.Crowd, "start");
    rig.Script({{15, c.Draw}});
    HeatFollowsTalk(rig.Run);
    EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, c.Then) << c.Crowd << " at " << c.Heat;
  }
}

TEST(HeatFollowsTalk, IsPulledDownByAngleFourAloneOfAllAngles) {
  for (int number = 1; number <= 79; ++number) {
    Rig rig(
        Cast().Feud("Ash", "Bea", Hot(70)).TagFeud("Ash", "Bea", "Cal", "Dot", Hot(70)).Game("CWA"),
        SegmentOf(kAngle, number, 0, UidsUpTo(4)));
    rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(3));
    rig.Who(1).Charisma = rig.Who(2).Charisma = 100;
    ScoreAngle(rig.Run);
    EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, number == 4 ? 55 : 70) << "angle " << number;
  }
}

}  // namespace
}  // namespace grapplemont::test
