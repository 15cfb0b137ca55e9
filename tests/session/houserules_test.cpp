#include "records/houserules.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "booking/sheet.h"
#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "calendar/image.h"
#include "calendar/wishes.h"
#include "records/store/commandlog.h"
#include "records/store/slotcare.h"
#include "roster/signing.h"
#include "session/newgame.h"
#include "session/slots.h"
#include "support/gameonworld.h"
#include "support/homefolder.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

HouseRules Only(HouseRule rule) {
  HouseRules rules{};
  rules.On[static_cast<std::size_t>(rule)] = true;
  return rules;
}
void SetRule(World& world, HouseRule rule) {
  world.Of<HouseRules>().Rewrite({Only(rule)});
}

TEST(HouseRules, AreOffChosenAtNewGameAndShownOnTheCard) {
  HomeFolder home(SmallWorld().Promotion("CWA", kCult).Owner("Ruth Vane").Crew(4));
  home.StartNewGame();
  EXPECT_EQ(home.Play.World().Of<HouseRules>().Count(), 0);
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Desk.Click("cmdnewgame");
  home.Desk.Type("txtname", "Pat Lee");
  home.Desk.Check("chkhouse(6)");
  home.Desk.Check("chkrecorded");
  home.Desk.Click("cmdbegin");
  home.Desk.ExpectPrompt("User Entry", "Save Game Name:", "Strict");
  home.Desk.ExpectSay("Database creation", kAnyText);
  home.Desk.Click("cmdload2");
  EXPECT_TRUE(Holds(home.Play.World(), HouseRule::HarderBoards));
  EXPECT_FALSE(Holds(home.Play.World(), HouseRule::OneTalk));
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Desk.Click("cmdloadgame");
  EXPECT_EQ(home.Desk.Text("lblhouse2"), "House rules: harder boards, recorded");
  EXPECT_EQ(home.Desk.Text("lblhouse1"), "House rules: recorded") << "begun with a seed";
  // The record goes along only where the player says so.
  home.Desk.IsEasy = true;
  Disk& disk = home.Play.Disk();
  for (const int slot : {2, 1}) {
    home.Desk.ExpectPrompt("Export", kAnyText, "file" + std::to_string(slot));
    home.Desk.Click("cmdexport" + std::to_string(slot));
    const std::string file = home.Path("file" + std::to_string(slot));
    const auto files = UnpackSlot(ReadStart(disk, file, MostPackedBytes()), file);
    EXPECT_EQ(std::ranges::count(files, kCommandsName, &NewFile::Name), 1) << slot;
    const bool isAsked =
        home.Desk.Boxes().back().Text.find("every text that you typed") != std::string::npos;
    EXPECT_TRUE(isAsked) << slot;
  }
  const std::string file = home.Path("bare");
  ExportSlot(disk, home.Play.SlotFolder(2), file, {});
  const auto bare = UnpackSlot(ReadStart(disk, file, MostPackedBytes()), file);
  EXPECT_EQ(std::ranges::count(bare, kCommandsName, &NewFile::Name), 0);
  EXPECT_EQ(std::ranges::count(bare, kBeginningName, &NewFile::Name), 0);
}

TEST(HouseRules, TheEconomyCyclesFromSlumpToBoom) {
  World world = SmallWorld().Promotion("CWA").Game("CWA");
  SetRule(world, HouseRule::EconomyCycles);
  ScriptDraws(world, std::initializer_list<ScriptedDraw>{});
  world.Game().Economy = 50;
  int least = 100, most = 0, last = 50;
  for (int week = 0; week < 400; ++week) {
    world.Game().Today = world.Today() + std::chrono::days{7};
    EconomyDrift(world);
    const int now = world.Game().Economy;
    EXPECT_LE(std::abs(now - last), 3);
    last = now;
    least = std::min(least, now);
    most = std::max(most, now);
  }
  EXPECT_LE(least, 7);
  EXPECT_GE(most, 93);
}

