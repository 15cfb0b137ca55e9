#include "monkey/arranging.h"

#include "monkey/sitting.h"
#include "support/diskstate.h"
#include "ui/arrangedtable.h"
#include "ui/asnumber.h"

namespace grapplemont::test {

namespace {

constexpr const char* kFilters[] = {">50",   "<=3", "20..60",    "Heel|Face", "!None",
                                    "=Face", "a",   ">20 & <90", "!",         "..",
                                    ">",     "",    "\xe9",      "$1000",     "|||"};
constexpr int kTurns = 8;

template <class Table>
int OneOf(Chance& chance, const Table& table) {
  return static_cast<int>(Pick(chance, std::size(table)));
}

void Turn(Chance& chance, ui::Table& table, int columns) {
  const int column = static_cast<int>(Pick(chance, static_cast<std::uint64_t>(columns)));
  switch (Pick(chance, 7)) {
    case 0:
      return table.Sorts(column) ? table.TurnSort(column, Pick(chance, 2) == 0) : void();
    case 1:
      return table.SetFilter(column, kFilters[OneOf(chance, kFilters)]);
    case 2:
      return table.SetSearch(kFilters[OneOf(chance, kFilters)]);
    case 3:
      return table.Show(column, Pick(chance, 2) == 0);
    case 4:
      return table.KeepView("Mine");
    case 5: {
      const auto views = table.Views();
      return views.empty() ? void() : table.TakeView(views[Pick(chance, views.size())]);
    }
    default:
      return Pick(chance, 2) == 0 ? table.ClearFilters() : table.ResetColumns();
  }
}

/// Every row that is shown is one of the list, once; the state comes back from its own text.
void Look(const ui::ListBox& list, const ui::Table& table) {
  std::vector<bool> shown(list.Rows().size());
  for (const int row : table.Rows()) {
    const auto at = static_cast<std::size_t>(row);
    if (at >= shown.size() || shown[at])
      throw FoundFault("rows of a table", list.Name() + " shows a row twice or one that is not");
    shown[at] = true;
  }
  if (!(ui::ReadTableState(ui::Written(table.State())) == table.State()))
    throw FoundFault("state of a table",
                     list.Name() + " does not keep its state: " + ui::Written(table.State()));
  table.Csv();
  table.Hiders();
}

}  // namespace

std::string Arrange(ui::Screen& screen, std::string_view what) {
  const std::string_view name = what.substr(0, what.find(' '));
  const auto seed = ui::AsNumber(what.substr(std::min(what.size(), name.size() + 1)));
  const auto* list = dynamic_cast<const ui::ListBox*>(screen.Find(name));
  if (!list || !seed || list->Columns().empty()) return "there is no such table";
  Chance chance(static_cast<std::uint64_t>(*seed));
  ui::Table table(*list);
  for (int turn = 0; turn < kTurns; ++turn) {
    Turn(chance, table, static_cast<int>(list->Columns().size()));
    Look(*list, table);
  }
  return {};
}

}  // namespace grapplemont::test
