#pragma once

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

struct CsvTable {
  std::vector<CsvRow> Rows;
  // The first thing that is no such table; nothing behind it has been read.
  int FaultLine = 0;  // 0: all went well
  std::string Fault;
};

/// Takes LF, CRLF and CR as ends of lines and a UTF-8 byte order mark at the front. Cells in quotes
/// keep every letter; others lose blanks at both ends. Lines without any letter are left out.
CsvTable ReadCsv(std::string_view text);

/// The cells as one line with its end, quoted where they must be.
std::string CsvLine(const std::vector<std::string>& cells);

}  // namespace grapplemont
