#include <gtest/gtest.h>

#include "records/store/slot.h"
#include "records/world.h"
#include "session/home.h"
#include "support/homefolder.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

World TwoPromotions() {
  return SmallWorld()
      .Network("Channel Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Crew(6)
      .Worker("Mana Ger", kManager, 40)
      .Worker("Commis Sioner", kNonWrestler, 50)
      .Worker("Dev Hand", kDevelopmentDeal, 20)
      .Worker("Camp Hand", kTrainingCamp, 5)
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Friday Fire", "Friday", "Channel Nine")
      .Promotion("NEW", kSmall)
      .Crew(4)
      .Build();
}

/// A game in slot 1 that is left with what `change` has done to its world; the slots are on screen.
void LeaveGame(HomeFolder& home, void (*change)(World&)) {
  home.StartNewGame();
  change(home.Play.World());
  home.Play.Commit();
  home.Play.CloseSlot();
  home.Desk.CloseAll();
  home.Desk.Open("frmLoadGame");
}

TEST(TitleScreen, EndsTheProgramWithoutItsPictures) {
  for (const char* picture : {"gfx/vxm_back.jpg", "gfx/vxm_title.jpg"}) {
    HomeFolder home(TwoPromotions());
    home.Remove(picture);
    home.Desk.ExpectSay("Error Loading",
                        "Sorry, some graphics files seem to be missing, and so the game cannot "
                        "load.\nPlease see the help file that comes with this game for details on "
                        "what files should be placed in which directory.");
    home.Desk.Open("frmTitleScreen");
    EXPECT_TRUE(home.Desk.Empty());
  }
}

TEST(Disclaimer, TellsOfEveryFileAndStopsWhereOneIsMissing) {
  HomeFolder home(TwoPromotions());
  home.Desk.Open("frmTitleScreen");
  home.Desk.Click("imgtitle");
  EXPECT_EQ(home.Desk.Screens().size(), 1u);
  EXPECT_EQ(home.Desk.Text("lblwrestler"), "Wrestler.dat data file found!");
  EXPECT_FALSE(home.Desk.Visible("lblverdict"));
  for (const char* file : {"data/belt.dat", "data/tv.dat", "data/wrestler.dat"}) home.Remove(file);
  const std::string verdict =
      "The game cannot go on without belt.dat, tv.dat, wrestler.dat. Put what is missing into the "
      "folder data, then start again.";
  home.Desk.ExpectSay("Error!", verdict);
  home.Desk.Click("imgback");
  EXPECT_EQ(home.Desk.Text("lblbelt"), "ERROR : belt.dat data file missing!");
  EXPECT_EQ(home.Desk.Text("lblevent"), "Event.dat data file found!");
  EXPECT_EQ(home.Desk.Text("lblwrestler"), "ERROR : Wrestler.dat data file missing!");
  EXPECT_EQ(home.Desk.Text("lblverdict"), verdict);
  EXPECT_FALSE(home.Desk.Enabled("cmdcontinue"));
  for (const char* file : {"data/belt.dat", "data/tv.dat", "data/wrestler.dat"})
    home.Write(file, "");
  home.Desk.Click("imgback");
  EXPECT_EQ(home.Desk.TopName(), "frmGameMenu");
}

TEST(GameMenu, OpensItsScreensAndAsksBeforeItEnds) {
  HomeFolder home(TwoPromotions());
  home.Desk.Open("frmGameMenu");
  for (const auto& [button, screen] : {std::pair{"cmdnewgame", "frmNewGame"},
                                       {"cmdloadgame", "frmLoadGame"},
                                       {"cmdcredits", "frmCredits"},
                                       {"cmdabout", "frmAbout"}}) {
    home.Desk.Click(button);
    EXPECT_EQ(home.Desk.TopName(), screen);
    home.Desk.Click("cmdback");
  }
  home.Desk.Click("cmdcredits");
  home.Desk.Click("cmdothers");
  EXPECT_EQ(home.Desk.TopName(), "frmCreditsXtra");
  home.Desk.Click("cmdback");
  home.Desk.Click("cmdback");
  for (const bool quits : {false, true}) {
    home.Desk.ExpectAsk("Quit?", "Are you sure you want to quit?", quits);
    home.Desk.Click("cmdquit");
    EXPECT_EQ(home.Desk.Empty(), quits);
  }
}

TEST(GameMenu, GoesOnWithTheGameThatWasPlayedLast) {
  HomeFolder home(TwoPromotions());
  home.Desk.Open("frmGameMenu");
  EXPECT_FALSE(home.Desk.Visible("cmdcontinue"));
  home.StartNewGame();
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Desk.Click("cmdcontinue");
  EXPECT_EQ(home.Play.World().Game().SaveName.View(), "First");
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Remove("s1");
  home.Desk.Click("cmdloadgame");
  home.Desk.Click("cmdback");
  EXPECT_FALSE(home.Desk.Visible("cmdcontinue"));
}

TEST(NewGameScreen, ShowsThePromotionPicked) {
  HomeFolder home(TwoPromotions());
  home.Desk.Open("frmNewGame");
  EXPECT_EQ(home.Desk.Text("lblsize"), "Cult");
  EXPECT_EQ(home.Desk.Text("cmbdifficulty"), "Medium");
  EXPECT_EQ(home.Desk.Text("lblfacts"),
            "The game begins on Wednesday, 01 April 2026, with CWA Wrestling.");
  EXPECT_EQ(home.Desk.Rows("lstshows"),
            (std::vector<std::vector<std::string>>{
                {"Friday Fire", "Channel Nine", "Friday", home.Desk.Rows("lstshows")[0][3]}}));
  EXPECT_EQ(home.Desk.Rows("lstbelts")[0][1], "CWA Hand 1");
  EXPECT_EQ(home.Desk.Rows("lststaff")[0][1], "Owner");
  const auto roster = home.Desk.FirstColumn("lstroster");
  for (const char* name : {"Mana Ger (Manager)", "Commis Sioner (Non-Wrestler)",
                           "Dev Hand (Development)", "Camp Hand (Training Camp)"})
    EXPECT_NE(std::find(roster.begin(), roster.end(), name), roster.end()) << name;
  home.Desk.Pick("cmbPromo", 2);
  EXPECT_EQ(home.Desk.Text("lblsize"), "Small");
  EXPECT_EQ(home.Desk.Selected("lstpromos"), std::vector<int>{2});
  EXPECT_EQ(home.Desk.Rows("lstroster").size(), 4u);
  EXPECT_EQ(home.Desk.Text("lblowner"), "None");
}

TEST(NewGameScreen, SaysHowHardAChairIsAndWhatTheDifficultyChanges) {
  World data = SmallWorld()
                   .Network("Nine")
                   .Promotion("CWA", kSmall, [](Promotion& p) { p.Money = 400, p.Image = 50; })
                   .Owner("Ruth Vane")
                   .Worker("Star", kOpener, 60)
                   .Title("CWA Crown", "Star")
                   .Show("Fire", "Friday", "Nine")
                   .Promotion("NEW", kSmall, [](Promotion& p) { p.Money = 100, p.Image = 19; })
                   .Worker("Hand", kOpener, 52)
                   .Worker("Boss", kManager, 99);
  HomeFolder home(std::move(data));
  home.Desk.Open("frmNewGame");
  const auto rows = home.Desk.Rows("lstpromos");
  EXPECT_EQ(rows[0][4], "60");
  EXPECT_EQ(rows[0][5], "Easy");
  EXPECT_EQ(
      home.Desk.Text("lblstory"),
      "Star holds the CWA Crown and draws the crowd. It has the better people of its size, and "
      "everybody is after them.");
  EXPECT_EQ(home.Desk.Text("lblchanges"),
            "Image before each Event: no change.\nImage before each television show: no change.\n"
            "Interest on a loan: 2%.\nTo buy out a contract of a year: 6 monthly wages.");
  EXPECT_EQ(home.Desk.Text("lblchair"),
            "Easy: good for a first game; it has money, people, a name, television");
  home.Desk.Pick("lstpromos", 2);
  EXPECT_EQ(home.Desk.Text("cmbPromo"), home.Desk.Rows("cmbPromo")[1][0]);
  EXPECT_EQ(home.Desk.Text("lblstory"),
            "Hand draws the crowd. A few empty halls, and the money is gone.");
  EXPECT_EQ(home.Desk.Text("lblchair"),
            "Desperate: little money, a weak roster, a low image, no television");
  home.Desk.Pick("cmbdifficulty", "Easy");
  EXPECT_TRUE(home.Desk.Text("lblchanges")
                  .ends_with("1 monthly wage.\nReports say by how many points Over moves."));
}

TEST(NewGameScreen, SaysWhyNoGameCanBegin) {
  World data = TwoPromotions();
  for (Promotion& promotion : data.Promotions()) promotion.Name = kToBeDeleted;
  HomeFolder home(std::move(data));
  home.Desk.Open("frmNewGame");
  const char* why =
      "The default world has no promotion that can be played. Build it again, or put back its "
      "files.";
  EXPECT_EQ(home.Desk.Text("lblfacts"), why);
  EXPECT_EQ(home.Desk.Tip("cmdbegin"), why);
  EXPECT_FALSE(home.Desk.Enabled("cmdbegin"));
}

TEST(NewGameScreen, WantsAName) {
  HomeFolder home(TwoPromotions());
  home.Desk.Open("frmNewGame");
  for (const auto& [name, why] : {std::pair{"   ", "Please enter your name first."},
                                  {"Pat\tLee", "A name is one line of plain text."}}) {
    home.Desk.Type("txtname", name);
    home.Desk.ExpectSay("Error!", why);
    home.Desk.Click("cmdbegin");
    EXPECT_EQ(home.Desk.TopName(), "frmNewGame");
  }
  home.Desk.Type("txtname", std::string(300, 'x'));
  EXPECT_EQ(home.Desk.Text("txtname"), std::string(25, 'x'));
}

TEST(NewGameScreen, SaysWhichFileOfTheDataIsNoFile) {
  HomeFolder home(TwoPromotions());
  home.Write("data/promos.dat", std::string(309 * 36, 'x'));
  home.Desk.ExpectSay("Error!", kAnyText);
  home.Desk.Event([&] { home.Desk.Open("frmNewGame"); });
  EXPECT_EQ(home.Desk.TopName(), "");
  EXPECT_NE(home.Desk.Boxes().back().Text.find("promos.dat"), std::string::npos);
}

constexpr const char* kLeavings =
    "No game is kept in this slot, but its folder is not empty.\n"
    "What is left of a game that cannot be loaded is deleted: news.dat.\n"
    "What belongs to no game stays in the folder: diary.txt and pictures.\n"
    "Begin the new game here?";

TEST(PickSaveSlot, AsksAboutWhatLiesInAnEmptySlotAndKeepsWhatIsNoGames) {
  HomeFolder home(TwoPromotions());
  home.Write("s1/news.dat", std::string(290, 'x'));
  home.Write("s1/diary.txt", "mine");
  home.Write("s1/pictures/one", "mine too");
  home.Desk.Open("frmNewGame");
  home.Desk.Type("txtname", "Pat Lee");
  home.Desk.Click("cmdbegin");
  EXPECT_EQ(home.Desk.Text("cmdload1"), "<<<Empty Slot>>>");
  EXPECT_EQ(home.Desk.Text("cmdload8"), "<<<Empty Slot>>>");
  home.Desk.ExpectAsk("Are you sure?", kLeavings, false, ui::Default::No);
  home.Desk.Click("cmdload1");
  for (const char* name : {"", "Save\tGame"}) {
    home.Desk.ExpectAsk("Are you sure?", kLeavings, true);
    home.Desk.ExpectPrompt("User Entry", "Save Game Name:", name, "Save Game 1");
    if (*name) home.Desk.ExpectSay("Error!", "A name is one line of plain text.");
    home.Desk.Click("cmdload1");
  }
  EXPECT_EQ(home.Desk.TopName(), "frmPickSaveSlot");
  EXPECT_EQ(RealDisk()->List(home.Path("s1")),
            (std::vector<std::string>{"diary.txt", "news.dat", "pictures"}));

  home.Desk.ExpectAsk("Are you sure?", kLeavings, true);
  home.Desk.ExpectPrompt("User Entry", "Save Game Name:", "First");
  home.Desk.ExpectSay("Database creation", kAnyText);
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Play.World().News().Count(), 1) << "the old mail is gone, the welcome is there";
  EXPECT_EQ(RealDisk()->Look(home.Path("s1/diary.txt")), Disk::Kind::File);
  EXPECT_EQ(RealDisk()->Look(home.Path("s1/pictures/one")), Disk::Kind::File);
}

