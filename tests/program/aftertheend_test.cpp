#include <gtest/gtest.h>

#include "program/richworld.h"
#include "program/screens.h"
#include "records/store/slot.h"
#include "support/cutdisk.h"
#include "ui/acts.h"
#include "ui/game.h"

// Once the career has ended the world is a book: whatever the player presses, it stays as it was.

namespace grapplemont::test {
namespace {

/// A player who says yes to everything.
class EagerDesk : public ui::Desk {
 public:
  void Say(const std::string&, const std::string& text) override { Told.push_back(text); }
  bool Ask(const std::string&, const std::string&, ui::Default) override { return true; }
  std::string Prompt(const std::string&, const std::string&, const std::string&) override {
    return "A New Name";
  }
  std::vector<std::string> Told;
};

/// The program with an ended career in slot 1.
struct Over {
  Over() : Play(Desk, Disk, {"h", [] { return kGameStart; }, 5}) {
    Disk.MakeFolder("h");
    RegisterScreens(Play);
    const World world =
        RichWorld()
            .Game("CWA", kGameStart, [](GameInfo& game) { game.EndCode = kEndBoard; })
            .Feud("CWA Hand 5", "CWA Hand 6")
            .Mail("Ruth Vane", "Goodbye.");
    Slot::Create(Disk, Play.SlotFolder(1), FilesOf(world), Play.NewWorldId());
    Play.OpenSlot(1);
  }
  CutDisk Disk;
  EagerDesk Desk;
  Game Play;
};

std::map<std::string, Bytes> AllButTheDesk(Over& over) {
  auto files = BytesOf(over.Play.World());
  files.erase(std::string(over.Play.World().News().File()));
  files.erase(std::string(over.Play.World().ReadMails().File()));
  files.erase(std::string(over.Play.World().Notes().File()));
  return files;
}

// The ways out of the game are not changes of its world, and the ways on begin another career.
constexpr std::string_view kWaysOut[] = {"cmdquit", "cmdmenu", "cmdmainmenu", "cmdtake",
                                         "cmdfound"};

TEST(AfterTheEnd, EveryScreenOpensAndNoButtonChangesTheWorld) {
  Over over;
  const auto before = AllButTheDesk(over);
  for (const std::string screen : kInGame) {
    over.Desk.Open("frmMainScreen");
    over.Desk.Open(screen);
    ASSERT_TRUE(over.Desk.Top());
    // The sheets stay shut.
    EXPECT_TRUE(over.Desk.Top()->Name() == screen || screen.ends_with("Booking") ||
                screen == "frmAutoBook")
        << screen;
    std::vector<std::string> buttons;
    for (const ui::Control* control : over.Desk.Top()->Controls())
      if (control->Is() == ui::Kind::Button && control->Enabled) buttons.push_back(control->Name());
    for (const std::string& button : buttons) {
      if (std::ranges::find(kWaysOut, button) != std::end(kWaysOut)) continue;
      SCOPED_TRACE(screen + ", " + button);
      over.Desk.CloseAll();
      over.Desk.Open("frmMainScreen");
      over.Desk.Open(screen);
      ui::Click(over.Desk, *over.Desk.Top(), button);
      ASSERT_TRUE(over.Play.HasWorld());
      ASSERT_TRUE(AllButTheDesk(over) == before);
    }
    over.Desk.CloseAll();
  }
  EXPECT_NE(std::ranges::find(over.Desk.Told, kCareerIsOver), over.Desk.Told.end())
      << "and the player is told why";
}

TEST(AfterTheEnd, NoShowIsBookedAndOnlyMailsAreStillThePlayers) {
  Over over;
  for (const char* sheet : {"frmBooking", "frmPPVBooking", "frmAutoBook"}) {
    over.Desk.Open("frmMainScreen");
    over.Desk.Told.clear();
    over.Desk.Open(sheet);
    EXPECT_EQ(over.Desk.Told, std::vector<std::string>{kCareerIsOver}) << sheet;
    EXPECT_NE(over.Desk.Top()->Name(), sheet);
    over.Desk.CloseAll();
  }
  EXPECT_EQ(over.Play.World().Segments().Count(), 0);
  over.Desk.Open("frmMainScreen");
  over.Desk.Told.clear();
  over.Desk.Event([&] { over.Play.World().Player().Money = 5; });
  EXPECT_EQ(over.Play.World().Player().Money, 9000000);
  EXPECT_EQ(over.Desk.Told, std::vector<std::string>{kCareerIsOver});
  over.Desk.Open("frmNews");
  ui::Click(over.Desk, *over.Desk.Top(), "cmddelete");
  over.Play.CloseSlot();
  over.Desk.CloseAll();
  over.Play.OpenSlot(1);
  EXPECT_EQ(over.Play.World().News().Count(), 0);
}

}  // namespace
}  // namespace grapplemont::test
