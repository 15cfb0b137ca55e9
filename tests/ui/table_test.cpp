#include "ui/arrangedtable.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/samplescreen.h"
#include "support/scriptdesk.h"
#include "ui/filter.h"

namespace grapplemont::test {
namespace {

using K = ui::ColumnKind;

struct FilterRow {
  const char* Expression;
  ui::Cell Cell;
  K Kind;
  bool Fits;
};

TEST(AFilter, UnderstandsWhatPeopleType) {
  const ui::Cell over70(70), heel("Heel"), injured("Knee Injury, 3 m"), wage(1284500, "$1,284,500");
  const ui::Cell march(46090, "09/03/2026");  // 46090 days from 30 December 1899
  const FilterRow kRows[] = {
      {">70", over70, K::Number, false},
      {">=70", over70, K::Number, true},
      {"<70.5", over70, K::Number, true},
      {"==7", over70, K::Number, false},
      {"!=70", over70, K::Number, false},
      {"7", over70, K::Number, true},
      {"60..80", over70, K::Percent, true},
      {"71 .. 80", over70, K::Percent, false},
      {">20 & <30", over70, K::Number, false},
      {"<30 | >60", over70, K::Number, true},
      {">-5", over70, K::Number, true},
      {">1.2m", wage, K::Number, true},
      {">$1300k", wage, K::Number, false},
      {"Heel|Tweener", heel, K::Tag, true},
      {"!Heel|Face", heel, K::Tag, false},
      {"!Face|Tweener", heel, K::Tag, true},
      {"=hee", heel, K::Tag, false},
      {"=HEEL", heel, K::Tag, true},
      {"!Injur", injured, K::Percent, false},
      {">G", heel, K::Text, true},
      {"..", heel, K::Text, false},
      {"<10/03/2026", march, K::Date, true},
      {">9/3/26", march, K::Date, false},
      {"=2026-03-09", march, K::Date, true},
      {"elan",
       ui::Cell("\xC9lan \x8C"
                "arl"),
       K::Text, true},
      {"\xDF",
       ui::Cell("Stra\xDF"
                "e"),
       K::Text, true},
  };
  for (const FilterRow& row : kRows)
    EXPECT_EQ(ui::Filter(row.Expression).Fits(row.Cell, row.Kind), row.Fits)
        << row.Expression << " on " << row.Cell.Text;
}

TEST(AFilter, ThatIsHalfTypedLetsEveryCellPass) {
  for (const char* half : {"", "  ", ">", "!", "<=", "|", "!|", "&", "> |"}) {
    EXPECT_TRUE(ui::Filter(half).Empty()) << half;
    EXPECT_TRUE(ui::Filter(half).Fits(ui::Cell("anything"), K::Text)) << half;
  }
}

class TheTable : public testing::Test {
 protected:
  TheTable() {
    List.SetColumns({{"Name"}, {"Disp.", K::Tag}, {"Over", K::Number}, {"Condition", K::Percent}});
    List.Clear();
    List.Add({"Bram Okafor", "Face", 78, 92}, 11);
    List.Add({"Ludo Marsh", "Heel", 74, 71}, 12);
    List.Add({"\xC1goston", "Heel", 61, ui::Cell("Knee Injury")}, 13);
    List.Add({"Kid Comet", "Tweener", 47, 93}, 14);
    List.Add({"Old Man Fetch", "Heel", 61, 66}, 15);
    Table.Follow();
  }
  std::vector<int> Keys() const {
    std::vector<int> keys;
    for (int row = 0; row < static_cast<int>(Table.Rows().size()); ++row)
      keys.push_back(Table.KeyAt(row));
    return keys;
  }
  using Numbers = std::vector<int>;

