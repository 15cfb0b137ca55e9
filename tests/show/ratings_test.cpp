#include <gtest/gtest.h>

#include "show/ratings.h"

namespace grapplemont::test {
namespace {

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
