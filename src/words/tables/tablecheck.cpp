#include "words/tables/tablecheck.h"

#include <algorithm>

#include "records/fields/wording.h"
#include "words/units.h"

namespace grapplemont {

namespace {

using Texts = std::vector<std::string_view>;

constexpr int kPlaces = 4;  // of an angle

// The library's own may only be asked about bytes without a sign.
bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}
bool IsCapital(char letter) {
  return letter >= 'A' && letter <= 'Z';
}

bool IsNumber(std::string_view text) {
  return !text.empty() && text.size() < 5 && std::ranges::all_of(text, IsDigit);
}

bool IsRuleName(std::string_view text) {
  return !text.empty() && IsCapital(text[0]) && std::ranges::all_of(text, [](char letter) {
    return IsDigit(letter) || IsCapital(letter) || (letter >= 'a' && letter <= 'z');
  });
}

std::string InQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string NoSuch(std::string_view what, std::string_view name, const Texts& names) {
  return "there is no " + std::string(what) + " " + InQuotes(name) + DidYouMean(name, names);
}

std::string WhyNotOneOf(const Texts& choices, const std::string& cell) {
  return std::find(choices.begin(), choices.end(), cell) == choices.end()
             ? NoSuch("such thing as", cell, choices)
             : std::string();
}

std::string Joined(const Texts& texts) {
  std::string joined;
  for (const std::string_view text : texts)
    joined += (joined.empty() ? "" : " | ") + std::string(text);
  return joined;
}

/// Names of people that a phrase of a Segment may have in braces.
std::string WhyNoPhrase(std::string_view text) {
  static const Texts kPeople = {"W",  "L",  "P",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",
                                "O1", "O2", "O3", "O4", "12", "34", "WT", "LT", "AT", "OO", "PP"};
  std::string why;
  ReadHoles(
      text,
      [&](std::string_view words) {
        if (words.find_first_of("{}") != std::string_view::npos) why = "a brace is left alone";
      },
      [&](std::string_view slot) {
        if (std::find(kPeople.begin(), kPeople.end(), slot) == kPeople.end())
          why = "there is no slot {" + std::string(slot) + "}";
      });
  return why;
}

std::string WhyNoBox(const BoxText& box, const WordColumn& column, unsigned& taken) {
  const bool isPlain = box.Casting.empty();
  const Texts& castings = column.Choices;
  const bool takesNoWorker = box.Casting == "Stables" || box.Casting.ends_with("Titles");
  if (!isPlain && std::find(castings.begin(), castings.end(), box.Casting) == castings.end())
    return NoSuch("casting", box.Casting, castings);
  if (box.Caption.empty()) return "a box has no caption";
  if (takesNoWorker && box.Place != 0)
    return "no worker stands in the box " + InQuotes(box.Caption) + ", and so it has no place";
  if (takesNoWorker) return {};
  if (box.Place < 1 || box.Place > kPlaces)
    return "the box " + InQuotes(box.Caption) + " needs a place from 1 to 4 before its caption";
  if ((taken >> box.Place & 1) != 0) return "two boxes have the place " + std::to_string(box.Place);
  taken |= 1U << box.Place;
  return {};
}

std::string WhyNoCast(const std::string& cell, const WordColumn& column) {
  const auto boxes = BoxesOf(cell);
  if (boxes.size() > kPlaces) return "an angle has four boxes at most";
  unsigned taken = 0;
  for (const BoxText& box : boxes)
    if (std::string why = WhyNoBox(box, column, taken); !why.empty()) return why;
  return {};
}

std::string WhyNoPlaces(const std::string& cell, const WordColumn& column) {
  const bool arePairs = column.Is == WordColumn::Pairs;
  for (const std::string& each : CellsOf(cell, ' ')) {
    const auto places = PlacesIn(each);
    if (places.size() != (arePairs ? 2 : 1))
      return InQuotes(each) +
             (arePairs ? " is not a pair like 2>1" : " is not a place from 1 to 4");
    for (const std::string& place : places)
      if (place.size() != 1 || place[0] < '1' || place[0] > '0' + kPlaces)
        if (std::string why = WhyNotOneOf(column.Choices, place); !why.empty()) return why;
  }
  return {};
}

/// Reads one file.
class Reader {
 public:
  Reader(const TableFile& file, std::vector<std::string>& mistakes)
      : file_(file), mistakes_(mistakes) {}

