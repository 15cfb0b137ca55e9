#include "golden/worldlines.h"

#include <algorithm>
#include <stdexcept>

#include "records/fields/charset.h"
#include "records/tables/tablereader.h"
#include "records/tables/worldreport.h"
#include "support/checkout.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

namespace grapplemont::test {

namespace {

/// The cells of the line, and the table that the first names.
class Line {
 public:
  Line(World& world, std::string_view line) : world_(world) {
    const std::string text = ToUtf8(line);
    CsvReader reader(text);
    if (!reader.Next(row_)) throw std::logic_error("no line of cells");
    kind_ = FindTableKind(row_.Cells[0] + ".csv");
    if (!kind_) throw std::logic_error("there is no table \"" + row_.Cells[0] + "\"");
    for (Table* table : world.Tables())
      if (table->Layout() == kind_->Layout) table_ = table;
    bytes_.assign(table_->Contents().begin(), table_->Contents().end());
  }

  /// The record that the second cell names.
  std::byte* Named() {
    const auto columns = ColumnsOfTable(*kind_);
    const auto name = std::find_if(columns.begin(), columns.end(),
                                   [](const Column& column) { return column.Of->Name == "Name"; });
    for (std::size_t i = 0; i < Count(); ++i)
      if (row_.Cells[1] == std::to_string(i + 1) ||
          (name != columns.end() && CellOf(*kind_, *name, Record(i)) == row_.Cells[1]))
        return Record(i);
    throw std::logic_error("there is no record \"" + row_.Cells[1] + "\"");
  }
  std::byte* New() {
    long long highest = 0;
    for (const Column& column : ColumnsOfTable(*kind_))
      if (IsUid(*column.Of))
        for (std::size_t i = 0; i < Count(); ++i)
          highest = std::max(highest, FieldNumber(*column.Of, Record(i)));
    bytes_.insert(bytes_.end(), kind_->Default.begin(), kind_->Default.end());
    for (const Column& column : ColumnsOfTable(*kind_))
      if (IsUid(*column.Of)) SetFieldNumber(*column.Of, Record(Count() - 1), 0, highest + 1);
    return Record(Count() - 1);
  }

  /// Fills "Field=Value" cells from that one on into the record and hands it to the world.
  void Fill(std::byte* record, std::size_t from) {
    const TableNames names = NamesIn(world_);
    for (std::size_t i = from; i < row_.Cells.size(); ++i) Take(names, row_.Cells[i], record);
    table_->Load(bytes_);
  }

 private:
  std::size_t Size() const { return static_cast<std::size_t>(kind_->Layout->Size); }
  std::size_t Count() const { return bytes_.size() / Size(); }
  std::byte* Record(std::size_t i) { return bytes_.data() + i * Size(); }

  void Take(const TableNames& names, const std::string& cell, std::byte* record) {
    const auto equals = cell.find('=');
    const std::string field = cell.substr(0, equals);
    const std::string value = equals == std::string::npos ? "" : cell.substr(equals + 1);
    for (const Column& column : ColumnsOfTable(*kind_)) {
      if (column.Name() != field) continue;
      std::string why;
      if (!IsReference(*column.Of))
        why = TakeCell(*kind_, column, value, record);
      else if (!names.Take(column, value, record, true))
        why = names.WhyNot(column, value, record);
      if (!why.empty()) throw std::logic_error(field + " " + why);
      return;
    }
    throw std::logic_error("there is no field \"" + field + "\"");
  }

  World& world_;
  CsvRow row_;
  const TableKind* kind_ = nullptr;
  Table* table_ = nullptr;
  Bytes bytes_;
};

}  // namespace

World TablesOf(const std::string& name) {
  if (name == "default") return CopyOf(DefaultWorld());
  const auto disk = RealDisk();
  Building building = BuildWorld(ReadTables(*disk, Checkout("/tests/golden/worlds/" + name)));
  if (!building.Made) throw std::logic_error(MistakeLines(building).front());
  return std::move(*building.Made);
}

void SetCells(World& world, std::string_view line) {
  Line cells(world, line);
  cells.Fill(cells.Named(), 2);
}

void AddRecord(World& world, std::string_view line) {
  Line cells(world, line);
  cells.Fill(cells.New(), 1);
}

}  // namespace grapplemont::test
