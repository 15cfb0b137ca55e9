#include <gtest/gtest.h>

#include <set>

#include "desktop/player.h"
#include "program/richworld.h"
#include "program/screens.h"
#include "records/segments.h"
#include "records/store/slot.h"
#include "support/homefolder.h"
#include "ui/game.h"

// Keys in the window of the whole game.

namespace grapplemont::test {
namespace {

class TheKeys : public testing::Test {
 protected:
  TheKeys() { RegisterScreens(Game); }
  ~TheKeys() override {
    EXPECT_TRUE(Play.EveryBoxCame());
    Play.Desk.CloseAll();
    Play.Window.Sync();
    Game.CloseSlot();
  }

  void OpenSlot() {
    const World world = RichWorld().Game("CWA").Feud("CWA Hand 5", "CWA Hand 6");
    Slot::Create(*Files, Game.SlotFolder(1), FilesOf(world), Game.NewWorldId());
    Game.OpenSlot(1);
  }
  /// This screen, in a game above the hub, where each button only tells that it was pressed; the
  /// way back leads there as well, unless it is the main action.
  void Open(const std::string& name) {
    Play.Desk.CloseAll();
    Play.Window.Sync();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (Game.HasWorld()) Play.Desk.Open("frmMainScreen");
    if (Play.Top() != name) Play.Desk.Open(name);
    Play.Window.Sync();
    for (const auto& screen : Play.Desk.Screens()) {
      const ui::Page page = screen->Layout();
      for (ui::Control* control : screen->Controls())
        if (auto* button = dynamic_cast<ui::Button*>(control)) {
          const bool leads = button == page.Cancel && button != page.Main && button != page.Then;
          button->OnClick = [this, button, back = leads ? button->OnClick : ui::Handler()] {
            Pressed.push_back(button->Name());
            if (back) back();
          };
        }
    }
    Pressed.clear();
  }
  /// One of each kind of widget that can have the keyboard, and the window itself.
  std::vector<QWidget*> Holders() {
    std::vector<QWidget*> holders{&Play.Window};
    std::set<std::pair<const QMetaObject*, bool>> kinds;
    for (QWidget* widget : Play.Window.findChildren<QWidget*>())
      if (widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
          (widget->focusPolicy() & Qt::TabFocus) &&
          kinds.insert({widget->metaObject(), desktop::KeepsEnter(widget)}).second)
        holders.push_back(widget);
    return holders;
  }
  /// `enabled`: those that can be pressed alone; a page may have a button of the same name.
  std::vector<std::string> Marked(bool enabled = false) {
    std::vector<std::string> marked;
    for (const auto* button : Play.Window.findChildren<QWidget*>())
      if (const auto* push = dynamic_cast<const desktop::PushButton*>(button);
          push && push->isVisible() && push->ShowsEnter() && (push->isEnabled() || !enabled))
        marked.push_back(push->objectName().toStdString());
    return marked;
  }
  /// Wherever the keyboard is, Enter presses what bears its sign, or nothing while that waits;
  /// nothing bears it where Enter is kept for what is typed.
  void HoldMarkAgainstEnter(const std::string& name) {
    SCOPED_TRACE(name);
    Open(name);
    for (std::size_t i = 0;; ++i) {
      if (Play.Top() != name) Open(name);  // Enter has left it for the hub
      const std::vector<QWidget*> holders = Holders();
      if (i >= holders.size()) return;
      holders[i]->setFocus(Qt::TabFocusReason);
      Play.Window.Sync();
      SCOPED_TRACE(holders[i]->metaObject()->className());
      const std::vector<std::string> marked = Marked();
      const bool typed = desktop::KeepsEnter(holders[i]) || qobject_cast<QLineEdit*>(holders[i]);
      EXPECT_EQ(marked.size(), typed && marked.empty() ? 0U : 1U);
      const std::vector<std::string> pressable = Marked(true);
      Pressed.clear();
      Play.Key(Qt::Key_Return);
      // What ends the day leaves the page before that.
      if (Pressed.size() > 1) Pressed = {Pressed.back()};
      EXPECT_EQ(Pressed, pressable);
      EXPECT_TRUE(marked.empty() || !pressable.empty() || Play.Top() == name);
    }
  }

