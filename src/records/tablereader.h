#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <vector>

#include "records/cells.h"
#include "records/csv.h"

namespace grapplemont {

/// One thing that is wrong in a table.
struct Mistake {
  std::string Table;   // "workers.csv"
  int Line = 0;        // 0: the table as a whole
  std::string Column;  // empty: the line as a whole
  std::string What;
  /// "workers.csv, line 17, column Employer: no promotion has the initials CWAA; did you mean CWA?"
  std::string Text() const;
};

/// A cell that leads to another record, kept until all records are known.
struct WaitingCell {
  Column Place;
  std::size_t Row = 0;
  std::string Cell;
};

/// The records of one table, with the lines they stand on.
struct ReadTable {
  const TableKind* Kind = nullptr;
  Bytes Records;
  std::vector<int> Lines;
  std::vector<WaitingCell> Waiting;
  std::vector<Mistake> Mistakes;
  bool NamesAll = true;  // no record is left out and no name is in doubt

  std::size_t Count() const { return Lines.size(); }
  std::byte* Record(std::size_t row) {
    return Records.data() + row * static_cast<std::size_t>(Kind->Layout->Size);
  }
  void Note(std::size_t row, std::string column, std::string what) {
    Mistakes.push_back({std::string(Kind->Name), Lines[row], std::move(column), std::move(what)});
  }
};

/// The records that a table tells, numbered where it does not number them itself. What leads to
/// other records waits.
ReadTable ReadTableOf(const TableKind& kind, std::string_view text);

}  // namespace grapplemont