TEST(HouseRules, HomegrownAndWomenOnlyCloseTheTalks) {
  World world = SmallWorld()
                    .Promotion("CWA", kGlobal)
                    .Promotion("NEW", kSmall)
                    .Worker("Taken", [](Worker& w) { w.Age = 20; })
                    .OnTheMarket()
                    .Worker("Young", [](Worker& w) { w.Age = 23; })
                    .Worker("Old", [](Worker& w) { w.Age = 24; })
                    .Worker("Woman", [](Worker& w) { w.Gender = false; })
                    .Game("CWA");
  const auto why = [&](const char* name) {
    return WhyNoSigning(world, Named(world.Workers(), name));
  };
  EXPECT_EQ(why("Old"), "");
  SetRule(world, HouseRule::Homegrown);
  EXPECT_EQ(why("Young"), "");
  EXPECT_EQ(why("Old"), "A rule of the house: nobody above 23 is signed.");
  EXPECT_EQ(why("Taken"), "A rule of the house: nobody is signed away from others.");
  SetRule(world, HouseRule::WomenOnly);
  EXPECT_EQ(why("Woman"), "");
  EXPECT_EQ(why("Young"), "A rule of the house: no man is signed.");
}

TEST(HouseRules, WomenTakeTheMensPlacesBeforeTheGameBegins) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult)
                    .Owner("Ruth Vane")
                    .Crew(3)
                    .Worker("Corner", kManager, 50)
                    .OnTheMarket()
                    .Worker("Ada", kMidcard, 79, [](Worker& w) { w.Gender = false; });
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = Named(world.Promotions(), "CWA").Uid;
  choice.Start = kGameStart;
  choice.House = Only(HouseRule::WomenOnly);
  NewGame(world, choice);
  for (const Worker& worker : world.Workers())
    if (worker.Employer == choice.PromotionUid && worker.Gender) {
      EXPECT_EQ(worker.Name.Str(), "Corner");
    }
  EXPECT_EQ(Named(world.Workers(), "Ada").Employer, choice.PromotionUid);
}

TEST(HouseRules, ARandomWorldKeepsItsOrderAndNoName) {
  const auto begin = [](HouseRules house) {
    World world = SmallWorld()
                      .Network("Nine")
                      .Promotion("CWA", kCult)
                      .Owner("Ruth Vane")
                      .Crew(6)
                      .Title("Harbor Crown", "CWA Hand 1")
                      .Show("Sunday Slam", "Sunday", "Nine")
                      .Promotion("NEW", kSmall)
                      .Crew(3);
    NewGameChoice choice;
    choice.PlayerName = "Pat Lee";
    choice.PromotionUid = Named(world.Promotions(), "CWA").Uid;
    choice.Start = kGameStart;
    choice.House = house;
    EXPECT_TRUE(NewGame(world, choice).empty()) << "a world in order";
    return world;
  };
  const World plain = begin({}), random = begin(Only(HouseRule::RandomWorld));
  ASSERT_TRUE(Holds(random, HouseRule::RandomWorld));
  for (int number = 1; number <= 9; ++number) {
    const Worker &before = plain.Workers()[number], &after = random.Workers()[number];
    EXPECT_NE(before.Name.Str(), after.Name.Str());
    EXPECT_EQ(before.Over, after.Over);
    EXPECT_EQ(before.Employer, after.Employer);
  }
  const std::string initials = random.Player().Initials.Str();
  EXPECT_NE(initials, "CWA");
  EXPECT_EQ(random.Titles()[1].Name.Str(), initials + " Crown");
  EXPECT_EQ(random.Shows()[1].Name.Str(), initials + " Sunday");
  EXPECT_EQ(random.Game().Jobs[0].Promotion.Str(), random.Player().Name.Str());
}

