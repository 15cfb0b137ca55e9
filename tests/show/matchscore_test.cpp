#include "show/matchscore.h"
#include "show/showfeuds.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

TEST(ScoreMatch, ChangesQualityAndCrowdByTheMatchType) {
  struct Case {
    int Style, Type;
    std::initializer_list<ScriptedDraw> Draws;
    int Quality, Crowd, Strain;  // 55 and 47 before
  };
  const Case kCases[] = {
      {1, 1, {}, 55, 47, 1},
      {1, 2, {{10, 7}}, 55, 40, 2},
      {1, 3, {{15, 15}, {15, 1}}, 40, 46, 2},
      {1, 4, {}, 55, 47, 3},
      {1, 5, {{10, 6}, {5, 4}}, 49, 51, 2},
      {1, 6, {}, 55, 47, 2},
      {1, 7, {}, 55, 47, 3},
      {1, 8, {}, 55, 47, 2},
      {1, 9, {{5, 5}}, 55, 52, 3},
      {1, 10, {{10, 9}, {5, 3}}, 46, 50, 2},
      {1, 11, {{20, 20}, {10, 8}}, 35, 55, 1},
      {1, 12, {}, 55, 47, 3},
      {1, 13, {}, 55, 47, 2},
      {1, 14, {{10, 2}, {5, 1}}, 53, 48, 2},
      {1, 15, {{15, 13}}, 55, 60, 4},
      {1, 16, {{30, 30}, {15, 15}}, 25, 62, 5},
      {1, 17, {{10, 10}, {5, 2}}, 45, 49, 5},
      {1, 18, {}, 55, 47, 5},
      {1, 19, {{10, 3}, {20, 20}}, 52, 67, 1},
      {1, 20, {}, 55, 47, 1},
      {2, 1, {}, 55, 47, 1},
      {2, 2, {}, 55, 47, 2},
      {2, 3, {{10, 8}}, 47, 47, 2},
      {2, 4, {{10, 10}, {10, 7}}, 65, 54, 4},
      {2, 5, {{5, 5}, {5, 2}}, 50, 49, 2},
      {3, 1, {}, 55, 47, 1},
      {3, 2, {}, 55, 47, 1},
      {3, 3, {}, 55, 47, 2},
      {3, 4, {{5, 5}}, 55, 52, 3},
      {4, 1, {}, 55, 47, 1},
      {4, 2, {}, 55, 47, 1},
      {4, 3, {{15, 14}, {10, 9}}, 69, 56, 3},
      {4, 4, {{18, 18}, {15, 11}}, 73, 58, 4},
      {5, 1, {}, 55, 47, 2},
      {5, 2, {}, 55, 47, 1},
      {6, 1, {}, 55, 47, 1},
      {6, 2, {}, 55, 47, 4},
      {7, 1, {}, 55, 47, 1},
      {8, 1, {}, 55, 47, 1},
      {8, 2, {{15, 4}, {10, 10}}, 51, 57, 1},
      {9, 1, {}, 55, 47, 0},
      {9, 2, {{20, 20}}, 35, 47, 0},
      {9, 3, {{20, 5}}, 50, 47, 0},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::to_string(c.Style) + " type " + std::to_string(c.Type));
    Rig rig(Cast(30).Game("CWA"), MatchOf(c.Style, c.Type));
    rig.Script(c.Draws);
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd);
    EXPECT_EQ(rig.Run.Strain, c.Strain);
  }
}

TEST(ScoreMatch, TakesTheTablesOnlyFromAMatchBelowSeventy) {
  struct Case {
    int Brawl, Quality;
    bool Draws;
  };
  // Work 69 and 70 before the tables.
  for (const Case& c : {Case{68, 69 - 10, true}, Case{70, 70, false}}) {
    Rig rig(Cast(2, [&](Worker& w) { w.Brawl = c.Brawl; }).Game("CWA"), MatchOf(kSingles, kTables));
    if (c.Draws)
      rig.Script({{10, 10}, {5, 1}});
    else
      rig.Script({{5, 1}});
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Quality, c.Quality);
    EXPECT_EQ(rig.Run.Crowd, 48);
  }
}

TEST(ScoreMatch, FloorsTheMeanOfEverybodyAndTellsIt) {
  Rig rig(Cast(3).Game("CWA"), MatchOf(kThreeWay));
  rig.Who(2).Brawl = 80;  // works for 78
  rig.Who(3).Over = 90;   // draws for 81
  rig.Script({});
  ScoreMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Quality), "mean work of Ash 55, Bea 78, Cal 55 +62");
  EXPECT_EQ(StepsText(rig.Run.Crowd), "mean drawing power of Ash 47, Bea 47, Cal 81 +58");
}

