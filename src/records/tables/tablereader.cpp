#include "records/tables/tablereader.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/tables/tablenames.h"

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

namespace {

/// An author's own column, which says nothing about the world.
bool IsRemark(std::string_view name) {
  return name == "Note" || name.starts_with('#');
}

std::string Ordinal(std::size_t number) {
  return "column " + std::to_string(number);
}

class TableReader {
 public:
  explicit TableReader(const TableKind& kind) : kind_(kind), all_(ColumnsOfTable(kind)) {
    table_.Kind = &kind;
  }

  ReadTable Read(std::string_view text) {
    CsvReader csv(text);
    CsvRow row;
    const bool hasHeader = csv.Next(row);
    if (hasHeader && TakeHeader(row)) TakeRows(csv, row);
    if (csv.FaultLine() != 0) NoteLoss(csv.FaultLine(), {}, csv.Fault());
    if (!hasHeader && csv.FaultLine() == 0)
      NoteLoss(1, {}, "is missing; the first line of a table names its columns");
    NumberRecords();
    FindDoubles();
    return std::move(table_);
  }

 private:
  void Note(int line, std::string_view column, std::string_view what) {
    table_.Mistakes.Note(kind_.Name, line, column, what);
  }

  /// A mistake for which some record or its name is not there.
  void NoteLoss(int line, std::string_view column, std::string_view what) {
    table_.NamesAll = false;
    Note(line, column, what);
  }

  const Column* Find(std::string_view name) const {
    for (const Column& column : all_)
      if (column.Name() == name) return &column;
    return nullptr;
  }

  bool TakeHeader(const CsvRow& header) {
    headerLine_ = header.Line;
    if (header.Cells.size() == 1 && header.Cells[0].find(';') != std::string::npos) {
      NoteLoss(header.Line, {}, "has semicolons between its cells; save the table with commas");
      return false;
    }
    std::set<std::string> met;
    for (std::size_t i = 0; i < header.Cells.size(); ++i) {
      const std::string& name = header.Cells[i];
      columns_.push_back(IsRemark(name) ? nullptr : Find(name));
      if (IsRemark(name)) continue;
      if (name.empty()) {
        Note(header.Line, {}, Ordinal(i + 1) + " has no name");
      } else if (!columns_.back()) {
        NoteUnknown(header.Line, name);
      } else if (!met.insert(name).second) {
        Note(header.Line, name, "stands there twice");
        columns_.back() = nullptr;
      }
    }
    for (const Column& column : all_)
      if (!HasDefault(kind_, column) && !met.contains(column.Name())) missing_.push_back(column);
    return true;
  }

  void NoteUnknown(int line, const std::string& name) {
    std::vector<std::string> names;
    for (const Column& column : all_) names.push_back(column.Name());
    Note(line, ShortCell(name),
         "there is no such column" + DidYouMean(name, {names.begin(), names.end()}));
  }

  void TakeRows(CsvReader& csv, CsvRow& row) {
    const auto limit = static_cast<std::size_t>(kind_.Layout->Limit);
    while (csv.Next(row)) {
      if (row.IsBlank()) continue;
      if (table_.Count() == limit) {
        NoteLoss(row.Line, {},
                 "is one too many; the table may have " + std::to_string(limit) + " records");
        break;
      }
      TakeRow(row);
    }
    // A column that is not there is missed once, not on every line.
    if (table_.Count() > 0)
      for (const Column& column : missing_) {
        if (column.Of->IsKey) table_.NamesAll = false;
        Note(headerLine_, column.Name(), "is missing; it has no default");
      }
  }

  void TakeRow(const CsvRow& row) {
    if (row.Cells.size() != columns_.size()) {
      // A table of nothing else may have millions of them.
      if (table_.Mistakes.IsFull()) return NoteLoss(row.Line, {}, {});
      NoteLoss(row.Line, {},
               "has " + std::to_string(row.Cells.size()) + " cells where the header has " +
                   std::to_string(columns_.size()));
      return;
    }
    const std::size_t number = table_.Count();
    table_.Records.insert(table_.Records.end(), kind_.Default.begin(), kind_.Default.end());
    table_.Lines.push_back(row.Line);
    for (std::size_t i = 0; i < columns_.size(); ++i)
      if (columns_[i]) TakeCellOf(*columns_[i], row.Cells[i], number);
  }

  void TakeCellOf(const Column& column, const std::string& cell, std::size_t number) {
    if (IsReference(*column.Of)) {
      table_.Waiting.push_back({column, number, cell});
      return;
    }
    if (IsUid(*column.Of) && !detail::Trimmed(cell).empty()) numbered_.insert(number);
    std::string wrong = TakeCell(kind_, column, cell, table_.Record(number));
    if (wrong.empty()) return;
    if (column.Of->IsKey) table_.NamesAll = false;
    table_.Note(number, column.Name(), std::move(wrong));
  }

  /// The records that are not numbered take the free numbers in their order.
  void NumberRecords() {
    if (!IsUid(*all_.front().Of)) return;
    const Field& uid = *all_.front().Of;
    std::unordered_set<long long> taken;
    for (const std::size_t row : numbered_) taken.insert(FieldNumber(uid, table_.Record(row)));
    int next = 1;
    for (std::size_t row = 0; row < table_.Count(); ++row) {
      if (numbered_.contains(row)) continue;
      while (taken.contains(next)) ++next;
      SetFieldNumber(uid, table_.Record(row), 0, next++);
    }
  }

  void FindDoubles() {
    for (const Column& column : all_) {
      if (!column.Of->IsKey) continue;
      std::unordered_map<std::string, int> lines;
      for (std::size_t row = 0; row < table_.Count(); ++row) {
        const std::string key = CellOf(kind_, column, table_.Record(row));
        // What is empty or not a number has been reported already.
        if (key.empty() || (IsUid(*column.Of) && key == "0")) continue;
        const auto [first, isFirst] = lines.try_emplace(key, table_.Lines[row]);
        if (!isFirst)
          table_.Note(
              row, column.Name(),
              QuotedCell(key) + " stands on line " + std::to_string(first->second) + " already");
      }
    }
  }

  const TableKind& kind_;
  std::vector<Column> all_;
  std::vector<const Column*> columns_;  // by cell; nullptr for one that is passed over
  std::vector<Column> missing_;
  std::set<std::size_t> numbered_;
  int headerLine_ = 1;
  ReadTable table_;
};

}  // namespace

std::string Mistake::Text() const {
  std::string text = Table;
  if (Line != 0) text += ", line " + std::to_string(Line);
  if (!Column.empty()) text += ", column " + Column;
  return text + ": " + What;
}

void TableMistakes::Note(std::string_view table, int line, std::string_view column,
                         std::string_view what) {
  if (!IsFull()) First.push_back({ValidUtf8(table), line, ValidUtf8(column), ValidUtf8(what)});
  ++Count;
}

ReadTable ReadTableOf(const TableKind& kind, std::string_view text) {
  return TableReader(kind).Read(text);
}

}  // namespace grapplemont
