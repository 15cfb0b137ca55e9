#include <gtest/gtest.h>
#include <QAction>
#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>
#include <utility>

#include "desktop/player.h"
#include "program/screens.h"
#include "support/homefolder.h"
#include "support/smallworld.h"
#include "ui/game.h"

// Each kind of control, worked by mouse and keys.

namespace grapplemont::test {
namespace {

class TheControls : public testing::Test {
 protected:
  TheControls() : Page(*new DeskPage(Play.Desk, Notes)) {
    Play.Open(std::unique_ptr<ui::Screen>(&Page));
  }

  Log Notes;
  Player Play;
  DeskPage& Page;
};

TEST_F(TheControls, TakeTextInTheGamesLetters) {
  Play.Click("txtname");
  Play.Type(QString::fromUtf8("Jos\u00E9 \u20AC"));
  EXPECT_EQ(Page.txtname.Text.Get(), "Jos\xE9 \x80");
  Play.Key(Qt::Key_Home);
  Play.Type(QString::fromUtf8("Te\u0142d "));
  EXPECT_EQ(Page.txtname.Text.Get(), "Ted Jos\xE9 \x80") << "the cursor goes on where it was";
  EXPECT_TRUE(Play.TextOf("hint").contains(QChar(0x142))) << "the letter that is refused is named";
  Play.Type("and more");
  EXPECT_EQ(Page.txtname.Text->size(), 12U) << "the box takes no more";
  EXPECT_EQ(Play.TextOf("hint"), "There is room for 12 characters.");
  EXPECT_EQ(Play.TextOf("txtname"), desktop::Shown(Page.txtname.Text.Get()));

  Play.Click("txtnotes");
  Play.Type("One");
  Play.Key(Qt::Key_Return);
  Play.Type(QString::fromUtf8("Tw\u4E00o"));
  EXPECT_EQ(Page.txtnotes.Text.Get(), "One\nTwo");
  Play.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"done"}));
}

TEST_F(TheControls, ShowWhatTheScreenPutsInAndDoNothingWhileDisabled) {
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log());
  EXPECT_TRUE(Play.See("cmdoff")->toolTip().contains("Not today."));
  Page.txtname.Text = "Put in";
  Page.lblfacts.Text = "Other facts";
  Page.cmdask.Text = "Really ask";
  Page.cmdoff.Enabled = true;
  Page.chkday.Visible = false;
  Play.Window.Sync();
  EXPECT_EQ(Play.TextOf("txtname"), "Put in");
  EXPECT_EQ(Play.TextOf("lblfacts"), "Other facts.");
  EXPECT_EQ(Play.TextOf("cmdask"), "Really ask");
  EXPECT_FALSE(Play.Sees("chkday"));
  Play.Click("cmdoff");
  EXPECT_EQ(Notes, Log({"off"}));
}

/// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& of) { of.installEventFilter(this); }
  int Count() {
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    return std::exchange(count_, 0);
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }
  int count_ = 0;
};

TEST_F(TheControls, PaintAButtonOncePressedAndOnceLetGo) {
  QWidget& done = *Play.See("cmddone");
  Paints paints(done);
  for (const bool byMouse : {true, false}) {
    done.setFocus(Qt::TabFocusReason);
    paints.Count();
    byMouse ? QTest::mousePress(&done, Qt::LeftButton) : QTest::keyPress(&done, Qt::Key_Space);
    EXPECT_EQ(paints.Count(), 1) << byMouse;
    byMouse ? QTest::mouseRelease(&done, Qt::LeftButton) : QTest::keyRelease(&done, Qt::Key_Space);
    EXPECT_EQ(paints.Count(), 1) << byMouse;
  }
  EXPECT_EQ(Notes, Log({"done", "done"}));
}

