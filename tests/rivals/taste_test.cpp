#include "rivals/ownership.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

Worker Person(int brawl, int technical, int speed, int over) {
  Worker worker;
  worker.Gender = true;
  worker.Age = 30;
  worker.Position = kMidcard;
  worker.Brawl = brawl;
  worker.Technical = technical;
  worker.Speed = speed;
  worker.Over = over;
  worker.Charisma = 70;
  worker.Potential = 90;
  return worker;
}

TEST(Taste, ScoresByItsOwnSkillThreeTimesAndByPopularity) {
  const Worker worker = Person(80, 60, 41, 50);
  const std::pair<Taste, int> kScores[] = {{kBrawlers, 72},   {kTechnicians, 57}, {kAllRound, 72},
                                           {kHighFlyers, 43}, {kWomen, 25},       {kYouth, 36}};
  for (const auto& [taste, score] : kScores)
    EXPECT_EQ(WorkerScore(worker, taste), score) << TasteText(taste);
}

TEST(Taste, PutsWomenBeforeMenAndDivasBeforeAll) {
  Worker worker = Person(80, 80, 80, 50);
  worker.Gender = false;
  EXPECT_EQ(WorkerScore(worker, kWomen), 50);
  worker.Diva = true;
  EXPECT_EQ(WorkerScore(worker, kWomen), 87);
}

TEST(Taste, SeesInTheYoungWhatTheyMayBecome) {
  Worker worker = Person(40, 60, 50, 20);
  worker.Age = 27;
  EXPECT_EQ(WorkerScore(worker, kYouth), (90 * 3 + 20) / 4);
  worker.Potential = 55;
  EXPECT_EQ(WorkerScore(worker, kYouth), (60 * 3 + 20) / 4) << "a skill above the potential";
  worker.Age = 28;
  EXPECT_EQ(WorkerScore(worker, kYouth), (60 * 3 + 20) / 4 / 2);
}

TEST(Taste, LooksAtManagersAndTheUnsackableApart) {
  Worker worker = Person(10, 10, 10, 40);
  worker.Position = kManager;
  EXPECT_EQ(RosterScore(worker, kBrawlers), (70 * 2 + 40 * 3) / 5);
  worker.Unsackable = true;
  EXPECT_EQ(RosterScore(worker, kBrawlers), 101);
}

TEST(Taste, IsTheOwnersStyle) {
  for (int style = 0; style <= 7; ++style) {
    World world = SmallWorld()
                      .Promotion("CWA")
                      .Owner("Ruth Vane", [&](Staff& owner) { owner.Wage = style; })
                      .BuildUnchecked();
    EXPECT_EQ(TasteOf(world, 1), style >= 1 && style <= 6 ? style : kAllRound);
  }
  EXPECT_EQ(TasteOf(SmallWorld().Promotion("CWA").Build(), 1), kAllRound);
}

}  // namespace
}  // namespace grapplemont::test
