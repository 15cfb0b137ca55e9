#include "support/smallworld.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"

namespace grapplemont::test {

TEST(SmallWorld, ToldInAFewLinesStandsAsTold) {
  World world = SmallWorld()
                    .Network("Channel Nine")
                    .Promotion("CWA", kCult)
                    .Owner("Ruth Vane")
                    .Staff("Vic Tolliver", kAnnouncer, 70)
                    .Worker("Bram Okafor", kMainEvent, 88)
                    .Worker("Ilya Marsh", [](Worker& w) { w.Disposition = "H"; })
                    .Team("Law and Order", "Bram Okafor", "Ilya Marsh")
                    .Stable("The Bench", {"Bram Okafor", "Ilya Marsh"})
                    .Title("CWA Crown", "Bram Okafor")
                    .Title("CWA Pairs", "Bram Okafor", "Ilya Marsh")
                    .Show("Friday Fire", "Friday", "Channel Nine")
                    .Sponsor("Colossal Cola")
                    .Event(3)
                    .Promotion("NEW", kSmall)
                    .Crew(12)
                    .OnTheMarket()
                    .Worker("Cal Drift")
                    .Game("CWA")
                    .Feud("Bram Okafor", "Ilya Marsh")
                    .Mail("Maeve", "Good morning.");
  EXPECT_TRUE(CheckWorld(world).empty());
  EXPECT_TRUE(world.Changes().empty());
  EXPECT_EQ(15, world.Workers().Count());
  EXPECT_EQ("CWA", world.Player().Initials.View());
  EXPECT_EQ(world.PlayerUid(), Named(world.Workers(), "Bram Okafor").Employer);
  EXPECT_EQ(0, Named(world.Workers(), "Cal Drift").Employer);
  EXPECT_EQ("Law and Order", Named(world.Titles(), "CWA Pairs").Reigns[0].Holder.View());
  EXPECT_EQ(8, world.Feuds().Count());
  EXPECT_EQ("01/03/26", world.News()[1].Date.View());
  ExpectSame(CopyOf(world), world);
}

}  // namespace grapplemont::test
