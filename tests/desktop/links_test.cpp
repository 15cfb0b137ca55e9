#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTextEdit>

#include "desktop/player.h"

// Names that lead to pages, in the window.

namespace grapplemont::test {
namespace {

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

}  // namespace
}  // namespace grapplemont::test
