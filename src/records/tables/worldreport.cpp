#include "records/tables/worldreport.h"

#include <algorithm>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/tables/worldtables.h"

namespace grapplemont {

std::string Listed(const std::vector<std::string>& names) {
  constexpr std::size_t kMost = 4;
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), kMost); ++i)
    text += (text.empty() ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
  if (names.size() > kMost) text += " and " + std::to_string(names.size() - kMost) + " more";
  return text;
}

std::string ContentsOf(const World& world) {
  return Counted(world.Promotions().Count(), "promotion") + ", " +
         Counted(world.Workers().Count(), "worker") + ", " +
         std::to_string(world.AllStaff().Count()) + " staff";
}

std::size_t TellFaults(const World& world, const TakeFault& take) {
  std::size_t count = 0;
  const auto tell = [&](Fault&& fault) {
    ++count;
    take(std::move(fault));
  };
  for (const Table* table : world.Tables())
    if (!table->Exists() &&
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end())
      tell({std::string(table->File()), 0, {}, {}, "is missing"});
  CheckWorld(world, tell);
  return count;
}

std::vector<std::string> MistakeLines(const Building& building) {
  std::vector<std::string> lines;
  for (const Mistake& mistake : building.Mistakes) lines.push_back(mistake.Text());
  const std::size_t more = building.MistakeCount - building.Mistakes.size();
  if (more > 0) lines.push_back("and " + std::to_string(more) + " more");
  return lines;
}

std::string NothingBuilt(const Building& building) {
  return Counted(building.MistakeCount, "mistake") + "; nothing was built.";
}

std::string FaultyExport(std::size_t faults, std::string_view how) {
  return "has " + Counted(faults, "fault") + ", which " + std::string(how) +
         " lists; the tables will not build until they are mended.";
}

namespace {

// Far above the largest world: 25,000 workers with every column written out take some ten million
// bytes, and all tables of a game of many years some thirty.
constexpr std::int64_t kMostBytes = 32 << 20, kMostBytesInAll = 48 << 20;

std::string ReadText(Disk& disk, const std::string& path, std::int64_t most) {
  const auto bytes = ReadWithin(disk, path, most);
  if (!bytes)
    throw WorldFault(ForScreen(path) + " is too long to be a table: it may have " +
                     std::to_string(kMostBytes >> 20) + " million letters, all tables together " +
                     std::to_string(kMostBytesInAll >> 20) + " million. Nothing was read.");
  return std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size());
}

bool IsTableOfWorld(std::string_view name, bool ofGame) {
  return FindTableKind(name) != nullptr || (ofGame && name == kNotesTable);
}

bool HoldsGame(Disk& disk, const std::string& folder) {
  return disk.Look(folder + "/" + std::string(kGameTable)) == Disk::Kind::File;
}

}  // namespace

Tables ReadTables(Disk& disk, const std::string& folder) {
  Tables tables;
  std::int64_t left = kMostBytesInAll;
  for (const std::string& name : disk.List(folder)) {
    const std::string path = folder + "/" + name;
    // What an office program keeps beside an open table begins with a dot.
    if (name.starts_with('.') || disk.Look(path) != Disk::Kind::File) continue;
    if (IsTableOfWorld(name, true)) {
      std::string& text = tables[name] = ReadText(disk, path, std::min(left, kMostBytes));
      left -= std::ssize(text);
    } else if (name.ends_with(".csv")) {
      tables.emplace(name, "");
    }
  }
  return tables;
}

void WriteTables(Disk& disk, const std::string& folder, const Tables& tables) {
  disk.MakeFolder(folder);
  const bool heldGame = HoldsGame(disk, folder);
  for (const auto& [name, text] : tables)
    WriteFile(disk, folder + "/" + name, std::as_bytes(std::span(text)));
  for (const std::string& name : disk.List(folder))
    if (IsTableOfWorld(name, heldGame) && !tables.contains(name) &&
        disk.Look(folder + "/" + name) == Disk::Kind::File)
      disk.Remove(folder + "/" + name);
}

TablesPlace LookForExport(Disk& disk, const std::string& folder) {
  const std::string parent = ParentOf(folder);
  if (!IsFolder(disk, parent))
    return {"There is no folder " + ForScreen(parent) + " to put it in.", {}};
  if (disk.Look(folder) == Disk::Kind::Nothing) return {};
  if (!IsFolder(disk, folder)) return {ForScreen(folder) + " is not a folder.", {}};
  const bool ofGame = HoldsGame(disk, folder);
  TablesPlace place{{}, disk.List(folder)};
  for (const std::string& name : place.Present)
    if (!IsTableOfWorld(name, ofGame) || disk.Look(folder + "/" + name) != Disk::Kind::File)
      return {ForScreen(folder) + " holds other things, such as " + ForScreen(name) +
                  ". Name a new folder.",
              {}};
  return place;
}

void ExportTables(Disk& disk, const std::string& folder, const World& world) {
  const bool isNew = disk.Look(folder) == Disk::Kind::Nothing;
  try {
    WriteTables(disk, folder, ExportWorld(world));
  } catch (const DiskError&) {
    if (isNew) RemoveTree(disk, folder);
    throw;
  }
}

}  // namespace grapplemont
