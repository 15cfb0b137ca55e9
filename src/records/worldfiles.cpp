#include <algorithm>

#include "records/fields/charset.h"
#include "records/store/datastep.h"
#include "records/world.h"

namespace grapplemont {

std::map<std::string, Bytes> ReadWorldFiles(Disk& disk, const std::string& folder) {
  std::map<std::string, Bytes> files;
  for (const KnownFile& known : KnownFiles()) {
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
