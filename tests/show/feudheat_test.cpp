#include "show/showfeuds.h"

#include "show/talkscore.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

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
