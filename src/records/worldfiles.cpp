#include <algorithm>

#include "records/charset.h"
#include "records/datastep.h"
#include "records/world.h"

namespace grapplemont {

namespace {

/// A world reserves room for all its records: it is asked once.
const std::vector<KnownFile>& FilesKnown() {
  static const std::vector<KnownFile> files = [] {
    std::vector<KnownFile> known;
    const World world;
    for (const Table* table : world.Tables())
      known.push_back({std::string(table->File()), table->MaxBytes(),
                       table->Layout() ? table->Layout()->Size : 1,
                       table->File() == LayoutOf<Incident>().File});
    return known;
  }();
  return files;
}

}  // namespace

std::vector<KnownFile> KnownFiles() {
  return FilesKnown();
}

std::int64_t MostBytesOf(std::string_view file) {
  const std::vector<KnownFile>& known = FilesKnown();
  const auto found =
      std::find_if(known.begin(), known.end(), [&](auto& one) { return one.Name == file; });
  return found == known.end() ? 0 : found->MaxBytes;
}

std::map<std::string, Bytes> ReadWorldFiles(Disk& disk, const std::string& folder) {
  std::map<std::string, Bytes> files;
  for (const KnownFile& known : FilesKnown()) {
    const std::string path = folder + "/" + known.Name;
    const Disk::Kind kind = disk.Look(path);
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File)
      throw WorldFault(ForScreen(path) + " is no plain file. Put the real file in its place.");
    if (known.Fleeting) {
      files.emplace(known.Name, ReadStart(disk, path, known.MostBytes()));
      continue;
    }
    auto bytes = ReadWithin(disk, path, known.MaxBytes);
    if (!bytes)
      throw WorldFault(ForScreen(path) + " is longer than its most of " +
                       std::to_string(known.MaxBytes) + " bytes. Put back a file of this game.");
    files.emplace(known.Name, *std::move(bytes));
  }
  if (const auto step = StandingStep(disk, folder)) ApplyTo(files, *step);
  return files;
}

std::vector<NewFile> FilesOf(const World& world) {
  std::vector<NewFile> files;
  for (const Table* table : world.Tables()) {
    if (!table->Exists()) continue;
    const ByteSpan bytes = table->Contents();
    files.push_back({std::string(table->File()), Bytes(bytes.begin(), bytes.end())});
  }
  return files;
}

}  // namespace grapplemont