TEST(PickSaveSlot, MakesAGameThatIsThereAndAsksBeforeItOverwrites) {
  HomeFolder home(TwoPromotions());
  home.StartNewGame();
  EXPECT_EQ(home.Desk.Text("txtdate"), "Wednesday, 01 April 2026");
  EXPECT_EQ(home.Desk.Text("cmdfed"), "CWA");
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Desk.Click("cmdloadgame");
  EXPECT_EQ(home.Desk.Text("cmdload1"), "First");
  EXPECT_EQ(home.Desk.Text("lbldetails1"),
            "( Medium level, started April 2026, current date April 2026)");
  EXPECT_FALSE(home.Desk.Enabled("cmdload2"));
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Desk.Text("txtname"), "Pat Lee");
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.Click("cmdquit");
  home.Desk.Click("cmdnewgame");
  home.Desk.Type("txtname", "Second Player");
  home.Desk.Pick("cmbdifficulty", "Rock Hard");
  home.Desk.Click("cmdbegin");
  const char* question = "Are you sure you want to overwrite this slot?";
  home.Desk.ExpectAsk("Are you sure?", question, false);
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Desk.TopName(), "frmPickSaveSlot");
  home.Desk.ExpectAsk("Are you sure?", question, true);
  home.Desk.ExpectPrompt("User Entry", "Save Game Name:", "Again", "Save Game 1");
  home.Desk.ExpectSay("Database creation",
                      "The database for this game will now be created.\nThis process can take up "
                      "to 10 minutes depending on the speed of your machine.\nDo not press "
                      "ctrl-alt-del while it is happening, as you will corrupt your data.");
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Desk.Text("txtname"), "Second Player");
  EXPECT_EQ(home.Play.World().Game().Difficulty, kRockHard);
}

