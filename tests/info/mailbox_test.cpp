#include "info/mailbox.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

SmallWorld FourMails() {
  SmallWorld small;
  small.Promotion("CWA").Game("CWA");
  small.Mail("Maeve", "One.").Mail("Bram", "Two.").Mail("Maeve", "Three.").Mail("Zed", "Four.");
  return small;
}

TEST(Mailbox, ListsTheNewestFirstAndBySender) {
  World world = FourMails();
  EXPECT_EQ(MailsNewestFirst(world), (std::vector{4, 3, 2, 1}));
  EXPECT_EQ(MailsNewestFirst(world, "Maeve"), (std::vector{3, 1}));
  EXPECT_TRUE(MailsNewestFirst(world, "maeve").empty());
  EXPECT_EQ(MailSenders(world), (std::vector<std::string>{"Bram", "Maeve", "Zed"}));
}

TEST(Mailbox, DeletesOneOrAll) {
  World world = FourMails();
  DeleteMail(world, 2);
  World expected = SmallWorld()
                       .Promotion("CWA")
                       .Game("CWA")
                       .Mail("Maeve", "One.")
                       .Mail("Maeve", "Three.")
                       .Mail("Zed", "Four.");
  ExpectSame(world, expected);
  EmptyMailbox(world);
  EXPECT_EQ(world.News().Count(), 0);
  EXPECT_TRUE(MailsNewestFirst(world).empty());
}

TEST(MailOptions, AreFourteenDifferentWords) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  const World before = CopyOf(world);
  for (const MailOption& option : kMailOptionTable) {
    SetMailOption(world.Game(), option, kMailNever);
    int never = 0;
    for (const MailOption& other : kMailOptionTable)
      never += world.Game().*other.Choice == kMailNever ? 1 : 0;
    EXPECT_EQ(never, 1) << option.Control;
    world.GameInfos()[1] = before.GameInfos()[1];
  }
}

TEST(MailOptions, NeverKeepRivalsOnlyForThePlayersOwnPeople) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  for (const int choice : {kMailNever, kMailRivals, kMailAlways}) {
    SetAllMailOptions(world.Game(), choice);
    for (const MailOption& option : kMailOptionTable)
      EXPECT_EQ(world.Game().*option.Choice,
                option.TwoWay && choice == kMailRivals ? int(kMailAlways) : choice)
          << option.Control;
    EXPECT_EQ(world.Game().MailDev, choice == kMailNever ? 2 : 0);
    EXPECT_EQ(world.Game().MailTrain, choice == kMailNever ? 2 : 0);
  }
}

}  // namespace
}  // namespace grapplemont::test
