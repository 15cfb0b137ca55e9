#include "calendar/daykind.h"

#include <gtest/gtest.h>

#include "calendar/events.h"
#include "records/fields/fields.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using namespace std::chrono_literals;
using std::chrono::year;

struct DayCase {
  const char* Title;
  Day Today;
  bool HasEvent;
  bool HoldNone;  // the answer to the question, where it is asked
  bool Asked;
  DayKind Expected;
};

class DayKinds : public testing::TestWithParam<DayCase> {};

TEST_P(DayKinds, TellWhatNextDayDoes) {
  const DayCase& c = GetParam();
  SmallWorld small;
  small.Network("Channel Nine").Promotion("CWA").Show("Sunday Slam", "Sunday", "Channel Nine");
  small.Show("Tuesday Tussle", "Tuesday", "Channel Nine");
  if (c.HasEvent) small.Event(3);
  World world =
      small.Promotion("NEW").Show("Rival Hour", "Wednesday", "Channel Nine").Game("CWA", c.Today);
  bool asked = false;
  const DayKind kind = DayKindToday(world, [&] {
    asked = true;
    return c.HoldNone;
  });
  EXPECT_EQ(kind, c.Expected);
  EXPECT_EQ(asked, c.Asked);
  EXPECT_TRUE(world.Changes().empty()) << "the player's Event is never made up";
}

INSTANTIATE_TEST_SUITE_P(
    Of2026, DayKinds,
    testing::Values(
        DayCase{"no show", year{2026} / 3 / 2, true, true, false, DayKind::Plain},
        DayCase{"television", year{2026} / 3 / 3, true, true, false, DayKind::Television},
        DayCase{"only a rival's show", year{2026} / 3 / 4, true, true, false, DayKind::Plain},
        DayCase{"a Sunday in the month", year{2026} / 3 / 22, true, true, false,
                DayKind::Television},
        DayCase{"the fifth Sunday", year{2026} / 3 / 29, true, true, false, DayKind::Event},
        DayCase{"no Event, a month without", year{2026} / 3 / 29, false, true, true,
                DayKind::Plain},
        DayCase{"no Event, stay", year{2026} / 3 / 29, false, false, true, DayKind::Stay}),
    [](const auto& info) {
      std::string name = info.param.Title;
      std::erase_if(name, [](char c) { return !isalnum(static_cast<unsigned char>(c)); });
      return name;
    });

struct EventTypeCase {
  int Size;
  int Image;
  int Type;
};

TEST(Events, GetTheirTypeFromSizeAndImage) {
  constexpr EventTypeCase kCases[] = {{1, 0, 1},   {1, 100, 1}, {2, 61, 1}, {2, 60, 2},
                                      {3, 61, 2},  {3, 60, 3},  {4, 99, 3}, {4, 0, 3},
                                      {5, 100, 4}, {5, 0, 4},   {6, 61, 4}, {6, 1, 4}};
  for (const EventTypeCase& c : kCases) {
    Promotion promotion;
    promotion.Size = c.Size;
    promotion.Image = c.Image;
    EXPECT_EQ(NewEventType(promotion), c.Type) << "size " << c.Size << ", image " << c.Image;
  }
}

TEST(Events, OfARivalWithoutOneAreMadeAtTheEndOfTheFile) {
  World world = SmallWorld().Promotion("CWA").Event(3).Promotion("NEW", kNational).Game("CWA");
  Promotion& rival = Named(world.Promotions(), "NEW");
  rival.Image = 61;
  EXPECT_EQ(EventThisMonth(world, rival), 1);
  ASSERT_EQ(world.Events().Count(), 2);
  EXPECT_EQ(world.Events()[2].Name.View(), "NEW in March");
  EXPECT_EQ(world.Events()[2].Owner, rival.Uid);
  EXPECT_EQ(EventThisMonth(world, rival), 1);
  EXPECT_EQ(world.Events().Count(), 2) << "the second look finds the first one's Event";
}

TEST(Events, AreEnsuredForTheMonthsThatLackOne) {
  World world =
      SmallWorld().Promotion("CWA").Promotion("NEW").Event(5, 1, "May Mayhem").Game("CWA");
  const Promotion& rival = Named(world.Promotions(), "NEW");
  EnsureEvents(world, rival);
  ASSERT_EQ(world.Events().Count(), 12);
  EXPECT_EQ(world.Events()[1].Name.View(), "May Mayhem");
  EXPECT_EQ(world.Events()[12].Name.View(), "NEW in December");
}

}  // namespace
}  // namespace grapplemont::test
