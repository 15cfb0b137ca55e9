#include <algorithm>

#include "ui/controls.h"

namespace grapplemont::ui {

ListBox::ListBox(Screen& screen, std::string name, std::vector<Column> columns, Handler pick,
                 Handler open)
    : Control(screen, std::move(name), Kind::ListBox),
      OnPick(std::move(pick)),
      OnOpen(std::move(open)),
      columns_(std::move(columns)) {}

ListBox::ListBox(Screen& screen, std::string name, std::vector<Column> columns, Handler pick,
                 Button& opens)
    : ListBox(screen, std::move(name), std::move(columns), std::move(pick)) {
  OpenWith(opens);
}

void ListBox::OpenWith(Button& button) {
  OnOpen = [&button] {
    if (button.Enabled && button.Visible && button.OnClick) button.OnClick();
  };
}

void ListBox::ContentsChanged() {
  ++contents_;
  ++Changes();
}

void ListBox::SetColumns(std::vector<Column> columns) {
  columns_ = std::move(columns);
  ContentsChanged();
}

void ListBox::Clear() {
  rows_.clear();
  ContentsChanged();
}

void ListBox::Add(std::vector<Cell> cells, int key) {
  rows_.push_back({std::move(cells), key, false});
  ContentsChanged();
}

void ListBox::Fill(std::vector<Row> rows, bool keepSelection) {
  std::vector<int> kept = keepSelection ? Keys() : std::vector<int>{};
  std::sort(kept.begin(), kept.end());
  for (Row& row : rows) row.Selected = std::binary_search(kept.begin(), kept.end(), row.Key);
  if (rows == rows_) return;
  rows_ = std::move(rows);
  ContentsChanged();
}

int ListBox::Selected() const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [](auto& r) { return r.Selected; });
  return found == rows_.end() ? 0 : static_cast<int>(found - rows_.begin()) + 1;
}

int ListBox::Key() const {
  const int row = Selected();
  return row == 0 ? 0 : rows_[static_cast<std::size_t>(row - 1)].Key;
}

std::vector<int> ListBox::Keys() const {
  std::vector<int> keys;
  for (const Row& row : rows_)
    if (row.Selected) keys.push_back(row.Key);
  return keys;
}

void ListBox::Select(int row) {
  for (int i = 1; i <= Count(); ++i) rows_[static_cast<std::size_t>(i - 1)].Selected = i == row;
  ++Changes();
}

void ListBox::SelectKey(int key) {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [key](auto& r) { return r.Key == key; });
  Select(found == rows_.end() ? 0 : static_cast<int>(found - rows_.begin()) + 1);
}

void ListBox::Toggle(int row) {
  if (row < 1 || row > Count()) return;
  bool& selected = rows_[static_cast<std::size_t>(row - 1)].Selected;
  selected = !selected;
  ++Changes();
}

}  // namespace grapplemont::ui
