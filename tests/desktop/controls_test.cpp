#include <gtest/gtest.h>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>
#include <filesystem>
#include <fstream>

#include "desktop/player.h"
#include "program/screens.h"
#include "records/world.h"
#include "support/checkout.h"
#include "support/scratchfolder.h"
#include "support/smallworld.h"
#include "ui/game.h"

// Each kind of control, worked by mouse and keys.

namespace grapplemont::test {
namespace {

class TheControls : public testing::Test {
 protected:
  TheControls() : Page(*new DeskPage(Play.Desk, Notes)) {
    Play.Desk.Open(std::unique_ptr<ui::Screen>(&Page));
    Play.Window.Sync();
  }

  Log Notes;
  Player Play;
  DeskPage& Page;
};

TEST_F(TheControls, TakeWhatIsTypedInTheGamesLetters) {
  Play.Click("txtname");
  Play.Type(QString::fromUtf8("Jos\u00E9 \u20AC"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Jos\xE9 \x80");
}

TEST_F(TheControls, RefuseALetterThatTheGameCannotKeepAndNameIt) {
  Play.Click("txtname");
  Play.Type(QString::fromUtf8("Te\u0142d"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Ted");
  EXPECT_EQ(Play.TextOf("txtname"), "Ted");
  EXPECT_TRUE(Play.TextOf("hint").contains(QChar(0x142)));
}

TEST_F(TheControls, CutATextAtItsMostLetters) {
  Play.Click("txtname");
  Play.Type("Twelve letters and more");
  EXPECT_EQ(Page.txtname.Text.Get(), "Twelve lette");
}

TEST_F(TheControls, KeepTheCursorWhereSomebodyTypesInTheMiddle) {
  Play.Click("txtname");
  Play.Type("Bo");
  Play.Key(Qt::Key_Left);
  Play.Type(QString::fromUtf8("ru\u0142n"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Bruno");
}

TEST_F(TheControls, TakeLinesInABoxOfMany) {
  Play.Click("txtnotes");
  Play.Type("One");
  Play.Key(Qt::Key_Return);
  Play.Type(QString::fromUtf8("Tw\u4E00o"));
  EXPECT_EQ(Page.txtnotes.Text.Get(), "One\nTwo");
  Play.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"done"}));
}

TEST_F(TheControls, ShowWhatTheScreenPutsIn) {
  Page.txtname.Text = "Put in";
  Page.lblfacts.Text = "Other facts";
  Page.cmdask.Text = "Really ask";
  Page.cmdoff.Enabled = true;
  Page.chkday.Visible = false;
  Play.Window.Sync();
  EXPECT_EQ(Play.TextOf("txtname"), "Put in");
  EXPECT_EQ(Play.TextOf("lblfacts"), "Other facts");
  EXPECT_EQ(Play.TextOf("cmdask"), "Really ask");
  EXPECT_FALSE(Play.Sees("chkday"));
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log({"off"}));
}

TEST_F(TheControls, DoNothingWhileDisabledAndSayWhy) {
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log());
  EXPECT_TRUE(Play.See("cmdoff")->toolTip().contains("Not today."));
}

TEST_F(TheControls, PickFromAComboByItsRowNotByALikeText) {
  QWidget* combo = Play.See("cmbkind");
  combo->setFocus();
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(Page.cmbkind.Selected(), 2) << "the third row's text is \"2\"";
  Play.Key(Qt::Key_End);
  EXPECT_EQ(Notes, Log({"kind Second", "kind 2"}));
}

TEST_F(TheControls, CheckAndChoose) {
  Play.Click("chkday");
  EXPECT_TRUE(Page.chkday.Checked.Get());
  Play.Click("optheel");
  EXPECT_TRUE(Page.optheel.Checked.Get());
  EXPECT_FALSE(qobject_cast<QAbstractButton*>(Play.See("optface"))->isChecked());
  Play.Click("optheel");
  EXPECT_TRUE(qobject_cast<QAbstractButton*>(Play.See("optheel"))->isChecked())
      << "one of them is always chosen";
  EXPECT_EQ(Notes, Log({"day", "heel"}));
}

TEST_F(TheControls, SlideByKeyOrByNumber) {
  auto* slider = Play.See("hsprice")->findChild<QSlider*>();
  auto* number = Play.See("hsprice")->findChild<QSpinBox*>();
  slider->setFocus();
  Play.Key(Qt::Key_Right);
  EXPECT_EQ(Page.hsprice.Value.Get(), 6);
  EXPECT_EQ(number->value(), 6);
  number->setFocus();
  number->selectAll();
  QTest::keyClicks(number, "42");
  EXPECT_EQ(Page.hsprice.Value.Get(), 42);
  EXPECT_EQ(slider->value(), 42);
}

// Names that lead to pages, in the window.

class LinkPage : public ui::Screen {
 public:
  explicit LinkPage(ui::Desk& desk) : Screen(desk, "frmLinks", "Links") {
    rptstory.Write("It was Ludo who beat Bram last night.");
  }
  ui::Page Layout() override {
    ui::Page page;
    page.Cancel = &cmdback;
    page.Actions = {&cmdback};
    page.Body = ui::Rows({lblwho, lblnobody, ui::Grow(rptstory)});
    return page;
  }

  ui::Label lblwho{*this, "lblwho", "Champion: Bram"};
  ui::Label lblnobody{*this, "lblnobody", "No name here."};
  ui::Report rptstory{*this, "rptstory"};
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Close(); }};
};

class TheLinks : public testing::Test {
 protected:
  TheLinks() {
    Play.Desk.FindLinks = [this](std::string_view text) {
      std::vector<ui::Link> links;
      for (const std::string name : {"Ludo", "Bram"})
        if (const auto at = text.find(name); at != std::string_view::npos)
          links.push_back({at, name.size(), [this, name] { Notes.push_back("page of " + name); }});
      return links;
    };
  }
  void OpenPage() { Open(std::make_unique<LinkPage>(Play.Desk)); }
  void OpenPeople() { Open(std::make_unique<PeoplePage>(Play.Desk, Notes)); }
  void Open(std::unique_ptr<ui::Screen> screen) {
    Play.Desk.Open(std::move(screen));
    Play.Window.Sync();
  }
  QPoint WordIn(QTextEdit& story, const QString& word) {
    QTextCursor found = story.document()->find(word);
    EXPECT_FALSE(found.isNull()) << word.toStdString();
    found.setPosition(found.anchor() + 1);
    return story.cursorRect(found).center();
  }
  QPoint CellAt(int row, int column) {
    desktop::TableGrid& grid = Play.Grid("lstpeople");
    return grid.visualRect(grid.model()->index(row, column)).center();
  }

