#include "ui/controls.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "records/fields/grouping.h"
#include "ui/screen.h"

namespace grapplemont::ui {

std::string_view KindName(Kind kind) {
  constexpr std::array<std::string_view, 11> kNames = {
      "Label",        "TextBox",   "Button",  "ListBox", "ComboBox", "CheckBox",
      "OptionButton", "ScrollBar", "Picture", "Chart",   "Report"};
  return kNames[static_cast<std::size_t>(kind)];
}

Control::Control(Screen& screen, std::string name, Kind kind, std::string text)
    : Text(revision_, std::move(text)), screen_(screen), name_(std::move(name)), kind_(kind) {
  auto& controls = screen_.controls_;
  controls.insert(screen_.last_ ? controls.end() - 1 : controls.end(), this);
}

Control::~Control() {
  std::erase(screen_.controls_, this);
}

Label::Label(Screen& screen, std::string name, std::string text)
    : Control(screen, std::move(name), Kind::Label, std::move(text)) {}

Button::Button(Screen& screen, std::string name, std::string caption, Handler click)
    : Control(screen, std::move(name), Kind::Button, std::move(caption)),
      OnClick(std::move(click)) {}

TextBox::TextBox(Screen& screen, std::string name, std::string text, int maxLength)
    : Control(screen, std::move(name), Kind::TextBox, std::move(text)), MaxLength(maxLength) {}

CheckBox::CheckBox(Screen& screen, std::string name, std::string caption, bool checked,
                   Handler click)
    : Control(screen, std::move(name), Kind::CheckBox, std::move(caption)),
      Checked(Changes(), checked),
      OnClick(std::move(click)) {}

OptionButton::OptionButton(Screen& screen, std::string name, std::string caption, std::string group,
                           bool checked, Handler click)
    : Control(screen, std::move(name), Kind::OptionButton, std::move(caption)),
      Checked(Changes(), checked),
      Group(std::move(group)),
      OnClick(std::move(click)) {}

ScrollBar::ScrollBar(Screen& screen, std::string name, int min, int max, Handler change)
    : Control(screen, std::move(name), Kind::ScrollBar),
      Min(Changes(), min),
      Max(Changes(), max),
      Value(Changes(), min),
      OnChange(std::move(change)) {}

Picture::Picture(Screen& screen, std::string name, std::string file, Handler click)
    : Control(screen, std::move(name), Kind::Picture),
      File(Changes(), std::move(file)),
      OnClick(std::move(click)) {}

ComboBox::ComboBox(Screen& screen, std::string name, Handler pick)
    : Control(screen, std::move(name), Kind::ComboBox), OnPick(std::move(pick)) {}

void ComboBox::Clear() {
  rows_.clear();
  keys_.clear();
  ++Changes();
  Select(0);
}

void ComboBox::Add(std::string text, int key) {
  rows_.push_back(std::move(text));
  keys_.push_back(key);
  ++Changes();
}

int ComboBox::Key() const {
  return KeyOf(selected_);
}

int ComboBox::KeyOf(int row) const {
  return row < 1 || row > Count() ? 0 : keys_[static_cast<std::size_t>(row - 1)];
}

void ComboBox::Select(int row) {
  selected_ = row < 1 || row > Count() ? 0 : row;
  Text = selected_ == 0 ? std::string() : rows_[static_cast<std::size_t>(selected_ - 1)];
  ++Changes();
}

void ComboBox::SelectKey(int key) {
  const auto found = std::find(keys_.begin(), keys_.end(), key);
  Select(found == keys_.end() ? 0 : static_cast<int>(found - keys_.begin()) + 1);
}

Chart::Chart(Screen& screen, std::string name, bool bars)
    : Control(screen, std::move(name), Kind::Chart), Bars(bars) {}

std::string Chart::Figure(double value) const {
  const long long hundredths = std::llround(std::abs(value) * 100);
  std::string text = (value < 0 ? "-" : "") + Unit + Grouped(hundredths / 100);
  if (const int rest = static_cast<int>(hundredths % 100); rest > 0)
    text += (rest < 10 ? ".0" : ".") + std::to_string(rest);
  return text;
}

Report::Report(Screen& screen, std::string name) : Control(screen, std::move(name), Kind::Report) {}

void Report::Write(std::vector<Paragraph> paragraphs) {
  paragraphs_ = std::move(paragraphs);
  std::string text;
  for (const Paragraph& paragraph : paragraphs_) {
    if (!text.empty()) text += '\n';
    text += paragraph.Words;
  }
  Text = text;
  ++Changes();
}

namespace {

std::vector<Report::Paragraph> Parted(std::string_view plain, Report::Style style) {
  std::vector<Report::Paragraph> paragraphs;
  while (!plain.empty()) {
    const auto end = std::min(plain.find('\n'), plain.size());
    paragraphs.push_back({style, std::string(plain.substr(0, end))});
    plain.remove_prefix(std::min(end + 1, plain.size()));
  }
  return paragraphs;
}

}  // namespace

void Report::Write(std::string_view plain) {
  Write(Parted(plain, Style::Body));
}

void Report::WriteLines(std::string_view plain) {
  Write(Parted(plain, Style::Line));
}

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

const ListBox::Row& ListBox::RowOf(int row) const {
  Row& asked = rows_.at(static_cast<std::size_t>(row - 1));
  if (IsMade(asked)) return asked;
  asked.Cells.reserve(columns_.size());
  for (int column = 0; static_cast<std::size_t>(column) < columns_.size(); ++column)
    asked.Cells.push_back(makes_(asked.Key, column));
  return asked;
}

const std::vector<ListBox::Row>& ListBox::Rows() const {
  for (int row = 1; makes_ && row <= Count(); ++row) RowOf(row);
  makes_ = {};
  return rows_;
}

Cell ListBox::CellOf(int row, int column) const {
  const Row& asked = rows_.at(static_cast<std::size_t>(row - 1));
  const auto place = static_cast<std::size_t>(column);
  if (!IsMade(asked)) return place < columns_.size() ? makes_(asked.Key, column) : Cell("");
  return place < asked.Cells.size() ? asked.Cells[place] : Cell("");
}

void ListBox::Clear() {
  rows_.clear();
  makes_ = {};
  ContentsChanged();
}

void ListBox::Add(std::vector<Cell> cells, int key) {
  rows_.push_back({std::move(cells), key, false});
  ContentsChanged();
}

void ListBox::KeepSelected(std::vector<Row>& rows) const {
  std::vector<int> kept = Keys();
  std::sort(kept.begin(), kept.end());
  for (Row& row : rows) row.Selected = std::binary_search(kept.begin(), kept.end(), row.Key);
}

void ListBox::Fill(std::vector<Row> rows, bool keepSelection) {
  for (Row& row : rows) row.Selected = false;
  if (keepSelection) KeepSelected(rows);
  if (!makes_ && rows == rows_) return;
  rows_ = std::move(rows);
  makes_ = {};
  ContentsChanged();
}

void ListBox::FillLate(const std::vector<int>& keys, CellMaker makes, bool keepSelection) {
  std::vector<Row> rows;
  rows.reserve(keys.size());
  for (const int key : keys) rows.push_back({{}, key});
  if (keepSelection) KeepSelected(rows);
  rows_ = std::move(rows);
  makes_ = std::move(makes);
  ContentsChanged();
}

void ListBox::ChangeRow(int row, std::vector<Cell> cells) {
  rows_.at(static_cast<std::size_t>(row - 1)).Cells = std::move(cells);
  ContentsChanged();
}

int ListBox::Selected() const {
  const auto found = std::ranges::find_if(rows_, [](auto& r) { return r.Selected; });
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

void ListBox::SelectRows(const std::vector<int>& rows) {
  for (Row& row : rows_) row.Selected = false;
  for (const int row : rows)
    if (row >= 1 && row <= Count()) rows_[static_cast<std::size_t>(row - 1)].Selected = true;
  ++Changes();
}

void ListBox::SelectKey(int key) {
  const auto found = std::ranges::find_if(rows_, [key](auto& r) { return r.Key == key; });
  Select(found == rows_.end() ? 0 : static_cast<int>(found - rows_.begin()) + 1);
}

void ListBox::Toggle(int row) {
  if (row < 1 || row > Count()) return;
  bool& selected = rows_[static_cast<std::size_t>(row - 1)].Selected;
  selected = !selected;
  ++Changes();
}

}  // namespace grapplemont::ui
