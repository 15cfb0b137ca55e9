#include "ui/share.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "records/fields/charset.h"

namespace grapplemont::ui {

namespace {

struct Around {
  std::string_view Open, Close;
};
struct Swap {
  char Letter;
  std::string_view By;
};

/// How a form writes what there is to write.
struct Marks {
  std::string_view Word, Document, LineBreak;
  Around Title, Heading, Strong, Paragraph;
  Around Table, Row, Head, Cell, NumberCell;
  /// Letters that mean something else in the form.
  std::vector<Swap> Swaps;
  bool RuleBelowHead = false;
};

/// In the order of Form.
const std::array<Marks, 3>& AllMarks() {
  static const std::array<Marks, 3> kMarks = {{
      {.Word = "markdown",
       .Document = "",
       .LineBreak = "  \n",
       .Title = {"# ", "\n\n"},
       .Heading = {"## ", "\n\n"},
       .Strong = {"**", "**"},
       .Paragraph = {"", "\n\n"},
       .Table = {"", "\n"},
       .Row = {"|", "\n"},
       .Head = {" ", " |"},
       .Cell = {" ", " |"},
       .NumberCell = {" ", " |"},
       .Swaps = {{'\\', "\\\\"},
                 {'*', "\\*"},
                 {'_', "\\_"},
                 {'`', "\\`"},
                 {'|', "\\|"},
                 {'<', "\\<"},
                 {'>', "\\>"},
                 {'[', "\\["},
                 {']', "\\]"},
                 {'#', "\\#"}},
       .RuleBelowHead = true},
      {.Word = "html",
       .Document = "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n",
       .LineBreak = "<br>\n",
       .Title = {"<h1>", "</h1>\n"},
       .Heading = {"<h2>", "</h2>\n"},
       .Strong = {"<strong>", "</strong>"},
       .Paragraph = {"<p>", "</p>\n"},
       .Table = {"<table>\n", "</table>\n"},
       .Row = {"<tr>", "</tr>\n"},
       .Head = {"<th>", "</th>"},
       .Cell = {"<td>", "</td>"},
       .NumberCell = {"<td style=\"text-align: right\">", "</td>"},
       .Swaps = {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}}},
      {.Word = "bbcode",
       .Document = "",
       .LineBreak = "\n",
       .Title = {"[size=150][b]", "[/b][/size]\n\n"},
       .Heading = {"[b]", "[/b]\n\n"},
       .Strong = {"[b]", "[/b]"},
       .Paragraph = {"", "\n\n"},
       .Table = {"[table]\n", "[/table]\n\n"},
       .Row = {"[tr]", "[/tr]\n"},
       .Head = {"[th]", "[/th]"},
       .Cell = {"[td]", "[/td]"},
       .NumberCell = {"[td]", "[/td]"},
       .Swaps = {{'[', "&#91;"}, {']', "&#93;"}}},
  }};
  return kMarks;
}

class Writer {
 public:
  explicit Writer(Form form) : marks_(AllMarks()[static_cast<std::size_t>(form)]) {}

  void Document() { text_ += marks_.Document; }
  void Title(std::string_view words) { Put(marks_.Title, words); }
  void Heading(std::string_view words) { Put(marks_.Heading, words); }
  void Paragraph(std::string_view words, bool strong = false) {
    if (words.empty()) return;
    text_ += marks_.Paragraph.Open;
    if (strong) text_ += marks_.Strong.Open;
    text_ += Escaped(words, marks_.LineBreak);
    if (strong) text_ += marks_.Strong.Close;
    text_ += marks_.Paragraph.Close;
  }
  void Fact(std::string_view label, std::string_view value) {
    if (label.empty()) return Paragraph(value);
    if (value.empty()) return;
    text_ += marks_.Paragraph.Open;
    Put(marks_.Strong, label);
    text_ += ": " + Escaped(value, marks_.LineBreak);
    text_ += marks_.Paragraph.Close;
  }
  void Rows(const ui::Table& table, bool chosenAlone = false);
  void Append(const std::string& written) { text_ += written; }
  const std::string& Text() const { return text_; }

 private:
  /// A cell, a heading: one line.
  void Put(const Around& around, std::string_view words) {
    text_ += around.Open;
    text_ += Escaped(words, " ");
    text_ += around.Close;
  }
  std::string Escaped(std::string_view words, std::string_view lineBreak) const {
    std::string escaped;
    for (const char letter : words) {
      const auto swap = std::ranges::find(marks_.Swaps, letter, &Swap::Letter);
      if (letter == '\n')
        escaped += lineBreak;
      else if (swap != marks_.Swaps.end())
        escaped += swap->By;
      else
        escaped += IsControl(letter) ? '?' : letter;
    }
    return escaped;
  }

