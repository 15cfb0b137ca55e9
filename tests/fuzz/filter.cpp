#include <algorithm>

#include "fuzz/quietdesk.h"
#include "fuzz/target.h"
#include "support/samplescreen.h"
#include "ui/arrangedtable.h"
#include "ui/filter.h"

// What is typed to see fewer rows of a table, and how a table was kept: four lines (a column's
// filter, the search, a kept state, the cells that are met), whatever stands in them.

namespace grapplemont::fuzz {
namespace {

std::string NextLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string line(text.substr(0, end));
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

ui::ListBox& AList(std::string_view cells) {
  static QuietDesk desk;
  static std::vector<std::string> log;
  static ui::ListBox& list = test::SampleScreen::On(desk, log).lstpeople;
  list.Clear();
  int key = 0;
  while (!cells.empty() && key < 32) {
    const std::string cell = NextLine(cells);
    if (key % 3 == 0)
      list.Add({cell}, ++key);  // a row without its last cells
    else
      list.Add({cell, ui::Cell(static_cast<double>(cell.size()), cell)}, ++key);
  }
  return list;
}

void RequireItsState(const ui::TableState& state) {
  const std::string written = ui::Written(state);
  Require(written.find('\n') == written.npos, "a state is more than a line");
  Require(ui::ReadTableState(written) == state, "a state comes back different: " + written);
}

void Arrange(ui::ListBox& list, const ui::TableState& state, const std::string& filter,
             const std::string& search) {
  ui::Table table(list, state);
  const auto rows = list.Rows().size();
  const auto look = [&] {
    table.Follow();
    Require(table.Rows().size() <= rows, "rows come from nowhere");
    Require(!table.Columns().empty(), "no column is left");
    table.HidingText();
    RequireItsState(table.State());
  };
  look();
  table.SetFilter(1, filter);
  table.SetSearch(search);
  table.TurnSort(0, false);
  table.TurnSort(1, true);
  look();
  Require(table.Csv().ends_with("\r\n"), "a line has no end");
  table.KeepView(search);
  table.ClearFilters();
  Require(!table.Filtered(), "rows are hidden by nothing");
  look();
  if (table.IsOwnView(search)) table.TakeView(search);
  look();
}

void Read(ByteSpan bytes) {
  std::string_view text = TextOf(bytes);
  const std::string filter = NextLine(text), search = NextLine(text), kept = NextLine(text);
  ui::ListBox& list = AList(text);
  constexpr ui::ColumnKind kKinds[] = {ui::ColumnKind::Text,    ui::ColumnKind::Number,
                                       ui::ColumnKind::Percent, ui::ColumnKind::Tag,
                                       ui::ColumnKind::Tags,    ui::ColumnKind::Date};
  const ui::Filter wanted(filter);
  for (const ui::ColumnKind kind : kKinds)
    for (const auto& row : list.Rows())
      for (const ui::Cell& cell : row.Cells)
        Require(wanted.Fits(cell, kind) || !wanted.Empty(), "an empty filter hides a row");
  const std::string folded = ui::Folded(filter);
  Require(ui::Folded(folded) == folded, "what was folded folds again");
  const ui::TableState state = ui::ReadTableState(kept);
  RequireItsState(state);
  Arrange(list, state, filter, search);
}

const Registered kFilter({.Name = "filter", .Run = Read, .Cases = 500, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
