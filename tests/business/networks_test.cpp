#include "business/networks.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

TEST(AudiencePotential, FollowsSizeAndImage) {
  struct Band {
    int Low, High;
    std::vector<int> BySize;
  };
  const Band kBands[] = {{81, 100, {800, 600, 400, 200, 0, 0}},
                         {61, 80, {760, 560, 360, 160, 0, 0}},
                         {41, 60, {720, 520, 320, 120, 0, 0}},
                         {21, 40, {680, 480, 280, 80, 0, 0}},
                         {0, 20, {640, 440, 240, 40, 0, 0}}};
  for (const Band& band : kBands)
    for (int size = kGlobal; size <= kBackyard; ++size)
      for (const int image : {band.Low, band.High}) {
        Promotion promotion;
        promotion.Size = size;
        promotion.Image = image;
        EXPECT_EQ(AudiencePotential(promotion, 50), band.BySize[static_cast<std::size_t>(size - 1)])
            << size << " at " << image;
      }
}

TEST(AudiencePotential, FollowsTheEconomyRoundedDown) {
  constexpr int kCases[][2] = {{100, 576}, {91, 576}, {90, 528}, {81, 528}, {80, 480},
                               {20, 480},  {19, 432}, {10, 432}, {9, 384},  {0, 384}};
  Promotion promotion;
  promotion.Size = kNational;
  promotion.Image = 40;
  for (const auto& [economy, potential] : kCases)
    EXPECT_EQ(AudiencePotential(promotion, economy), potential) << economy;
}

TEST(Networks, GiveAndBearByTheSlot) {
  Network network;
  network.EarlyAudience = 1;
  network.PrimeAudience = 2;
  network.LateAudience = 3;
  network.GraveAudience = 4;
  network.EarlyRisk = 5;
  network.PrimeRisk = 6;
  network.LateRisk = 7;
  network.GraveRisk = 8;
  struct Case {
    const char* Slot;
    int Audience, Risk;
    const char *Name, *Hours;
  };
  constexpr Case kCases[] = {{"E", 1, 5, "Early Evening", "6:00pm - 8:00pm"},
                             {"P", 2, 6, "Prime Time", "8:00pm - 10:00pm"},
                             {"L", 3, 7, "Late Evening", "10:00pm - 12:00am"},
                             {"G", 4, 8, "Graveyard", "12:00am - 2:00am"},
                             {"X", 4, 8, "Graveyard", "12:00am - 2:00am"}};
  for (const Case& c : kCases) {
    EXPECT_EQ(SlotAudience(network, c.Slot), c.Audience) << c.Slot;
    EXPECT_EQ(SlotRisk(network, c.Slot), c.Risk) << c.Slot;
    EXPECT_EQ(SlotName(c.Slot), c.Name);
    EXPECT_EQ(SlotHours(c.Slot), c.Hours);
  }
}

TEST(Networks, AreFullWithExactlyTwentyEightShows) {
  World world = SmallWorld().Network("Nine").Network("Ten").Promotion("CWA").Game("CWA");
  const Network& nine = world.Networks()[1];
  for (int count = 1; count <= 29; ++count) {
    Show show;
    show.Name = "Show " + std::to_string(count);
    show.Network = nine.Uid;
    world.Shows().Append(show);
    EXPECT_EQ(IsFull(world, nine), count == 28) << count;
    EXPECT_FALSE(IsFull(world, world.Networks()[2]));
  }
}

TEST(Networks, HaveANameEvenWhenTheyAreNoMore) {
  World world = SmallWorld().Network("Nine").Promotion("CWA").Game("CWA");
  EXPECT_EQ(NetworkName(world, 1), "Nine");
  EXPECT_EQ(NetworkName(world, 0), "None");
  EXPECT_EQ(NetworkName(world, 7), "None");
}

}  // namespace
}  // namespace grapplemont::test
