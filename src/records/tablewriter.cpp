#include <algorithm>

#include "records/charset.h"
#include "records/csv.h"
#include "records/worldtables.h"

namespace grapplemont {

namespace {

/// One record file as a table.
class TableWriter {
 public:
  TableWriter(const TableKind& kind, ByteSpan records, const TableNames& names)
      : kind_(kind), records_(records), names_(names) {}

  std::string Write() const {
    const std::vector<Column> columns = ColumnsWorthWriting();
    std::vector<std::string> header;
    for (const Column& column : columns) header.push_back(column.Name());
    std::string text = CsvLine(header);
    for (std::size_t row = 0; row < Count(); ++row) text += LineOf(columns, row);
    return text;
  }

 private:
  std::size_t Count() const {
    return records_.size() / static_cast<std::size_t>(kind_.Layout->Size);
  }
  const std::byte* Record(std::size_t row) const {
    return records_.data() + row * static_cast<std::size_t>(kind_.Layout->Size);
  }

  std::string Cell(const Column& column, std::size_t row) const {
    return IsReference(*column.Of) ? names_.CellOf(column, Record(row))
                                   : CellOf(kind_, column, Record(row));
  }

  std::string LineOf(const std::vector<Column>& columns, std::size_t row) const {
    std::vector<std::string> cells;
    for (const Column& column : columns) cells.push_back(Cell(column, row));
    // A line of empty cells would be passed over: an empty text is told as one.
    if (std::all_of(cells.begin(), cells.end(), [](auto& cell) { return cell.empty(); }))
      *std::find_if(cells.begin(), cells.end(), [&](const std::string& cell) {
        return columns[static_cast<std::size_t>(&cell - cells.data())].Of->Kind == FieldKind::Text;
      }) = "\\";
    return CsvLine(cells);
  }

  /// Records that number themselves in their order, as the reader would.
  bool AreNumberedInOrder(const Column& uid) const {
    for (std::size_t row = 0; row < Count(); ++row)
      if (FieldNumber(*uid.Of, Record(row)) != static_cast<long long>(row) + 1) return false;
    return true;
  }

  bool HoldsOnlyDefaults(const Column& column) const {
    const auto offset =
        static_cast<std::size_t>(column.Of->Offset + column.Index * column.Of->Stride);
    const ByteSpan wanted = ByteSpan(kind_.Default).subspan(offset, Width(column));
    for (std::size_t row = 0; row < Count(); ++row)
      if (!std::equal(wanted.begin(), wanted.end(), Record(row) + offset)) return false;
    return true;
  }

  static std::size_t Width(const Column& column) {
    return static_cast<std::size_t>(column.Of->Width);
  }

  /// The column that every table has: the name of its records, where they have one.
  static const Column& Anchor(const std::vector<Column>& columns) {
    const auto text = std::find_if(columns.begin(), columns.end(), [](const Column& column) {
      return column.Of->Kind == FieldKind::Text;
    });
    return text == columns.end() ? columns.front() : *text;
  }

  std::vector<Column> ColumnsWorthWriting() const {
    const std::vector<Column> all = ColumnsOf(kind_);
    const Column& anchor = Anchor(all);
    std::vector<Column> columns;
    for (const Column& column : all) {
      const bool worth = IsUid(*column.Of)
                             ? !AreNumberedInOrder(column)
                             : &column == &anchor || Count() == 0 || !HasDefault(kind_, column) ||
                                   !HoldsOnlyDefaults(column);
      if (worth) columns.push_back(column);
    }
    return columns;
  }

  const TableKind& kind_;
  ByteSpan records_;
  const TableNames& names_;
};

}  // namespace

TableNames NamesIn(const World& world) {
  return TableNames([files = world.Tables()](const RecordLayout& layout) {
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&](const Table* file) { return file->Layout() == &layout; });
    return (*found)->Contents();
  });
}

Tables ExportWorld(const World& world) {
  const auto files = world.Tables();
  const TableNames names = NamesIn(world);
  Tables tables;
  for (const Table* file : files) {
    if (!file->Exists()) continue;
    if (const RecordLayout* layout = file->Layout()) {
      const TableKind& kind = TableKindOf(*layout);
      tables.emplace(kind.Name, TableWriter(kind, file->Contents(), names).Write());
    } else {
      tables.emplace(kNotesTable, ToUtf8(world.Notes().Text()));
    }
  }
  return tables;
}

}  // namespace grapplemont
