#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "rivals/tuning.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

// What a week of house shows does to the standing of a rival.

namespace grapplemont::test {
namespace {

/// A Cult rival beside a National one with a star, and so many others of its own class with one.
World OnTour(int image, int crew, int peers = 0, int shows = 0) {
  SmallWorld small;
  small.Network("Nine");
  const auto star = [](Worker& worker) { worker.Over = 85; };
  small.Promotion("CWA").Promotion("BIG", kNational).Worker("Star", star);
  for (int i = 0; i < peers; ++i)
    small.Promotion("P" + std::to_string(i), kCult).Worker("Star " + std::to_string(i), star);
  small.Promotion("XWF", kCult, [=](Promotion& p) { p.Image = image; }).Crew(crew);
  for (int i = 0; i < shows; ++i)
    small.Show("Slam " + std::to_string(i), i == 0 ? "Friday" : "Saturday", "Nine");
  World world = small.Game("CWA");
  ScriptDraws(world, std::vector<int>{});
  return world;
}

TEST(RivalHouseShows, HoldWhoMindsItsClassWhereItIs) {
  const tuning::Tour& tour = tuning::kTours[kCult - 1];
  const struct {
    int Image, Crew, Peers, Shows, Step;
    const char* Why;
  } kCases[] = {{tuning::kNearARise, 12, 0, 0, -tour.Loss, "not ready for what is near"},
                {tuning::kNearARise, 12, 0, 2, -3 * tour.Loss, "and seen twice a week"},
                {tuning::kNearARise - 1, 12, 0, 0, 0, "no rise is near"},
                {tuning::kNearARise, tuning::kHouseShowCrew - 1, 0, 0, 0, "nobody to tour with"},
                {tuning::kNearAFall, 12, 0, 0, tour.Gain, "at home, and near a fall"},
                {tuning::kNearAFall, 12, 0, 1, 2 * tour.Gain, "and seen once a week"},
                {tuning::kNearAFall + 1, 12, 0, 0, 0, "no fall is near"},
                {tuning::kNearAFall, 12, 1, 0, 0, "its peers are far better"}};
  for (const auto& c : kCases) {
    World world = OnTour(c.Image, c.Crew, c.Peers, c.Shows);
    RivalHouseShows(world);
    const Promotion& rival = Named(world.Promotions(), "XWF");
    EXPECT_EQ(rival.Image - c.Image, c.Step) << c.Why;
    EXPECT_EQ(rival.ThisMonth.TicketIncome > 0, c.Crew >= tuning::kHouseShowCrew) << c.Why;
    EXPECT_EQ(Named(world.Promotions(), "BIG").Image, Named(world.Promotions(), "CWA").Image);
  }
}

TEST(RivalHouseShows, LeaveThePlayersStandingAlone) {
  World world = OnTour(50, 12);
  Promotion& own = world.Player();
  own.Size = kCult;
  own.Image = tuning::kNearAFall;
  RivalHouseShows(world);
  EXPECT_EQ(own.Image, tuning::kNearAFall);
}

}  // namespace
}  // namespace grapplemont::test
