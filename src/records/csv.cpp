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

bool NeedsQuotes(std::string_view cell) {
  return cell.find_first_of(",\"\r\n") != std::string_view::npos ||
         Stripped(cell).size() != cell.size();
}

}  // namespace

bool CsvRow::IsBlank() const {
  return std::all_of(Cells.begin(), Cells.end(),
                     [](const std::string& cell) { return Stripped(cell).empty(); });
}

CsvReader::CsvReader(std::string_view text) : text_(text) {
  if (text_.starts_with(kByteOrderMark)) at_ = kByteOrderMark.size();
}

bool CsvReader::Next(CsvRow& row) {
  while (TakeLineEnd()) {
  }
  return at_ < text_.size() && faultLine_ == 0 && ReadRow(row);
}

bool CsvReader::AtLineEnd() const {
  return at_ == text_.size() || text_[at_] == '\n' || text_[at_] == '\r';
}

bool CsvReader::TakeLineEnd() {
  if (at_ == text_.size() || !AtLineEnd()) return false;
  at_ += text_.substr(at_).starts_with("\r\n") ? 2 : 1;
  ++line_;
  return true;
}

bool CsvReader::Take(char c) {
  if (at_ == text_.size() || text_[at_] != c) return false;
  ++at_;
  return true;
}

/// The cells that the row had keep their room for those to come.
bool CsvReader::ReadRow(CsvRow& row) {
  row.Line = line_;
  std::size_t count = 0;
  do {
    if (count == kMostCells)
      return Fail(line_, "has more than " + std::to_string(kMostCells) + " cells");
    if (count == row.Cells.size()) row.Cells.emplace_back();
    if (!ReadCell(row.Cells[count++])) return false;
  } while (Take(','));
  row.Cells.resize(count);
  TakeLineEnd();
  return true;
}

void CsvReader::SkipBlanks() {
  at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size());
}

bool CsvReader::ReadCell(std::string& cell) {
  const std::size_t start = at_;
  cell.clear();
  SkipBlanks();
  if (Take('"')) return ReadQuoted(cell);
  const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
  const std::string_view letters = Stripped(text_.substr(start, end - start));
  if (letters.find('"') != std::string_view::npos)
    return Fail(line_, "has a quotation mark inside a cell that does not begin with one");
  if (letters.size() > kMostCellBytes) return FailForLength();
  cell = letters;
  at_ = end;
  return true;
}

bool CsvReader::ReadQuoted(std::string& cell) {
  const int start = line_;
  for (;;) {
    const std::size_t quote = text_.find('"', at_);
    if (quote == std::string_view::npos)
      return Fail(start, "has a quotation mark that is never closed");
    if (!Append(cell, quote)) return false;
    at_ = quote + 1;
    if (!Take('"')) break;
    cell += '"';
  }
  SkipBlanks();
  if (AtLineEnd() || text_[at_] == ',') return true;
  return Fail(line_, "has letters behind the quotation mark that closes a cell");
}

/// What stands before `end`, line ends and all.
bool CsvReader::Append(std::string& cell, std::size_t end) {
  if (cell.size() + (end - at_) > kMostCellBytes) return FailForLength();
  cell += text_.substr(at_, end - at_);
  while (at_ < end)
    if (!TakeLineEnd()) ++at_;
  return true;
}

bool CsvReader::FailForLength() {
  return Fail(line_, "has a cell of more than " + std::to_string(kMostCellBytes) + " letters");
}

bool CsvReader::Fail(int line, std::string what) {
  faultLine_ = line;
  fault_ = std::move(what);
  return false;
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
