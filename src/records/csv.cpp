#include "records/csv.h"

#include <algorithm>

namespace grapplemont {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t";

std::string_view Stripped(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Walks over the text and knows the line it is on.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  CsvTable Read() {
    if (text_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
    while (at_ < text_.size() && table_.FaultLine == 0)
      if (!TakeLineEnd()) ReadRow();
    return std::move(table_);
  }

 private:
  bool AtLineEnd() const { return at_ == text_.size() || text_[at_] == '\n' || text_[at_] == '\r'; }

  bool TakeLineEnd() {
    if (at_ == text_.size() || !AtLineEnd()) return false;
    at_ += text_.substr(at_).starts_with("\r\n") ? 2 : 1;
    ++line_;
    return true;
  }

  void ReadRow() {
    CsvRow row;
    row.Line = line_;
    do {
      std::string cell;
      if (!ReadCell(cell)) return;
      row.Cells.push_back(std::move(cell));
    } while (Take(','));
    TakeLineEnd();
    table_.Rows.push_back(std::move(row));
  }

  bool Take(char c) {
    if (at_ == text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  void SkipBlanks() { at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size()); }

  bool ReadCell(std::string& cell) {
    const std::size_t start = at_;
    SkipBlanks();
    if (Take('"')) return ReadQuoted(cell);
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    cell = Stripped(text_.substr(start, end - start));
    at_ = end;
    if (cell.find('"') == std::string::npos) return true;
    return Fail(line_, "has a quotation mark inside a cell that does not begin with one");
  }

  bool ReadQuoted(std::string& cell) {
    const int start = line_;
    for (;;) {
      const std::size_t quote = text_.find('"', at_);
      if (quote == std::string_view::npos)
        return Fail(start, "has a quotation mark that is never closed");
      Append(cell, quote);
      at_ = quote + 1;
      if (!Take('"')) break;
      cell += '"';
    }
    SkipBlanks();
    if (AtLineEnd() || text_[at_] == ',') return true;
    return Fail(line_, "has letters behind the quotation mark that closes a cell");
  }

  /// What stands before `end`, line ends and all.
  void Append(std::string& cell, std::size_t end) {
    cell += text_.substr(at_, end - at_);
    while (at_ < end)
      if (!TakeLineEnd()) ++at_;
  }

  bool Fail(int line, std::string what) {
    table_.FaultLine = line;
    table_.Fault = std::move(what);
    return false;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  int line_ = 1;
  CsvTable table_;
};

bool NeedsQuotes(std::string_view cell) {
  return cell.find_first_of(",\"\r\n") != std::string_view::npos ||
         Stripped(cell).size() != cell.size();
}

}  // namespace

bool CsvRow::IsBlank() const {
  return std::all_of(Cells.begin(), Cells.end(),
                     [](const std::string& cell) { return Stripped(cell).empty(); });
}

CsvTable ReadCsv(std::string_view text) {
  return Reader(text).Read();
}

std::string CsvLine(const std::vector<std::string>& cells) {
  std::string line;
  for (const std::string& cell : cells) {
    if (&cell != &cells.front()) line += ',';
    if (!NeedsQuotes(cell)) {
      line += cell;
      continue;
    }
    line += '"';
    for (const char c : cell) line.append(c == '"' ? 2 : 1, c);
    line += '"';
  }
  return line + '\n';
}

}  // namespace grapplemont