TEST_F(TheControls, AreChosenFromByMouseAndKeys) {
  Play.See("cmbkind")->setFocus();
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(Page.cmbkind.Selected(), 2) << "the third row's text is \"2\"";
  Play.Key(Qt::Key_End);
  Play.Click("chkday");
  EXPECT_TRUE(Page.chkday.Checked.Get());
  Play.Click("optheel");
  Play.Click("optheel");
  EXPECT_EQ(Notes, Log({"kind Second", "kind 2", "day", "heel"}));
  for (const auto& [option, chosen] : {std::pair("optface", false), std::pair("optheel", true)})
    EXPECT_EQ(qobject_cast<QAbstractButton*>(Play.See(option))->isChecked(), chosen) << option;

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
    return {.Actions = {&cmdback},
            .Cancel = &cmdback,
            .Body = ui::Rows({lblwho, lblnobody, ui::Grow(rptstory)})};
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

TEST_F(TheLinks, OfAReportStandOutAndOpenWithAClickUnlessTheyAreMarked) {
  Play.Open(std::make_unique<LinkPage>(Play.Desk));
  auto& story = *qobject_cast<QTextEdit*>(Play.See("rptstory"));
  QWidget* const words = story.viewport();
  const QPoint bram = WordIn(story, "Bram"), beat = WordIn(story, "beat");
  EXPECT_NE(story.cursorForPosition(bram).charFormat().foreground().color(),
            story.cursorForPosition(beat).charFormat().foreground().color());
  EXPECT_EQ(story.toPlainText(), "It was Ludo who beat Bram last night.");
  QTest::mouseMove(words, bram);
  EXPECT_EQ(words->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(words, beat);
  EXPECT_EQ(words->cursor().shape(), Qt::IBeamCursor);

  QTest::mouseClick(words, Qt::LeftButton, {}, beat);
  QTest::mousePress(words, Qt::LeftButton, {}, WordIn(story, "was"));
  QTest::mouseMove(words, bram);
  QTest::mouseRelease(words, Qt::LeftButton, {}, bram);
  EXPECT_EQ(Notes, Log());
  QTest::mouseClick(words, Qt::LeftButton, {}, bram);
  EXPECT_EQ(Notes, Log({"page of Bram"}));
}

TEST_F(TheLinks, OfAReportAreReachedByTheKeyboardWhichIsSeenThere) {
  Play.Open(std::make_unique<LinkPage>(Play.Desk));
  auto& story = *qobject_cast<QTextEdit*>(Play.See("rptstory"));
  for (const auto& [key, name] : {std::pair(Qt::Key_Right, "Ludo"),
                                  {Qt::Key_Left, "Bram"},
                                  {Qt::Key_Right, "Ludo"},
                                  {Qt::Key_Right, "Bram"}}) {
    QTest::keyClick(&story, key);
    EXPECT_EQ(story.textCursor().selectedText().toStdString(), name);
  }
  QTest::keyClick(&story, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"page of Bram"}));
  const auto edgeAfter = [&](QEvent::Type moved, Qt::FocusReason by) {
    QFocusEvent event(moved, by);
    QApplication::sendEvent(&story, &event);
    QWidget& words = *story.viewport();
    return words.grab().toImage().pixelColor(0, words.height() / 2);
  };
  const QColor plain = edgeAfter(QEvent::FocusOut, Qt::TabFocusReason);
  EXPECT_EQ(edgeAfter(QEvent::FocusIn, Qt::MouseFocusReason), plain);
  EXPECT_NE(edgeAfter(QEvent::FocusIn, Qt::TabFocusReason), plain);
  EXPECT_EQ(edgeAfter(QEvent::FocusOut, Qt::MouseFocusReason), plain);
}

