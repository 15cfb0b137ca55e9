#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "records/tables/fieldcells.h"

// Tables of comma-separated values as RFC 4180 has them, with the place of everything kept for
// messages.

namespace grapplemont {

struct CsvRow {
  int Line = 0;  // of its first letter; lines count from 1
  std::vector<std::string> Cells;
  /// Every cell is empty or blank.
  bool IsBlank() const;
};

/// The most that a line may hold. Far above any table of a world, remarks of its author included.
inline constexpr std::size_t kMostCells = 1000, kMostCellBytes = 32 << 10;

/// Reads a text row by row: it may be longer than what its rows would take in memory. Takes LF,
/// CRLF and CR as ends of lines and a UTF-8 byte order mark at the front. Cells in quotes keep
/// every letter; others lose blanks at both ends. Lines without any letter are left out.
class CsvReader {
 public:
  explicit CsvReader(std::string_view text);
  /// The next row, in place of what `row` holds; false behind the last one and from the first thing
  /// on that is not such a table.
  bool Next(CsvRow& row);
  int FaultLine() const { return faultLine_; }  // 0: all went well so far
  const std::string& Fault() const { return fault_; }

 private:
  bool AtLineEnd() const;
  bool TakeLineEnd();
  bool Take(char c);
  bool ReadRow(CsvRow& row);
  void SkipBlanks();
  bool ReadCell(std::string& cell);
  bool ReadQuoted(std::string& cell);
  bool Append(std::string& cell, std::size_t end);
  bool FailForLength();
  bool Fail(int line, std::string what);

  std::string_view text_;
  std::size_t at_ = 0;
  int line_ = 1;
  int faultLine_ = 0;
  std::string fault_;
};

/// The cells as one line with its end, quoted where they must be.
std::string CsvLine(const std::vector<std::string>& cells);

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