TEST(LoadGame, TellsOfSlotsThatCannotBePlayed) {
  HomeFolder home(TwoPromotions());
  home.StartNewGame();
  const Bytes info = *ReadWithin(*RealDisk(), home.Path("s1/gameinfo.dat"), sizeof(GameInfo));
  std::string old(reinterpret_cast<const char*>(info.data()), info.size());
  old.replace(429, 11, "Version 1.0");
  home.Write("s2/gameinfo.dat", old);
  home.Write("s3/gameinfo.dat", old.substr(0, 100));
  home.Write("s4/gameinfo.dat/inside", "a folder");
  home.Desk.Open("frmLoadGame");
  EXPECT_EQ(home.Desk.Text("cmdload1"), "First");
  for (const char* slot : {"cmdload2", "cmdload3"})
    EXPECT_EQ(home.Desk.Text(slot), "Save Slot Not In 2.0 Format");
  EXPECT_EQ(home.Desk.Text("cmdload4"), "Slot Cannot Be Read");
  for (const char* slot : {"cmdload2", "cmdload3", "cmdload4", "cmdload5"})
    EXPECT_FALSE(home.Desk.Enabled(slot)) << slot;
}

TEST(LoadGame, SaysWhyASlotIsNotOpened) {
  HomeFolder home(TwoPromotions());
  LeaveGame(home, [](World& world) { world.Promotions().Remove(); });
  const auto expectRefused = [&](const char* why) {
    home.Desk.ExpectSay("Error!", kAnyText);
    home.Desk.Click("cmdload1");
    EXPECT_EQ(home.Desk.TopName(), "frmLoadGame");
    EXPECT_NE(home.Desk.Boxes().back().Text.find(why), std::string::npos);
    EXPECT_FALSE(home.Play.HasWorld());
  };
  expectRefused("PlayerPromotion");
  const auto other = RealDisk();
  const Slot held(*other, home.Path("s1"), KnownFiles());
  expectRefused("another program");
}

