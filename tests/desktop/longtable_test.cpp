#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "desktop/player.h"

// A table of very many rows, most of which nobody ever looks at.

namespace grapplemont::test {
namespace {

constexpr int kMany = 20000;

class ManyPage : public ui::Screen {
 public:
  explicit ManyPage(ui::Desk& desk) : Screen(desk, "frmMany", "Many") {
    std::vector<int> keys;
    for (int key = 1; key <= kMany; ++key) keys.push_back(key);
    lstmany.FillLate(keys, [this](int key, int column) {
      ++Made;
      Rows.insert(key);
      const std::string number = std::to_string(kMany - key);
      return column == 0 ? ui::Cell("Worker " + number) : ui::Cell(key % 100);
    });
    lstmany.Select(1);
  }
  ui::Page Layout() override { return {.Body = ui::Group("", {ui::Grow(lstmany)})}; }

  int Made = 0;
  std::set<int> Rows;
  ui::ListBox lstmany{*this, "lstmany", {{"Name"}, {"Over", ui::ColumnKind::Number}}};
};

TEST(AVeryLongTable, OpensAndScrollsWithoutMakingItsRows) {
  Player play;
  play.Open(std::make_unique<ManyPage>(play.Desk));
  auto& page = dynamic_cast<ManyPage&>(*play.Desk.Top());
  play.Window.grab();
  EXPECT_LT(std::ssize(page.Rows), kMany / 5) << "some are measured, and those in sight are made";
  page.Rows.clear();
  play.Grid("lstmany").setFocus(Qt::TabFocusReason);
  play.Key(Qt::Key_End);
  play.Window.grab();
  EXPECT_LT(std::ssize(page.Rows), 100);
  EXPECT_EQ(page.lstmany.Key(), kMany);
  page.Made = 0;
  play.ClickHeading("lstmany", 1);
  play.Window.grab();
  EXPECT_LT(page.Made, kMany * 3 / 2) << "it is sorted by the one column";
  EXPECT_EQ(play.Grid("lstmany").model()->index(0, 1).data().toString(), "99");
}

}  // namespace
}  // namespace grapplemont::test