TEST(ScoreMatch, CountsWhoeverIsNotThereAsNothing) {
  Rig rig(Cast(2).Game("CWA"), MatchOf(kTag));
  rig.Booked.Worker[2] = 999;
  rig.Booked.Worker[3] = -7;
  rig.Script({});
  ScoreMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Quality), "mean work of Ash 55, Bea 55, nobody 0, nobody 0 +27");
}

TEST(ScoreMatch, CoolsTheCrowdForTwoOfAKindInASinglesMatchAlone) {
  struct Case {
    const char* One;
    const char* Other;
    int Draw;  // 0 for none
    int Crowd;
    const char* Steps;
  };
  constexpr Case kCases[] = {{"H", "H", 0, 27, "two Heels -20"},
                             {"F", "F", 9, 38, "two Faces -9"},
                             {"T", "T", 10, 37, "two Tweeners -10"},
                             {"F", "H", 0, 47, ""},
                             {"H", "T", 0, 47, ""},
                             {"T", "F", 0, 47, ""}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Game("CWA"), MatchOf(kSingles));
    rig.Who(1).Disposition = c.One;
    rig.Who(2).Disposition = c.Other;
    ScriptDraws(rig.TheWorld, c.Draw ? std::vector{c.Draw} : std::vector<int>());
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd) << c.One << c.Other;
    EXPECT_EQ(StepsText(rig.Run.Crowd), std::string("mean drawing power of Ash 47, Bea 47 +47") +
                                            (*c.Steps ? ", " : "") + c.Steps);
  }
  Rig tag(Cast(4, [](Worker& w) { w.Disposition = "H"; }).Game("CWA"), MatchOf(kTag));
  tag.Script({});
  ScoreMatch(tag.Run);
  EXPECT_EQ(tag.Run.Crowd, 47);
}

TEST(ScoreMatch, LetsHeatSeeTheCrowdBeforeTwoHeelsLoseIt) {
  Rig rig(Cast(2, [](Worker& w) { w.Disposition = "H"; }).Feud("Ash", "Bea", Hot(80)).Game("CWA"),
          MatchOf(kSingles));
  rig.Script({{5, 3}});
  ScoreMatch(rig.Run);
  EXPECT_EQ(StepsText(rig.Run.Crowd),
            "mean drawing power of Ash 47, Bea 47 +47, "
            "feud of Ash and Bea, up to its heat 80 +8, two Heels -20");
  EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, 65);  // towards 55, not 41
}

TEST(ScoreMatch, DrawsForTypeThenFeudThenAlignment) {
  Rig rig(Cast(2, [](Worker& w) { w.Disposition = "T"; }).Feud("Ash", "Bea", Hot(70)).Game("CWA"),
          MatchOf(kSingles, kCage));
  rig.Script({{10, 1}, {5, 2}, {5, 5}, {10, 4}});
  ScoreMatch(rig.Run);
  EXPECT_EQ(rig.Run.Quality, 54);
  EXPECT_EQ(rig.Run.Crowd, 47 + 2 + 10 - 4);
}

TEST(ScoreMatch, LiftsASinglesMatchUpToTheHeatOfTheFirstFeudThatFits) {
  struct Case {
    int Heat, Draw, Crowd;
  };
  constexpr Case kCases[] = {{80, 1, 53}, {80, 5, 57}, {57, 5, 57}, {52, 5, 52},
                             {48, 1, 48}, {47, 0, 47}, {20, 0, 47}};
  for (const Case& c : kCases) {
    Rig rig(Cast().Feud("Cal", "Dot").Feud("Bea", "Ash", Hot(c.Heat)).Game("CWA"),
            MatchOf(kSingles));
    ScriptDraws(rig.TheWorld, c.Draw ? std::vector{c.Draw} : std::vector<int>());
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, c.Crowd) << c.Heat;
    EXPECT_EQ(rig.Touched(), std::vector{2});
  }
}

TEST(ScoreMatch, StopsAtTheFirstFeudForLiftAndHeat) {
  Rig rig(
      Cast().TagFeud("Ash", "Cal", "Dot", "Bea", Hot(30)).Feud("Ash", "Bea", Hot(90)).Game("CWA"),
      MatchOf(kSingles));
  rig.Script({});  // 30 lifts nobody, and 90 is not looked at
  ScoreMatch(rig.Run);
  EXPECT_EQ(rig.Run.Crowd, 47);
  EXPECT_EQ(rig.Touched(), std::vector{1});
  EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, 39);  // towards 51
  EXPECT_EQ(rig.TheWorld.Feuds()[2].Heat, 90);
}

