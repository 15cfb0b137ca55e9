#include "calendar/image.h"

#include <gtest/gtest.h>

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

TEST(ChangeImage, MovesWithinTheHundred) {
  struct Case {
    int Before, Amount;
    bool Gain;
    int After;
  };
  constexpr Case kCases[] = {{50, 7, true, 57}, {50, 7, false, 43}, {99, 0, true, 99},
                             {1, 0, false, 1},  {50, 49, true, 99}, {50, 49, false, 1}};
  for (const Case& c : kCases) {
    World world = TwoPromotions(kCult, c.Before).Game("CWA");
    ScriptDraws(world, {});
    ChangeImage(world, world.Player(), c.Amount, c.Gain);
    EXPECT_EQ(world.Player().Image, c.After) << c.Before;
    EXPECT_EQ(world.Player().Size, kCult);
    EXPECT_EQ(NewsOf(world), "");
  }
}

TEST(ChangeImage, StopsAtTheEndsOfTheWorld) {
  World backyard = TwoPromotions(kBackyard, 5).Game("CWA");
  ScriptDraws(backyard, {});
  for (const char* initials : {"CWA", "NEW"}) {
    Promotion& promotion = Named(backyard.Promotions(), initials);
    ChangeImage(backyard, promotion, 9, false);
    EXPECT_EQ(promotion.Image, 0);
    EXPECT_EQ(promotion.Size, kBackyard);
  }
  EXPECT_EQ(Named(backyard.Workers(), "CWA Top").Over, 88);
  EXPECT_EQ(NewsOf(backyard), "");

  World global = TwoPromotions(kGlobal, 95).Game("CWA");
  ScriptDraws(global, {});
  ChangeImage(global, global.Player(), 9, true);
  EXPECT_EQ(global.Player().Image, 100);
  EXPECT_EQ(global.Player().Size, kGlobal);
  EXPECT_EQ(NewsOf(global), "");
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
  EXPECT_EQ(Named(world.Workers(), "CWA Held").Over, 61) << "held by his floor";
  EXPECT_EQ(Named(world.Workers(), "CWA Low").Over, 0);
  EXPECT_EQ(Named(world.Workers(), "CWA Away").Over, 40) << "under his floor already";
  EXPECT_EQ(Named(world.Workers(), "NEW Top").Over, 88);
  EXPECT_EQ(Named(world.AllStaff(), "CWA Boss").Employer, 0);
  EXPECT_NE(Named(world.AllStaff(), "NEW Boss").Employer, 0);
  EXPECT_EQ(NewsOf(world),
            "Maeve: We have fallen to Regional level.\nCWA News: Owner CWA Boss has quit CWA.\n");
  EXPECT_EQ(world.Player().Advertising, 0) << "the player spends as he likes";
  EXPECT_EQ(world.Player().TicketPrice, 30);
}

TEST(ChangeImage, MayCostThePlayerHisJob) {
  World world = TwoPromotions(kCult, 5).Game("CWA");
  Named(world.AllStaff(), "CWA Boss").Unsackable = true;
  ScriptDraws(world, {{3, 3}, 1, 1, 1, 1});
  ChangeImage(world, world.Player(), 30, false);
  EXPECT_EQ(world.Game().EndCode, 3);
  EXPECT_NE(Named(world.AllStaff(), "CWA Boss").Employer, 0) << "he stays";
}

TEST(ChangeImage, TellsOfARivalUnderTheOptions) {
  struct Case {
    int Size, FedOption, OwnerOption;
    const char* News;
  };
  // The player is Regional; a rival counts by the size that it has fallen to.
  constexpr const char* kFall = "NEW News: NEW have fallen to Regional level.\n";
  constexpr const char* kQuit = "NEW News: Owner NEW Boss has quit NEW.\n";
  const Case kCases[] = {
      {kCult, 1, 2, kFall},
      {kCult, 2, 1, kQuit},
      {kCult, 2, 2, ""},
      {kRegional, 1, 1, ""},
      {kRegional, 0, 2, "NEW News: NEW have fallen to Small level.\n"},
      {kRegional, 2, 0, kQuit},
  };
  for (const Case& c : kCases) {
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
  }
}

TEST(ChangeImage, LiftsPlayerAndPeopleAClass) {
  World world =
      TwoPromotions(kCult, 93).Promotion("OTH").Worker("Someone Else", kMainEvent, 70).Game("CWA");
  Promotion& player = world.Player();
  Named(world.Workers(), "CWA Top").OverFloor = 0;
  Named(world.Workers(), "CWA Held").OverFloor = 72;
  ScriptDraws(world, {{5, 3}, {5, 5}, {5, 2}});
  ChangeImage(world, player, 7, true);
  EXPECT_EQ(player.Image, 10);
  EXPECT_EQ(player.Size, kNational);
  EXPECT_EQ(world.Session.StartSize, kNational);
  struct Lifted {
    const char* Name;
    int Over, Floor, Potential;
  };
  constexpr Lifted kLifted[] = {{"CWA Top", 96, 70, 90},
                                {"CWA Held", 67, 72, 92},
                                {"CWA Low", 4, 0, 30},
                                {"CWA Away", 40, 0, 70},
                                {"Someone Else", 70, 0, 70}};
  for (const Lifted& lifted : kLifted) {
    const Worker& worker = Named(world.Workers(), lifted.Name);
    EXPECT_EQ(worker.Over, lifted.Over) << lifted.Name;
    EXPECT_EQ(worker.OverFloor, lifted.Floor) << lifted.Name;
    EXPECT_EQ(worker.Potential, lifted.Potential) << lifted.Name;
  }
  EXPECT_EQ(NewsOf(world), "Maeve: We have risen to National level.\n");
}