  HomeFolder Home{RichWorld().Build()};
  std::unique_ptr<Disk> Files = RealDisk(Syncs::None);
  Player Play;
  grapplemont::Game Game{Play.Desk, *Files, {Home.Path("."), [] { return kGameStart; }, 11}};
  std::vector<std::string> Pressed;
};

TEST_F(TheKeys, EnterDoesWhatBearsItsSignBeforeAGame) {
  for (const std::string name : kBeforeGame)
    if (name != "frmWait") HoldMarkAgainstEnter(name);
}

TEST_F(TheKeys, EnterDoesWhatBearsItsSignInAGame) {
  OpenSlot();
  for (const std::string name : kInGame)
    if (name != "frmWait") HoldMarkAgainstEnter(name);
  Open("frmMainScreen");
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdbook"}) << "a show is due";
  Open("frmTagTeams");
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdnext"});
  Open("frmFeuds");
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdask"});
}

TEST_F(TheKeys, EnterEndsTheDayFromARoomAndGoesBackFromAPageAboveIt) {
  OpenSlot();
  for (const std::string name : kInGame) {
    SCOPED_TRACE(name);
    Open(name);
    if (name == "frmWait" || Play.Desk.Screens().size() != 2) continue;
    const bool isRoom = !Play.Desk.Top()->Layout().Main;
    // Enter writes a line of the notes.
    if (isRoom && name != "frmNotepad") {
      EXPECT_EQ(Marked(), std::vector<std::string>{"cmdnext"});
    }
    Play.Desk.CloseAll();
    for (const char* below : {"frmMainScreen", "frmFinance", name.c_str()}) Play.Desk.Open(below);
    Play.Window.Sync();
    const ui::Page page = Play.Desk.Top()->Layout();
    EXPECT_TRUE(page.Main);
    if (isRoom) {
      EXPECT_EQ(page.Main, page.Cancel);
    }
  }
}

TEST_F(TheKeys, EnterChoosesWhomTheStepLacksBeforeItGoesOn) {
  OpenSlot();
  Play.Desk.Open("frmMainScreen");
  Play.Window.Sync();
  Play.Key(Qt::Key_Return);
  Play.Click("cmdbook(1)");
  const std::string step = "frmBook1vs1";
  for (int steps = 0; steps < 5 && Play.Top() != step; ++steps) Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), step);
  const auto chosen = [&](const char* list) {
    return dynamic_cast<ui::ListBox*>(Play.Desk.Top()->Find(list))->Selected();
  };
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdnext"}) << "it waits, and does not lead away";
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(chosen("lstwres1"), 1);
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(chosen("lstwres2"), 0) << "the keyboard has only come here";
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(chosen("lstwres2"), 1);
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.Top(), step) << "nobody meets themselves";
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(chosen("lstwres2"), 2);
  Play.Key(Qt::Key_Return);
  EXPECT_NE(Play.Top(), step);
}

TEST_F(TheKeys, VisitRoomsFromTheBookingSheetAndComeBackToIt) {
  OpenSlot();
  Play.Desk.Open("frmMainScreen");
  Play.Window.Sync();
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), "frmBooking") << "Sunday is a day of television";
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdnextrow"}) << "the show may not start yet";

  Play.Click("cmdbook(1)");
  Play.Key(Qt::Key_Escape);
  ASSERT_EQ(Play.Top(), "frmBooking") << "nothing was chosen, so nothing is asked";
  Play.Click("cmdbook(1)");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), "frmBookType");
  Play.Key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(Play.Top(), "frmBookType") << "its step is the one that is open";
  Play.Key(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Play.Top(), "frmBookStyle") << "a step that has been done is opened again";
  Play.Key(Qt::Key_Return);
  Play.Click("cmddone");
  ASSERT_EQ(Play.Top(), "frmBookSheet");
  Play.AtNextBox([&] { Play.Key(Qt::Key_Return); });  // the careful answer
  Play.Key(Qt::Key_Escape);
  ASSERT_EQ(Play.Top(), "frmBookSheet");
  Play.Click("cmdexit");
  ASSERT_EQ(Play.Top(), "frmBooking");

  Play.Click("cmdfill");
  ASSERT_EQ(Play.Top(), "frmFill");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmddoshow"});
  Play.Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Marked(), std::vector<std::string>{"cmdnextrow"}) << "the card has been taken back";
  Play.Key(Qt::Key_Y, Qt::ControlModifier);
  const auto card = [&] {
    return BytesOf(Game.World()).at(std::string(Game.World().Segments().File()));
  };
  const auto booked = card();
  const std::vector<int> people = EverybodyOf(Game.World().Segments()[1]);
  ASSERT_FALSE(people.empty());
  Play.See("cmddebut")->setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(Play.See("cmdtv")->isEnabled());
  for (const Qt::Key room : {Qt::Key_F2, Qt::Key_F5, Qt::Key_F8, Qt::Key_F9}) {
    Play.Key(room);
    EXPECT_EQ(Play.Desk.Screens().size(), 3U) << room;
    Play.Key(Qt::Key_Escape);
    ASSERT_EQ(Play.Top(), "frmBooking") << room;
    EXPECT_EQ(Play.FocusName(), "cmddebut") << room;
    EXPECT_EQ(card(), booked);
  }

  Play.Key(Qt::Key_F2);
  Play.Desk.Event([&] {
    Worker& worker = *Game.World().FindWorker(people.front());
    worker.Employer = 0;
    worker.ContractMonths = 0;
  });
  Play.AtNextBox([&] {
    EXPECT_TRUE(Play.TextOf("boxtext").contains("row 1 is empty again"));
    Play.Key(Qt::Key_Return);
  });
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Play.Top(), "frmBooking");
  EXPECT_EQ(Game.World().Segments()[1].Kind, kEmptySegment);
}

}  // namespace
}  // namespace grapplemont::test
