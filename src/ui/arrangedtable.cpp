#include "ui/arrangedtable.h"

#include <algorithm>
#include <compare>

#include "ui/filter.h"

namespace grapplemont::ui {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

}  // namespace

std::string ColumnId(const std::vector<Column>& columns, int column) {
  const std::string& title = columns[Index(column)].Title;
  return title.empty() ? "#" + std::to_string(column + 1) : title;
}

Table::Table(const ListBox& list, TableState state, CellReader reads)
    : list_(list), state_(std::move(state)), reads_(std::move(reads)) {
  Follow();
}

bool Table::Follow() {
  if (seen_ == list_.Contents()) return false;
  seen_ = list_.Contents();
  ArrangeColumns();
  ArrangeRows();
  return true;
}

const Cell& Table::At(int shownRow, int listColumn) const {
  static const Cell kNone("");
  const std::vector<Cell>& cells = list_.RowOf(ListRow(shownRow)).Cells;
  return Index(listColumn) < cells.size() ? cells[Index(listColumn)] : kNone;
}

Cell Table::CellAt(int shownRow, int listColumn) const {
  return list_.CellOf(ListRow(shownRow), listColumn);
}

int Table::KeyAt(int shownRow) const {
  return list_.KeyOf(ListRow(shownRow));
}

bool Table::IsSelected(int shownRow) const {
  return list_.IsSelected(ListRow(shownRow));
}

