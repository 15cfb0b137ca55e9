#include <gtest/gtest.h>

#include "rivals/faults.h"
#include "rivals/ownership.h"
#include "rivals/rivals.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World WithOwners(int size, std::initializer_list<int> talents) {
  SmallWorld small;
  small.Promotion("CWA").Owner("Ruth Vane").Promotion("XWF", size).OnTheMarket();
  for (const int talent : talents) small.Staff("Rich " + std::to_string(talent), kOwner, talent);
  World world = small.Game("CWA");
  world.Game().MailOwners = 0;
  return world;
}

TEST(OwnerlessPromotions, PassOnToTheNextWhoSuitsTheirSize) {
  const struct {
    int Size;
    std::initializer_list<int> Talents;
    std::vector<ScriptedDraw> Draws;
    const char* Taken;
  } kRows[] = {{kGlobal, {75, 76}, {{14, 1}, {2, 1}}, "Rich 76"},
               {kRegional, {76, 75, 16, 60}, {{14, 1}, {2, 2}, {3, 1}}, "Rich 16"},
               {kBackyard, {46, 45, 15, 60}, {{14, 1}, {3, 2}, {2, 1}}, "Rich 15"}};
  for (const auto& row : kRows) {
    World world = WithOwners(row.Size, row.Talents);
    ScriptDraws(world, row.Draws);
    OwnerlessPromotions(world);
    for (const Staff& owner : world.AllStaff())
      EXPECT_EQ(owner.Employer == 2, owner.Name == row.Taken) << owner.Name.Str();
  }
}

TEST(OwnerlessPromotions, MakeARivalAsRiskyAsItsNewOwnersStyle) {
  const int kRisks[8] = {55, 70, 30, 10, 40, 85, 20, 55};
  for (int style = 0; style < 8; ++style) {
    World world = WithOwners(kRegional, {50});
    world.AllStaff()[2].Wage = style;
    world.Promotions()[2].Risk = 55;
    world.AllStaff()[2].Unsackable = true;
    ScriptDraws(world, {{14, 1}, {2, 1}});
    OwnerlessPromotions(world);
    EXPECT_EQ(world.Promotions()[2].Risk, kRisks[style]) << style;
    EXPECT_EQ(TasteOf(world, 2), style >= 1 && style <= 6 ? style : kAllRound);
    EXPECT_FALSE(world.AllStaff()[2].Unsackable) << "as elsewhere";
  }
}

TEST(OwnerlessPromotions, BringThePlayerANewBoss) {
  for (const auto& [name, words] :
       {std::pair("Jo Bell",
                  "The company is mine as of today. I want holds, counter-holds and "
                  "people who know why."),
        {"Carl From The Bank",
         "For the avoidance of doubt: this is no longer a debt, it is an "
         "asset. Please keep all receipts. Carl."}}) {
    World world = SmallWorld()
                      .Promotion("CWA", kRegional)
                      .OnTheMarket()
                      .Staff(name, kOwner, 50, [](Staff& owner) { owner.Wage = 2; })
                      .Game("CWA");
    world.Game().MailOwners = 2;
    world.Player().Risk = 55;
    ScriptDraws(world, {{14, 1}, {2, 1}});
    OwnerlessPromotions(world);
    EXPECT_EQ(world.Player().Risk, 55) << "the player's product is the player's";
    EXPECT_EQ(NewsOf(world), "News Desk: " + std::string(name) +
                                 " has taken over control of CWA Wrestling!\n" + name + ": " +
                                 words + "\n");
  }
}

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

TEST(Taste, ScoresWorkersByWhatItLooksFor) {
  const struct {
    Taste Looks;
    Change<Worker> Is;
    int Score;
  } kRows[] = {{kBrawlers, {}, (80 * 3 + 50) / 4},
               {kTechnicians, {}, (60 * 3 + 50) / 4},
               {kHighFlyers, {}, (41 * 3 + 50) / 4},
               {kAllRound, {}, (80 * 3 + 50) / 4},
               {kWomen, {}, 25},
               {kWomen, [](Worker& w) { w.Gender = false; }, 50},
               {kWomen, [](Worker& w) { w.Gender = false, w.Diva = true; }, 87},
               {kYouth, [](Worker& w) { w.Age = 28; }, (80 * 3 + 50) / 4 / 2},
               {kYouth, [](Worker& w) { w.Age = 27; }, (90 * 3 + 50) / 4},
               {kYouth, [](Worker& w) { w.Age = 27, w.Potential = 55; }, (80 * 3 + 50) / 4}};
  for (const auto& row : kRows) {
    Worker worker = Person(80, 60, 41, 50);
    if (row.Is) row.Is(worker);
    EXPECT_EQ(WorkerScore(worker, row.Looks), row.Score) << TasteText(row.Looks);
    EXPECT_EQ(RosterScore(worker, row.Looks), row.Score);
    worker.Position = kManager;
    EXPECT_EQ(RosterScore(worker, row.Looks), (70 * 2 + 50 * 3) / 5);
    worker.Unsackable = true;
    EXPECT_EQ(RosterScore(worker, row.Looks), 101);
  }
}

TEST(RivalStaffHiring, TriesOncePerMissingPostUntilOneFails) {
  // A Regional promotion wants 2, 1, 1, 1, 1, 1 and 1.
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Promotion("XWF", kRegional)
                    .OnTheMarket()
                    .Staff("Voice 1", kAnnouncer)
                    .Staff("Voice 2", kAnnouncer)
                    .Staff("Voice 3", kAnnouncer)
                    .Staff("Stripes", kReferee)
                    .Staff("Pen", kWriter)
                    .Game("CWA");
  // The second announcer is not found, the referee is, the writer is not.
  ScriptDraws(world, {{5, 2}, {5, 1}, {5, 2}, {5, 2}, {5, 2}, {5, 1}, {5, 3}});
  RivalStaffHiring(world);
  for (const Staff& staff : world.AllStaff())
    EXPECT_EQ(staff.Employer != 0, staff.Name == "Voice 2" || staff.Name == "Stripes")
        << staff.Name.Str();
}

}  // namespace
}  // namespace grapplemont::test
