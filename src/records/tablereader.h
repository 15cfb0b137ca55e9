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

/// The mistakes of a table: a damaged one has any number, and nobody reads them all.
struct TableMistakes {
  std::vector<Mistake> First;
  std::size_t Count = 0;

  bool IsFull() const { return Count >= 200; }
  /// Keeps one, its texts made UTF-8 whatever the table holds; of those beyond the first it keeps
  /// the count.
  void Note(std::string_view table, int line, std::string_view column, std::string_view what);
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
  TableMistakes Mistakes;
  bool NamesAll = true;  // no record is left out and no name is in doubt

  std::size_t Count() const { return Lines.size(); }
  std::byte* Record(std::size_t row) {
    return Records.data() + row * static_cast<std::size_t>(Kind->Layout->Size);
  }
  void Note(std::size_t row, std::string_view column, std::string_view what) {
    Mistakes.Note(Kind->Name, Lines[row], column, what);
  }
};

/// The records that a table tells, numbered where it does not number them itself. What leads to
/// other records waits.
ReadTable ReadTableOf(const TableKind& kind, std::string_view text);

}  // namespace grapplemont