TEST(HouseRules, OneTalkAShowKeepsTheSheetShutAndNoAutoBookerTakesTheButton) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA", kCult)
                    .Crew(6)
                    .Show("Sunday Slam", "Sunday", "Nine")
                    .Game("CWA");
  Segment talk{};
  talk.Kind = kInterview;
  talk.Style = 1;
  talk.Worker[0] = int(Named(world.Workers(), "CWA Hand 1").Uid);
  world.Segments().Rewrite({talk, talk});
  EXPECT_EQ(WhyNotInThisHouse(world), "");
  EXPECT_EQ(WhyNoAutoBooker(world), "");
  SetRule(world, HouseRule::OneTalk);
  EXPECT_EQ(WhyNotInThisHouse(world), "A rule of the house: CWA Hand 1 talks more than once.");
  EXPECT_FALSE(MayStart(world, false));
  SetRule(world, HouseRule::NoAutoBooker);
  EXPECT_EQ(WhyNoAutoBooker(world), "A rule of the house: every row is booked by hand.");
}

TEST(HouseRules, OneTalkAShowBindsTheAutoBookerToo) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA", kCult)
                    .Crew(12)
                    .Worker("Corner", kManager, 60, [](Worker& w) { w.Speaks = true; })
                    .Show("Sunday Slam", "Sunday", "Nine")
                    .Game("CWA", std::chrono::year{2026} / 3 / 1);
  const int corner = Named(world.Workers(), "Corner").Uid;
  for (Worker& worker : world.Workers()) {
    worker.Speaks = true;
    if (worker.Uid != corner) worker.Manager = corner;
  }
  const auto books = [&](int seed) {
    world.SetChance(std::make_unique<SeededDraws>(seed));
    EXPECT_TRUE(BookAutoShow(world, false)) << seed;
    const World before = CopyOf(world);
    SetRule(world, HouseRule::OneTalk);
    const bool isKept = WhyNotInThisHouse(world).empty();
    world = CopyOf(before);
    return isKept;
  };
  EXPECT_FALSE(books(1)) << "one manager talks for two";
  SetRule(world, HouseRule::OneTalk);
  for (int seed = 1; seed <= 20; ++seed) EXPECT_TRUE(books(seed)) << seed;
}

TEST(GodMode, ChangesTheRunningGameAndMarksItForGood) {
  World world = SmallWorld().Promotion("CWA", kCult).Crew(3).Game("CWA");
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmOptions");
  EXPECT_FALSE(play.Desk.Visible("cmdgod"));
  SetRule(play.World(), HouseRule::GodMode);
  play.Play.Commit();
  play.Desk.Click("cmddone");
  play.Desk.Open("frmOptions");
  play.Desk.Click("cmdgod");
  play.Desk.Pick("lstrecords", 2);
  play.Desk.Pick("lstfields", "Over");
  play.Desk.Type("txtvalue", "101");
  play.Desk.ExpectSay("Error!", kAnyText);
  play.Desk.Click("cmdset");
  EXPECT_FALSE(play.World().Of<HouseRules>()[1].Edited);
  play.Desk.Type("txtvalue", "91");
  play.Desk.Click("cmdset");
  EXPECT_EQ(play.World().Workers()[2].Over, 91);
  play.Desk.Pick("lstfields", "Uid");
  EXPECT_FALSE(play.Desk.Enabled("cmdset"));
  EXPECT_EQ(HouseRulesText(play.World().Of<HouseRules>()[1]), "god mode, changed by hand");
}

TEST(HouseRules, HarderBoardsForgiveNeitherAFallNorAYearOfMissedWishes) {
  World world = SmallWorld().Promotion("CWA", kCult).Owner("Ruth Vane").Game("CWA");
  SetRule(world, HouseRule::HarderBoards);
  ScriptDraws(world, {{3, 1}});
  ChangeImage(world, world.Player(), world.Player().Image, false);
  EXPECT_EQ(world.Game().EndCode, kEndBoard) << "whatever the board has drawn";
  world.Game().EndCode = 0;
  OwnerWish wish{};
  wish.Promotion = world.PlayerUid();
  wish.From = kGameStart;
  wish.Until = kGameStart;
  wish.Kind = kWishSponsors;
  wish.Target = 4;
  world.Wishes().Append(wish);
  OwnersWishes(world);
  EXPECT_EQ(world.Game().EndCode, kEndBoard);
}

}  // namespace
}  // namespace grapplemont::test
