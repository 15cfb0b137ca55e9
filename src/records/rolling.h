#pragma once

#include "records/table.h"

namespace grapplemont {

/// Appends to a file that need not keep everything: a full one loses so many of its oldest records
/// first, many at once, since making room must not move the whole file with every record.
template <class T>
T& AppendRolling(Records<T>& records, const T& record, int oldest) {
  if (records.Full()) {
    int number = 0;
    records.Keep([&](const T&) { return ++number > oldest; });
  }
  return records.Append(record);
}

}  // namespace grapplemont
