#include <gtest/gtest.h>

#include "autocards.h"
#include "booking/wizard/objections.h"
#include "randomhouse.h"
#include "randomsegment.h"
#include "records/checks/checkworld.h"
#include "report/report.h"
#include "show/holdshow.h"

// A thousand shows, from the card of the auto booker to the close, for rosters that nobody would
// put together.

namespace grapplemont::test {
namespace {

constexpr int kWorlds = 125, kShowsPerWorld = 8;
constexpr int kLeastPotential = 30;

/// Every percentage of the file's records lies in 0..100.
template <class T>
void ExpectPercentages(const Records<T>& records) {
  const RecordLayout& layout = LayoutOf<T>();
  for (const T& record : records)
    for (const Field& field : layout.Fields) {
      if (field.Kind != FieldKind::Percent) continue;
      for (int index = 0; index < field.Count; ++index) {
        const long long value =
            FieldNumber(field, reinterpret_cast<const std::byte*>(&record), index);
        ASSERT_TRUE(value >= 0 && value <= 100)
            << layout.File << ", " << FieldName(field, index) << " is " << value;
      }
    }
}

void ExpectSound(const World& world) {
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
  ExpectPercentages(world.Workers());
  ExpectPercentages(world.Promotions());
  ExpectPercentages(world.AllStaff());
  ExpectPercentages(world.Teams());
  ExpectPercentages(world.Titles());
  ExpectPercentages(world.Feuds());
  for (const Segment& segment : world.Segments())
    ASSERT_TRUE(segment.Rating >= 0 && segment.Rating <= 100) << segment.Rating;
}

/// What the shows held among them, so that none of it is missing without a word.
struct Tally {
  int Segments = 0, Random = 0, Matches = 0, Interviews = 0, Angles = 0;
};

/// The first who would take the card amiss although nobody has objected.
std::string GrudgeOf(const World& world, const AutoCard& card) {
  World booked = CopyOf(world);
  for (const Segment& row : card.Rows) ApplyBookingGrievances(booked, row);
  return FirstDifference(booked, world);
}

/// The card of the auto booker with some rows booked again.
void Book(World& world, Dice& dice, bool isEvent, std::uint64_t seed, Tally& tally) {
  const int rows = RowsOf(isEvent);
  world.Segments().Rewrite({});  // what the last show has left may not be booked again
  AutoCard card = BookedBy(world, isEvent, rows, seed);
  ASSERT_EQ("", FaultsOf(world, card, isEvent));
  ASSERT_EQ("", GrudgeOf(world, card));
  card.Rows.resize(static_cast<std::size_t>(rows), EmptySegment());
  for (Segment& row : card.Rows) {
    if (row.Kind != kEmptySegment && !dice.OneIn(3)) continue;
    const auto drawn = RandomSegment(world, dice, {isEvent, "All"});
    tally.Random += drawn.has_value();
    if (drawn) row = *drawn;
  }
  world.Segments().Rewrite(card.Rows);
  for (const Segment& row : card.Rows) {
    tally.Segments += row.Kind != kEmptySegment;
    tally.Matches += row.Kind == kMatch;
    tally.Interviews += row.Kind == kInterview;
    tally.Angles += row.Kind == kAngle;
  }
}

TEST(RandomShows, LeaveASoundWorldBehind) {
  Tally tally;
  for (int number = 1; number <= kWorlds; ++number) {
    World world = RandomHouse(static_cast<std::uint64_t>(number));
    MendWorld(world);
    for (Worker& worker : world.Workers())
      worker.Potential = std::max<int>(worker.Potential, kLeastPotential);
    ExpectSound(world);
    Dice dice(static_cast<std::uint64_t>(number) + 9000);
    LineMemory memory;
    for (int show = 0; show < kShowsPerWorld; ++show) {
      SCOPED_TRACE("world " + std::to_string(number) + ", show " + std::to_string(show));
      const bool isEvent = dice.OneIn(2);
      Book(world, dice, isEvent, static_cast<std::uint64_t>(number * 100 + show), tally);
      const bool isTold = show == 0;  // prose takes the most of the time and changes no record
      const int rating = HoldShow(world, isEvent, {0, dice.From(0, 12), true}, dice.From(0, 30),
                                  isTold ? &memory : nullptr);
      ASSERT_TRUE(ShowIsClosed(world));
      ASSERT_EQ(NextSegment(world), 0);
      ASSERT_TRUE(rating >= 0 && rating <= 100) << rating;
      if (isTold) ExpectSound(world);  // with the closed show still among its files
      LeaveShow(world);
      ASSERT_EQ(world.Session.ShowRating, rating);
      ASSERT_EQ(ShowUnderWay(world), nullptr);
      ExpectSound(world);
      if (testing::Test::HasFailure()) return;
    }
  }
  EXPECT_GT(tally.Segments, 5000);
  EXPECT_GT(tally.Random, 1000);
  EXPECT_GT(tally.Matches, 2000);
  EXPECT_GT(tally.Interviews, 200);
  EXPECT_GT(tally.Angles, 200);
}

}  // namespace
}  // namespace grapplemont::test