int Table::ShownRow(int listRow) const {
  const auto found = std::find(rows_.begin(), rows_.end(), listRow);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void Table::ArrangeColumns() {
  const int count = static_cast<int>(list_.Columns().size());
  columns_.clear();
  const auto place = [&](int column) {
    if (std::find(columns_.begin(), columns_.end(), column) == columns_.end())
      columns_.push_back(column);
  };
  for (const std::string& id : state_.Order)
    for (int column = 0; column < count; ++column)
      if (Id(column) == id) place(column);
  for (int column = 0; column < count; ++column) place(column);
  const auto hidden = [&](int column) { return state_.Hidden.contains(Id(column)); };
  if (!std::ranges::all_of(columns_, hidden)) std::erase_if(columns_, hidden);
}

void Table::ArrangeRows() {
  const auto& columns = list_.Columns();
  const Search search(state_.Search, columns);
  std::vector<std::pair<int, Filter>> filters;
  for (int column = 0; Index(column) < columns.size(); ++column)
    if (Filter filter(FilterOf(column)); !filter.Empty()) filters.emplace_back(column, filter);

  rows_.clear();
  for (int row = 0; row < list_.Count(); ++row) {
    const bool fits = std::ranges::all_of(
        filters, [&](const auto& filter) { return Fits(filter.second, row, filter.first); });
    if (fits && Fits(search, row)) rows_.push_back(row);
  }
  SortRows();
}

bool Table::Fits(const Search& search, int listRow) const {
  if (search.Empty()) return true;
  const auto& columns = list_.Columns();
  const ListBox::Row& row = list_.RowOf(listRow + 1);
  if (!reads_) return search.Fits(row.Cells, columns);
  std::vector<Cell> cells = row.Cells;
  for (std::size_t i = 0; i < cells.size() && i < columns.size(); ++i)
    cells[i].Text = reads_(cells[i], columns[i].Kind);
  return search.Fits(cells, columns);
}

bool Table::Fits(const Filter& filter, int listRow, int listColumn) const {
  const ColumnKind kind = list_.Columns()[Index(listColumn)].Kind;
  Cell cell = list_.CellOf(listRow + 1, listColumn);
  if (reads_) cell.Text = reads_(cell, kind);
  return filter.Fits(cell, kind);
}

namespace {

/// The cells of a column in a form that compares quickly.
struct SortColumn {
  bool Descending;
  std::vector<double> Numbers;
  std::vector<std::string> Texts;

  /// Rows without a text come last, whichever way the others go.
  std::weak_ordering Compare(std::size_t a, std::size_t b) const {
    if (Texts[a].empty() != Texts[b].empty()) return Texts[a].empty() <=> Texts[b].empty();
    auto order = std::weak_order(Numbers[a], Numbers[b]);
    if (order == 0) order = Texts[a] <=> Texts[b];
    return Descending ? 0 <=> order : order;
  }
};

}  // namespace

void Table::SortRows() {
  std::vector<SortColumn> keys;
  for (const auto& [id, descending] : state_.Sort)
    for (int column = 0; Index(column) < list_.Columns().size(); ++column) {
      if (Id(column) != id || !Sorts(column)) continue;
      SortColumn& key = keys.emplace_back();
      key.Descending = descending;
      const bool numeric = IsNumeric(list_.Columns()[Index(column)].Kind);
      for (int row = 1; row <= list_.Count(); ++row) {
        const Cell cell = list_.CellOf(row, column);
        key.Numbers.push_back(numeric ? cell.Number : 0);
        key.Texts.push_back(Folded(cell.Text));
      }
      break;
    }
  if (keys.empty()) return;
  std::ranges::stable_sort(rows_, [&](int a, int b) {
    for (const SortColumn& key : keys)
      if (const auto order = key.Compare(Index(a), Index(b)); order != 0) return order < 0;
    return false;
  });
}

bool Table::Sorts(int listColumn) const {
  return !list_.OnMove && !list_.Columns()[Index(listColumn)].Title.empty();
}

void Table::TurnSort(int listColumn, bool second) {
  if (!Sorts(listColumn)) return;
  const bool falls = IsNumeric(list_.Columns()[Index(listColumn)].Kind) &&
                     list_.Columns()[Index(listColumn)].Kind != ColumnKind::Date;
  const std::string id = Id(listColumn);
  auto& sort = state_.Sort;
  if (!second && (sort.size() != 1 || sort.front().Column != id)) {
    sort = {{id, falls}};
  } else if (const int place = SortPlace(listColumn); place == 0) {
    if (sort.size() > 1) sort.resize(1);
    sort.push_back({id, falls});
  } else if (bool& down = sort[Index(place - 1)].Descending; down == falls) {
    down = !falls;
  } else {
    std::erase_if(sort, [&](const auto& held) { return held.Column == id; });
  }
  ArrangeRows();
}

int Table::SortPlace(int listColumn) const {
  if (!Sorts(listColumn)) return 0;
  const std::string id = Id(listColumn);
  for (std::size_t i = 0; i < state_.Sort.size(); ++i)
    if (state_.Sort[i].Column == id) return static_cast<int>(i) + 1;
  return 0;
}

bool Table::SortsDown(int listColumn) const {
  const int place = SortPlace(listColumn);
  return place > 0 && state_.Sort[Index(place - 1)].Descending;
}

void Table::SetFilter(int listColumn, std::string expression) {
  if (Filter(expression).Empty()) {
    state_.Filters.erase(Id(listColumn));
  } else {
    state_.Filters[Id(listColumn)] = std::move(expression);
  }
  ArrangeRows();
}

const std::string& Table::FilterOf(int listColumn) const {
  static const std::string kNone;
  const auto found = state_.Filters.find(Id(listColumn));
  return found == state_.Filters.end() ? kNone : found->second;
}

void Table::SetSearch(std::string line) {
  state_.Search = std::move(line);
  ArrangeRows();
}

void Table::ClearFilters() {
  state_.Filters.clear();
  SetSearch({});
}

bool Table::Shows(int listColumn) const {
  return std::find(columns_.begin(), columns_.end(), listColumn) != columns_.end();
}

void Table::Show(int listColumn, bool shown) {
  if (shown) {
    state_.Hidden.erase(Id(listColumn));
  } else if (columns_.size() > 1) {
    state_.Hidden.insert(Id(listColumn));
  }
  state_.View.clear();
  ArrangeColumns();
}

void Table::SetOrder(const std::vector<int>& listColumns) {
  state_.Order.clear();
  for (const int column : listColumns) state_.Order.push_back(Id(column));
  state_.View.clear();
  ArrangeColumns();
}

void Table::ResetColumns() {
  state_.Order.clear();
  state_.Hidden.clear();
  state_.Widths.clear();
  state_.View.clear();
  ArrangeColumns();
}

void Table::SetWidth(int listColumn, int width) {
  state_.Widths[Id(listColumn)] = width;
}

void Table::SetPlace(int topRow, int currentKey) {
  state_.TopRow = topRow;
  state_.CurrentKey = currentKey;
}

int Table::NamePlace() const {
  int first = -1;
  for (std::size_t place = 0; place < columns_.size(); ++place) {
    const Column& column = list_.Columns()[Index(columns_[place])];
    if (column.Title == "Name") return static_cast<int>(place);
    if (first < 0 && column.Kind == ColumnKind::Text && column.Title != "#")
      first = static_cast<int>(place);
  }
  return std::max(0, first);
}

int Table::RowsWhere(const std::function<bool(int listRow)>& holds) const {
  int count = 0;
  for (int row = 0; row < list_.Count(); ++row) count += holds(row) ? 1 : 0;
  return count;
}

int Table::RowsHidden(int listColumn) const {
  const Filter filter(FilterOf(listColumn));
  return RowsWhere([&](int row) { return !Fits(filter, row, listColumn); });
}

std::vector<Table::Hider> Table::Hiders() const {
  const auto& columns = list_.Columns();
  std::vector<Hider> hiders;
  if (const Search search(state_.Search, columns); !search.Empty())
    hiders.push_back(
        {"\"" + state_.Search + "\"", RowsWhere([&](int row) { return !Fits(search, row); })});
  for (int column = 0; Index(column) < columns.size(); ++column)
    if (!FilterOf(column).empty())
      hiders.push_back({Id(column) + " " + FilterOf(column), RowsHidden(column)});
  return hiders;
}

std::string Table::HidingText() const {
  std::string text;
  for (const auto& [words, rows] : Hiders())
    text += (text.empty() ? "" : ", ") + words + " hides " + std::to_string(rows);
  return text;
}

std::vector<std::string> Table::Views() const {
  std::vector<std::string> names;
  for (const ListBox::View& view : list_.Views) names.push_back(view.Name);
  for (const auto& [name, state] : state_.Own)
    if (std::ranges::find(names, name) == names.end()) names.push_back(name);
  return names;
}

void Table::TakeView(const std::string& name) {
  if (const auto own = state_.Own.find(name); own != state_.Own.end()) {
    TableState taken = ReadTableState(own->second);
    taken.Own = std::move(state_.Own);
    taken.TopRow = state_.TopRow;
    taken.CurrentKey = state_.CurrentKey;
    state_ = std::move(taken);
  } else {
    const auto view = std::ranges::find(list_.Views, name, &ListBox::View::Name);
    if (view == list_.Views.end()) return;
    state_.Order = view->Columns;
    state_.Widths.clear();
    state_.Hidden.clear();
    for (int column = 0; Index(column) < list_.Columns().size(); ++column)
      if (std::ranges::find(view->Columns, Id(column)) == view->Columns.end())
        state_.Hidden.insert(Id(column));
  }
  state_.View = name;
  ArrangeColumns();
  ArrangeRows();
}

void Table::KeepView(const std::string& name) {
  TableState kept = state_;
  kept.Own.clear();
  kept.View.clear();
  kept.TopRow = kept.CurrentKey = 0;
  // Columns that come later stand behind those of today.
  kept.Order.clear();
  for (const int column : columns_) kept.Order.push_back(Id(column));
  state_.Own[name] = Written(kept);
  state_.View = name;
}

void Table::ForgetView(const std::string& name) {
  state_.Own.erase(name);
  if (state_.View == name) state_.View.clear();
}

}  // namespace grapplemont::ui
