#include <gtest/gtest.h>

#include <set>

#include "support/gameonworld.h"

// The columns that are looked at together.

namespace grapplemont::test {
namespace {

TEST(TheViews, NameColumnsThatTheListsHave) {
  GameOnWorld play(
      SmallWorld().Promotion("CWA", kCult).Worker("Bram Okafor", kMainEvent, 60).Game("CWA"));
  std::set<std::string> titles, named;
  for (const char* screen : {"frmRoster", "frmOtherWres"}) {
    play.Desk.Open(screen);
    const auto& list = dynamic_cast<const ui::ListBox&>(*play.Desk.Top()->Find("lstwres"));
    for (const ui::Column& column : list.Columns()) titles.insert(column.Title);
    for (const ui::ListBox::View& view : list.Views)
      named.insert(view.Columns.begin(), view.Columns.end());
    play.Desk.Click("cmdback");
  }
  EXPECT_FALSE(named.empty());
  for (const std::string& name : named) EXPECT_TRUE(titles.contains(name)) << name;
}

}  // namespace
}  // namespace grapplemont::test
