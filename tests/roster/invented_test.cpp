#include "roster/invented.h"

#include <gtest/gtest.h>

#include "records/modWresCheck.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "words/names.h"

namespace grapplemont::test {
namespace {

/// What makes them up is seen in the golden months, where hundreds of them fill a new world.
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

TEST(NewFillerStaff, HasTheSexOfTheFirstName) {
  World world;
  const auto draw = [&](int first) -> const Staff& {
    // The name, then age, talent, wage of an Owner, backstage, month, booker, morale, loyalty.
    ScriptDraws(world, {1, first, 10, 50, 3, 20, 5, 2, 10, 10});
    return NewFillerStaff(world, kOwner);
  };
  EXPECT_TRUE(draw(kLastMaleStaffFirstName).Gender);
  const Staff& woman = draw(kLastMaleStaffFirstName + 1);
  EXPECT_FALSE(woman.Gender);
  EXPECT_EQ(woman.Wage, 3);
  EXPECT_EQ(woman.ContractMonths, kNoEnd);
}

}  // namespace
}  // namespace grapplemont::test
