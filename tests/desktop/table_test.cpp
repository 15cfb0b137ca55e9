#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QToolTip>

#include "desktop/player.h"
#include "desktop/tablecells.h"

// The table under a player's hands.

namespace grapplemont::test {
namespace {

class TheTableInTheWindow : public testing::Test {
 protected:
  void Open(bool multi = false) {
    Page = new PeoplePage(Play.Desk, Notes, multi);
    Play.Open(std::unique_ptr<ui::Screen>(Page));
  }
  std::vector<QString> Names() { return Play.Column("lstpeople", 1); }

  Log Notes;
  Player Play;
  PeoplePage* Page = nullptr;
};

TEST_F(TheTableInTheWindow, PicksAndOpensByMouseAndKeys) {
  Open();
  Play.Grid("lstpeople").setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Page->lstpeople.Selected(), 0) << "having the keyboard picks nothing";
  Play.ClickRow("lstpeople", 1);  // its first cell reads "9"
  Play.DoubleClickRow("lstpeople", 3);
  EXPECT_EQ(Notes, Log({"picked 102", "picked 104", "picked 104", "opened 104"}));
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(Page->lstpeople.Key(), 105);
  Play.Key(Qt::Key_End);
  EXPECT_EQ(Page->lstpeople.Key(), 110);
  Play.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes.back(), "opened 110");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes.back(), "opened 110");
  EXPECT_EQ(Play.Top(), "") << "Enter is the page's, which has no action but the way back";
}

TEST_F(TheTableInTheWindow, ShowsTheRowThatItOpensWith) {
  Page = new PeoplePage(Play.Desk, Notes, false);
  for (int more = 0; more < 60; ++more) Page->lstpeople.Add({"", "More", "", 1}, 200 + more);
  Page->lstpeople.SelectKey(240);
  Play.Open(std::unique_ptr<ui::Screen>(Page));
  QApplication::processEvents();
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  EXPECT_EQ(grid.CurrentRow(), 50);
  EXPECT_TRUE(grid.viewport()->rect().contains(grid.visualRect(grid.currentIndex())));
}

TEST_F(TheTableInTheWindow, SortsByAClickOnAHeadingAndPicksWhatIsSeen) {
  Open();
  Play.ClickHeading("lstpeople", 1);
  EXPECT_EQ(Names().front(), "Bram");
  Play.ClickHeading("lstpeople", 1);
  EXPECT_EQ(Names().front(), "Salt");
  Play.ClickRow("lstpeople", 0);
  EXPECT_EQ(Page->lstpeople.Key(), 109);
  Play.ClickHeading("lstpeople", 2);
  Play.ClickHeading("lstpeople", 3, Qt::ShiftModifier);
  EXPECT_EQ(Names(), std::vector<QString>({"Petey", "Salt", "Dane", "Rory", "Bram", "Fetch", "Ludo",
                                           "Kid", "Iron", "Hattie"}));
  EXPECT_EQ(Play.Grid("lstpeople").CurrentRow(), 1) << "the cursor stays with its row";
}

TEST_F(TheTableInTheWindow, FiltersByTheSearchLine) {
  Open();
  Play.Grid("lstpeople").setFocus();
  Play.Type("Over >54, heel");  // typing into the table is searching
  EXPECT_EQ(Play.FocusName(), "lstpeople_search");
  EXPECT_EQ(Names(), std::vector<QString>({"Ludo", "Kid", "Fetch"}));
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_Down);
  EXPECT_EQ(Page->lstpeople.Key(), 102);
  Play.Key(Qt::Key_F, Qt::ControlModifier);
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Names().size(), 10U);
  EXPECT_EQ(Play.Desk.Top(), Page) << "the first Escape only empties the line";
}

TEST_F(TheTableInTheWindow, OffersAnExampleOfAFilterWhereItIsWhole) {
  Open();
  auto& line = *qobject_cast<QLineEdit*>(Play.See("lstpeople_search"));
  for (const auto& [width, hint] :
       {std::pair(60, "Filter\u2026"), {240, "Filter: Over >60\u2026"}}) {
    line.setFixedWidth(width);
    QApplication::processEvents();
    EXPECT_EQ(line.placeholderText(), QString(hint)) << width;
  }
}