  ScriptDesk Desk;
  std::vector<std::string> Log;
  ui::ListBox& List = SampleScreen::On(Desk, Log).lstpeople;
  ui::Table Table{List};
};

TEST_F(TheTable, SearchesAllColumnsInOneLine) {
  const std::pair<const char*, Numbers> kLines[] = {
      {"", {11, 12, 13, 14, 15}},
      {"heel", {12, 13, 15}},
      {"Over >60, Heel", {12, 13, 15}},
      {"over>60,heel,!injury", {12, 15}},
      {"Disp: Face|Tweener", {11, 14}},
      {"disp.=Heel, cond <70", {13, 15}},  // a word in a number's column counts as 0
      {"ov >70", {11, 12}},
      {">90", {11, 14}},
      {"agoston", {13}},
      {"Over >", {11, 12, 13, 14, 15}},
      {"Weight >60", {}},
      {"!Heel|Face", {14}},
      {" , ,", {11, 12, 13, 14, 15}},
  };
  for (const auto& [line, keys] : kLines) {
    Table.SetSearch(line);
    EXPECT_EQ(Keys(), keys) << line;
  }
}

TEST_F(TheTable, JoinsTheFiltersOfItsColumns) {
  Table.SetFilter(1, "Heel");
  Table.SetFilter(2, ">61");
  EXPECT_EQ(Keys(), Numbers({12}));
  EXPECT_TRUE(Table.Filtered());
  Table.SetFilter(2, "");
  EXPECT_EQ(Keys(), Numbers({12, 13, 15}));
  EXPECT_EQ(Table.ShownRow(2), 1);
  EXPECT_EQ(Table.ShownRow(0), -1);
  Table.ClearFilters();
  EXPECT_FALSE(Table.Filtered());
}

TEST_F(TheTable, SortsByAColumnThenByASecond) {
  Table.TurnSort(2, false);
  EXPECT_EQ(Keys(), Numbers({11, 12, 13, 15, 14})) << "numbers fall first, equals as they were";
  Table.TurnSort(0, true);
  EXPECT_EQ(Keys(), Numbers({11, 12, 13, 15, 14})) << "Agoston with an accent before Old Man";
  Table.TurnSort(0, true);
  EXPECT_EQ(Keys(), Numbers({11, 12, 15, 13, 14}));
  EXPECT_EQ(Table.SortPlace(2), 1);
  EXPECT_EQ(Table.SortPlace(0), 2);
  EXPECT_TRUE(Table.SortsDown(0));
  Table.TurnSort(0, true);
  EXPECT_EQ(Table.SortPlace(0), 0) << "a third time takes the key away";
  Table.TurnSort(2, false);
  EXPECT_EQ(Keys(), Numbers({14, 13, 15, 12, 11}));
  Table.TurnSort(2, false);
  EXPECT_EQ(Keys(), Numbers({11, 12, 13, 14, 15})) << "and back to the list's own order";
  List.Add({"Sister Calamity", "", 90}, 16);
  Table.Follow();
  for (int way = 0; way < 2; ++way) {
    Table.TurnSort(1, false);
    EXPECT_EQ(Keys().back(), 16) << "a row without a text comes last both ways";
  }
}

TEST_F(TheTable, KeepsItsStateWhenTheRowsChange) {
  Table.TurnSort(2, false);
  Table.SetFilter(1, "Heel");
  List.Fill({{{"New Heel", "Heel", 99, 1}, 21},
             {{"New Face", "Face", 98, 1}, 22},
             {{"Low Heel", "Heel", 3, 1}, 23}});
  EXPECT_TRUE(Table.Follow());
  EXPECT_EQ(Keys(), Numbers({21, 23}));
  List.Select(2);
  EXPECT_FALSE(Table.Follow()) << "picking is not a change of contents";
}

TEST_F(TheTable, LeavesRowsInTheirOrderWhereTheyCanBeMoved) {
  Table.TurnSort(2, true);
  Table.TurnSort(2, true);
  ASSERT_EQ(Keys().front(), 14);
  List.OnMove = [](int, int) {};
  EXPECT_EQ(ui::Table(List, Table.State()).Rows(), Numbers({0, 1, 2, 3, 4})) << "though it is kept";
  Table.TurnSort(0, false);
  EXPECT_EQ(Table.SortPlace(0), 0);
}

TEST_F(TheTable, HidesAndMovesColumnsButNeverAll) {
  Table.SetOrder({2, 0, 1, 3});
  Table.Show(1, false);
  EXPECT_EQ(Table.Columns(), Numbers({2, 0, 3}));
  Table.Show(2, false);
  Table.Show(0, false);
  Table.Show(3, false);
  EXPECT_EQ(Table.Columns(), Numbers({3})) << "the last one stays";
  Table.Show(1, true);
  EXPECT_EQ(Table.Columns(), Numbers({1, 3}));
  Table.ResetColumns();
  EXPECT_EQ(Table.Columns(), Numbers({0, 1, 2, 3}));
}

TEST_F(TheTable, CopiesWhatItShowsAsCsv) {
  Table.SetFilter(1, "Heel");
  Table.Show(1, false);
  Table.SetOrder({2, 0, 3});
  List.Add({"A \"Quoted\", Name", "Heel", ui::Cell(1000, "$1,000"), 5}, 17);
  Table.Follow();
  EXPECT_EQ(Table.Csv(),
            "Over,Name,Condition\r\n"
            "74,Ludo Marsh,71\r\n"
            "61,\xC1goston,Knee Injury\r\n"
            "61,Old Man Fetch,66\r\n"
            "\"$1,000\",\"A \"\"Quoted\"\", Name\",5\r\n");
}

TEST_F(TheTable, ShowsItsViewsAndThePlayersOwn) {
  List.Views = {{"Short", {"Over", "Name"}}};
  Table.TakeView("Short");
  EXPECT_EQ(Table.Columns(), Numbers({2, 0}));
  Table.Show(3, true);
  EXPECT_EQ(Table.State().View, "") << "changed, it is not a view any more";
  Table.TurnSort(2, false);
  Table.SetFilter(1, "Heel");
  Table.KeepView("Mine");
  Table.ResetColumns();
  Table.ClearFilters();
  Table.TurnSort(2, false);
  EXPECT_EQ(Table.Views(), std::vector<std::string>({"Short", "Mine"}));
  Table.TakeView("Mine");
  EXPECT_EQ(Table.Columns(), Numbers({2, 0, 3}));
  EXPECT_EQ(Keys(), Numbers({12, 13, 15}));
  EXPECT_TRUE(Table.SortsDown(2));
  EXPECT_EQ(Table.HidingText(), "Disp. Heel hides 2");
  Table.ForgetView("Mine");
  EXPECT_EQ(Table.Views(), std::vector<std::string>({"Short"}));
}

TEST(ATableState, ComesBackFromItsText) {
  ui::TableState state;
  state.Sort = {{"Over", true}, {"A; strange: name\\", false}};
  state.Filters = {{"Disp.", "Heel|Tweener"}, {"#2", ">70; <80:"}};
  state.Search = "Over >60, Heel";
  state.Order = {"Over", "Name"};
  state.Hidden = {"Wage"};
  state.Widths = {{"Name", 140}};
  state.View = "Mine; too";
  state.Own = {{"Mine; too", "hide:Over;order:Name\\:;"}};
  state.TopRow = 12;
  state.CurrentKey = 4711;
  EXPECT_EQ(ui::ReadTableState(ui::Written(state)), state);
  EXPECT_EQ(ui::ReadTableState(ui::Written({})), ui::TableState());
}

TEST(ATableState, CanBeReadFromAnyText) {
  for (const char* text : {";;;", "up", "up:", "place:x:y", "down:A;down:B;down:C", "\\",
                           "filter:a", "width:Name:99999999999999999999;", "nonsense:1:2:3:4"})
    EXPECT_LE(ui::ReadTableState(text).Sort.size(), 2U) << text;
  EXPECT_EQ(ui::ReadTableState("down:Over;what:1;search:x").Search, "x");
}

TEST_F(TheTable, MakesRowsThatComeLateWhereTheyAreLookedAt) {
  const std::vector<ui::ListBox::Row> whole = List.Rows();
  std::vector<int> keys, asked;
  for (const ui::ListBox::Row& row : whole) keys.push_back(row.Key);
  List.SelectKey(13);
  List.FillLate(keys, [&](int key, int column) {
    asked.push_back(key);
    return std::ranges::find(whole, key, &ui::ListBox::Row::Key)
        ->Cells[static_cast<std::size_t>(column)];
  });
  EXPECT_TRUE(Table.Follow());
  EXPECT_EQ(List.Key(), 13) << "what was chosen stays so";
  Table.SetFilter(1, "!Face");
  Table.TurnSort(2, false);
  EXPECT_EQ(Keys(), Numbers({12, 13, 15, 14}));
  asked.clear();
  EXPECT_EQ(Table.At(0, 0).Text, "Ludo Marsh");
  EXPECT_EQ(Table.At(0, 3).Text, "71");
  EXPECT_EQ(asked, Numbers({12, 12, 12, 12})) << "the one row, once";
  EXPECT_EQ(Table.Csv(), ui::Table(List, Table.State()).Csv());
  for (std::size_t row = 0; row < whole.size(); ++row)
    EXPECT_EQ(List.Rows()[row].Cells, whole[row].Cells) << row;
  List.Fill(whole);
  asked.clear();
  EXPECT_EQ(List.RowOf(2).Cells, whole[1].Cells);
  EXPECT_TRUE(asked.empty()) << "they all came whole";
}

TEST_F(TheTable, IgnoresAStateOfColumnsThatAreGone) {
  ui::TableState state;
  state.Sort = {{"Gone", true}};
  state.Filters = {{"Gone", ">5"}};
  state.Order = {"Gone", "Over"};
  state.Hidden = {"Gone", "Name", "Disp.", "Over", "Condition"};
  const ui::Table table(List, state);
  EXPECT_EQ(table.Rows().size(), 5U);
  EXPECT_EQ(table.Columns().size(), 4U) << "they are not all hidden";
  EXPECT_EQ(table.Columns().front(), 2);
}

}  // namespace
}  // namespace grapplemont::test
