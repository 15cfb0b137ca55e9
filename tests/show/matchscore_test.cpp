#include <gtest/gtest.h>

#include "show/matchscore.h"
#include "show/ratings.h"
#include "show/showfeuds.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

TEST(ScoreMatch, ChangesQualityAndCrowdByTheMatchType) {
  // Quality, Crowd and Strain by type, of a match of 55 and 47 with the highest draws.
  const std::map<int, std::string> kStyles = {
      {1,
       "55 47 1, 55 37 2, 40 32 2, 55 47 3, 45 52 2, 55 47 2, 55 47 3, 55 47 2, 55 52 3, 45 52 2, "
       "35 57 1, 55 47 3, 55 47 2, 45 52 2, 55 62 4, 25 62 5, 45 52 5, 55 47 5, 45 67 1, 55 47 1"},
      {2, "55 47 1, 55 47 2, 45 47 2, 65 57 4, 50 52 2"},
      {3, "55 47 1, 55 47 1, 55 47 2, 55 52 3"},
      {4, "55 47 1, 55 47 1, 70 57 3, 73 62 4"},
      {5, "55 47 2, 55 47 1"},
      {6, "55 47 1, 55 47 4"},
      {7, "55 47 1"},
      {8, "55 47 1, 40 57 1"},
      {9, "55 47 0, 35 47 0, 35 47 0"}};
  for (const auto& [style, expected] : kStyles) {
    std::string told;
    for (int type = 1; type <= (style == kSingles ? 20 : 5); ++type) {
      if (!FindMatchType(style, type) && type != 20) continue;
      Rig rig(Cast(30).Game("CWA"), MatchOf(style, type));
      rig.TheWorld.SetChance(std::make_unique<SteadyDraws>(100));
      ScoreMatch(rig.Run);
      told += (told.empty() ? "" : ", ") + std::to_string(rig.Run.Quality) + " " +
              std::to_string(rig.Run.Crowd) + " " + std::to_string(rig.Run.Strain);
    }
    EXPECT_EQ(told, expected) << "style " << style;
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

Change<Team> With(int experience) {
  return [=](Team& team) { team.Experience = experience; };
}

TEST(Chemistry, GrowsWithATeamsExperience) {
  constexpr int kLevels[][2] = {{0, 0},  {25, 0}, {26, 1}, {50, 1}, {51, 2},
                                {75, 2}, {76, 3}, {95, 3}, {96, 4}, {100, 4}};
  for (const auto& [experience, level] : kLevels) {
    const World world = Cast().Team("Rats", "Bea", "Ash", With(experience)).Game("CWA");
    EXPECT_EQ(ChemistryOf(world, MatchOf(kTag)).Level, level) << experience;
  }
}

TEST(Chemistry, IsThatOfEveryTeamThatIsASideOfATagMatch) {
  const World world = Cast()
                          .Team("A", "Ash", "Bea", With(100))
                          .Team("B", "Dot", "Cal", With(80))
                          .Team("C", "Eli", "Fay", With(60))
                          .Team("D", "Gus", "Hal", With(30))
                          .Team("Across", "Bea", "Cal", With(100))
                          .Game("CWA");
  EXPECT_EQ(ChemistryOf(world, MatchOf(kTag)).Level, 4 + 3);
  EXPECT_EQ(ChemistryOf(world, MatchOf(kThreeTeams)).Level, 4 + 3 + 2);
  const Chemistry all = ChemistryOf(world, MatchOf(kFourTeams));
  EXPECT_EQ(all.Level, 4 + 3 + 2 + 1);
  EXPECT_EQ(all.Teams, (std::vector<std::string>{"A", "B", "C", "D"}));
  for (const int style : {kSingles, kThreeWay, kFourWay, kThreeOnThree, kFourOnFour})
    EXPECT_EQ(ChemistryOf(world, MatchOf(style)).Level, 0) << style;
}

TEST(Chemistry, DrawsForEachValueByItsLevel) {
  constexpr int kDraws[][2] = {{1, 5},   {4, 5},   {5, 8},   {10, 8},
                               {11, 10}, {13, 10}, {14, 12}, {16, 12}};
  for (const auto& [level, of] : kDraws) {
    Rig rig(Cast().Game("CWA"), MatchOf(kTag));
    rig.Script({{of, of}, {of, 3}});
    AddChemistry(rig.Run, {level, {"Rats", "Dogs"}});
    EXPECT_EQ(StepsText(rig.Run.Quality), "chemistry of Rats, Dogs +" + std::to_string(of));
    EXPECT_EQ(StepsText(rig.Run.Crowd), "chemistry of Rats, Dogs +3");
  }
}

TEST(Chemistry, ComesLastOfAll) {
  Rig rig(Cast()
              .Team("Rats", "Ash", "Bea", With(96))
              .Team("Dogs", "Cal", "Dot", With(26))
              .TagFeud("Ash", "Bea", "Cal", "Dot", Hot(60))
              .Game("CWA"),
          MatchOf(kTag, kTagLadder));
  rig.Script({{10, 2}, {10, 1}, {5, 5}, {8, 8}, {8, 7}});
  ScoreMatch(rig.Run);
  EXPECT_EQ(rig.Run.Quality, 55 + 2 + 8);
  EXPECT_EQ(rig.Run.Crowd, 47 + 1 + 10 + 7);
  EXPECT_EQ(rig.Run.Strain, 4);
}

Worker Skilled(int brawl, int technical, int speed) {
  Worker worker{};
  worker.Brawl = brawl;
  worker.Technical = technical;
  worker.Speed = speed;
  worker.Condition = 100;
  return worker;
}

TEST(BestSkill, IsTheOneStrictlyAboveBothOthersElseBrawl) {
  struct Case {
    int Brawl, Technical, Speed, Best;
  };
  constexpr Case kCases[] = {{80, 50, 60, 80}, {50, 80, 60, 80}, {50, 60, 80, 80},
                             {10, 80, 80, 10}, {80, 80, 50, 80}, {80, 50, 80, 80},
                             {60, 60, 80, 80}, {60, 80, 60, 80}, {70, 70, 70, 70}};
  for (const Case& c : kCases)
    EXPECT_EQ(BestSkill(Skilled(c.Brawl, c.Technical, c.Speed)), c.Best)
        << c.Brawl << " " << c.Technical << " " << c.Speed;
}

TEST(WorkRating, FloorsEachShareAndThenTheTiredRest) {
  struct Case {
    int Skill, Morale, Stiff, Condition, Rating;
  };
  constexpr Case kCases[] = {
      {100, 100, 100, 100, 100}, {100, 100, 100, 90, 100}, {100, 100, 100, 89, 90},
      {100, 100, 100, 60, 90},   {100, 100, 100, 59, 70},  {100, 100, 100, 30, 70},
      {100, 100, 100, 29, 50},   {100, 100, 100, 0, 50},   {50, 89, 39, 100, 55},
      {50, 89, 39, 89, 49},      {50, 89, 39, 59, 38},     {50, 89, 39, 29, 27},
      {1, 4, 19, 100, 0},        {0, 0, 0, 100, 0}};
  for (const Case& c : kCases) {
    Worker worker = Skilled(c.Skill, 0, 0);
    worker.Morale = c.Morale;
    worker.Stiff = c.Stiff;
    worker.Condition = c.Condition;
    EXPECT_EQ(WorkRating(worker), c.Rating) << c.Skill << " at condition " << c.Condition;
  }
}

TEST(DrawAndTalkRating, AddLooksAndThenTheDivaBelowNinety) {
  struct Case {
    int Over, Charisma;
    bool Looks, Diva;
    int Draw, Talk;
  };
  constexpr Case kCases[] = {
      {0, 0, false, false, 0, 0},     {100, 100, false, false, 95, 100},
      {49, 59, false, false, 46, 54}, {49, 59, true, false, 51, 59},
      {49, 59, false, true, 54, 62},  {49, 59, true, true, 59, 67},
      {99, 55, false, true, 97, 80},  {99, 60, false, true, 90, 83},
      {94, 50, true, true, 97, 80},   {94, 60, true, true, 90, 86},
      {95, 95, true, true, 94, 100},  {100, 82, false, true, 93, 97},
      {100, 84, false, true, 93, 90},
  };
  for (const Case& c : kCases) {
    Worker worker{};
    worker.Over = c.Over;
    worker.Charisma = c.Charisma;
    worker.SuperstarLook = c.Looks;
    worker.Diva = c.Diva;
    EXPECT_EQ(DrawRating(worker), c.Draw) << c.Over << " and " << c.Charisma;
    EXPECT_EQ(TalkRating(worker), c.Talk) << c.Over << " and " << c.Charisma;
  }
}

TEST(WeighRating, GivesTheStrongerCrowdSevenTenthsAndElseTheMean) {
  EXPECT_EQ(WeighRating(50, 50), 50);
  EXPECT_EQ(WeighRating(50, 51), 50);
  EXPECT_EQ(WeighRating(50, 54), 52);
  EXPECT_EQ(WeighRating(51, 50), 50);
  EXPECT_EQ(WeighRating(54, 50), 52);
  EXPECT_EQ(WeighRating(0, 100), 70);
  EXPECT_EQ(WeighRating(100, 0), 50);
  EXPECT_EQ(WeighRating(-3, -10), -7);
  EXPECT_EQ(WeighRating(-10, 5), 0);
  EXPECT_EQ(WeighRating(80, 130), 115);
}

}  // namespace
}  // namespace grapplemont::test
