#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "desktop/player.h"
#include "program/screens.h"
#include "records/world.h"
#include "support/checkout.h"
#include "support/scratchfolder.h"
#include "support/smallworld.h"
#include "ui/game.h"

// From the title to the next day and back again, with nothing but mouse and keys.

namespace grapplemont::test {
namespace {

namespace fs = std::filesystem;

World TwoPromotions() {
  return SmallWorld()
      .Network("Channel Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Crew(6)
      .Show("Friday Fire", "Friday", "Channel Nine")
      .Promotion("NEW", kSmall)
      .Owner("Otto Grim")
      .Crew(4)
      .Build();
}

void WriteHome(const std::string& home) {
  fs::create_directories(home + "/data");
  for (const char* file : {"belt.dat", "event.dat", "network.dat", "promos.dat", "sponsor.dat",
                           "stables.dat", "staff.dat", "teams.dat", "tv.dat", "wrestler.dat"})
    std::ofstream(home + "/data/" + file, std::ios::binary);
  for (const auto& [name, bytes] : FilesOf(TwoPromotions()))
    std::ofstream(home + "/data/" + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  fs::create_directory_symlink(Checkout("/gfx"), home + "/gfx");
}

class FromTitleToNextDay : public testing::Test {
 protected:
  FromTitleToNextDay() {
    WriteHome(Home);
    RegisterScreens(Game);
    Play.Desk.Event([&] { Play.Desk.Open("frmTitleScreen"); });
    Play.Window.Sync();
  }
  ~FromTitleToNextDay() override {
    EXPECT_TRUE(Play.EveryBoxCame());
    Game.CloseSlot();
    Play.Desk.CloseAll();
  }
  std::string Top() const { return Play.Desk.Top() ? Play.Desk.Top()->Name() : ""; }
  std::string TextIn(const char* name) const {
    const ui::Control* control = Play.Desk.Top()->Find(name);
    return control ? control->Text.Get() : "nothing";
  }

  ScratchFolder Scratch;
  std::string Home = Scratch / "home";
  std::unique_ptr<Disk> Files = RealDisk(Syncs::None);
  Player Play;
  grapplemont::Game Game{
      Play.Desk, *Files, {Home, [] { return Day{std::chrono::year{2026} / 3 / 17}; }, 11}};
};

TEST_F(FromTitleToNextDay, GoesByMouseAndKeys) {
  ASSERT_EQ(Top(), "frmTitleScreen");
  Play.Click("imgtitle");
  ASSERT_EQ(Top(), "frmDisclaimer");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Top(), "frmGameMenu");
  Play.Click("cmdnewgame");
  ASSERT_EQ(Top(), "frmNewGame");
  EXPECT_EQ(Play.FocusName(), "txtname");
  Play.Type("Pat Lee");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Top(), "frmPickSaveSlot");

  Play.AtNextBox([&] {
    EXPECT_EQ(Play.TextOf("boxtitle"), "User Entry");
    Play.Type("First");
    Play.AtNextBox([&] {
      EXPECT_EQ(Play.TextOf("boxtitle"), "Database creation");
      Play.Key(Qt::Key_Return);
    });
    Play.Click("boxok");
  });
  Play.Click("cmdload1");
  ASSERT_EQ(Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Wednesday, 01 April 2026");

  Play.Click("cmdnext");
  EXPECT_EQ(TextIn("txtdate"), "Thursday, 02 April 2026");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(TextIn("txtdate"), "Friday, 03 April 2026");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Top(), "frmBooking") << "Friday is a day of television";

  Play.AtNextBox([&] { Play.Click("boxyes"); });
  Play.Click("cmdcancel");
  ASSERT_EQ(Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Saturday, 04 April 2026");

  Play.Click("cmdnews");
  EXPECT_EQ(Top(), "frmNews");
  Play.Click("cmdnotepad");
  EXPECT_EQ(Top(), "frmNotepad");
  Play.Key(Qt::Key_Escape);
  ASSERT_EQ(Top(), "frmMainScreen");

  Play.AtNextBox([&] { Play.Key(Qt::Key_Return); });
  Play.Click("cmdquit");
  ASSERT_EQ(Top(), "frmGameMenu");
  Play.Click("cmdloadgame");
  EXPECT_EQ(TextIn("cmdload1"), "First");
  Play.Click("cmdload1");
  ASSERT_EQ(Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Saturday, 04 April 2026");
}

}  // namespace
}  // namespace grapplemont::test