  TableTexts Read(const WordsText& text) {
    for (const NumberedLine& mistake : text.Mistakes) Report(mistake.Number, mistake.Text);
    for (const WordSection& section : text.Sections) ReadSection(section);
    for (const std::string_view heading : Headings())
      if (!seen_.contains(heading))
        Report(text.Last, "the heading " + InQuotes(heading) + " is missing");
    if (mistakes_.empty())
      for (const NameArray& array : file_.Names) CheckNames(array);
    return std::move(texts_);
  }

 private:
  void Report(int line, const std::string& what) {
    mistakes_.push_back(std::to_string(line) + ": " + what);
  }

  Texts Headings() const {
    Texts headings;
    for (const WordTable& table : file_.Tables) headings.push_back(table.Heading);
    for (const NameArray& array : file_.Names)
      for (const NameArray::List& list : array.Lists) headings.push_back(list.Heading);
    return headings;
  }

  void ReadSection(const WordSection& section) {
    const auto& [line, name] = section.Heading;
    const Texts headings = Headings();
    const auto heading = std::find(headings.begin(), headings.end(), name);
    if (heading == headings.end()) return Report(line, NoSuch("heading", name, headings));
    if (const auto [first, isNew] = seen_.emplace(*heading, line); !isNew)
      return Report(line, "this heading stands already in line " + std::to_string(first->second));
    for (const WordTable& table : file_.Tables)
      if (table.Heading == name) return ReadTable(table, section);
    for (const NumberedLine& names : section.Lines)
      for (const std::string& each : CellsOf(names.Text, ','))
        if (!each.empty()) texts_.Names[*heading].push_back({names.Number, each});
  }

  void ReadTable(const WordTable& table, const WordSection& section) {
    Texts titles;
    for (const WordColumn& column : table.Columns) titles.push_back(column.Title);
    const auto& lines = section.Lines;
    const auto cells = lines.empty() ? std::vector<std::string>() : CellsOf(lines[0].Text, '|');
    if (!std::equal(cells.begin(), cells.end(), titles.begin(), titles.end()))
      return Report(lines.empty() ? section.Heading.Number : lines[0].Number,
                    "the first line of this table must be \"" + Joined(titles) + "\"");
    int number = 0;
    for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
      ++number;
      TableRow row{line->Number, CellsOf(line->Text, '|')};
      if (row.Cells.size() != titles.size())
        Report(row.Line, std::to_string(row.Cells.size()) + " cells; this table has " +
                             std::to_string(titles.size()));
      else if (table.Counts && row.Cells[0] != std::to_string(number))
        Report(row.Line, "the rows are numbered one after the other, and this is number " +
                             std::to_string(number));
      else if (IsSound(table, row))
        texts_.Rows[table.Heading].push_back(std::move(row));
    }
  }

  bool IsSound(const WordTable& table, const TableRow& row) {
    const std::size_t before = mistakes_.size();
    for (std::size_t i = 0; i < row.Cells.size(); ++i)
      if (const std::string why = WhyNotIn(table.Columns[i], row.Cells[i]); !why.empty())
        Report(row.Line, std::string(table.Columns[i].Title) + ": " + why);
    if (before == mistakes_.size()) CheckAgainstOthers(table, row);
    return before == mistakes_.size();
  }

  std::string WhyNotIn(const WordColumn& column, const std::string& cell) const {
    if (cell.empty()) return "an empty cell is written as \"-\"";
    if (cell == kEmptyCell)
      return column.Empty.empty() && column.Is != WordColumn::RuleName ? "may not be empty"
                                                                       : std::string();
    switch (column.Is) {
      case WordColumn::Number:
        return IsNumber(cell) ? "" : InQuotes(cell) + " is not a number";
      case WordColumn::Phrase:
        return WhyNoPhrase(cell);
      case WordColumn::RuleName:
        return IsRuleName(cell) ? "" : "letters and digits only, the first a capital";
      case WordColumn::Choice:
        return WhyNotOneOf(column.Choices, cell);
      case WordColumn::Rule:
        return WhyNotOneOf(RulesOf(column.Of), cell);
      case WordColumn::Cast:
        return WhyNoCast(cell, column);
      case WordColumn::Places:
      case WordColumn::Pairs:
        return WhyNoPlaces(cell, column);
      default:
        return {};
    }
  }

