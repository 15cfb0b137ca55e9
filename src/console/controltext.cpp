#include "console/controltext.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "console/columns.h"
#include "records/fields/wording.h"

namespace grapplemont::console {

namespace {

/// What a control is called that does not say so itself.
std::string LabelOf(const ui::Control& control, const std::string& above) {
  using ui::Kind;
  const Kind kind = control.Is();
  if (kind == Kind::Label || kind == Kind::Button || kind == Kind::CheckBox ||
      kind == Kind::OptionButton)
    return {};
  const auto* box = dynamic_cast<const ui::TextBox*>(&control);
  // In an empty box its hint is shown already.
  return box && !box->Hint.empty() && !box->Text->empty() ? box->Hint : above;
}

class Arrangement {
 public:
  /// `title` is what stands above all.
  explicit Arrangement(std::string title) : heading_(std::move(title)) {}

  void Begin(const std::string& heading) { sections_.push_back({heading, {}}); }

  void Add(const ui::Control* control, const std::string& label = {}) {
    if (!control || !control->Visible || !placed_.insert(control).second) return;
    if (sections_.empty()) Begin({});
    sections_.back().Parts.push_back({control, label});
  }

  /// What has no label of its own is called by the heading above it.
  void Add(const ui::Box& box) {
    const bool isGroup = box.Is == ui::Box::Kind::Group;
    const std::string above = heading_;
    if (isGroup && !box.Title.empty()) heading_ = box.Title;
    if (isGroup) Begin(box.Title);
    if (box.Shown) Add(box.Shown, box.Title.empty() ? LabelOf(*box.Shown, heading_) : box.Title);
    for (const ui::Box& part : box.Parts) Add(part);
    heading_ = above;
    if (isGroup) Begin({});
  }

  std::vector<Section> Done() && {
    std::erase_if(sections_, [](const Section& section) { return section.Parts.empty(); });
    return std::move(sections_);
  }

 private:
  std::string heading_;
  std::vector<Section> sections_;
  std::set<const ui::Control*> placed_;
};

// What is shown of a long control before "show NAME" is needed.
constexpr int kRowsShown = 12;
constexpr std::size_t kLinesShown = 60;
constexpr std::size_t kNameWidth = 16, kKindWidth = 12, kIndent = 4;

std::string Number(double value) {
  if (std::abs(value) < 1e15 && value == std::floor(value))
    return std::to_string(static_cast<long long>(value));
  std::string text = std::to_string(value);
  return text.substr(0, text.find('.') + 3);
}

std::string Says(const ui::TextBox& box) {
  return "\"" + box.Text.Get() + "\"" +
         (box.Text->empty() && !box.Hint.empty() ? " (" + box.Hint + ")" : "");
}

std::string Says(const ui::ComboBox& combo) {
  if (combo.Count() == 0) return "nothing to choose from";
  if (combo.Selected() == 0) return "nothing chosen of " + std::to_string(combo.Count());
  return combo.Text.Get() + " (" + std::to_string(combo.Selected()) + " of " +
         std::to_string(combo.Count()) + ")";
}

std::string Says(const ui::ListBox& list) {
  if (list.Count() == 0) return list.EmptyText.empty() ? "no rows" : list.EmptyText;
  std::string rows;
  int chosen = 0;
  for (int row = 1; row <= list.Count(); ++row) {
    if (!list.Rows()[static_cast<std::size_t>(row - 1)].Selected) continue;
    if (++chosen <= kRowsShown) rows += (chosen == 1 ? " " : ", ") + std::to_string(row);
    if (chosen == kRowsShown + 1) rows += ", ...";
  }
  std::string text = Counted(list.Count(), "row");
  if (chosen > 0) text += ", chosen" + rows;
  if (list.Multi) text += " (any number may be chosen)";
  if (list.Extends && chosen > 0) text += " (more with \"also\")";
  return text;
}

std::string Says(const ui::Picture& picture) {
  const std::string& text = picture.Text->empty() ? picture.File.Get() : picture.Text.Get();
  return text + (picture.OnClick ? " (can be clicked)" : "");
}

std::string TrendWord(int trend) {
  return trend == 0 ? "" : trend > 0 ? " (rising)" : " (falling)";
}

/// What stands behind name and kind.
std::string Says(const ui::Control& control) {
  using ui::Kind;
  switch (control.Is()) {
    case Kind::TextBox:
      return Says(static_cast<const ui::TextBox&>(control));
    case Kind::Button: {
      const std::string& badge = static_cast<const ui::Button&>(control).Badge;
      return control.Text.Get() + (badge.empty() ? "" : " [" + badge + "]");
    }
    case Kind::ComboBox:
      return Says(static_cast<const ui::ComboBox&>(control));
    case Kind::ListBox:
      return Says(static_cast<const ui::ListBox&>(control));
    case Kind::CheckBox:
      return (static_cast<const ui::CheckBox&>(control).Checked ? "[x] " : "[ ] ") +
             control.Text.Get();
    case Kind::OptionButton:
      return (static_cast<const ui::OptionButton&>(control).Checked ? "(o) " : "( ) ") +
             control.Text.Get();
    case Kind::ScrollBar: {
      const auto& bar = static_cast<const ui::ScrollBar&>(control);
      return std::to_string(bar.Value) + ", from " + std::to_string(bar.Min) + " to " +
             std::to_string(bar.Max);
    }
    case Kind::Picture:
      return Says(static_cast<const ui::Picture&>(control));
    case Kind::Chart:
    case Kind::Report:
      return {};
    case Kind::Label:
      return control.Text.Get() + TrendWord(static_cast<const ui::Label&>(control).Trend);
  }
  return {};
}

/// The rows of a table, the chosen ones among them even where only the first few are shown.
class Rows {
 public:
  Rows(std::vector<TableColumn> columns, bool whole) : text_(std::move(columns)), whole_(whole) {}

