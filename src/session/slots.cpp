#include "session/slots.h"

#include <cstring>

#include "records/dates.h"
#include "records/world.h"

namespace grapplemont {

SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder) {
  const std::string path = folder + "/" + std::string(LayoutOf<GameInfo>().File);
  if (disk.Look(path) != Disk::Kind::File) return {};
  SlotSummary summary{"Save Slot Not In 2.0 Format", "", false, false};
  const Bytes bytes = ReadFile(disk, path);
  GameInfo game;
  if (bytes.size() < sizeof(GameInfo)) return summary;
  std::memcpy(&game, bytes.data(), sizeof(GameInfo));
  if (!(game.Version == kVersion)) return summary;
  summary.Caption = game.SaveName.Str();
  summary.Details = "( " + std::string(Says(kDifficulties, game.Difficulty)) + " level, started " +
                    MonthYear(game.StartDate) + ", current date " + MonthYear(game.Today) + ")";
  summary.Playable = true;
  return summary;
}

std::vector<std::string> MissingDataFiles(Disk& disk, const std::string& folder) {
  std::vector<std::string> missing;
  for (const std::string_view file : kDataSet)
    if (disk.Look(folder + "/" + std::string(file)) != Disk::Kind::File) missing.emplace_back(file);
  return missing;
}

}  // namespace grapplemont
