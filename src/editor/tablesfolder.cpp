#include "editor/tablesfolder.h"

#include <algorithm>

#include "records/fields/charset.h"

namespace grapplemont {

namespace {

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
  for (const std::string& line : MistakeLines(building))
    preview.Mistakes.push_back(ForScreen(line));
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