  void Add(bool chosen, std::vector<std::string> cells) {
    ++count_;
    if (!whole_ && count_ > kRowsShown && (!chosen || count_ - hidden_ > 2 * kRowsShown)) {
      ++hidden_;
      return;
    }
    for (std::string& cell : cells) cell = Printable(cell);
    text_.Add(count_, chosen, std::move(cells));
  }

  std::vector<std::string> Lines(const std::string& name, int width) const {
    auto lines = text_.Lines(whole_ ? 0 : static_cast<std::size_t>(width) - kIndent);
    if (hidden_ > 0) lines.push_back("... " + Counted(hidden_, "more row") + ": show " + name);
    return lines;
  }

 private:
  TableText text_;
  bool whole_;
  int count_ = 0, hidden_ = 0;
};

std::vector<std::string> RowsOf(const ui::ListBox& list, bool whole, int width) {
  std::vector<TableColumn> columns;
  for (const ui::Column& column : list.Columns())
    columns.push_back({column.Title, column.Kind == ui::ColumnKind::Number ||
                                         column.Kind == ui::ColumnKind::Percent});
  Rows rows(std::move(columns), whole);
  for (const ui::ListBox::Row& row : list.Rows()) {
    std::vector<std::string> cells;
    for (const ui::Cell& cell : row.Cells) cells.push_back(cell.Text + (cell.Best ? " *" : ""));
    rows.Add(row.Selected, std::move(cells));
  }
  return list.Count() == 0 ? std::vector<std::string>{} : rows.Lines(list.Name(), width);
}

std::vector<std::string> RowsOf(const ui::ComboBox& combo, bool whole, int width) {
  Rows rows({{}}, whole);
  int number = 0;
  for (const std::string& row : combo.Rows()) rows.Add(++number == combo.Selected(), {row});
  return rows.Lines(combo.Name(), width);
}

std::vector<std::string> LinesOf(const ui::Control& control, const std::string& text, bool whole,
                                 int width) {
  if (text.empty()) return {};
  auto lines = Wrapped(Printable(text), static_cast<std::size_t>(width) - kIndent);
  if (whole || lines.size() <= kLinesShown) return lines;
  const auto hidden = static_cast<int>(lines.size() - kLinesShown);
  lines.resize(kLinesShown);
  lines.push_back("... " + Counted(hidden, "more line") + ": show " + control.Name());
  return lines;
}

/// What stands below the control's own line.
std::vector<std::string> Below(const ui::Control& control, bool whole, int width) {
  if (const auto* list = dynamic_cast<const ui::ListBox*>(&control))
    return RowsOf(*list, whole, width);
  if (const auto* combo = dynamic_cast<const ui::ComboBox*>(&control))
    return RowsOf(*combo, whole, width);
  if (const auto* chart = dynamic_cast<const ui::Chart*>(&control))
    return LinesOf(control, ChartText(*chart), whole, width);
  if (control.Is() == ui::Kind::Report) return LinesOf(control, control.Text, whole, width);
  return {};
}

/// Why it cannot be used, or what it is for.
std::string Remark(const ui::Control& control, bool whole) {
  const std::string& tip = control.Tip;
  if (control.Enabled) return whole ? tip : std::string();
  return tip.empty() ? "disabled" : "disabled: " + tip;
}

}  // namespace

std::vector<Section> Sections(ui::Screen& screen) {
  const ui::Page page = screen.Layout();
  Arrangement all(screen.Title);
  for (const ui::Label* label : page.Top) all.Add(label);
  all.Add(page.Face);
  all.Add(page.Facts);
  for (const ui::Label* label : page.More) all.Add(label);
  all.Begin({});
  all.Add(page.Body);
  for (const ui::SideGroup& group : page.Side) {
    all.Begin(group.Title);
    for (const auto& command : group.Commands) all.Add(command.Press);
  }
  all.Begin({});
  for (const ui::Button* button : page.Actions) all.Add(button);
  for (const ui::Button* button : page.TopActions) all.Add(button);
  all.Add(page.Main);
  all.Add(page.Cancel);
  all.Begin({});
  for (const ui::Control* control : screen.Controls()) all.Add(control);
  return std::move(all).Done();
}

std::string ControlText(const Section::Part& part, bool whole, int width) {
  const ui::Control& control = *part.Shown;
  const std::string head = "  " + Padded(control.Name(), kNameWidth) + " " +
                           Padded(std::string(ui::KindName(control.Is())), kKindWidth) + " ";
  const std::string own = Says(control);
  std::string says = part.Label;
  if (!own.empty()) says += (says.empty() ? "" : ": ") + own;
  if (const std::string remark = Remark(control, whole); !remark.empty())
    says += (says.empty() ? "(" : " (") + remark + ")";
  std::string text, before = head;
  const std::size_t room = static_cast<std::size_t>(width) - std::min<std::size_t>(head.size(), 40);
  for (const std::string& line : Wrapped(Printable(says), room)) {
    text += TrimmedBehind(before + line) + "\n";
    before.assign(head.size(), ' ');
  }
  for (const std::string& line : Below(control, whole, width))
    text += TrimmedBehind(std::string(kIndent, ' ') + line) + "\n";
  return text;
}

namespace {

/// Where its line stands now.
std::string ThinText(const ui::Chart& chart) {
  std::string text;
  for (const auto& series : chart.Lines.Get())
    if (!series.Values.empty())
      text += (text.empty() ? "" : "\n") + series.Name + (series.Name.empty() ? "" : ": ") +
              Number(series.Values.back()) + " of 100";
  return text;
}

}  // namespace

std::string ChartText(const ui::Chart& chart) {
  if (chart.Thin) return ThinText(chart);
  const std::vector<std::string>& captions = chart.Captions;
  std::size_t count = captions.size();
  for (const auto& series : chart.Lines.Get()) count = std::max(count, series.Values.size());
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += '\n';
    text += i < captions.size() ? captions[i] + ":" : std::string();
    bool first = true;
    for (const auto& series : chart.Lines.Get()) {
      if (i >= series.Values.size() || !std::isfinite(series.Values[i])) continue;
      text += std::string(first ? " " : ", ") + series.Name + (series.Name.empty() ? "" : " ") +
              chart.Figure(series.Values[i]);
      first = false;
    }
  }
  return text;
}

}  // namespace grapplemont::console
