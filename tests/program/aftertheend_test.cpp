#include <gtest/gtest.h>

#include "program/screens.h"
#include "records/store/slot.h"
#include "support/cutdisk.h"
#include "support/smallworld.h"
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

World Rich() {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", kCult, [](Promotion& p) { p.Money = 9000000; })
      .Owner("Ruth Vane")
      .Staff("Pen", kWriter)
      .Crew(12)
      .Team("The Hands", "CWA Hand 1", "CWA Hand 2")
      .Stable("The Firm", {"CWA Hand 3", "CWA Hand 4"})
      .Title("CWA Crown", "CWA Hand 1")
      .Show("Sunday Slam", "Sunday", "Nine")
      .Sponsor("Gulp")
      .Event(3)
      .Promotion("XWF", kRegional, [](Promotion& p) { p.Money = -2000000; })
      .Crew(4)
      .OnTheMarket()
      .Crew(4)
      .Staff("Free Pen", kWriter)
      .Sponsor("Chew")
      .Game("CWA", kGameStart, [](GameInfo& game) { game.EndCode = kEndBoard; })
      .Feud("CWA Hand 5", "CWA Hand 6")
      .Mail("Ruth Vane", "Goodbye.");
  return small;
}

/// The program with an ended career in slot 1.
struct Over {
  Over() : Play(Desk, Disk, {"h", [] { return kGameStart; }, 5}) {
    Disk.MakeFolder("h");
    RegisterScreens(Play);
    const World world = Rich();
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
  files.erase(std::string(over.Play.World().Notes().File()));
  return files;
}

std::vector<std::string> ButtonsOf(const ui::Screen& screen) {
  std::vector<std::string> names;
  for (const ui::Control* control : screen.Controls())
    if (dynamic_cast<const ui::Button*>(control) && control->Enabled.Get())
      names.push_back(control->Name());
  return names;
}

// The ways out of the game are no changes of its world.
constexpr std::string_view kWaysOut[] = {"cmdquit", "cmdmenu", "cmdmainmenu"};

constexpr const char* kScreens[] = {
    "frmOptions",   "frmFeuds",      "frmFeudStart", "frmDebut",   "frmAltRoster",  "frmAltBelts",
    "frmTagTeams",  "frmStables",    "frmManagers",  "frmTurn",    "frmRoster",     "frmOtherWres",
    "frmStaff",     "frmOtherStaff", "frmShortlist", "frmUser",    "frmFinance",    "frmTicket",
    "frmCharity",   "frmLoan",       "frmWages",     "frmFedProd", "frmFedSponsor", "frmTelevision",
    "frmPromoTape", "frmTvOffer",    "frmTVRank",    "frmFed",     "frmFedValue",   "frmBelts",
    "frmEvent",     "frmOtherFed",   "frmNews",      "frmNotepad", "frmPinky"};

TEST(AfterTheEnd, EveryScreenOpensAndNoButtonChangesTheWorld) {
  Over over;
  const auto before = AllButTheDesk(over);
  for (const char* screen : kScreens) {
    over.Desk.Open("frmMainScreen");
    over.Desk.Open(screen);
    ASSERT_TRUE(over.Desk.Top() && over.Desk.Top()->Name() == screen) << screen << " stays open";
    const std::vector<std::string> buttons = ButtonsOf(*over.Desk.Top());
    for (const std::string& button : buttons) {
      if (std::ranges::find(kWaysOut, button) != std::end(kWaysOut)) continue;
      SCOPED_TRACE(std::string(screen) + ", " + button);
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

TEST(AfterTheEnd, NoShowIsBookedAnyMore) {
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
}

TEST(AfterTheEnd, MailsAndNotesAreStillThePlayers) {
  Over over;
  over.Desk.Open("frmMainScreen");
  over.Desk.Open("frmNews");
  ui::Click(over.Desk, *over.Desk.Top(), "cmddelete");
  EXPECT_EQ(over.Play.World().News().Count(), 0);
  over.Play.CloseSlot();
  over.Desk.CloseAll();
  over.Play.OpenSlot(1);
  EXPECT_EQ(over.Play.World().News().Count(), 0);
}

TEST(AfterTheEnd, AChangeIsTakenBackAndThePlayerReadsWhy) {
  Over over;
  over.Desk.Open("frmMainScreen");
  over.Desk.Event([&] { over.Play.World().Player().Money = 5; });
  EXPECT_EQ(over.Play.World().Player().Money, 9000000);
  EXPECT_EQ(over.Desk.Told, std::vector<std::string>{kCareerIsOver});
}

}  // namespace
}  // namespace grapplemont::test
