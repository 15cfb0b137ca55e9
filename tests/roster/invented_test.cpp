#include "roster/invented.h"

#include <gtest/gtest.h>

#include <set>

#include "records/modWresCheck.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/names.h"

namespace grapplemont::test {
namespace {

TEST(NameTables, AreWholeAndFitTheirFields) {
  std::set<std::string_view> surnames(Surnames.begin(), Surnames.end());
  std::set<std::string_view> first(WorkerFirstNames.begin(), WorkerFirstNames.end());
  std::set<std::string_view> staff(StaffFirstNames.begin(), StaffFirstNames.end());
  EXPECT_EQ(surnames.size(), 300u);
  EXPECT_EQ(first.size(), 303u);
  EXPECT_EQ(staff.size(), 192u);
  std::size_t longestSurname = 0, longestFirst = 0;
  for (const auto& name : surnames) longestSurname = std::max(longestSurname, name.size());
  for (const auto& name : first) longestFirst = std::max(longestFirst, name.size());
  for (const auto& name : staff) longestFirst = std::max(longestFirst, name.size());
  EXPECT_LE(longestSurname, 10u);
  EXPECT_LE(longestFirst + 1 + longestSurname, 25u);
  for (const char* known : {"Dangerson", "Moongoose", "Appleseed", "Risin'", "LaFlame"})
    EXPECT_TRUE(surnames.contains(known)) << known;
  for (const char* known : {"Devastator", "Loverboy", "Rude Boy", "Kentucky"})
    EXPECT_LT(std::find(WorkerFirstNames.begin(), WorkerFirstNames.end(), known) -
                  WorkerFirstNames.begin(),
              kLastMaleWorkerFirstName)
        << known;
  for (const char* known : {"Charlotte", "Kristabel"})
    EXPECT_GE(std::find(WorkerFirstNames.begin(), WorkerFirstNames.end(), known) -
                  WorkerFirstNames.begin(),
              kLastMaleWorkerFirstName)
        << known;
}

TEST(NameTables, GroupMovesByKind) {
  std::string kinds;
  for (const FinisherMove& move : FinisherMoves) {
    EXPECT_LE(move.Name.size(), 25u) << move.Name;
    if (kinds.empty() || kinds.back() != move.Kind) kinds += move.Kind;
  }
  EXPECT_EQ(kinds, "BTS");
  EXPECT_EQ(FinisherMoves.size(), 64u);
  const struct {
    std::string_view Name;
    char Kind;
    FinisherType Type;
  } known[] = {{"Big Punch", 'B', FinisherType::Impact},
               {"Falling Powerbomb", 'B', FinisherType::Impact},
               {"German Suplex", 'T', FinisherType::Impact},
               {"Cross Armlock", 'T', FinisherType::Submission},
               {"Frog Splash", 'S', FinisherType::TopRope},
               {"Lion Sault", 'S', FinisherType::TopRope}};
  for (const auto& row : known) {
    const auto move = std::find_if(FinisherMoves.begin(), FinisherMoves.end(),
                                   [&](const FinisherMove& m) { return m.Name == row.Name; });
    ASSERT_NE(move, FinisherMoves.end()) << row.Name;
    EXPECT_EQ(move->Kind, row.Kind) << row.Name;
    EXPECT_EQ(move->Type, row.Type) << row.Name;
  }
}

TEST(NameTables, KeepWomensNamesToTheirEnd) {
  EXPECT_EQ(kWorkerFirstNames - kLastMaleWorkerFirstName, 52);
  EXPECT_EQ(kStaffFirstNames - kLastMaleStaffFirstName, 31);
  World world;
  const auto drawn = [&](int number, auto draw) {
    ScriptDraws(world, {number});
    return draw(world).IsFemale;
  };
  EXPECT_FALSE(drawn(251, RandomWorkerFirstName));
  EXPECT_TRUE(drawn(252, RandomWorkerFirstName));
  EXPECT_TRUE(drawn(303, RandomWorkerFirstName));
  EXPECT_FALSE(drawn(161, RandomStaffFirstName));
  EXPECT_TRUE(drawn(162, RandomStaffFirstName));
  EXPECT_TRUE(drawn(192, RandomStaffFirstName));
}

// Draws of NewWorkerAttributes up to the build: age, stiffness, selling, charisma, attitude,
// behaviour.
std::vector<int> Character(int age, int charisma) {
  return {age, 10, 20, charisma, 5, 6};
}

std::vector<int> Then(std::vector<int> first, const std::vector<int>& next) {
  first.insert(first.end(), next.begin(), next.end());
  return first;
}

struct AttributesCase {
  const char* What;
  bool Female;
  std::vector<int> Draws;
  int Age, Attitude;
  const char* Weight;
  bool HighSpots;
  int Position, Wage;
  int Brawl, Technical, Speed, Over;
  bool Diva;
};

TEST(NewWorkerAttributes, FollowTheTables) {
  const AttributesCase kCases[] = {
      // Build 5 with high spots, tier 1: moves, strong, weak, weak, Over.
      {"brawler of the top tier", false, Then(Character(10, 50), {5, 1, 1, 1, 2, 30, 40, 40, 10}),
       28, 35, "H", true, 2, 20, 90, 40, 40, 40, false},
      {"the same with charisma", false, Then(Character(10, 71), {1, 2, 1, 1, 2, 30, 40, 40, 10}),
       28, 35, "H", false, 2, 20, 90, 40, 40, 60, false},
      {"a flyer whose charisma lifts him past 75", false,
       Then(Character(10, 90), {6, 2, 1, 1, 1, 1, 1, 1, 1}), 28, 35, "L", true, 2, 20, 1, 1, 61, 55,
       false},
      {"a flyer just under it", false, Then(Character(10, 70), {8, 3, 1, 1, 1, 1, 1, 1, 25}), 28,
       35, "L", false, 2, 20, 1, 1, 61, 80, false},
      {"a technician of the middle", false,
       Then(Character(10, 95), {9, 1, 2, 17, 1, 1, 30, 20, 1, 25}), 28, 35, "H", true, 4, 10, 20,
       55, 1, 65, false},
      {"a light technician", false, Then(Character(3, 10), {10, 2, 3, 2, 1, 1, 1, 1, 1, 1}), 21, 45,
       "L", false, 4, 10, 1, 26, 1, 41, false},
      {"a jobber", false, Then(Character(4, 80), {1, 6, 18, 1, 1, 2, 20, 5, 5, 15}), 22, 35, "H",
       false, 6, 5, 35, 5, 5, 20, false},
      {"a manager, whom charisma does not lift", false,
       Then(Character(4, 80), {1, 6, 25, 1, 1, 1, 20, 5, 5, 15}), 22, 35, "H", false, 50, 5, 35, 5,
       5, 15, false},
      {"a diva", true, Then(Character(4, 10), {4, 1, 6, 2, 1, 1, 1, 1, 1, 1}), 22, 35, "H", false,
       4, 10, 26, 1, 1, 16, true},
      {"no diva", true, Then(Character(4, 10), {5, 1, 6, 2, 1, 1, 1, 1, 1, 1}), 22, 35, "H", false,
       4, 10, 26, 1, 1, 16, false},
  };
  for (const AttributesCase& c : kCases) {
    SCOPED_TRACE(c.What);
    World world;
    ScriptDraws(world, c.Draws);
    Worker worker;
    worker.Gender = !c.Female;
    NewWorkerAttributes(world, worker, Generation::Filler);
    EXPECT_EQ(worker.Age, c.Age);
    EXPECT_EQ(worker.Stiff, 40);
    EXPECT_EQ(worker.Sell, 50);
    EXPECT_EQ(worker.Attitude, c.Attitude);
    EXPECT_EQ(worker.Behaviour, c.Attitude + 1);
    EXPECT_EQ(worker.Weight.View(), c.Weight);
    EXPECT_EQ(worker.HighSpots, c.HighSpots);
    EXPECT_EQ(worker.Position, c.Position);
    EXPECT_EQ(worker.Wage, c.Wage);
    EXPECT_EQ(worker.Brawl, c.Brawl);
    EXPECT_EQ(worker.Technical, c.Technical);
    EXPECT_EQ(worker.Speed, c.Speed);
    EXPECT_EQ(worker.Over, c.Over);
    EXPECT_EQ(worker.Diva, c.Diva);
    EXPECT_FALSE(worker.Finisher1.View().empty());
  }
}

TEST(NewWorkerAttributes, MakeARookieYoung) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    World world(std::make_unique<SeededDraws>(seed));
    Worker worker;
    NewWorkerAttributes(world, worker, Generation::Rookie);
    EXPECT_TRUE(worker.Age >= 19 && worker.Age <= 22) << worker.Age;
  }
}

