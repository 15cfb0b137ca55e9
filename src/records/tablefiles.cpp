#include "records/worldtables.h"

namespace grapplemont {

namespace {

// Far above the largest world: 25,000 workers with every column written out.
constexpr std::int64_t kMostBytes = 64 << 20;

std::string ReadText(Disk& disk, const std::string& path) {
  const Disk::Handle file = disk.Open(path, false);
  std::int64_t size = 0;
  try {
    size = disk.Size(file);
  } catch (...) {
    disk.Close(file);
    throw;
  }
  disk.Close(file);
  if (size > kMostBytes) throw WorldFault(path + " is too long to be a table.");
  const Bytes bytes = ReadFile(disk, path);
  return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

}  // namespace

Tables ReadTables(Disk& disk, const std::string& folder) {
  Tables tables;
  for (const std::string& name : disk.List(folder)) {
    const std::string path = folder + "/" + name;
    // What an office program keeps beside an open table begins with a dot.
    if (name.starts_with('.') || disk.Look(path) != Disk::Kind::File) continue;
    if (name.ends_with(".csv") || name == kNotesTable) tables.emplace(name, ReadText(disk, path));
  }
  return tables;
}

void WriteTables(Disk& disk, const std::string& folder, const Tables& tables) {
  disk.MakeFolder(folder);
  for (const auto& [name, text] : tables)
    WriteFile(disk, folder + "/" + name, std::as_bytes(std::span(text)));
  const auto removeStale = [&](std::string_view name) {
    const std::string path = folder + "/" + std::string(name);
    if (!tables.contains(std::string(name)) && disk.Look(path) == Disk::Kind::File)
      disk.Remove(path);
  };
  for (const TableKind& kind : TableKinds()) removeStale(kind.Name);
  removeStale(kNotesTable);
}

}  // namespace grapplemont
