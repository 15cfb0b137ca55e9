#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/fields/field.h"
#include "records/store/disk.h"

// Which tables a world is written down in, and what stands in a record where a table says nothing.

namespace grapplemont {

/// One table of a world: a file of comma-separated values, a record a line.
struct TableKind {
  std::string_view Name;  // "workers.csv"
  const RecordLayout* Layout = nullptr;
  Bytes Default;        // a whole record
  bool OfGame = false;  // only a running game has it
};

/// The ten tables of a world in the order in which an author meets them, then those that a running
/// game adds.
std::span<const TableKind> TableKinds();
/// nullptr for a name that no table has.
const TableKind* FindTableKind(std::string_view name);
const TableKind& TableKindOf(const RecordLayout& layout);

/// What a running game notes down in plain text stands beside its tables.
inline constexpr std::string_view kNotesTable = "notes.txt";
/// The table that makes a folder of tables a running game's.
inline constexpr std::string_view kGameTable = "game.csv";

/// One column of a table: a field, and which of its numbers (from 0).
struct Column {
  const Field* Of = nullptr;
  int Index = 0;
  std::string Name() const { return FieldName(*Of, Index); }
};
/// Where its bytes lie in a record.
inline ByteSpan BytesAt(const Column& column, const std::byte* record) {
  return {record + column.Of->Offset + column.Index * column.Of->Stride,
          static_cast<std::size_t>(column.Of->Width)};
}
/// All columns that the table may have, in the order of the record.
std::vector<Column> ColumnsOfTable(const TableKind& kind);

/// A record's number; a table without it numbers its records itself.
bool IsUid(const Field& field);
/// Whether the column may be left out, and its cells left empty.
bool HasDefault(const TableKind& kind, const Column& column);

}  // namespace grapplemont
