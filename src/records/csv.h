#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

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
  /// on that is no such table.
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

}  // namespace grapplemont