TEST(ScoreMatch, LiftsATagMatchByTheirTeamsFeudWhoseHeatStays) {
  for (const auto& order : {std::vector{1, 2, 3, 4}, std::vector{4, 3, 1, 2}}) {
    Rig rig(Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
            SegmentOf(kMatch, kTag, kPlainTag, order));
    rig.Script({{5, 2}});
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, 54);
    EXPECT_EQ(rig.TheWorld.Feuds()[1].Heat, 80);
    EXPECT_EQ(rig.Touched(), std::vector{1});
  }
}

TEST(ScoreMatch, LiftsNoTagMatchWithAStrangerInIt) {
  for (const auto& order :
       {std::vector{1, 2, 3, 5}, std::vector{1, 2, 5, 3}, std::vector{5, 1, 3, 4}}) {
    Rig rig(Cast().TagFeud("Ash", "Bea", "Cal", "Dot", Hot(80)).Game("CWA"),
            SegmentOf(kMatch, kTag, kPlainTag, order));
    rig.Script({});
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Run.Crowd, 47);
    EXPECT_EQ(rig.Touched(), std::vector<int>());
  }
}

TEST(ScoreMatch, MovesTheHeatOfPartnersWhoAreEnemiesWithoutALift) {
  // A tag feud with the teams mixed up, and a feud of two who must team up.
  Rig mixed(Cast().TagFeud("Ash", "Cal", "Bea", "Dot", Hot(80)).Game("CWA"), MatchOf(kTag));
  Rig partners(Cast().Feud("Ash", "Bea", Hot(80)).Game("CWA"), MatchOf(kTag));
  Rig across(Cast().Feud("Ash", "Cal", Hot(80)).Game("CWA"), MatchOf(kTag));
  for (Rig* rig : {&mixed, &partners, &across}) {
    rig->Script({});
    ScoreMatch(rig->Run);
    EXPECT_EQ(rig->Run.Crowd, 47);
  }
  EXPECT_EQ(mixed.TheWorld.Feuds()[1].Heat, 65);  // towards 51
  EXPECT_EQ(mixed.Touched(), std::vector{1});
  EXPECT_EQ(partners.TheWorld.Feuds()[1].Heat, 65);
  EXPECT_EQ(across.TheWorld.Feuds()[1].Heat, 80);
  EXPECT_EQ(across.Touched(), std::vector<int>());
}

TEST(ScoreMatch, MarksTheFeudsOfRunInsAndOfBiggerMatches) {
  struct Case {
    int Style;
    std::vector<int> Others;
    std::vector<int> Touched;
  };
  // Slots: 1 Ash-Gus, 2 Bea-Hal, 3 Ash-Hand 9, 4 Bea-Hand 10, 5 Ash-Cal.
  const Case kCases[] = {{kSingles, {7, 8, 9, 10}, {1, 2}},
                         {kSingles, {8, 7}, {1, 2}},
                         {kSingles, {0, 0, 9}, {}},
                         {kTag, {7, 8, 9, 10}, {1, 2, 3, 4}},
                         {kTag, {0, 0, 10, 9}, {3, 4}},
                         {kThreeWay, {7}, {5}},
                         {kThreeTeams, {}, {5}},
                         {kFourWay, {}, {5}},
                         {kFourTeams, {}, {1, 2, 5}},
                         {kThreeOnThree, {}, {5}},
                         {kFourOnFour, {}, {1, 2, 5}},
                         {kSpecial, {}, {}}};
  for (const Case& c : kCases) {
    Rig rig(Cast(30)
                .Feud("Ash", "Gus")
                .TagFeud("Hal", "Hand 19", "Bea", "Hand 20")
                .Feud("Hand 9", "Ash")
                .Feud("Bea", "Hand 10")
                .Feud("Ash", "Cal")
                .Game("CWA"),
            MatchOf(c.Style));
    Word* others[] = {&rig.Booked.Other1, &rig.Booked.Other2, &rig.Booked.Other3,
                      &rig.Booked.Other4};
    for (std::size_t i = 0; i < c.Others.size(); ++i) *others[i] = c.Others[i];
    const World before = CopyOf(rig.TheWorld);
    rig.Script({});
    ScoreMatch(rig.Run);
    EXPECT_EQ(rig.Touched(), c.Touched) << "style " << c.Style;
    EXPECT_EQ(rig.Run.Crowd, 47);
    ExpectSame(rig.TheWorld, before);
  }
}

}  // namespace
}  // namespace grapplemont::test