  /// The rule names of a table that stands above.
  Texts RulesOf(std::string_view heading) const {
    Texts rules;
    for (const WordTable& table : file_.Tables)
      if (const auto rows = texts_.Rows.find(heading);
          table.Heading == heading && rows != texts_.Rows.end())
        for (const TableRow& row : rows->second)
          rules.push_back(row.Cells[ColumnOf(table, "Rule")]);
    return rules;
  }

  /// What no two rows may share.
  void CheckAgainstOthers(const WordTable& table, const TableRow& row) {
    const auto& rows = texts_.Rows[table.Heading];
    for (const TableRow& other : rows) {
      const bool isDouble =
          std::all_of(table.Keys.begin(), table.Keys.end(), [&](std::string_view key) {
            const std::size_t column = ColumnOf(table, key);
            return row.Cells[column] == other.Cells[column] && row.Cells[column] != kEmptyCell;
          });
      if (isDouble)
        Report(row.Line,
               "the same " + Joined(table.Keys) + " stands in line " + std::to_string(other.Line));
      else if (!table.NumbersOf.empty())
        CheckRuleNames(table, row, other);
    }
  }

  /// A rule name may stand twice where it has the same number.
  void CheckRuleNames(const WordTable& table, const TableRow& row, const TableRow& other) {
    const std::size_t rule = ColumnOf(table, "Rule"), number = ColumnOf(table, table.NumbersOf);
    if (row.Cells[rule] != kEmptyCell && row.Cells[rule] == other.Cells[rule] &&
        row.Cells[number] != other.Cells[number])
      Report(row.Line, "the rule name " + row.Cells[rule] + " has another number in line " +
                           std::to_string(other.Line));
  }

  void CheckNames(const NameArray& array) {
    std::map<std::string, int> lines;
    int names = 0, last = 1;
    for (const NameArray::List& list : array.Lists) {
      const auto& inList = texts_.Names[list.Heading];
      for (const NumberedLine& name : inList) {
        last = name.Number;
        if (static_cast<int>(name.Text.size()) > array.Longest)
          Report(last, name.Text + " is longer than " + std::to_string(array.Longest) + " letters");
        if (const auto [first, isNew] = lines.emplace(name.Text, last); !isNew)
          Report(last, name.Text + " stands in line " + std::to_string(first->second) + " already");
      }
      const int count = static_cast<int>(inList.size());
      names += count;
      if (list.Names != 0 && count != list.Names)
        Report(last, std::to_string(count) + " names under " + InQuotes(list.Heading) +
                         "; needed are " + std::to_string(list.Names));
    }
    if (names != array.Names)
      Report(last, std::to_string(names) + " names up to here; needed are " +
                       std::to_string(array.Names));
  }

  const TableFile& file_;
  std::vector<std::string>& mistakes_;
  std::map<std::string_view, int> seen_;
  TableTexts texts_;
};

}  // namespace

std::size_t ColumnOf(const WordTable& table, std::string_view title) {
  const auto found = std::find_if(table.Columns.begin(), table.Columns.end(),
                                  [&](const WordColumn& column) { return column.Title == title; });
  return static_cast<std::size_t>(found - table.Columns.begin());
}

std::vector<BoxText> BoxesOf(const std::string& cell) {
  std::vector<BoxText> boxes;
  for (std::string text : CellsOf(cell, ',')) {
    BoxText box;
    if (const auto bracket = text.find(" ("); bracket != text.npos && text.ends_with(')')) {
      box.Casting = text.substr(bracket + 2, text.size() - bracket - 3);
      text.resize(bracket);
    }
    if (!text.empty() && IsDigit(text[0])) {
      box.Place = text[0] - '0';
      box.MayStayEmpty = text.size() > 1 && text[1] == '?';
      text.erase(0, box.MayStayEmpty ? 2 : 1);
    }
    box.Caption = Trimmed(text);
    boxes.push_back(std::move(box));
  }
  return boxes;
}

std::vector<std::string> PlacesIn(std::string each) {
  if (const auto unsure = each.find("?>"); unsure != each.npos) each.erase(unsure, 1);
  return CellsOf(each, '>');
}

TableTexts ReadTables(const TableFile& file, const WordsText& text,
                      std::vector<std::string>& mistakes) {
  return Reader(file, mistakes).Read(text);
}

}  // namespace grapplemont
