#include <gtest/gtest.h>

#include "desktop/player.h"

// Buttons that stand in the rows of a table.

namespace grapplemont::test {
namespace {

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
    Play.Desk.Open(std::unique_ptr<ui::Screen>(Page));
    Play.Window.Sync();
  }
  /// The row, as shown from 0, in which a button stands; -1 for none.
  int RowOf(const QString& button) {
    const QWidget* widget = Play.See(button);
    return Play.Grid("lstchores").indexAt(widget->geometry().center()).row();
  }
  int ColumnOf(const QString& button) {
    const QWidget* widget = Play.See(button);
    return Play.Grid("lstchores").indexAt(widget->geometry().center()).column();
  }

  Log Notes;
  Player Play;
  ChorePage* Page = nullptr;
};

TEST_F(RowButtons, StandInTheRowsOfTheirKeys) {
  for (int key = 1; key <= 3; ++key) {
    const QString name = QString("cmddo(%1)").arg(key);
    EXPECT_EQ(RowOf(name), key - 1);
    EXPECT_EQ(ColumnOf(name), 2);
  }
  Play.Click("cmddo(2)");
  EXPECT_EQ(Notes, Log({"did 2"})) << "the click is the button's alone";
}

TEST_F(RowButtons, GoWithTheirRowsWhenTheTableIsSorted) {
  Play.ClickHeading("lstchores", 0);
  EXPECT_EQ(RowOf("cmddo(1)"), 2);
  EXPECT_EQ(RowOf("cmddo(3)"), 0);
  Play.Click("cmddo(3)");
  EXPECT_EQ(Notes, Log({"did 3"}));
}

TEST_F(RowButtons, StandOutOfSightWithoutARow) {
  Page->Fill(2);
  Play.Window.Sync();
  EXPECT_EQ(RowOf("cmddo(1)"), 0);
  EXPECT_EQ(RowOf("cmddo(3)"), -1);
}

TEST_F(RowButtons, TheTableFitsIntoItsRoom) {
  desktop::TableGrid& grid = Play.Grid("lstchores");
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
}

TEST_F(RowButtons, AListMayShrinkWhileItsNeighbourGrows) {
  Page->lblnote.Text = std::string(2000, 'n');
  Page->lbllong.Text = std::string(2000, 'n');
  Page->Fill(1);
  Play.Window.Sync();
  EXPECT_EQ(Play.Column("lstlong", 0).size(), 40U);
}

}  // namespace
}  // namespace grapplemont::test
