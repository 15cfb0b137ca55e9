#include "records/keepannals.h"

#include <gtest/gtest.h>

#include "records/modVar.h"
#include "records/severing.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Named;
using test::SmallWorld;

World TwoHouses() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Worker("Bram Okafor")
      .Worker("Ilya Marsh", [](Worker& w) { w.Gender = false; })
      .Worker("Cal Drift")
      .Team("Mud and Iron", "Bram Okafor", "Cal Drift")
      .Promotion("NEW", kSmall)
      .Owner("Tess Hale")
      .Worker("Eli Fenn")
      .Game("CWA");
}

const Annal& Last(const World& world) {
  return world.Annals()[world.Annals().Count()];
}

TEST(Annals, BeginWithTheirVersionAndKeepWhatIsWorthIt) {
  World world = TwoHouses();
  const Promotion& rival = Named(world.Promotions(), "NEW");
  NoteDeed(world, kDeedInjured, &rival, Named(world.Workers(), "Eli Fenn"), "Leg", 5);
  NoteDeed(world, kDeedRenewed, &rival, "Friday Fire", "Channel Nine", 26);
  EXPECT_EQ(world.Annals().Count(), 0) << "soon forgotten";

  NoteDeed(world, kDeedInjured, &rival, Named(world.Workers(), "Eli Fenn"), "Leg", 6);
  ASSERT_EQ(world.Annals().Count(), 2);
  EXPECT_EQ(world.Annals()[1].Kind, kAnnalsBegin);
  EXPECT_EQ(world.Annals()[1].Number, kAnnalsVersion);
  EXPECT_EQ(Day(Last(world).On), world.Today());
  EXPECT_EQ(Last(world).Who[0], Named(world.Workers(), "Eli Fenn").Uid);
  EXPECT_EQ(Last(world).What, "Leg");
  EXPECT_EQ(Last(world).House, "NEW");

  Named(world.Workers(), "Eli Fenn").Over = 20;
  const int before = world.Annals().Count();
  NoteDeed(world, kDeedFired, &rival, Named(world.Workers(), "Eli Fenn"));
  EXPECT_EQ(world.Annals().Count(), before) << "the public does not know them";
  NoteDeed(world, kDeedFired, &world.Player(), Named(world.Workers(), "Eli Fenn"));
  EXPECT_EQ(world.Annals().Count(), before + 1) << "the player does";
  NoteDeed(world, kDeedStolen, &rival, Named(world.Workers(), "Ilya Marsh"), "CWA");
  EXPECT_EQ(Last(world).Sex, kWoman);
  EXPECT_EQ(Last(world).Other, "CWA");
  NoteDeed(world, kDeedOwner, &rival, "Ruth Vane");
  EXPECT_EQ(Last(world).Who[0], 0) << "owners are staff";
  EXPECT_NE(Last(world).Sex, kNobodysSex);
  NoteDeed(world, kDeedRisen, &rival, "New Era Wrestling, Long As Names Can Be.", {}, kRegional);
  EXPECT_EQ(Last(world).What, "New Era Wrestling, Long As Names Can Be.");
  EXPECT_EQ(Last(world).Name, "");
  EXPECT_EQ(Last(world).Number, kRegional);
}

TEST(Annals, KeepTheNamesAloneOfWhoHasLeftTheWorld) {
  World world = TwoHouses();
  const Worker& bram = Named(world.Workers(), "Bram Okafor");
  const int bramUid = bram.Uid, cal = Named(world.Workers(), "Cal Drift").Uid;
  KeepGroup(world, kAnnalTeamed, "Mud and Iron", bramUid, cal);
  EXPECT_EQ(Last(world).Sex, kSeveral);
  EXPECT_EQ(Last(world).House, "CWA");
  const std::string called = Last(world).Name.Str();
  ForgetWorker(world, bram);
  EXPECT_EQ(Last(world).Who[0], 0);
  EXPECT_EQ(Last(world).Who[1], cal);
  EXPECT_EQ(Last(world).Name, called);
}

TEST(Annals, TellHowAFeudEndedFromTheSideOfWhoWon) {
  World world = TwoHouses();
  Feud feud;
  feud.Singles = true;
  feud.Worker1 = Named(world.Workers(), "Bram Okafor").Uid;
  feud.Worker2 = Named(world.Workers(), "Ilya Marsh").Uid;
  feud.Clean1 = 2;
  feud.Sneak2 = 3;
  feud.Started = world.Today() - std::chrono::days(40);
  KeepFeud(world, kAnnalFeudOver, feud, true);
  EXPECT_EQ(Last(world).Name, "Ilya Marsh");
  EXPECT_EQ(Last(world).Other, "Bram Okafor");
  EXPECT_EQ(std::tuple(int(Last(world).Number), int(Last(world).Against), int(Last(world).Days)),
            std::tuple(3, 2, 40));
}

TEST(Annals, KeepTheirFirstRecordWhenTheOldestMakeRoom) {
  World world = TwoHouses();
  const int limit = world.Annals().Layout()->Limit;
  Annal event = NewAnnal(world, kAnnalTitle, &world.Player());
  for (int i = 1; i <= limit; ++i) {
    event.Number = i % 1000;
    Keep(world, event);
  }
  EXPECT_EQ(world.Annals().Count(), limit - 999);
  EXPECT_EQ(world.Annals()[1].Kind, kAnnalsBegin);
  EXPECT_EQ(world.Annals()[2].Number, 1) << "the thousand before it are dropped";
}

}  // namespace
}  // namespace grapplemont
