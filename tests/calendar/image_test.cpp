#include "calendar/image.h"

#include <gtest/gtest.h>

#include "business/finance.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

SmallWorld TwoPromotions(int size, int image) {
  SmallWorld small;
  const auto standing = [=](Promotion& promotion) { promotion.Image = image; };
  for (const char* initials : {"CWA", "NEW"}) {
    const std::string prefix = initials;
    small.Promotion(initials, size, standing).Owner(prefix + " Boss").Event(3, 2).Event(7, 2);
    small.Worker(prefix + " Top", kMainEvent, 88, [](Worker& w) { w.OverFloor = 60; });
    small.Worker(prefix + " Held", kMidcard, 62, [](Worker& w) { w.OverFloor = 61; });
    small.Worker(prefix + " Low", kJobber, 2);
    small.Worker(prefix + " Away", kDevelopmentDeal, 40);
  }
  return small;
}

TEST(ChangeImage, StopsAtTheEndsOfTheWorld) {
  for (const auto& [size, image, amount, after] :
       {std::tuple(int(kBackyard), 5, -9, 0), {kGlobal, 95, 9, 100}}) {
    World world = TwoPromotions(size, image).Game("CWA");
    ScriptDraws(world, {});
    for (Promotion& promotion : world.Promotions()) {
      MoveImage(world, promotion, amount);
      EXPECT_EQ(promotion.Image, after);
      EXPECT_EQ(promotion.Size, size);
    }
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(ChangeImage, TakesThePlayerDownAClass) {
  World world = TwoPromotions(kCult, 5).Game("CWA");
  Named(world.Workers(), "CWA Away").OverFloor = 70;
  ScriptDraws(world, {{3, 2}, {5, 4}, {5, 3}, {5, 5}, {5, 1}});
  ChangeImage(world, world.Player(), 5, false);
  EXPECT_EQ(world.Player().Image, 90);
  EXPECT_EQ(world.Player().Size, kRegional);
  EXPECT_EQ(world.Session.StartSize, kRegional);
  EXPECT_EQ(world.Game().EndCode, 0);
  EXPECT_EQ(Named(world.Workers(), "CWA Top").Over, 84);
  EXPECT_EQ(Named(world.Workers(), "CWA Held").Over, 61) << "held by their floor";
  EXPECT_EQ(Named(world.Workers(), "CWA Low").Over, 0);
  EXPECT_EQ(Named(world.Workers(), "CWA Away").Over, 40) << "under their floor already";
  EXPECT_EQ(Named(world.Workers(), "NEW Top").Over, 88);
  EXPECT_EQ(Named(world.AllStaff(), "CWA Boss").Employer, 0);
  EXPECT_NE(Named(world.AllStaff(), "NEW Boss").Employer, 0);
  EXPECT_EQ(NewsOf(world),
            "Maeve: We have fallen to Regional level.\nCWA News: Owner CWA Boss has quit CWA.\n");
  EXPECT_EQ(world.Player().Advertising, 0) << "the player spends as they like";
  EXPECT_EQ(world.Player().TicketPrice, 30);
}

TEST(ChangeImage, MayCostThePlayerHisJob) {
  World world = TwoPromotions(kCult, 5).Game("CWA");
  Named(world.AllStaff(), "CWA Boss").Unsackable = true;
  ScriptDraws(world, {{3, 3}, 1, 1, 1, 1});
  ChangeImage(world, world.Player(), 30, false);
  EXPECT_EQ(world.Game().EndCode, kEndBoard);
  EXPECT_NE(Named(world.AllStaff(), "CWA Boss").Employer, 0) << "they stay";
}

TEST(ChangeImage, TellsOfARivalUnderTheOptionsAndLetsItSpendByItsStanding) {
  // The player is Regional; a rival counts by the size that it has fallen to.
  constexpr const char* kFall = "NEW News: NEW have fallen to Regional level.\n";
  constexpr const char* kQuit = "NEW News: Owner NEW Boss has quit NEW.\n";
  const struct {
    int Size, FedOption, OwnerOption;
    const char* News;
  } kCases[] = {{kCult, 1, 2, kFall}, {kCult, 2, 1, kQuit}, {kRegional, 1, 1, ""}};
  for (const auto& c : kCases) {
    World world = TwoPromotions(kRegional, 5).Game("CWA");
    Promotion& rival = Named(world.Promotions(), "NEW");
    rival.Size = c.Size;
    world.Game().MailOtherFed = c.FedOption;
    world.Game().MailOwners = c.OwnerOption;
    ScriptDraws(world, {{5, 1}, 1, 1, 1});
    ChangeImage(world, rival, 5, false);
    EXPECT_EQ(NewsOf(world), c.News) << c.Size << c.FedOption << c.OwnerOption;
    EXPECT_EQ(world.Session.StartSize, kRegional);
    EXPECT_EQ(Named(world.AllStaff(), "NEW Boss").Employer, 0);
    EXPECT_EQ(world.Game().EndCode, 0);
    EXPECT_EQ(rival.Advertising, TargetAdvertising(c.Size + 1, 90));
    EXPECT_EQ(rival.Merchandising, RivalSpendingFor(c.Size + 1).Merchandising);
    EXPECT_EQ(rival.Production, RivalSpendingFor(c.Size + 1).Production);
    EXPECT_EQ(rival.TicketPrice, FairTicketPrice(c.Size + 1));
  }
}

TEST(ChangeImage, LiftsNobodyWhoIsKeptAway) {
  for (const int position : {kDevelopmentDeal + 0, kTrainingCamp + 0, 79}) {
    World world = SmallWorld()
                      .Promotion("CWA", kCult, [](Promotion& p) { p.Image = 99; })
                      .Worker("Kept Away", kJobber, 40)
                      .Worker("At Hand", kManager, 97)
                      .Game("CWA");
    Named(world.Workers(), "Kept Away").Position = position;  // 79 is not a place, yet away
    ScriptDraws(world, {{5, 5}});
    ChangeImage(world, world.Player(), 1, true);
    EXPECT_EQ(Named(world.Workers(), "Kept Away").Over, 40) << position;
    EXPECT_EQ(Named(world.Workers(), "At Hand").Over, 100);
    EXPECT_EQ(Named(world.Workers(), "At Hand").OverFloor, 80);
    EXPECT_EQ(Named(world.Workers(), "At Hand").Potential, 100);
  }
}

/// What a size's ladder comes to over all ratings, weighed by the rating: a row or a step that
/// moves changes it.
TEST(ImageSteps, AreThoseOfTheirLadders) {
  const struct {
    HeldShow Kind;
    std::array<int, 6> Sums;  // Global to Backyard
  } rows[] = {{HeldShow::Event, {1070, 1711, 13520, 18560, 18960, 21675}},
              {HeldShow::Television, {-4162, -2312, 4064, 5984, 11970, 35805}},
              {HeldShow::RivalEvent, {-3330, 3811, 26127, 28745, 23130, 22950}},
              {HeldShow::RivalTelevision, {-615, 2218, 7326, 16028, 17796, 13884}}};
  for (const auto& row : rows)
    for (int size = kGlobal; size <= kBackyard; ++size) {
      int sum = 0;
      for (int rating = 0; rating <= 100; ++rating)
        sum += ImageStep(row.Kind, size, rating) * (rating + 1);
      EXPECT_EQ(sum, row.Sums[static_cast<std::size_t>(size - 1)]) << size;
    }
}

}  // namespace
}  // namespace grapplemont::test
