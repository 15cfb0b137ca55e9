#include "session/slots.h"

#include <cstring>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/store/slotfolder.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

namespace {

SlotSummary Unreadable(const std::string& reason) {
  return {"Slot Cannot Be Read", reason, false, false};
}

SlotSummary OtherFormat() {
  return {"Save Slot Not In 2.0 Format", "", false, false};
}

}  // namespace

SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder) try {
  const std::string name(LayoutOf<GameInfo>().File);
  const std::string standing = StandingFolder(disk, folder);
  if (standing.empty()) return {};
  const Disk::Kind kind = disk.Look(standing + "/" + name);
  if (kind == Disk::Kind::Folder || kind == Disk::Kind::Other)
    return Unreadable(name + " is no plain file.");
  const auto bytes = Slot::Peek(disk, folder, KnownFiles(), name);
  if (!bytes) return {};
  GameInfo game;
  if (bytes->size() < sizeof(GameInfo)) return OtherFormat();
  std::memcpy(&game, bytes->data(), sizeof(GameInfo));
  if (!(game.Version == kVersion)) return OtherFormat();
  return {game.SaveName.Str(),
          "( " + std::string(Says(kDifficulties, game.Difficulty)) + " level, started " +
              MonthYear(game.StartDate) + ", current date " + MonthYear(game.Today) + ")" +
              (HasEnded(game) ? " The career has ended." : ""),
          false, true};
} catch (const DiskError& fault) {
  return Unreadable(fault.what());
}

std::string QuestionOfLeavings(Disk& disk, const std::string& folder) {
  const std::string standing = StandingFolder(disk, folder);
  if (disk.Look(standing) != Disk::Kind::Folder) return {};
  std::vector<std::string> go, stay;
  for (const std::string& name : disk.List(standing))
    (IsOfSlot(name) ? go : stay).push_back(ForScreen(name));
  if (go.empty() && stay.empty()) return {};
  std::string question = "No game is kept in this slot, but its folder is not empty.";
  if (!go.empty())
    question += "\nWhat is left of a game that cannot be loaded is deleted: " + Listed(go) + ".";
  if (!stay.empty()) question += "\nWhat is no game's stays in the folder: " + Listed(stay) + ".";
  return question + "\nBegin the new game here?";
}

std::vector<std::string> MissingDataFiles(Disk& disk, const std::string& folder) {
  std::vector<std::string> missing;
  for (const std::string_view file : kDataSet)
    if (disk.Look(folder + "/" + std::string(file)) != Disk::Kind::File) missing.emplace_back(file);
  return missing;
}

}  // namespace grapplemont
