#include "editor/datafolder.h"

#include <gtest/gtest.h>

#include "newrecords.h"
#include "support/randomworld.h"

namespace grapplemont::test {
namespace {

World InOrder() {
  return Complete(SmallWorld()
                      .Network("Nine")
                      .Promotion("CWA", kCult)
                      .Owner("Ruth Vane")
                      .Crew(3)
                      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
                      .Title("CWA Crown", "CWA Hand 1")
                      .Show("Friday Fire", "Friday", "Nine"));
}

TEST(Maintenance, ReportsThenMendsAndFindsNothingTheSecondTime) {
  World world = InOrder();
  world.Workers()[2].BirthMonth = 999;
  world.Workers()[3].Employer = 77;
  world.Teams()[1].Worker2 = 88;
  world.Titles()[1].Reigns[0].Won.SetRaw(-1e200);
  Bytes cut(world.Workers().Contents().begin(), world.Workers().Contents().end());
  cut.resize(cut.size() + 20);
  world.Workers().Load(cut);
  world.Events().Remove();
  const World damaged = CopyOf(world);

  const Maintenance plan = PlanMaintenance(world);
  ExpectSame(world, damaged);
  EXPECT_EQ(
      Lines(plan.Faults),
      (Texts{"event.dat: is missing", "wrestler.dat: ends in 20 bytes that are no whole record",
             "belt.dat, record 1 (CWA Crown), Won1: is no date of the calendar",
             "wrestler.dat, record 2 (CWA Hand 2), BirthMonth: is 999, outside 0 to 12",
             "teams.dat, record 1 (The Hands), Worker2: is 88, but there is no such worker",
             "wrestler.dat, record 3 (CWA Hand 3), Employer: is 77, but there is no such "
             "promotion"}));
  EXPECT_EQ(Lines(plan.Doings).front(), "event.dat: is missing; made without a record");
  EXPECT_EQ(Lines(plan.Left), Texts{});

  EXPECT_EQ(Lines(Maintain(world)), Lines(plan.Doings));
  EXPECT_EQ(world.Teams().Count(), 0);  // a team of one is none
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
  const Maintenance again = PlanMaintenance(world);
  EXPECT_TRUE(again.Faults.empty() && again.Doings.empty() && again.Left.empty());
}

TEST(Maintenance, LeavesDataInOrderAsTheyAre) {
  World world = InOrder();
  EXPECT_EQ(Lines(Maintain(world)), Texts{});
  ExpectSame(world, InOrder());
}

TEST(Maintenance, LeavesAFileThatCannotBeReadToThePlayer) {
  World world = InOrder();
  world.Events().Remove();
  const std::vector<Fault> unreadable = {{"event.dat", 0, {}, {}, "is no plain file"}};
  const Maintenance plan = PlanMaintenance(world, unreadable);
  EXPECT_EQ(Lines(plan.Faults), Texts{"event.dat: is no plain file"});
  EXPECT_EQ(Lines(plan.Doings), Texts{});
  EXPECT_EQ(Lines(plan.Left), Texts{"event.dat: is no plain file"});
}

TEST(Maintenance, MakesAWorldOfAnyBytes) {
  for (std::uint64_t seed = 1; seed <= 8; ++seed) {
    SCOPED_TRACE(seed);
    Dice dice(seed);
    World world;
    for (Table* table : world.Tables()) {
      const RecordLayout* layout = table->Layout();
      if (!layout || std::ranges::find(kDataSet, layout->File) == kDataSet.end()) continue;
      Bytes bytes(static_cast<std::size_t>(layout->Size * dice.From(0, 30) +
                                           dice.From(0, layout->Size - 1)));
      for (std::byte& byte : bytes) byte = dice.Byte();
      table->Load(bytes);
    }
    const Maintenance plan = PlanMaintenance(world);
    EXPECT_FALSE(plan.Faults.empty());
    EXPECT_EQ(Lines(plan.Left), Texts{});
  }
}

}  // namespace
}  // namespace grapplemont::test