  Log Notes;
  Player Play;
};

TEST_F(TheLinks, OfAReportOpenWithAClickAndStandOut) {
  OpenPage();
  auto& story = *qobject_cast<QTextEdit*>(Play.See("rptstory"));
  const QPoint bram = WordIn(story, "Bram"), beat = WordIn(story, "beat");
  QTest::mouseClick(story.viewport(), Qt::LeftButton, {}, beat);
  EXPECT_EQ(Notes, Log());
  QTest::mouseClick(story.viewport(), Qt::LeftButton, {}, bram);
  EXPECT_EQ(Notes, Log({"page of Bram"}));

  QTextCursor letters = story.cursorForPosition(bram);
  const QColor named = letters.charFormat().foreground().color();
  letters = story.cursorForPosition(beat);
  EXPECT_NE(named, letters.charFormat().foreground().color());
  EXPECT_EQ(story.toPlainText(), "It was Ludo who beat Bram last night.");

  QTest::mouseMove(story.viewport(), bram);
  EXPECT_EQ(story.viewport()->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(story.viewport(), beat);
  EXPECT_EQ(story.viewport()->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(TheLinks, OfAReportStayShutWhenTheirWordsAreMarked) {
  OpenPage();
  auto& story = *qobject_cast<QTextEdit*>(Play.See("rptstory"));
  const QPoint bram = WordIn(story, "Bram");
  QTest::mousePress(story.viewport(), Qt::LeftButton, {}, WordIn(story, "was"));
  QTest::mouseMove(story.viewport(), bram);
  QTest::mouseRelease(story.viewport(), Qt::LeftButton, {}, bram);
  EXPECT_EQ(Notes, Log());
}

TEST_F(TheLinks, OfALabelOpenWithAClick) {
  OpenPage();
  Play.Click("lblnobody");
  EXPECT_EQ(Notes, Log());
  EXPECT_NE(Play.See("lblnobody")->cursor().shape(), Qt::PointingHandCursor);
  Play.Click("lblwho");
  EXPECT_EQ(Notes, Log({"page of Bram"}));
  EXPECT_EQ(Play.See("lblwho")->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(TheLinks, OfATableOpenWithCtrlAndLeaveItsClicksAlone) {
  OpenPeople();
  QWidget* cells = Play.Grid("lstpeople").viewport();
  QTest::mouseClick(cells, Qt::LeftButton, Qt::ControlModifier, CellAt(1, 1));
  EXPECT_EQ(Notes, Log({"page of Ludo"}));
  QTest::mouseClick(cells, Qt::LeftButton, {}, CellAt(1, 1));
  QTest::mouseClick(cells, Qt::LeftButton, Qt::ControlModifier, CellAt(2, 1));
  EXPECT_EQ(Notes, Log({"page of Ludo", "picked 102", "picked 103"})) << "Dane has no page";
}

TEST_F(TheLinks, OfATableStandInItsMenu) {
  OpenPeople();
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  const auto choices = [&](int row) {
    emit grid.customContextMenuRequested(CellAt(row, 3));
    auto* menu = Play.Window.findChild<QMenu*>("columnsmenu");
    QStringList words;
    for (QAction* action : menu->actions())
      if (action->text().startsWith("Open ")) {
        words.append(action->text());
        action->trigger();
      }
    delete menu;
    return words;
  };
  EXPECT_EQ(choices(0), QStringList({"Open Bram"}));
  EXPECT_EQ(choices(2), QStringList());
  EXPECT_EQ(Notes, Log({"page of Bram"}));
}

// From the title to the next day and back again, with nothing but mouse and keys.

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
