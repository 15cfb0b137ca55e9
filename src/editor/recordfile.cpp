#include "editor/recordfile.h"

#include <algorithm>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

/// What the editor calls the records of a file, by what one is called.
constexpr std::pair<std::string_view, std::string_view> kPlurals[] = {
    {"Worker", "wrestlers"}, {"Promotion", "promotions"}, {"Staff", "staff members"},
    {"Team", "tag teams"},   {"Stable", "stables"},       {"Title", "titles"},
    {"Show", "shows"},       {"Network", "networks"},     {"Sponsor", "sponsors"},
    {"Event", "events"}};

void ReadWhole(FileBytes& file, Disk& disk, const std::string& path, const std::string& name,
               const RecordLayout& layout) {
  const OpenedFile opened(disk, path, false);
  const std::int64_t record = layout.Size, size = disk.Size(opened);
  if (size / record <= layout.Limit) file.Whole.resize(static_cast<std::size_t>(size));
  if (!file.Whole.empty()) disk.ReadAt(opened, 0, file.Whole);
  const auto surplus = static_cast<std::size_t>(size % record);
  if (size / record > layout.Limit) {
    file.Remark = name + " has room for " + Counted(size / record, "record") +
                  " and is left aside. " + LimitMessage(layout);
  } else if (size == 0) {
    file.Remark = name + " is empty.";
  } else if (surplus != 0) {
    file.Whole.resize(file.Whole.size() - surplus);
    file.Remark = name + " ends in " + std::to_string(surplus) +
                  " bytes that are not a whole record; they are left aside.";
  }
}

}  // namespace

std::string LimitMessage(const RecordLayout& layout) {
  const auto plural = std::ranges::find(kPlurals, layout.Name, [](auto& row) { return row.first; });
  return "Maximum " + Dollars(layout.Limit).substr(1) + " " + std::string(plural->second) +
         " per file!";
}

FileBytes ReadFileBytes(Disk& disk, const std::string& folder, const std::string& name,
                        const RecordLayout& layout) {
  const std::string path = folder + "/" + name;
  FileBytes file;
  try {
    const Disk::Kind kind = disk.Look(path);
    file.Exists = kind != Disk::Kind::Nothing;
    if (kind == Disk::Kind::File)
      ReadWhole(file, disk, path, name, layout);
    else if (file.Exists)
      file.Remark = name + " is not a plain file and is left aside.";
  } catch (const DiskError& fault) {
    file.Whole.clear();
    file.Remark = fault.what();
  }
  return file;
}

std::vector<RecordCount> CountsOf(const World& now, const World* then) {
  const auto countIn = [](const World& world, const RecordLayout& layout) {
    for (const Table* table : world.Tables())
      if (table->Layout() == &layout)
        return static_cast<int>(table->RecordBytes().size()) / layout.Size;
    return 0;
  };
  std::vector<RecordCount> counts;
  for (const TableKind& kind : TableKinds()) {
    if (kind.OfGame) continue;
    counts.push_back(
        {std::string(kind.Name), std::string(kind.Layout->File), countIn(now, *kind.Layout)});
    if (then) counts.back().Then = countIn(*then, *kind.Layout);
  }
  return counts;
}

TablesPreview LookAtTables(Disk& disk, const std::string& folder, const World& data) {
  TablesPreview preview;
  if (!IsFolder(disk, folder)) {
    preview.WhyNot = ForScreen(folder) + " is not a folder.";
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
    preview.WhyNot =
        Counted(building.MistakeCount, "mistake") + " to mend before these tables can be taken in.";
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

}  // namespace grapplemont