TEST_F(TheTableInTheWindow, LeavesNobodyChosenWhomTheFilterHides) {
  Open();
  Play.ClickRow("lstpeople", 0);
  Play.Key(Qt::Key_F, Qt::ControlModifier);
  Play.Type("heel");
  EXPECT_EQ(Page->lstpeople.Key(), 102) << "the first that is seen";
  EXPECT_EQ(Notes.back(), "picked 102") << "so that what stands beside is about them";
}

TEST_F(TheTableInTheWindow, KeepsTheChosenRowInSightWhenItIsSorted) {
  Page = new PeoplePage(Play.Desk, Notes, false);
  for (int more = 0; more < 60; ++more) Page->lstpeople.Add({"", "More", "", 1}, 200 + more);
  Play.Open(std::unique_ptr<ui::Screen>(Page));
  QApplication::processEvents();
  Play.ClickRow("lstpeople", 0);
  Play.ClickHeading("lstpeople", 3);
  Play.ClickHeading("lstpeople", 3);  // the least first
  QApplication::processEvents();
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  EXPECT_GT(grid.CurrentRow(), 50);
  EXPECT_TRUE(grid.viewport()->rect().contains(grid.visualRect(grid.currentIndex())));
}

TEST_F(TheTableInTheWindow, FiltersAndHidesColumnsByItsMenusAndCopiesWhatIsShown) {
  Open();
  QHeaderView& heading = Play.Grid("lstpeople").Heading();
  emit heading.customContextMenuRequested(QPoint(heading.sectionViewportPosition(2) + 10, 10));
  auto* menu = Play.Window.findChild<QMenu*>("headingmenu");
  ASSERT_NE(menu, nullptr);
  QTest::keyClicks(menu->findChild<QLineEdit*>("columnfilter"), "!Heel");
  menu->close();
  EXPECT_EQ(Names().size(), 5U);
  Play.See("lstpeople_search")->setFocus();
  Play.Type("Bram");
  Play.Click("lstpeople_columns");
  menu = Play.Window.findChild<QMenu*>("columnsmenu");
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions())
    if (action->text() == "Disp.") action->trigger();
  menu->close();
  Play.Grid("lstpeople").setFocus();
  Play.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "#,Name,Over\r\n10,Bram,50\r\n");
}

TEST_F(TheTableInTheWindow, LeadsFromAViewBackToAllColumns) {
  const auto choose = [&](const QString& words) {
    Play.Click("lstpeople_columns");
    const auto* menu = Play.Window.findChild<QMenu*>("columnsmenu");
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions())
      if (action->text() == words) action->trigger();
    delete menu;
  };
  auto page = std::make_unique<PeoplePage>(Play.Desk, Notes);
  page->lstpeople.Views = {{"Short", {"Name", "Over"}}};
  Play.Open(std::move(page));
  choose("Short");
  EXPECT_EQ(Play.TextOf("lstpeople_columns"), "View: Short");
  EXPECT_TRUE(Play.Grid("lstpeople").isColumnHidden(0));
  choose("All");
  EXPECT_EQ(Play.TextOf("lstpeople_columns"), "View: All");
  EXPECT_FALSE(Play.Grid("lstpeople").isColumnHidden(0));
}

TEST_F(TheTableInTheWindow, SortsAndFiltersByKeysAlone) {
  Open();
  Play.Grid("lstpeople").setFocus();
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_F10, Qt::ShiftModifier);
  const auto* menu = Play.Window.findChild<QMenu*>("rowmenu");
  ASSERT_TRUE(menu);
  const auto choose = [&](const char* act) {
    for (QAction* part : menu->actions())
      if (part->text() == act)
        for (QAction* column : part->menu()->actions())
          if (column->text() == "Name") column->trigger();
  };
  choose("Sort by");
  EXPECT_EQ(Names()[1], "Dane");
  choose("Filter");
  QApplication::processEvents();
  auto* line = Play.Window.findChild<QLineEdit*>("columnfilter");
  ASSERT_TRUE(line);
  QTest::keyClicks(line, "Kid");
  EXPECT_EQ(Names(), std::vector<QString>{"Kid"});
}

