#include "words/tables/embedtables.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "words/tables/tablecheck.h"
#include "words/units.h"

namespace grapplemont {

namespace {

namespace fs = std::filesystem;

/// Whether the angle is the Commissioner's, and its boxes.
std::string CastCode(const WordColumn& column, const std::string& cell) {
  std::string boxes;
  bool hasCommissioner = false;
  for (const BoxText& box : BoxesOf(cell)) {
    hasCommissioner |= box.Casting == "Commissioner";
    boxes += (boxes.empty() ? "{" : ", {") + Quoted(box.Caption) + ", " +
             std::string(column.Before) + (box.Casting.empty() ? "Plain" : box.Casting) + ", " +
             std::to_string(box.Place) + (box.MayStayEmpty ? ", true}" : ", false}");
  }
  return (hasCommissioner ? "true, {{" : "false, {{") + boxes + "}}";
}

/// "1 Leader" as {1, kLeader}, "2>1 3?>1" as {{{2, 1}, {3, 1, true}}}.
std::string PlacesCode(const WordColumn& column, const std::string& cell) {
  std::string code;
  for (const std::string& each : CellsOf(cell, ' ')) {
    std::string places;
    for (const std::string& place : PlacesIn(each))
      places += (places.empty() ? "" : ", ") +
                (std::isdigit(place[0]) ? place : std::string(column.Before) + place);
    if (column.Is == WordColumn::Pairs)
      places = "{" + places + (each.find('?') == each.npos ? "}" : ", true}");
    code += (code.empty() ? "" : ", ") + places;
  }
  return column.Is == WordColumn::Pairs ? "{{" + code + "}}" : "{" + code + "}";
}

std::string CellCode(const WordTable& table, const TableRow& row, std::string_view title) {
  if (title[0] == '"') return std::string(title.substr(1));
  const std::size_t number = ColumnOf(table, title);
  const WordColumn& column = table.Columns[number];
  const std::string& cell = row.Cells[number];
  if (cell == kEmptyCell)
    return column.Empty[0] == '=' ? CellCode(table, row, column.Empty.substr(1))
                                  : std::string(column.Empty);
  switch (column.Is) {
    case WordColumn::Number:
      return cell;
    case WordColumn::Rule:
      return "k" + cell;
    case WordColumn::Choice:
      return std::string(column.Before) + cell;
    case WordColumn::Cast:
      return CastCode(column, cell);
    case WordColumn::Places:
    case WordColumn::Pairs:
      return PlacesCode(column, cell);
    default:
      return Quoted(cell + std::string(column.Behind));
  }
}

bool IsLeftOut(const WordTable& table, const TableRow& row, const RowArray& array) {
  return std::any_of(array.Columns.begin(), array.Columns.end(), [&](std::string_view title) {
    const std::size_t number = ColumnOf(table, title);
    return number < table.Columns.size() && row.Cells[number] == kEmptyCell &&
           table.Columns[number].Empty == kLeavesOut;
  });
}

void AddArray(std::ostream& out, const WordTable& table, const std::vector<TableRow>& rows,
              const RowArray& array) {
  out << "inline constexpr " << array.Type << " " << array.Name << "[] = {\n";
  for (const TableRow& row : rows) {
    if (IsLeftOut(table, row, array)) continue;
    std::string cells;
    for (const std::string_view title : array.Columns)
      cells += (cells.empty() ? "" : ", ") + CellCode(table, row, title);
    out << "    {" << cells << "},\n";
  }
  out << "};\n";
}

/// The rule names, as an enumeration or as constants.
void AddRules(std::ostream& out, const WordTable& table, const std::vector<TableRow>& rows) {
  if (table.NumbersOf.empty()) return;
  const std::size_t rule = ColumnOf(table, "Rule"), number = ColumnOf(table, table.NumbersOf);
  if (!table.Namespace.empty()) out << "namespace " << table.Namespace << " {\n";
  if (!table.Enum.empty()) out << "enum " << table.Enum << " {\n";
  std::vector<std::string> made;
  for (const TableRow& row : rows) {
    const std::string& name = row.Cells[rule];
    if (name == kEmptyCell || std::find(made.begin(), made.end(), name) != made.end()) continue;
    made.push_back(name);
    out << (table.Enum.empty() ? "inline constexpr int k" : "  k") << name << " = "
        << row.Cells[number] << (table.Enum.empty() ? ";\n" : ",\n");
  }
  if (!table.Enum.empty()) out << "};\n";
  if (!table.Namespace.empty()) out << "}\n";
}

void AddNames(std::ostream& out, const NameArray& array, TableTexts& texts) {
  out << "inline constexpr std::array<" << array.Type << ", " << array.Names << "> " << array.Name
      << " = {{\n";
  for (const NameArray::List& list : array.Lists)
    for (const NumberedLine& name : texts.Names[list.Heading])
      out << "    {" << list.Before << Quoted(name.Text) << "},\n";
  out << "}};\ninline constexpr int k" << array.Name << " = " << array.Names << ";\n";
  for (const NameArray::List& list : array.Lists)
    if (!list.CountAs.empty())
      out << "inline constexpr int " << list.CountAs << " = " << list.Names << ";\n";
}

std::string CodeOf(const TableFile& file, TableTexts& texts, const MadeHeader& header) {
  std::ostringstream out;
  out << "// Made by the build from words/" << file.Path << ".\n#pragma once\n\n#include <array>\n"
      << "#include <string_view>\n\n";
  for (const std::string_view include : header.Includes) out << "#include \"" << include << "\"\n";
  out << "\nnamespace grapplemont {\n\n";
  for (const WordTable& table : file.Tables) {
    const auto& rows = texts.Rows[table.Heading];
    if (table.Arrays[0].Header == header.Name) AddRules(out, table, rows);
    for (const RowArray& array : table.Arrays)
      if (array.Header == header.Name) AddArray(out, table, rows, array);
  }
  for (const NameArray& array : file.Names) AddNames(out, array, texts);
  out << "\n}  // namespace grapplemont\n";
  return out.str();
}

}  // namespace

std::vector<std::string> EmbedTables(const fs::path& words, const fs::path& out) {
  std::vector<std::string> all;
  std::vector<TableTexts> texts;
  for (const TableFile& file : AllTableFiles()) {
    const auto bytes = BytesOf(words / file.Path);
    std::vector<std::string> mistakes;
    texts.push_back(ReadTables(file, ReadWordsText(bytes.value_or("")), mistakes));
    if (!bytes) mistakes = {"1: this file is missing"};
    for (const std::string& mistake : mistakes)
      all.push_back(((words / "").parent_path().filename() / file.Path).generic_string() + ":" +
                    mistake);
  }
  if (!all.empty()) return all;
  fs::create_directories(out);
  auto text = texts.begin();
  for (const TableFile& file : AllTableFiles()) {
    for (const MadeHeader& header : file.Headers)
      WriteIfNew(out / (std::string(header.Name) + ".h"), CodeOf(file, *text, header));
    ++text;
  }
  return {};
}

}  // namespace grapplemont
