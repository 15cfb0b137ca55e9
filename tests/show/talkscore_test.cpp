#include <set>

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
  switch (number) {
    case 60:
    case 61:
    case 62:
    case 65:
    case 66:
      return crowd + 20;
    case 15:
    case 19:
      return crowd - 16;
    case 24:
    case 25:
    case 26:
    case 37:
    case 38:
    case 58:
    case 59:
      return crowd * 11 / 10;
    default:
      return crowd;
  }
}

TEST(ScoreAngle, TakesTheMeanOfThoseWhoCount) {
  std::set<int> seen;
  for (const AngleCase& c : kAngleCases)
    for (const int number : c.Numbers) {
      SCOPED_TRACE(number);
      EXPECT_TRUE(seen.insert(number).second);
      Rig rig(Talkers().Game("CWA"), AngleOf(number));
      rig.TheWorld.Player().Production = 83;  // 41, and then 20
      rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(3));
      ScoreAngle(rig.Run);
      EXPECT_EQ(rig.Run.Crowd, Finished(number, c.Crowd));
      EXPECT_EQ(rig.Run.Quality, 0);
      EXPECT_EQ(rig.Run.Strain, 1);
    }
  EXPECT_EQ(seen.size(), 79u);
}

TEST(ScoreAngle, LiftsByTheFeudOfThePairOrOfTheTeams) {
  for (const AngleCase& c : kAngleCases)
    for (const int number : c.Numbers) {
      SCOPED_TRACE(number);
      for (const char kind : {'P', 'T'}) {
        SmallWorld small = Talkers();
        if (kind == 'P')
          small.Feud("Ash", "Bea", Hot(90));
        else
          small.TagFeud("Cal", "Dot", "Bea", "Ash", Hot(90));
        Rig rig(small.Game("CWA"), AngleOf(number));
        rig.TheWorld.Player().Production = 83;
        rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(3));
        ScoreAngle(rig.Run);
        EXPECT_EQ(rig.Run.Crowd, Finished(number, c.Crowd + (kind == c.Feud ? 8 : 0))) << kind;
      }
    }
}

TEST(ScoreAngle, TalliesAsTheAngleSetsThemAgainstEachOther) {
  for (const AngleCase& c : kAngleCases)
    for (const int number : c.Numbers) {
      Rig rig(Rivals().Game("CWA"), AngleOf(number));
      rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(1));
      ScoreAngle(rig.Run);
      EXPECT_EQ(TalliesOf(rig.TheWorld), c.Tallies) << "angle " << number;
    }
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

TEST(ScoreInterview, OfNobodyLeavesFeudsAlone) {
  Rig rig(Cast().TagFeud("Ash", "Cal", "Bea", "Dot", Hot(80)).Game("CWA"),
          SegmentOf(kInterview, kTeamTalk, 0, {1, 2}));
  rig.Script({});
  ScoreInterview(rig.Run);
  EXPECT_EQ(rig.Run.Crowd, 50);
  EXPECT_EQ(rig.Touched(), std::vector<int>());
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

}  // namespace
}  // namespace grapplemont::test
