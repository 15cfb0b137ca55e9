#include "editor/tablesfolder.h"

#include <algorithm>

#include "records/charset.h"

namespace grapplemont {

namespace {

bool IsOfWorld(const std::string& name) {
  return name == kNotesTable || FindTableKind(name) != nullptr;
}

bool IsFolder(Disk& disk, const std::string& path) {
  // Behind the "/." a link to a folder counts as the folder.
  return disk.Look(path + "/.") == Disk::Kind::Folder;
}

/// A text for the screen; a question mark stands for what it cannot show.
std::string ForScreen(std::string utf8) {
  for (auto text = FromUtf8(utf8);; text = FromUtf8(utf8)) {
    if (text) return *text;
    const std::string letter = FirstForeignLetter(utf8);
    if (letter == "?") break;  // no UTF-8
    utf8.replace(utf8.find(letter), letter.size(), "?");
  }
  std::replace_if(
      utf8.begin(), utf8.end(), [](char c) { return static_cast<unsigned char>(c) > 0x7E; }, '?');
  return utf8;
}

int CountIn(const World& world, const RecordLayout& layout) {
  for (const Table* table : world.Tables())
    if (table->Layout() == &layout)
      return static_cast<int>(table->RecordBytes().size()) / layout.Size;
  return 0;
}

}  // namespace

std::vector<RecordCount> CountsOf(const World& now, const World* then) {
  std::vector<RecordCount> counts;
  for (const TableKind& kind : TableKinds()) {
    if (kind.OfGame) continue;
    RecordCount& row = counts.emplace_back();
    row.Table = kind.Name;
    row.File = kind.Layout->File;
    row.Now = CountIn(now, *kind.Layout);
    if (then) row.Then = CountIn(*then, *kind.Layout);
  }
  return counts;
}

TablesPlace LookForExport(Disk& disk, const std::string& folder) {
  const std::string parent = ParentOf(folder);
  if (!IsFolder(disk, parent))
    return {"There is no folder " + ForScreen(parent) + " to put it in."};
  if (disk.Look(folder) == Disk::Kind::Nothing) return {};
  if (!IsFolder(disk, folder)) return {ForScreen(folder) + " is no folder."};
  const std::vector<std::string> names = disk.List(folder);
  for (const std::string& name : names)
    if (!IsOfWorld(name))
      return {ForScreen(folder) + " holds other things, such as " + ForScreen(name) +
              ". Name a new folder."};
  return {{}, !names.empty()};
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

TablesPreview LookAtTables(Disk& disk, const std::string& folder, const World& data) {
  TablesPreview preview;
  if (!IsFolder(disk, folder)) {
    preview.WhyNot = ForScreen(folder) + " is no folder.";
    return preview;
  }
  const Tables tables = ReadTables(disk, folder);
  if (tables.empty()) {
    preview.WhyNot = ForScreen(folder) + " holds no tables.";
    return preview;
  }
  Building building = BuildWorld(tables);
  for (const Mistake& mistake : building.Mistakes)
    preview.Mistakes.push_back(ForScreen(mistake.Text()));
  if (!building.Made) {
    preview.WhyNot = NothingBuilt(building);
  } else if (building.Made->HasGame()) {
    preview.WhyNot =
        "These tables are a saved game's; the data are a world in which no game has "
        "begun.";
  } else {
    preview.Counts = CountsOf(data, &*building.Made);
    preview.Made = std::move(building.Made);
  }
  return preview;
}

void TakeOver(World& data, const World& made) {
  const auto from = made.Tables();
  const auto to = data.Tables();
  for (std::size_t i = 0; i < to.size(); ++i) {
    if (std::find(kDataSet.begin(), kDataSet.end(), to[i]->File()) == kDataSet.end()) continue;
    const ByteSpan contents = from[i]->Contents();
    to[i]->Load(Bytes(contents.begin(), contents.end()));
  }
}

std::string PathInHome(const std::string& home, std::string_view typed) {
  std::string path = ToUtf8(detail::Trimmed(typed));
  if (!path.starts_with('/')) path = home + "/" + path;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

}  // namespace grapplemont