  const Marks& marks_;
  std::string text_;
};

/// Dates stand at the left, as they do in a table.
bool IsFigure(ColumnKind kind) {
  return kind == ColumnKind::Number || kind == ColumnKind::Percent;
}

void Writer::Rows(const ui::Table& table, bool chosenAlone) {
  const std::vector<Column>& columns = table.ListColumns();
  const auto kind = [&](int column) { return columns[static_cast<std::size_t>(column)].Kind; };
  std::vector<int> shown;
  for (const int column : table.Columns())
    if (kind(column) != ColumnKind::Button) shown.push_back(column);
  text_ += marks_.Table.Open;
  text_ += marks_.Row.Open;
  for (const int column : shown) Put(marks_.Head, columns[static_cast<std::size_t>(column)].Title);
  text_ += marks_.Row.Close;
  if (marks_.RuleBelowHead) {
    text_ += marks_.Row.Open;
    for (const int column : shown) text_ += IsFigure(kind(column)) ? " ---: |" : " --- |";
    text_ += marks_.Row.Close;
  }
  const int count = static_cast<int>(table.Rows().size());
  for (int row = 0; row < count; ++row) {
    if (chosenAlone && !table.IsSelected(row)) continue;
    text_ += marks_.Row.Open;
    for (const int column : shown)
      Put(IsFigure(kind(column)) ? marks_.NumberCell : marks_.Cell, table.At(row, column).Text);
    text_ += marks_.Row.Close;
  }
  text_ += marks_.Table.Close;
}

void Share(const Report& report, Writer& out) {
  using Style = Report::Style;
  for (const Report::Paragraph& paragraph : report.Paragraphs()) {
    if (paragraph.As == Style::Heading)
      out.Heading(paragraph.Words);
    else
      out.Paragraph(paragraph.Words, paragraph.As == Style::Strong);
  }
}

void Share(const Chart& chart, Writer& out) {
  for (const Chart::Series& series : chart.Lines.Get()) {
    std::string values;
    for (std::size_t i = 0; i < series.Values.size(); ++i) {
      const double value = series.Values[i];
      if (!std::isfinite(value)) continue;  // a gap in the line
      const bool named = i < chart.Captions->size() && !chart.Captions.Get()[i].empty();
      char number[32];
      std::snprintf(number, sizeof number, "%.10g", value);
      values +=
          (values.empty() ? "" : ", ") + (named ? chart.Captions.Get()[i] + " " : "") + number;
    }
    out.Fact(series.Name, values);
  }
}

void Share(const ListBox& list, const TableFinder& arranged, Writer& out) {
  if (list.Count() == 0) return out.Paragraph(list.EmptyText);
  const Table* const table = arranged ? arranged(list) : nullptr;
  table ? out.Rows(*table) : out.Rows(Table(list));
}

/// Says nothing of what the page tells: what is being done on it, a filter that is off.
bool IsIdle(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Fleeting;
  const auto* combo = dynamic_cast<const ComboBox*>(&control);
  return combo && combo->Filters && combo->Selected() <= 1;
}

/// One control with the label that it may have.
void Share(const Control& control, const std::string& label, const TableFinder& arranged,
           Writer& out) {
  if (!control.Visible || IsIdle(control)) return;
  switch (control.Is()) {
    case Kind::Label:
    case Kind::TextBox:
    case Kind::ComboBox:
      return out.Fact(label, control.Text.Get());
    case Kind::CheckBox:
      return out.Fact(control.Text.Get(),
                      dynamic_cast<const CheckBox&>(control).Checked ? "yes" : "no");
    case Kind::OptionButton:
      if (dynamic_cast<const OptionButton&>(control).Checked) out.Paragraph(control.Text.Get());
      return;
    case Kind::ScrollBar:
      return out.Fact(label, std::to_string(dynamic_cast<const ScrollBar&>(control).Value.Get()));
    case Kind::ListBox:
      return Share(dynamic_cast<const ListBox&>(control), arranged, out);
    case Kind::Chart:
      return Share(dynamic_cast<const Chart&>(control), out);
    case Kind::Report:
      return Share(dynamic_cast<const Report&>(control), out);
    case Kind::Button:
    case Kind::Picture:
      return;
  }
}

/// A text that is read for its own sake: the lists beside it choose what it tells.
bool IsStory(const Control& control) {
  constexpr std::size_t kShort = 400;  // letters
  const auto* report = dynamic_cast<const Report*>(&control);
  if (!report) return false;
  std::size_t letters = 0;
  for (const Report::Paragraph& paragraph : report->Paragraphs())
    if (paragraph.As == Report::Style::Body) letters += paragraph.Words.size();
  return letters > kShort;
}

/// The stories of a page, or all else.
void Share(const Box& box, Form form, const TableFinder& arranged, bool stories, Writer& out) {
  if (box.Shown) {
    if (IsStory(*box.Shown) == stories)
      Share(*box.Shown, box.Is == Box::Kind::Field ? box.Title : "", arranged, out);
    for (const Box& part : box.Parts) Share(part, form, arranged, stories, out);
    return;
  }
  Writer inside(form);
  for (const Box& part : box.Parts) Share(part, form, arranged, stories, inside);
  if (inside.Text().empty()) return;  // no heading over nothing
  if (!box.Title.empty()) out.Heading(box.Title);
  out.Append(inside.Text());
}

}  // namespace

std::optional<Form> FormNamed(std::string_view word) {
  const auto marks = std::ranges::find(AllMarks(), word, &Marks::Word);
  if (marks == AllMarks().end()) return std::nullopt;
  return static_cast<Form>(marks - AllMarks().begin());
}

std::string Shared(Screen& screen, Form form, const TableFinder& arranged) {
  Writer out(form);
  out.Document();
  out.Title(screen.Title.Get());
  const Page page = screen.Layout();
  std::vector<Label*> facts = page.More;
  if (page.Facts) facts.insert(facts.begin(), page.Facts);
  for (const Label* fact : facts)
    if (fact->Visible) out.Paragraph(fact->Text.Get());
  for (const bool stories : {true, false}) Share(page.Body, form, arranged, stories, out);
  return out.Text();
}

std::string Shared(const Table& table, Form form, bool chosenAlone) {
  Writer out(form);
  out.Rows(table, chosenAlone);
  return out.Text();
}

}  // namespace grapplemont::ui