TEST_F(TheTableInTheWindow, TogglesRowsOfAListThatTakesSeveral) {
  Open(true);
  Play.ClickRow("lstpeople", 0);
  Play.ClickRow("lstpeople", 2);
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_Space);
  EXPECT_EQ(Page->lstpeople.Keys(), std::vector<int>({101, 103, 104}));
  Play.ClickRow("lstpeople", 0);
  EXPECT_EQ(Page->lstpeople.Keys(), std::vector<int>({103, 104}));
}

TEST_F(TheTableInTheWindow, AddsRowsWithCtrlAndShiftAndOffersWhatCanBeDoneToThem) {
  Open();
  Page->lstpeople.Extends = true;
  Page->lstpeople.Acts = {{&Page->cmdback}};
  using Keys = std::vector<int>;
  Play.ClickRow("lstpeople", 1);
  Play.ClickRow("lstpeople", 3, Qt::ControlModifier);
  EXPECT_EQ(Page->lstpeople.Keys(), Keys({102, 104}));
  Play.ClickRow("lstpeople", 5, Qt::ShiftModifier);
  EXPECT_EQ(Page->lstpeople.Keys(), Keys({104, 105, 106})) << "from the one added last";
  Play.Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Page->lstpeople.Keys(), Keys({104, 105, 106, 107}));
  Play.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().count("\r\n"), 5) << "the chosen ones alone";
  Play.Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Page->lstpeople.Keys().size(), 10U);
  Play.Type("heel");
  EXPECT_EQ(Page->lstpeople.Keys(), Keys({102, 104, 106, 108, 110})) << "nobody who is not seen";
  emit Play.Grid("lstpeople").customContextMenuRequested(QPoint(30, 10));
  EXPECT_EQ(Page->lstpeople.Keys().size(), 5U) << "the menu is for all of them";
  for (QAction* action : Play.Window.findChild<QMenu*>("rowmenu")->actions())
    if (action->text() == "Back") action->trigger();
  EXPECT_NE(Play.Top(), "frmPeople");
}

TEST_F(TheTableInTheWindow, SaysWhatHidesItsRowsAndShowsAllByOneKey) {
  Open();
  QHeaderView& heading = Play.Grid("lstpeople").Heading();
  emit heading.customContextMenuRequested(QPoint(heading.sectionViewportPosition(2) + 10, 10));
  auto* menu = Play.Window.findChild<QMenu*>("headingmenu");
  QTest::keyClicks(menu->findChild<QLineEdit*>("columnfilter"), "Heel");
  menu->close();
  Play.See("lstpeople_search")->setFocus();
  Play.Type("Over >90");
  EXPECT_EQ(Play.TextOf("lstpeople_filtered"),
            "0 of 10: \"Over >90\" hides 10, Disp. Heel hides 5");
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_Backspace);
  EXPECT_EQ(Names().size(), 10U);
  EXPECT_FALSE(Play.Sees("lstpeople_filtered"));
}

TEST_F(TheTableInTheWindow, KeepsTheNameInPlaceWhileTheRestScrolls) {
  Open();
  std::vector<ui::Column> columns = Page->lstpeople.Columns();
  for (int more = 0; more < 30; ++more)
    columns.push_back({"A Long Heading " + std::to_string(more), ui::ColumnKind::Number});
  std::vector<ui::ListBox::Row> rows = Page->lstpeople.Rows();
  for (ui::ListBox::Row& row : rows) row.Cells.resize(columns.size(), ui::Cell(1));
  columns.push_back({"Nothing"});
  Page->lstpeople.SetColumns(columns);
  Page->lstpeople.Fill(std::move(rows));
  Play.Window.Sync();
  QApplication::processEvents();
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  const int name = grid.columnWidth(0) + 5, row = grid.rowHeight(0) / 2;
  grid.horizontalScrollBar()->setValue(900);
  EXPECT_EQ(grid.indexAt(QPoint(name, row)).column(), 1);
  EXPECT_EQ(grid.visualRect(grid.indexAt(QPoint(name, row))).left(), grid.columnWidth(0));
  EXPECT_GT(grid.indexAt(QPoint(grid.viewport()->width() - 5, row)).column(), 5);
  EXPECT_TRUE(grid.isColumnHidden(static_cast<int>(columns.size()) - 1)) << "nothing stands in it";
  QTest::mouseClick(grid.Heading().viewport(), Qt::LeftButton, {}, QPoint(name, 10));
  EXPECT_EQ(Names().front(), "Bram") << "its heading sorts by it";
  EXPECT_EQ(grid.horizontalScrollBar()->value(), 900);
}

