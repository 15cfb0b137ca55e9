#include "records/store/knownfiles.h"

#include <algorithm>

namespace grapplemont {

const std::vector<KnownFile>& KnownFiles() {
  // Tables reserve room for all their records: they are asked once.
  static const std::vector<KnownFile> files = [] {
    std::vector<KnownFile> known;
    const auto add = [&](const Table& table) {
      known.push_back({std::string(table.File()), table.MaxBytes(),
                       table.Layout() ? table.Layout()->Size : 1,
                       table.File() == LayoutOf<Incident>().File});
    };
    std::apply([&](const auto&... table) { (add(table), ...); }, AllTables());
    return known;
  }();
  return files;
}

std::int64_t MostBytesOf(std::string_view file) {
  const auto found = std::find_if(KnownFiles().begin(), KnownFiles().end(),
                                  [&](const KnownFile& one) { return one.Name == file; });
  return found == KnownFiles().end() ? 0 : found->MaxBytes;
}

}  // namespace grapplemont
