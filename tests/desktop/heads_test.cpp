#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <array>

#include "desktop/player.h"
#include "desktop/tablecells.h"
#include "ui/controlarray.h"

// How heads, cards and tables share the room of a page.

namespace grapplemont::test {
namespace {

/// Of few rows in a page of much room.
TEST(TheTables, KeepTheirColumnsTogetherAndAnEmptyOneLeavesItsRoomToAnother) {
  class Lists : public ui::Screen {
   public:
    explicit Lists(ui::Desk& desk) : Screen(desk, "frmLists", "Lists") {
      for (int row = 1; row <= 12; ++row) lstnext.Add({"Zane Tempest", "Heel", row}, row);
    }
    ui::Page Layout() override {
      return {.Body = ui::Rows({ui::Group("Members", {ui::Grow(lstmembers)}).Grow(),
                                ui::Group("Next", {ui::Grow(lstnext)}).Grow()})};
    }
    ui::ListBox lstmembers{*this, "lstmembers", {{"Name"}}};
    ui::ListBox lstnext{*this, "lstnext", {{"Name"}, {"Side"}, {"Over", ui::ColumnKind::Number}}};
  };
  Player play;
  play.Open(std::make_unique<Lists>(play.Desk));
  play.Window.resize(1920, 1000);
  QApplication::processEvents();
  const desktop::TableGrid& next = play.Grid("lstnext");
  EXPECT_GT(next.height(), 2 * play.Grid("lstmembers").height());
  EXPECT_LT(next.columnViewportPosition(2), 600) << "beside what it belongs to";
  EXPECT_GT(next.viewport()->width(), 1700);
  EXPECT_FALSE(play.Sees("lstnext_search")) << "twelve rows are overseen at once";
  play.Desk.Event([&] {
    auto& lists = dynamic_cast<Lists&>(*play.Desk.Top());
    for (int row = 1; row <= 20; ++row) lists.lstmembers.Add({"Zane Tempest"}, row);
  });
  play.Window.Sync();
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
  EXPECT_NEAR(next.height(), play.Grid("lstmembers").height(), 80);
}

/// News of which the day and its kind leave the story no room.
TEST(TheTables, BeginWithWhatIsReadFirstWhereItWouldBeAStump) {
  class Stories : public ui::Screen {
   public:
    explicit Stories(ui::Desk& desk) : Screen(desk, "frmStories", "Stories") {
      lststories.Add({"15/05/26", "Departure", "Coastal Wrestling Alliance",
                      "Somebody has left whom all of us will miss"},
                     1);
    }
    ui::Page Layout() override {
      return {.Body = ui::Columns({ui::Group("", {ui::Grow(lststories)}).Grow(1),
                                   ui::Group("", {ui::Grow(lstother)}).Grow(2)})};
    }
    ui::ListBox lststories{*this,
                           "lststories",
                           {{"Date", ui::ColumnKind::Date, 2},
                            {"What", ui::ColumnKind::Tag, 2},
                            {"Who", ui::ColumnKind::Tag, 2},
                            {"Story", ui::ColumnKind::Text, 14}}};
    ui::ListBox lstother{*this, "lstother"};
  };
  Player play;
  play.Window.resize(1024, 640);
  play.Open(std::make_unique<Stories>(play.Desk));
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
  const desktop::TableGrid& grid = play.Grid("lststories");
  grid.viewport()->grab();
  const int story = grid.columnViewportPosition(3);
  EXPECT_GE(grid.viewport()->width() - story, desktop::Px(80));
  EXPECT_GE(story, 0);
}

/// A narrow table whose bars have to leave.
class HurtPage : public ui::Screen {
 public:
  explicit HurtPage(ui::Desk& desk) : Screen(desk, "frmHurt", "Hurt") {
    lsthurt.Add({"Zane Tempest", {40, "Suspended", ui::Tone::Red}, 88, "A torn calf"}, 1);
    lsthurt.Add({"Mister Fabulous", 100, 7, "A walk by the sea, and no match that he lost"}, 2);
  }
  ui::Page Layout() override {
    return {.Body = ui::Columns({ui::Group("", {ui::Grow(lsthurt)}).Grow(2),
                                 ui::Group("", {ui::Grow(lstother)}).Grow(3)})};
  }
  ui::ListBox lsthurt{*this,
                      "lsthurt",
                      {{"Name", ui::ColumnKind::Text, 1},
                       {"C.", ui::ColumnKind::Percent},
                       {"M.", ui::ColumnKind::Percent},
                       {"Why", ui::ColumnKind::Text, 1}}};
  ui::ListBox lstother{*this, "lstother"};
};

TEST(TheTables, KeepTheTagsOfAColumnWhoseBarsLeave) {
  Player play;
  play.Window.resize(1024, 800);
  HurtPage* const page = new HurtPage(play.Desk);
  play.Open(std::unique_ptr<ui::Screen>(page));
  QApplication::processEvents();
  const desktop::TableGrid& grid = play.Grid("lsthurt");
  const ui::ListBox::Row row = page->lsthurt.RowOf(1);
  const int tag = desktop::CellWidth(row.Cells[1], page->lsthurt.Columns()[1]);
  EXPECT_GE(grid.columnWidth(1), tag);
  EXPECT_LT(grid.columnWidth(1), tag + desktop::Px(desktop::kBarRoom) / 2) << "the bars have left";
}

TEST(TheHead, KeepsItsMainActionInTheTitlesLineAndFoldsTheOthers) {
  class Acts : public ui::Screen {
   public:
    explicit Acts(ui::Desk& desk) : Screen(desk, "frmActs", "A page of acts") {}
    ui::Page Layout() override {
      std::vector<ui::Button*> actions;
      for (int act = 1; act <= cmdact.Count(); ++act) actions.push_back(&cmdact(act));
      return {.Actions = std::move(actions),
              .Main = &cmdact(1),
              .Cancel = &cmdact(2),
              .Body = ui::Rows({lblmore})};
    }
    ui::Label lblmore{*this, "lblmore", "There is more."};
    std::vector<int> Pressed;
    ui::Array<ui::Button> cmdact{"cmdact", 8, [this](const std::string& name, int act) {
                                   return std::make_unique<ui::Button>(
                                       *this, name, "Do it " + std::to_string(act),
                                       [this, act] { Pressed.push_back(act); });
                                 }};
  };
  Player play;
  play.Open(std::make_unique<Acts>(play.Desk));
  auto& acts = dynamic_cast<Acts&>(*play.Desk.Top());
  for (const auto& [percent, folds] : {std::pair(100, false), std::pair(200, true)}) {
    play.Window.resize(1024, 640);
    play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * (percent - 100) / 100);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    EXPECT_EQ(play.Sees("pagemore"), folds) << percent;
    EXPECT_EQ(play.Sees("cmdact(3)"), !folds) << percent;
    EXPECT_TRUE(play.Sees("cmdact(2)")) << percent << ": the way back folds last";
    const QWidget& gold = *play.See("cmdact(1)");
    const QWidget& title = *play.See("title");
    const int line = title.mapTo(&play.Window, title.rect().center()).y();
    EXPECT_NEAR(gold.mapTo(&play.Window, gold.rect().center()).y(), line, 4) << percent;
  }
  play.Click("pagemore");
  auto* menu = play.Window.findChild<QMenu*>("pagemoremenu");
  ASSERT_TRUE(menu);
  ASSERT_FALSE(menu->actions().isEmpty());
  EXPECT_EQ(menu->actions().front()->text(), "Do it 3");
  menu->actions().front()->trigger();
  menu->close();
  EXPECT_EQ(acts.Pressed, std::vector<int>{3});
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

TEST(TheForms, BeginAtOneEdgeAndHaveTheirLabelsAllAboveOrAllBeside) {
  class Forms : public ui::Screen {
   public:
    explicit Forms(ui::Desk& desk) : Screen(desk, "frmForms", "A page of forms") {}
    ui::Page Layout() override {
      return {.Body =
                  ui::Columns({ui::Rows({ui::Group("Who", {ui::Field("Full name", txtname)}),
                                         ui::Group("Deal", {ui::Field("Months left", txtmonths)})}),
                               ui::Rows({ui::Group("Pay", {ui::Field("Wage", txtwage)})}),
                               ui::Rows({lblmore})})};
    }
    ui::TextBox txtname{*this, "txtname", "", 40};
    ui::TextBox txtmonths{*this, "txtmonths", "", 2};
    ui::TextBox txtwage{*this, "txtwage", "", 2};
    ui::Label lblmore{*this, "lblmore", "There is more."};
  };
  Player play;
  play.Open(std::make_unique<Forms>(play.Desk));
  const auto placeOf = [&](const QWidget* part) { return part->mapTo(&play.Window, QPoint()); };
  const auto labelOf = [&](const char* field) -> const QLabel* {
    for (const QLabel* label : play.Window.findChildren<QLabel*>())
      if (label->buddy() == play.See(field)) return label;
    return nullptr;
  };
  const std::array kFields = {"txtname", "txtmonths", "txtwage"};
  for (const auto& [wide, above] : {std::pair(1300, false), std::pair(1024, true)}) {
    play.Window.resize(wide, 800);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    EXPECT_EQ(placeOf(play.See("txtname")).x(), placeOf(play.See("txtmonths")).x()) << wide;
    for (const char* field : kFields) {
      const QLabel* label = labelOf(field);
      ASSERT_TRUE(label) << field;
      const bool isAbove = placeOf(label).y() + label->height() <= placeOf(play.See(field)).y();
      EXPECT_EQ(isAbove, above) << field << ": a name needs the room, and all do as it does";
    }
  }
}

}  // namespace
}  // namespace grapplemont::test
