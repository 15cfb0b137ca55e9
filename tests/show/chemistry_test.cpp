#include "show/matchscore.h"

#include "showrig.h"

namespace grapplemont::test {
namespace {

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

TEST(Chemistry, OfNobodyDrawsNothing) {
  Rig rig(Cast().Team("Rats", "Ash", "Bea", With(25)).Game("CWA"), MatchOf(kTag));
  rig.Script({});
  ScoreMatch(rig.Run);
  EXPECT_EQ(rig.Run.Quality, 55);
  EXPECT_EQ(rig.Run.Crowd, 47);
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

}  // namespace
}  // namespace grapplemont::test