TEST_F(TheTableInTheWindow, DragsARowToAnothersPlaceWhereTheListLetsIt) {
  Open();
  desktop::TableGrid& grid = Play.Grid("lstpeople");
  const auto drag = [&](int from, int to) {
    const auto at = [&](int row) { return grid.visualRect(grid.model()->index(row, 1)).center(); };
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, at(from));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, at(to));
  };
  drag(1, 3);
  EXPECT_EQ(Notes, Log({"picked 102"})) << "rows stay where nothing is said of moving them";
  Page->lstpeople.OnMove = [&](int from, int to) {
    Notes.push_back("moved " + std::to_string(from) + " to " + std::to_string(to));
  };
  drag(1, 3);
  EXPECT_EQ(Notes.back(), "moved 102 to 104");
  drag(2, 2);
  EXPECT_EQ(Notes.back(), "picked 103");
}

TEST_F(TheTableInTheWindow, FollowsRowsThatComeAndGo) {
  Open();
  Play.ClickRow("lstpeople", 4);
  std::vector<ui::ListBox::Row> rows = Page->lstpeople.Rows();
  rows.erase(rows.begin(), rows.begin() + 2);
  Page->lstpeople.Fill(rows);
  Play.Window.Sync();
  EXPECT_EQ(Names().size(), 8U);
  EXPECT_EQ(Play.Grid("lstpeople").CurrentRow(), 2) << "still on Petey";
  Page->lstpeople.Clear();
  Page->lstpeople.EmptyText = "Nobody yet.";
  Play.Window.Sync();
  EXPECT_TRUE(Names().empty());
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"picked 105"}));
}

TEST(TheSettings, KeepATableAndTheLookBeyondTheProgram) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("settings.ini");
  Log notes;
  int height = 0;
  {
    Player play(file);
    play.Open(std::make_unique<PeoplePage>(play.Desk, notes));
    play.ClickHeading("lstpeople", 1);
    play.Key(Qt::Key_Plus, Qt::ControlModifier);
    height = play.See("cmdback")->height();
    play.See("lstpeople_search")->setFocus();
    play.Type("heel");
    play.Window.close();
  }
  Player again(file);
  again.Open(std::make_unique<PeoplePage>(again.Desk, notes));
  EXPECT_EQ(again.Column("lstpeople", 1),
            std::vector<QString>({"Fetch", "Hattie", "Iron", "Kid", "Ludo"}));
  EXPECT_EQ(again.TextOf("lstpeople_search"), "heel");
  EXPECT_EQ(again.See("cmdback")->height(), height);
  again.Key(Qt::Key_0, Qt::ControlModifier);
}

TEST(TheSettings, KeepTheTablesOfPagesWithTheirGameAndOfNothingElse) {
  Log notes;
  Player play;
  const auto shown = [&](const char* slot, const char* world, ui::Role role, const char* filter) {
    play.Game = {slot, world};
    play.Open(std::make_unique<DeskPage>(play.Desk, notes));
    play.Open(std::make_unique<PeoplePage>(play.Desk, notes, false, role));
    const std::size_t rows = play.Column("lstpeople", 1).size();
    if (*filter) {
      play.See("lstpeople_search")->setFocus();
      play.Type(filter);
    }
    play.Key(Qt::Key_Plus, Qt::ControlModifier);  // makes the views again
    EXPECT_EQ(play.TextOf("lstpeople_search").isEmpty(), rows == 10 && !*filter);
    play.Key(Qt::Key_0, Qt::ControlModifier);
    play.Desk.CloseAll();
    play.Window.Sync();
    return rows;
  };
  const ui::Role page = ui::Role::Page;
  EXPECT_EQ(shown("s1", "a", page, "heel"), 10U);
  EXPECT_EQ(shown("s1", "a", page, ""), 5U);
  EXPECT_EQ(shown("s2", "b", page, ""), 10U) << "another slot";
  EXPECT_EQ(shown("s1", "a", page, ""), 5U);
  EXPECT_EQ(shown("s1", "c", page, ""), 10U) << "another game in the same slot";
  EXPECT_EQ(shown("s1", "a", page, ""), 10U) << "gone with its world";
  EXPECT_EQ(shown("s1", "a", ui::Role::Dialog, "heel"), 10U);
  EXPECT_EQ(shown("s1", "a", ui::Role::Dialog, ""), 10U) << "a picker opens clean";
}

