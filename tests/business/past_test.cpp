#include "business/past.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

HistoryEntry Past(int kind, int promotion, std::string_view name, int attendance = 0) {
  HistoryEntry entry{};
  entry.On = kGameStart;
  entry.Kind = kind;
  entry.Promotion = promotion;
  entry.Name = name;
  entry.Attendance = attendance;
  entry.Size = kCult;
  return entry;
}

std::vector<int> Crowds(const std::vector<const HistoryEntry*>& entries) {
  std::vector<int> crowds;
  for (const HistoryEntry* entry : entries) crowds.push_back(entry->Attendance);
  return crowds;
}

TEST(Past, IsReadByPromotionKindAndName) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  for (const HistoryEntry& entry :
       {Past(kPastMonth, 1, "CWA Wrestling", 1), Past(kPastTv, 1, "Friday Fire", 2),
        Past(kPastTv, 1, "Sunday Slam", 3), Past(kPastEvent, 1, "Friday Fire", 4),
        Past(kPastTv, 2, "Friday Fire", 5), Past(kPastMonth, 2, "NEW Wrestling", 6),
        Past(kPastCamp, 1, "The Shed", 7), Past(kPastTv, 1, "Friday Fire", 8),
        Past(kPastMonth, 1, "CWA Wrestling", 9)})
    Remember(world, entry);
  EXPECT_EQ(Crowds(MonthsOf(world, 1)), (std::vector{1, 9}));
  EXPECT_EQ(Crowds(PastShowsOf(world, 1, "Friday Fire")), (std::vector{2, 8}));
  EXPECT_EQ(Crowds(PastShowsOf(world, 1)), (std::vector{4})) << "Events, without a name";
  EXPECT_EQ(Crowds(MonthsOf(world, 3)), std::vector<int>());
}

TEST(Past, MakesRoomByAThousandAtOnce) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  const int limit = LayoutOf<HistoryEntry>().Limit;
  for (int number = 1; number <= limit; ++number)
    Remember(world, Past(kPastTv, 1, "Friday Fire", number));
  ASSERT_EQ(world.History().Count(), 30000);
  Remember(world, Past(kPastTv, 1, "Friday Fire", 30001));
  ASSERT_EQ(world.History().Count(), 29001);
  EXPECT_EQ(world.History()[1].Attendance, 1001);
  EXPECT_EQ(world.History()[29001].Attendance, 30001);
}

}  // namespace
}  // namespace grapplemont::test