TEST_F(TheLinks, OfALabelOpenWithAClick) {
  Play.Open(std::make_unique<LinkPage>(Play.Desk));
  Play.Click("lblnobody");
  EXPECT_EQ(Notes, Log());
  EXPECT_NE(Play.See("lblnobody")->cursor().shape(), Qt::PointingHandCursor);
  Play.Click("lblwho");
  EXPECT_EQ(Notes, Log({"page of Bram"}));
  EXPECT_EQ(Play.See("lblwho")->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(TheLinks, OfATableOpenWithCtrlOrFromItsMenu) {
  Play.Open(std::make_unique<PeoplePage>(Play.Desk, Notes));
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  QWidget* const cells = grid.viewport();
  QTest::mouseClick(cells, Qt::LeftButton, Qt::ControlModifier, CellAt(1, 1));
  EXPECT_EQ(Notes, Log({"page of Ludo"}));
  QTest::mouseClick(cells, Qt::LeftButton, {}, CellAt(1, 1));
  QTest::mouseClick(cells, Qt::LeftButton, Qt::ControlModifier, CellAt(2, 1));
  EXPECT_EQ(Notes, Log({"page of Ludo", "picked 102", "picked 103"})) << "Dane has no page";

  const auto offered = [&](int row) {
    emit grid.customContextMenuRequested(CellAt(row, 3));
    auto* menu = Play.Window.findChild<QMenu*>("rowmenu");
    QStringList words;
    for (QAction* action : menu->actions())
      if (action->text().startsWith("Open ")) {
        words.append(action->text());
        action->trigger();
      }
    delete menu;
    return words;
  };
  EXPECT_EQ(offered(2), QStringList());
  EXPECT_EQ(offered(0), QStringList({"Open Bram"}));
  EXPECT_EQ(Notes.back(), "page of Bram");
}

// From the title to the next day and back again, with nothing but mouse and keys.

class FromTitleToNextDay : public testing::Test {
 protected:
  FromTitleToNextDay() {
    RegisterScreens(Game);
    Play.Desk.Event([&] { Play.Desk.Open("frmTitleScreen"); });
    Play.Window.Sync();
  }
  ~FromTitleToNextDay() override {
    EXPECT_TRUE(Play.EveryBoxCame());
    Game.CloseSlot();
    Play.Desk.CloseAll();
  }
  std::string TextIn(const char* name) const {
    const ui::Control* control = Play.Desk.Top()->Find(name);
    return control ? control->Text.Get() : "nothing";
  }

  HomeFolder Home{SmallWorld()
                      .Network("Channel Nine")
                      .Promotion("CWA", kCult)
                      .Owner("Ruth Vane")
                      .Crew(6)
                      .Show("Friday Fire", "Friday", "Channel Nine")
                      .Promotion("NEW", kSmall)
                      .Owner("Otto Grim")
                      .Crew(4)
                      .Build()};
  std::unique_ptr<Disk> Files = RealDisk(Syncs::None);
  Player Play;
  grapplemont::Game Game{
      Play.Desk,
      *Files,
      {Home.Path("."), [] { return Day{std::chrono::year{2026} / 3 / 17}; }, 11}};
};

TEST_F(FromTitleToNextDay, GoesByMouseAndKeys) {
  ASSERT_EQ(Play.Top(), "frmTitleScreen");
  Play.Click("imgtitle");
  ASSERT_EQ(Play.Top(), "frmDisclaimer");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), "frmGameMenu");
  Play.Click("cmdnewgame");
  ASSERT_EQ(Play.Top(), "frmNewGame");
  EXPECT_EQ(Play.FocusName(), "txtname");
  Play.Type("Pat Lee");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), "frmPickSaveSlot");

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
  ASSERT_EQ(Play.Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Wednesday, 01 April 2026");

  Play.Click("cmdnext");
  EXPECT_EQ(TextIn("txtdate"), "Thursday, 02 April 2026");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(TextIn("txtdate"), "Friday, 03 April 2026");
  Play.Key(Qt::Key_Return);
  ASSERT_EQ(Play.Top(), "frmBooking") << "Friday is a day of television";

  Play.AtNextBox([&] { Play.Click("boxyes"); });
  Play.Click("cmdcancel");
  ASSERT_EQ(Play.Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Saturday, 04 April 2026");

  Play.Click("cmdnews");
  EXPECT_EQ(Play.Top(), "frmNews");
  Play.Click("cmdnotepad");
  EXPECT_EQ(Play.Top(), "frmNotepad");
  Play.Key(Qt::Key_Escape);
  ASSERT_EQ(Play.Top(), "frmMainScreen");

  Play.AtNextBox([&] { Play.Key(Qt::Key_Return); });
  Play.Click("cmdquit");
  ASSERT_EQ(Play.Top(), "frmGameMenu");
  Play.Click("cmdloadgame");
  EXPECT_EQ(TextIn("cmdload1"), "First");
  Play.Click("cmdload1");
  ASSERT_EQ(Play.Top(), "frmMainScreen");
  EXPECT_EQ(TextIn("txtdate"), "Saturday, 04 April 2026");
}

}  // namespace
}  // namespace grapplemont::test
