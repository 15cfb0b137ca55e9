#include "autocards.h"

#include <gtest/gtest.h>

#include "booking/wizard/objections.h"
#include "randomhouse.h"

// A thousand cards for rosters that nobody would put together.

namespace grapplemont::test {
namespace {

constexpr int kWorlds = 125, kCardsPerWorld = 8;

/// Keeps some of a card's rows as what has been booked so far.
void BookSome(World& world, const AutoCard& card, Dice& dice) {
  world.Segments().Rewrite(card.Rows);
  for (Segment& row : world.Segments())
    if (dice.OneIn(2)) ClearSegment(row);
}

/// The first who would take the card amiss although nobody has objected.
std::string GrudgeOf(const World& world, const AutoCard& card) {
  World booked = CopyOf(world);
  for (const Segment& row : card.Rows) ApplyBookingGrievances(booked, row);
  return FirstDifference(booked, world);
}

bool IsKept(const Segment& before, const Segment& after) {
  return before.Kind == kEmptySegment ||
         std::equal(reinterpret_cast<const char*>(&before),
                    reinterpret_cast<const char*>(&before) + sizeof before,
                    reinterpret_cast<const char*>(&after));
}

TEST(AutoBookerOnRandomRosters, NothingThatThePlayerCouldNotBook) {
  constexpr int kRows[] = {5, 6, 8, 11};
  int full = 0;
  for (int number = 1; number <= kWorlds; ++number) {
    World world = RandomHouse(static_cast<std::uint64_t>(number));
    Dice dice(static_cast<std::uint64_t>(number) + 5000);
    for (int show = 0; show < kCardsPerWorld; ++show) {
      SCOPED_TRACE("world " + std::to_string(number) + ", card " + std::to_string(show));
      const bool isEvent = show % 2 == 0;
      const int rows = isEvent ? kEventRows : kRows[show / 2];
      const std::vector<Segment> before(world.Segments().begin(), world.Segments().end());
      const auto seed = static_cast<std::uint64_t>(number * 100 + show);
      const AutoCard card = BookedBy(world, isEvent, rows, seed);
      ASSERT_EQ("", FaultsOf(world, card, isEvent));
      ASSERT_EQ("", GrudgeOf(world, card));
      for (std::size_t row = 0; row < before.size(); ++row)
        ASSERT_TRUE(IsKept(before[row], card.Rows[row])) << row;
      full += card.Missing.empty();
      // The next show of the world starts with an empty sheet, or with half of this one's.
      world.Segments().Rewrite({});
      if (show % 4 == 1 && card.Rows.size() <= 8) BookSome(world, card, dice);
    }
  }
  EXPECT_GT(full, kWorlds * kCardsPerWorld * 2 / 3);
}

}  // namespace
}  // namespace grapplemont::test
