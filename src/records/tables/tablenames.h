#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "records/tables/fieldcells.h"

// In tables records lead to each other by name: a promotion by its initials, all others by their
// name. "#17" is the record of that number, for what no name can tell.

namespace grapplemont {

/// Whether the field is the number of another record.
bool IsReference(const Field& field);

/// What the records of a world are called.
class TableNames {
 public:
  /// `recordsOf` gives the bytes of a file's records.
  explicit TableNames(const std::function<ByteSpan(const RecordLayout&)>& recordsOf);

  /// The cell from which Take makes the same number again.
  std::string CellOf(const Column& column, const std::byte* record) const;
  /// Puts the number that the cell leads to into the record; nobody for an empty one. False for a
  /// cell that leads nowhere. `mayBeGone`: a number may lead to nobody.
  bool Take(const Column& column, std::string_view cell, std::byte* record, bool mayBeGone) const;
  /// What is wrong with a cell that leads nowhere; takes its time over the nearest name, for the
  /// first of many.
  std::string WhyNot(const Column& column, std::string_view cell, const std::byte* record) const;

 private:
  struct Index {
    std::unordered_map<std::string, int> Uids;   // by name; the first of a name that stands twice
    std::unordered_map<int, std::string> Names;  // by number; empty where no name can tell it
  };
  const Index& IndexOf(const Field& field, const std::byte* record) const;
  std::string NobodyOf(const Field& field, std::string_view cell, const std::byte* record) const;

  std::map<Refers, Index> indices_;
  mutable std::size_t compared_ = 0;  // names so far
};

}  // namespace grapplemont
