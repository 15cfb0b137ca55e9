#include "session/home.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/houserules.h"
#include "records/store/knownfiles.h"
#include "records/store/slotfolder.h"
#include "records/store/slotrescue.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

namespace {

bool HasWorld(Disk& disk, const std::string& folder) {
  return disk.Look(folder + "/data") != Disk::Kind::Nothing;
}

/// $XDG_DATA_HOME/grapplemont, by the rules of the desktop's base folders.
std::string UserFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
    return std::string(data) + "/grapplemont";
  const char* user = std::getenv("HOME");
  return std::string(user ? user : "") + "/.local/share/grapplemont";
}

/// Where the package put the world and the pictures, seen from the program's own place.
std::string InstalledFolder() {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return (program.parent_path().parent_path() / "share" / "grapplemont").string();
}

void MakeFolders(Disk& disk, const std::string& folder) {
  for (std::size_t end = folder.find('/', 1);; end = folder.find('/', end + 1)) {
    const std::string part = folder.substr(0, end);
    if (disk.Look(part) == Disk::Kind::Nothing) disk.MakeFolder(part);
    if (end == std::string::npos) return;
  }
}

void CopyFolder(Disk& disk, const std::string& from, const std::string& to) {
  MakeFolders(disk, to);
  for (const std::string& name : disk.List(from))
    if (disk.Look(from + "/" + name) == Disk::Kind::File)
      CopyFile(disk, from + "/" + name, to + "/" + name);
}

SlotSummary NotPlayable(const char* caption, std::string details = {}) {
  return {caption, std::move(details), false, false};
}
constexpr const char* kUnreadable = "Slot Cannot Be Read";

}  // namespace

std::string FindHome(Disk& disk) {
  if (HasWorld(disk, ".")) return ".";
  const std::string user = UserFolder();
  if (HasWorld(disk, user)) return user;
  const std::string installed = InstalledFolder();
  if (!HasWorld(disk, installed)) return ".";
  CopyFolder(disk, installed + "/gfx", user + "/gfx");
  // The folder that marks a home comes last and in one step: a copy cut short is made again.
  RemoveTree(disk, user + "/data.new");
  CopyFolder(disk, installed + "/data", user + "/data.new");
  disk.Rename(user + "/data.new", user + "/data");
  return user;
}

std::string HomeAt(Disk& disk, const std::string& folder) {
  // Behind the "/." a link to a folder counts as the folder.
  if (folder.empty() || disk.Look(folder + "/.") != Disk::Kind::Folder)
    throw std::runtime_error("\"" + folder + "\" is not a folder.");
  return folder;
}

std::vector<std::string> WaitingPictures(Disk& disk, const std::string& pictureFolder, int set) {
  std::vector<std::string> pictures;
  const int most = set == 0 ? 4 : 10;
  for (int i = 1; i <= most; ++i) {
    const std::string number = std::to_string(i);
    const std::string file =
        set == 0 ? "VXM_load" + number + ".jpg"
                 : "VXM_Set" + std::to_string(set) + "_" + (i < 10 ? "0" : "") + number + ".jpg";
    if (disk.Look(pictureFolder + "/" + file) == Disk::Kind::File) pictures.push_back(file);
  }
  return pictures;
}

std::string DrawWaitingPicture(Disk& disk, const std::string& pictureFolder, int set,
                               Draws& draws) {
  std::vector<std::string> pictures = WaitingPictures(disk, pictureFolder, set);
  if (pictures.empty() && set != 0) pictures = WaitingPictures(disk, pictureFolder, 0);
  if (pictures.empty()) return {};
  return pictures[static_cast<std::size_t>(draws.Draw(static_cast<int>(pictures.size())) - 1)];
}

namespace {

using SlotContents = std::map<std::string, Bytes>;

/// The last record of a file that fits.
template <class T, class Fits>
std::optional<T> LastOf(const SlotContents& files, Fits fits) {
  const auto file = files.find(std::string(LayoutOf<T>().File));
  if (file == files.end()) return std::nullopt;
  T record;
  for (std::size_t left = file->second.size() / sizeof(T); left-- > 0;) {
    std::memcpy(&record, file->second.data() + left * sizeof(T), sizeof(T));
    if (fits(record)) return record;
  }
  return std::nullopt;
}

/// What a card shows beside the texts of the slot's button.
void Describe(SlotSummary& summary, const GameInfo& game, const SlotContents& files) {
  const int uid = game.PlayerPromotion;
  summary.Today = LongDate(game.Today);
  summary.Level = std::string(Says(kDifficulties, game.Difficulty)) + " level";
  summary.Own = LastOf<Promotion>(files, [&](auto& held) { return held.Uid == uid; });
  const auto house = LastOf<HouseRules>(files, [](const HouseRules&) { return true; });
  if (house) summary.House = HouseRulesText(*house);
  const auto isShow = [&](const HistoryEntry& held) {
    return held.Promotion == uid && !held.CalledOff &&
           (held.Kind == kPastTv || held.Kind == kPastEvent);
  };
  if (const auto show = LastOf<HistoryEntry>(files, isShow))
    summary.LastShow = show->Name.Str() + " " + std::to_string(show->Rating) + "%";
}

}  // namespace

SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder) try {
  const std::string name(LayoutOf<GameInfo>().File);
  const std::string standing = StandingFolder(disk, folder);
  if (standing.empty()) return {};
  const Disk::Kind kind = disk.Look(standing + "/" + name);
  if (kind == Disk::Kind::Folder || kind == Disk::Kind::Other)
    return NotPlayable(kUnreadable, name + " is not a plain file.");
  const SlotContents files = ExamineSlot(disk, standing, KnownFiles()).Files;
  if (!files.contains(name)) return {};
  const auto found = LastOf<GameInfo>(files, [](const GameInfo&) { return true; });
  const GameInfo game = found.value_or(GameInfo());
  if (game.Version != kVersion) return NotPlayable("Save Slot Not In 2.0 Format");
  SlotSummary summary{game.SaveName.Str(),
                      "( " + std::string(Says(kDifficulties, game.Difficulty)) +
                          " level, started " + MonthYear(game.StartDate) + ", current date " +
                          MonthYear(game.Today) + ")" +
                          (HasEnded(game) ? " The career has ended." : ""),
                      false, true};
  Describe(summary, game, files);
  return summary;
} catch (const DiskError& fault) {
  return NotPlayable(kUnreadable, fault.what());
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
  if (!stay.empty())
    question += "\nWhat belongs to no game stays in the folder: " + Listed(stay) + ".";
  return question + "\nBegin the new game here?";
}

std::vector<std::string> MissingDataFiles(Disk& disk, const std::string& folder) {
  std::vector<std::string> missing;
  for (const std::string_view file : kDataSet)
    if (disk.Look(folder + "/" + std::string(file)) != Disk::Kind::File) missing.emplace_back(file);
  return missing;
}

}  // namespace grapplemont