/// A table that is too narrow for its names and its sentences.
class ReasonsPage : public ui::Screen {
 public:
  explicit ReasonsPage(ui::Desk& desk) : Screen(desk, "frmReasons", "Reasons") {
    lstreasons.Add(
        {"A confrontation of Mister Fabulous, Zane Tempest and Alexandra Archer", 5, "Angle",
         "Talk between the matches, by those who can, and a word of why it is so"},
        1);
  }
  ui::Page Layout() override {
    return {.Body = ui::Columns({ui::Group("", {ui::Grow(lstreasons)}).Grow(1),
                                 ui::Group("", {ui::Grow(lstother)}).Grow(1)})};
  }
  ui::ListBox lstreasons{
      *this,
      "lstreasons",
      {{"Segment", ui::ColumnKind::Text, 1},
       {.Title = "Change of the forecast", .Kind = ui::ColumnKind::Number, .Short = "+/-"},
       {"Kind", ui::ColumnKind::Tag},
       {"Why", ui::ColumnKind::Text, 1}}};
  ui::ListBox lstother{*this, "lstother"};
};

TEST(TheWidths, LeaveRoomToReadForTheNameAndForTheSentenceBesideIt) {
  Player play;
  play.Open(std::make_unique<ReasonsPage>(play.Desk));
  const desktop::TableGrid& grid = play.Grid("lstreasons");
  for (const int width : {1024, 1280, 1920}) {
    play.Window.resize(width, 800);
    QApplication::processEvents();
    EXPECT_GE(grid.columnWidth(0), desktop::Px(width > 1024 ? 220 : 180)) << width;
    EXPECT_GE(grid.columnWidth(3), desktop::Px(width > 1024 ? 180 : 120)) << width;
  }
  EXPECT_LT(grid.columnWidth(1), desktop::Px(60)) << "by the short heading";
  EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
            "Change of the forecast");
}

// Buttons that stand in the rows of a table.

/// A list of chores, each with a button; the rows count down, so that sorting turns them round.
class ChorePage : public ui::Screen {
 public:
  ChorePage(ui::Desk& desk, Log& notes) : Screen(desk, "frmChores", "Chores"), notes_(notes) {
    Fill(3);
  }
  ui::Page Layout() override {
    ui::Page page;
    page.Body = ui::Columns(
        {ui::Group("",
                   {ui::WithButtons(lstchores, {&cmddo(1), &cmddo(2), &cmddo(3)}).Grow(), lblnote})
             .Grow(),
         ui::Group("", {ui::Grow(lstlong), lbllong}).Grow()});
    return page;
  }
  void Fill(int rows) {
    lstchores.Clear();
    for (int key = 1; key <= rows; ++key)
      lstchores.Add({std::to_string(rows - key), "Chore " + std::to_string(key)}, key);
    lstlong.Clear();
    for (int key = 1; key <= rows * 40; ++key) lstlong.Add({std::to_string(key)}, key);
  }

 private:
  Log& notes_;

 public:
  ui::Label lblnote{*this, "lblnote"};
  ui::Label lbllong{*this, "lbllong"};
  ui::ListBox lstlong{*this, "lstlong"};
  ui::ListBox lstchores{*this,
                        "lstchores",
                        {{"#"}, {"Chore", ui::ColumnKind::Text, 1}, {"", ui::ColumnKind::Button}},
                        [this] { notes_.push_back("picked " + std::to_string(lstchores.Key())); },
                        [this] { notes_.push_back("opened " + std::to_string(lstchores.Key())); }};
  ui::Array<ui::Button> cmddo{"cmddo", 3, [this](const std::string& full, int key) {
                                return std::make_unique<ui::Button>(*this, full, "Do", [this, key] {
                                  notes_.push_back("did " + std::to_string(key));
                                });
                              }};
};

class RowButtons : public testing::Test {
 protected:
  RowButtons() {
    Page = new ChorePage(Play.Desk, Notes);
    Play.Open(std::unique_ptr<ui::Screen>(Page));
  }
  /// Row and column, as shown from 0, in which a button stands; -1 for none.
  std::pair<int, int> CellOf(const QString& button) {
    const QModelIndex cell = Play.Grid("lstchores").indexAt(Play.See(button)->geometry().center());
    return {cell.row(), cell.column()};
  }

