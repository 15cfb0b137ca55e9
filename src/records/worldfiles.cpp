#include <algorithm>
#include <cstring>

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

namespace {

std::string RecordDifference(const RecordLayout& layout, const std::byte* record,
                             const std::byte* expected, int number) {
  for (const Field& field : layout.Fields) {
    for (int i = 0; i < field.Count; ++i) {
      const auto offset = static_cast<std::size_t>(field.Offset + i * field.Stride);
      if (std::memcmp(record + offset, expected + offset, static_cast<std::size_t>(field.Width)) ==
          0)
        continue;
      return std::string(layout.Name) + " " + std::to_string(number) + " " + FieldName(field, i) +
             ": " + FieldShown(field, record, i) + ", expected " + FieldShown(field, expected, i);
    }
  }
  return {};
}

std::string TableDifference(const Table& table, const Table& expected) {
  const std::string file(table.File());
  if (table.Exists() != expected.Exists())
    return file + (table.Exists() ? " exists, expected none" : " is missing");
  const ByteSpan bytes = table.Contents(), wanted = expected.Contents();
  if (const RecordLayout* layout = table.Layout()) {
    const auto size = static_cast<std::size_t>(layout->Size);
    const std::size_t count = std::min(bytes.size(), wanted.size()) / size;
    for (std::size_t i = 0; i < count; ++i) {
      std::string found = RecordDifference(*layout, bytes.data() + i * size,
                                           wanted.data() + i * size, static_cast<int>(i) + 1);
      if (!found.empty()) return found;
    }
  } else if (bytes.size() == wanted.size()) {
    return std::equal(bytes.begin(), bytes.end(), wanted.begin()) ? "" : file + " reads otherwise";
  }
  if (bytes.size() == wanted.size() && !std::equal(bytes.begin(), bytes.end(), wanted.begin()))
    return file + " differs behind its last record";
  if (bytes.size() != wanted.size())
    return file + ": " + std::to_string(bytes.size()) + " bytes, expected " +
           std::to_string(wanted.size());
  return {};
}

}  // namespace

std::string FirstDifference(const World& world, const World& expected) {
  const auto tables = world.Tables();
  const auto wanted = expected.Tables();
  for (std::size_t i = 0; i < tables.size(); ++i) {
    std::string found = TableDifference(*tables[i], *wanted[i]);
    if (!found.empty()) return found;
  }
  return {};
}

}  // namespace grapplemont