TEST(LoadGame, BringsNumbersBackIntoTheirRangesAndRemarksOnFilesThatAreNearlyFull) {
  HomeFolder home(TwoPromotions());
  LeaveGame(home, [](World& world) {
    reinterpret_cast<Long&>(world.Player().Money) = 2147483647;
    reinterpret_cast<Word&>(world.AllStaff()[1].Morale) = -5;
    for (int uid = 2; uid <= 900; ++uid) {
      Network network = world.Networks()[1];
      network.Uid = uid;
      network.Name = "Network " + std::to_string(uid);
      world.Networks().Append(network);
    }
  });
  const std::string nearlyFull =
      "network.dat holds 900 networks; 1000 is the most. Start the next game from a smaller "
      "database.";
  home.Desk.ExpectSay(
      "Loading",
      "Numbers that no game can go on with were brought back into their ranges:\npromos.dat, "
      "record 1 (CWA Wrestling), Money: is 2147483647, outside -1000000000 to 1000000000; made "
      "1000000000\nstaff.dat, record 1 (Ruth Vane), Morale: is -5, outside 0 to 100; made 0\n" +
          nearlyFull);
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Desk.Text("lblmoney"), "$1,000,000,000");
  home.Play.CloseSlot();
  home.Desk.CloseAll();
  home.Desk.Open("frmLoadGame");
  home.Desk.ExpectSay("Loading", nearlyFull);  // the slot itself is mended
  home.Desk.Click("cmdload1");
  EXPECT_EQ(home.Desk.TopName(), "frmMainScreen");
}

TEST(LoadingScreens, ShowTheSetsAndHowToAddOnesOwn) {
  HomeFolder home(TwoPromotions());
  home.Write("gfx/VXM_Set2_01.jpg", "picture");
  home.Write("gfx/VXM_Set2_03.jpg", "picture");
  home.Desk.Open("frmLoadingScreens");
  EXPECT_EQ(home.Desk.Text("cmbset"), "Graphics Set Default");
  home.Desk.Pick("cmbset", "Graphics Set 2");
  EXPECT_EQ(home.Desk.Text("lbltext"),
            "To use this graphics set (maximum 10 graphics per set), please add your "
            "VXM_Set2_01.jpg to VXM_Set2_10.jpg. They must be in order, and there must be at least "
            "1 graphic present.");
  EXPECT_EQ(home.Desk.Text("lblcount"), "1 of 2, VXM_Set2_01.jpg");
  home.Desk.Click("cmdnext");
  EXPECT_EQ(home.Desk.Text("lblcount"), "2 of 2, VXM_Set2_03.jpg");
  home.Desk.Pick("cmbset", "Graphics Set 3");
  EXPECT_FALSE(home.Desk.Enabled("cmdnext"));
}

}  // namespace
}  // namespace grapplemont::test
