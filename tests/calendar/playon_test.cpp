#include "calendar/playon.h"

#include <gtest/gtest.h>

#include "rivals/founding.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

SmallWorld Ended() {
  SmallWorld small;
  small.Promotion("CWA", kRegional)
      .Owner("Ruth Vane")
      .Crew(6)
      .Promotion("BIG", kCult)
      .Promotion("LOW", kSmall)
      .Owner("Tom Rival")
      .Game("CWA", kGameStart, [](GameInfo& g) {
        g.EndCode = kEndBankrupt;
        g.PlayerName = "Sam Archer";
        g.Reputation = 30;
      });
  return small;
}

TEST(PlayOn, AnotherChairKeepsThePastAndTheFormerJob) {
  World world = Ended().Mail("Ruth Vane", "You are fired.");
  OwnerWish& wish = world.Wishes().Append(OwnerWish{});
  wish.Promotion = world.PlayerUid();
  wish.Kind = kWishEvents;
  wish.From = wish.Until = kGameStart + std::chrono::days{300};
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  ASSERT_EQ(play.Desk.TopName(), "frmTheEnd");
  play.Desk.Click("cmdplayon");
  EXPECT_EQ(play.Desk.FirstColumn("lstchairs"), (std::vector<std::string>{"LOW Wrestling"}))
      << "nothing bigger than what was left";
  play.Desk.ExpectAsk("Play on?", "Take the chair of LOW Wrestling?", true);
  play.Desk.Click("cmdtake");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_TRUE(play.Desk.Enabled("cmdnext"));
  EXPECT_EQ(play.Desk.Text("cmdtile(4)"), "Mail") << "what is left was written to another chair";
  EXPECT_EQ(play.World().Wishes()[1].State, kWishDropped);
  play.Reopen();
  const GameInfo& game = play.World().Game();
  EXPECT_EQ(game.EndCode, kGoesOn);
  EXPECT_EQ(play.World().Player().Initials, "LOW");
  EXPECT_EQ(game.Jobs[0].Promotion, "LOW Wrestling");
  EXPECT_EQ(game.Jobs[1].EndSize, kRegional);
  EXPECT_EQ(game.Reputation, 30);
}

TEST(PlayOn, ANewNameFoundsItsOwnPromotionAndBeginsAfresh) {
  GameOnWorld play(Ended());
  play.Desk.Open("frmPlayOn");
  EXPECT_FALSE(play.Desk.Enabled("cmdfound"));
  play.Desk.Type("txtname", "Ada Bell");
  play.Desk.Type("txtpromo", "Attic Wrestling");
  play.Desk.Type("txtinitials", "CWA");
  EXPECT_EQ(play.Desk.Tip("cmdfound"),
            "There is a promotion of that name, or with those initials.");
  play.Desk.Type("txtinitials", "ATW");
  play.Desk.ExpectAsk("Play on?", "Found Attic Wrestling?", true);
  play.Desk.Click("cmdfound");
  const World& world = play.World();
  const Promotion& own = world.Player();
  EXPECT_EQ(own.Name, "Attic Wrestling");
  EXPECT_EQ(own.Size, kBackyard);
  EXPECT_EQ(own.Money, kOwnCapital);
  EXPECT_EQ(world.Game().PlayerName, "Ada Bell");
  EXPECT_EQ(world.Game().Jobs[1].Promotion, "None");
  EXPECT_EQ(world.Game().Reputation, 80);
  EXPECT_EQ(Named(world.Promotions(), "CWA").Uid != own.Uid, true);
  play.Desk.Open("frmPlayOn");
  EXPECT_FALSE(play.Desk.Enabled("cmdtake")) << "the career goes on";
}

}  // namespace
}  // namespace grapplemont::test
