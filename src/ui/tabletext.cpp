#include <charconv>

#include "ui/arrangedtable.h"
#include "ui/filter.h"

// Tables, their views and their states as texts.

namespace grapplemont::ui {

namespace {

void AppendCsv(std::string& csv, std::string_view field) {
  if (field.find_first_of(",\"\r\n") == field.npos) {
    csv += field;
    return;
  }
  csv += '"';
  for (const char letter : field) {
    if (letter == '"') csv += '"';
    csv += letter;
  }
  csv += '"';
}

/// A field of a state's line: the signs that part fields stand behind a backslash.
void AppendField(std::string& line, std::string_view text) {
  for (const char letter : text) {
    if (letter == '\\' || letter == ';' || letter == ':') line += '\\';
    line += letter;
  }
}

void AppendEntry(std::string& line, std::string_view kind,
                 std::initializer_list<std::string> fields) {
  line += kind;
  for (const std::string& field : fields) {
    line += ':';
    AppendField(line, field);
  }
  line += ';';
}

/// Takes the entry up to the next ';' apart.
std::vector<std::string> TakeEntry(std::string_view& text) {
  std::vector<std::string> fields(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == ';') {
      text.remove_prefix(i + 1);
      return fields;
    }
    if (text[i] == ':') {
      fields.emplace_back();
    } else {
      if (text[i] == '\\' && i + 1 < text.size()) ++i;
      fields.back() += text[i];
    }
  }
  text = {};
  return fields;
}

int NumberIn(const std::string& text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

}  // namespace

std::string Table::Csv(bool chosenAlone) const {
  std::string csv;
  const int rows = static_cast<int>(rows_.size());
  for (int row = -1; row < rows; ++row) {
    if (row >= 0 && chosenAlone && !IsSelected(row)) continue;
    std::string_view part;
    for (const int column : columns_) {
      csv += part;
      AppendCsv(csv, row < 0 ? list_.Columns()[static_cast<std::size_t>(column)].Title
                             : At(row, column).Text);
      part = ",";
    }
    csv += "\r\n";
  }
  return csv;
}

std::string Written(const TableState& state) {
  std::string line;
  for (const auto& [column, descending] : state.Sort)
    AppendEntry(line, descending ? "down" : "up", {column});
  for (const auto& [column, expression] : state.Filters)
    AppendEntry(line, "filter", {column, expression});
  if (!state.Search.empty()) AppendEntry(line, "search", {state.Search});
  for (const std::string& column : state.Order) AppendEntry(line, "order", {column});
  for (const std::string& column : state.Hidden) AppendEntry(line, "hide", {column});
  for (const auto& [column, width] : state.Widths)
    AppendEntry(line, "width", {column, std::to_string(width)});
  if (!state.View.empty()) AppendEntry(line, "view", {state.View});
  for (const auto& [name, view] : state.Own) AppendEntry(line, "own", {name, view});
  if (state.TopRow != 0 || state.CurrentKey != 0)
    AppendEntry(line, "place", {std::to_string(state.TopRow), std::to_string(state.CurrentKey)});
  return line;
}

TableState ReadTableState(std::string_view text) {
  TableState state;
  while (!text.empty()) {
    const std::vector<std::string> entry = TakeEntry(text);
    const std::string& kind = entry.front();
    if (entry.size() == 2) {
      const std::string& field = entry[1];
      if ((kind == "up" || kind == "down") && state.Sort.size() < 2)
        state.Sort.push_back({field, kind == "down"});
      if (kind == "search") state.Search = field;
      if (kind == "view") state.View = field;
      if (kind == "order") state.Order.push_back(field);
      if (kind == "hide") state.Hidden.insert(field);
    } else if (entry.size() == 3) {
      if (kind == "filter") state.Filters[entry[1]] = entry[2];
      if (kind == "own") state.Own[entry[1]] = entry[2];
      if (kind == "width") state.Widths[entry[1]] = NumberIn(entry[2]);
      if (kind == "place") {
        state.TopRow = NumberIn(entry[1]);
        state.CurrentKey = NumberIn(entry[2]);
      }
    }
  }
  return state;
}

}  // namespace grapplemont::ui