TEST(NewFillerWorker, DrawsAgainWhileANameIsTaken) {
  const std::string taken = std::string(WorkerFirstNames[0]) + " " + std::string(Surnames[0]);
  World world = SmallWorld().OnTheMarket().Worker(taken);
  // The taken name, then surname 2 with the first woman's name; then attributes and the rest.
  ScriptDraws(world, {1, 1, 2, 252, 4, 10, 20, 10, 5, 6, 5, 1,  6,  2,  1,
                      1, 1, 1, 1,   1, 7,  2,  1,  2, 1, 2, 30, 20, 10, 5});
  const Worker& worker = NewFillerWorker(world);
  EXPECT_EQ(worker.Name.Str(), std::string(WorkerFirstNames[251]) + " " + std::string(Surnames[1]));
  EXPECT_EQ(worker.ShortName.View(), Surnames[1]);
  EXPECT_FALSE(worker.Gender);
  EXPECT_EQ(worker.Uid, 2);
  EXPECT_EQ(worker.BirthMonth, 7);
  EXPECT_EQ(worker.Disposition.View(), "H");
  EXPECT_TRUE(worker.Trainer);
  EXPECT_FALSE(worker.SuperstarLook);
  EXPECT_TRUE(worker.Booker);
  EXPECT_FALSE(worker.Announcer);
  EXPECT_EQ(worker.Condition, 90);
  EXPECT_EQ(worker.Morale, 80);
  EXPECT_EQ(worker.Loyalty, 80);
  EXPECT_EQ(worker.Over, 16);
  EXPECT_EQ(worker.OverFloor, 0);
  EXPECT_EQ(worker.Potential, 30) << "16 + 5 is under the least potential";
}