TEST(ChangeImage, LiftsNobodyWhoIsKeptAway) {
  for (const int position : {kDevelopmentDeal + 0, kTrainingCamp + 0, 79, 81, 86}) {
    World world = SmallWorld()
                      .Promotion("CWA", kCult, [](Promotion& p) { p.Image = 99; })
                      .Worker("Kept Away", kJobber, 40)
                      .Worker("At Hand", kManager, 97)
                      .Game("CWA");
    Named(world.Workers(), "Kept Away").Position = position;  // 79 is no place, yet away
    ScriptDraws(world, {{5, 5}});
    ChangeImage(world, world.Player(), 1, true);
    EXPECT_EQ(Named(world.Workers(), "Kept Away").Over, 40) << position;
    EXPECT_EQ(Named(world.Workers(), "At Hand").Over, 100);
    EXPECT_EQ(Named(world.Workers(), "At Hand").OverFloor, 80);
    EXPECT_EQ(Named(world.Workers(), "At Hand").Potential, 100);
  }
}

TEST(ChangeImage, GivesEachOverItsFloor) {
  constexpr int kFloors[][2] = {{49, 0},  {50, 30}, {59, 30}, {60, 40}, {69, 40}, {70, 50},
                                {79, 50}, {80, 60}, {89, 60}, {90, 70}, {98, 70}, {99, 80}};
  for (const auto& [over, floor] : kFloors) {
    World world = SmallWorld()
                      .Promotion("CWA", kCult, [](Promotion& p) { p.Image = 99; })
                      .Worker("Bram Okafor", kMidcard, over)
                      .Game("CWA");
    ScriptDraws(world, {1});
    ChangeImage(world, world.Player(), 1, true);
    EXPECT_EQ(world.Workers()[1].OverFloor, floor) << over + 1;
  }
}

TEST(ChangeImage, TellsOfARisingRival) {
  World world = TwoPromotions(kRegional, 99).Game("CWA");
  ScriptDraws(world, {1, 1, 1});
  ChangeImage(world, Named(world.Promotions(), "NEW"), 1, true);
  EXPECT_EQ(NewsOf(world), "NEW News: NEW have risen to Cult level.\n");
  EXPECT_EQ(world.Session.StartSize, kRegional);
}

TEST(ChangeImage, LetsRivalsSpendByTheirStanding) {
  struct Case {
    int Size;
    int Advertising[4];  // at the image's quarters, from the top
    int Merchandising, Production, TicketPrice;
  };
  constexpr Case kCases[] = {
      {kGlobal, {100, 95, 90, 85}, 100, 80, 60}, {kNational, {80, 75, 70, 65}, 80, 60, 40},
      {kCult, {60, 55, 50, 45}, 60, 40, 30},     {kRegional, {40, 35, 30, 25}, 40, 20, 20},
      {kSmall, {20, 15, 10, 5}, 20, 10, 10},     {kBackyard, {0, 0, 0, 0}, 0, 5, 5}};
  constexpr int kEdges[4][2] = {{75, 99}, {50, 74}, {25, 49}, {1, 24}};
  for (const Case& c : kCases)
    for (int quarter = 0; quarter < 4; ++quarter)
      for (const int image : kEdges[quarter]) {
        World world = TwoPromotions(c.Size, image).Game("CWA");
        Promotion& rival = Named(world.Promotions(), "NEW");
        ChangeImage(world, rival, 0, false);
        EXPECT_EQ(rival.Advertising, c.Advertising[quarter]) << c.Size << " at " << image;
        EXPECT_EQ(rival.Merchandising, c.Merchandising) << c.Size;
        EXPECT_EQ(rival.Production, c.Production) << c.Size;
        EXPECT_EQ(rival.TicketPrice, c.TicketPrice) << c.Size;
      }
}

TEST(ChangeImage, SetsTheTypeOfEveryEventOfThePromotion) {
  struct Case {
    int Size, Image, Type;
  };
  constexpr Case kCases[] = {{kGlobal, 5, 1},    {kGlobal, 95, 1},  {kNational, 61, 1},
                             {kNational, 60, 2}, {kCult, 61, 2},    {kCult, 60, 3},
                             {kRegional, 99, 3}, {kRegional, 5, 3}, {kSmall, 99, 4},
                             {kBackyard, 50, 4}};
  for (const Case& c : kCases)
    for (const char* initials : {"CWA", "NEW"}) {
      World world = TwoPromotions(c.Size, c.Image).Game("CWA");
      for (Event& event : world.Events()) event.Type = 4;
      Promotion& promotion = Named(world.Promotions(), initials);
      ChangeImage(world, promotion, 0, true);
      for (const Event& event : world.Events())
        EXPECT_EQ(event.Type, event.Owner == promotion.Uid ? c.Type : 4) << c.Size << c.Image;
    }
}

}  // namespace
}  // namespace grapplemont::test
