#pragma once

#include <map>
#include <string>
#include <vector>

#include "words/tables/schema.h"
#include "words/wordstext.h"

namespace grapplemont {

/// A row of a table, cell by cell.
struct TableRow {
  int Line = 0;
  std::vector<std::string> Cells;
};
/// What a file of tables holds, by heading, once it has been checked.
struct TableTexts {
  std::map<std::string_view, std::vector<TableRow>> Rows;
  std::map<std::string_view, std::vector<NumberedLine>> Names;
};

/// One box of an angle's cast, as "3? Ambusher #2" or "1 Turner (Turners)" says it.
struct BoxText {
  std::string Caption, Casting;  // empty for everybody
  int Place = 0;                 // 0 for none
  bool MayStayEmpty = false;
};
/// Of a sound cell.
std::vector<BoxText> BoxesOf(const std::string& cell);

/// Both of a pair "3?>1", the one of a place.
std::vector<std::string> PlacesIn(std::string each);

/// The number of a column; it must exist.
std::size_t ColumnOf(const WordTable& table, std::string_view title);

/// Reads a file's tables and lists. Adds every mistake to `mistakes`, as "12: there is no ...".
TableTexts ReadTables(const TableFile& file, const WordsText& text,
                      std::vector<std::string>& mistakes);

}  // namespace grapplemont