TEST(Floors, StepWithTheOverReached) {
  constexpr int kCases[][2] = {{100, 80}, {99, 70}, {91, 70}, {90, 60}, {81, 60}, {80, 50},
                               {71, 50},  {70, 40}, {61, 40}, {60, 30}, {51, 30}, {50, 0}};
  for (const auto& [over, floor] : kCases) EXPECT_EQ(OverFloorFor(over), floor) << over;
}

TEST(StartingPotential, IsOverItselfFrom66) {
  struct Case {
    int Over;
    std::vector<int> Draws;
    int Potential;
  };
  const Case kCases[] = {{100, {}, 100}, {66, {}, 66}, {65, {3}, 68}, {65, {25}, 70}, {2, {1}, 30}};
  for (const Case& c : kCases) {
    World world;
    ScriptDraws(world, c.Draws);
    EXPECT_EQ(StartingPotential(world, c.Over), c.Potential) << c.Over;
  }
}

TEST(NewFillerStaff, GivesAnOwnerHisStyleForAWage) {
  World world;
  for (int i = 0; i < 60; ++i) {
    const Staff& owner = NewFillerStaff(world, kOwner);
    EXPECT_TRUE(owner.Wage >= 1 && owner.Wage <= 6);
    EXPECT_EQ(owner.ContractMonths, kNoEnd);
    const Staff& medic = NewFillerStaff(world, kMedical);
    EXPECT_EQ(medic.Wage, 1 + medic.Talent / 5);
    EXPECT_EQ(medic.ContractMonths, 0);
    EXPECT_TRUE(medic.Age >= 26 && medic.Age <= 60);
  }
}

}  // namespace
}  // namespace grapplemont::test
