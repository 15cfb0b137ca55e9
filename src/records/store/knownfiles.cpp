#include "records/store/knownfiles.h"

#include "records/store/commandlog.h"
#include "records/store/mornings.h"

namespace grapplemont {

#define GM_HERE(T) template class Records<T>;
GM_EVERY_RECORD(GM_HERE)
#undef GM_HERE

const std::vector<KnownFile>& KnownFiles() {
  static const std::vector<KnownFile> files = [] {
    std::vector<KnownFile> known;
    const auto add = [&](const Table& table) {
      known.push_back({std::string(table.File()), table.MaxBytes(),
                       table.Layout() ? table.Layout()->Size : 1,
                       table.File() == LayoutOf<Incident>().File});
    };
    std::apply([&](const auto&... table) { (add(table), ...); }, AllTables());
    known.push_back({kMorningsName, kMostMornings});
    known.push_back({kBeginningName, kMostBeginning});
    known.push_back({kCommandsName, kMostCommands});
    return known;
  }();
  return files;
}

std::int64_t MostBytesOf(std::string_view file) {
  const KnownFile* known = FindFile(KnownFiles(), file);
  return known ? known->MaxBytes : 0;
}

}  // namespace grapplemont