  Log Notes;
  Player Play;
  ChorePage* Page = nullptr;
};

TEST_F(RowButtons, StandInTheRowsOfTheirKeysAndGoWithThem) {
  desktop::TableGrid& grid = Play.Grid("lstchores");
  EXPECT_LE(grid.horizontalHeader()->length(), grid.viewport()->width()) << "it has its room";
  EXPECT_EQ(CellOf("cmddo(1)"), std::pair(0, 2));
  EXPECT_EQ(CellOf("cmddo(3)"), std::pair(2, 2));
  Play.ClickHeading("lstchores", 0);
  EXPECT_EQ(CellOf("cmddo(1)"), std::pair(2, 2));
  EXPECT_EQ(CellOf("cmddo(3)"), std::pair(0, 2));
  Play.Click("cmddo(3)");
  EXPECT_EQ(Notes, Log({"did 3"})) << "the click is the button's alone";
  Page->Fill(2);
  Play.Window.Sync();
  EXPECT_EQ(CellOf("cmddo(2)"), std::pair(0, 2));
  EXPECT_EQ(CellOf("cmddo(3)"), std::pair(-1, -1)) << "it has no row";
}

TEST_F(RowButtons, AListMayShrinkWhileItsNeighbourGrows) {
  Page->lblnote.Text = std::string(2000, 'n');
  Page->lbllong.Text = std::string(2000, 'n');
  Page->Fill(1);
  Play.Window.Sync();
  EXPECT_EQ(Play.Column("lstlong", 0).size(), 40U);
}

ui::Sign SignOfMark(std::string_view word) {
  return word.starts_with("Feud")       ? ui::Sign::Flame
         : word.starts_with("Champion") ? ui::Sign::Crown
                                        : ui::Sign::None;
}

/// A table with the same marks in words and in signs.
class MarkedPage : public ui::Screen {
 public:
  explicit MarkedPage(ui::Desk& desk) : Screen(desk, "frmMarked", "Marked") {
    lstmarks.Add({"Bram", "Feud 71, Late", "Feud 71, Late"}, 1);
    lstmarks.Add({"Lena", "Champion of the coast, Feud 71", "Champion of the coast, Feud 71"}, 2);
  }
  ui::Page Layout() override { return {.Body = ui::Group("", {ui::Grow(lstmarks)})}; }

  ui::ListBox lstmarks{*this,
                       "lstmarks",
                       {{"Name"},
                        {"Words", ui::ColumnKind::Tags},
                        {.Title = "Signs", .Kind = ui::ColumnKind::Tags, .SignOf = SignOfMark}}};
};

TEST(SignsInATable, TakeLittleRoomAndAreReadOutAsWords) {
  Player play;
  play.Open(std::make_unique<MarkedPage>(play.Desk));
  const ui::ListBox& list = dynamic_cast<MarkedPage&>(*play.Desk.Top()).lstmarks;
  const auto width = [&](std::size_t row, std::size_t column) {
    return desktop::CellWidth(list.Rows()[row].Cells[column], list.Columns()[column]);
  };
  EXPECT_LT(width(0, 2), width(0, 1)) << "one word of the two has no sign";
  EXPECT_LT(width(1, 2), width(1, 1) / 2) << "signs alone, and a number";
  const QModelIndex shown = play.Grid("lstmarks").model()->index(0, 2);
  EXPECT_EQ(shown.data(Qt::AccessibleTextRole), "Feud 71, Late");
  const auto pictureOf = [&](int column) {
    desktop::TableGrid& grid = play.Grid("lstmarks");
    return grid.viewport()->grab(grid.visualRect(grid.model()->index(0, column))).toImage();
  };
  EXPECT_NE(pictureOf(1), pictureOf(2));
  QTest::qWait(1);
  QHelpEvent hover(QEvent::ToolTip, play.Grid("lstmarks").visualRect(shown).center(), QPoint(5, 5));
  QApplication::sendEvent(play.Grid("lstmarks").viewport(), &hover);
  EXPECT_TRUE(QToolTip::text().contains("Feud 71, Late")) << QToolTip::text().toStdString();
}

}  // namespace
}  // namespace grapplemont::test
