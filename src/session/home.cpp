#include "session/home.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/store/commandlog.h"
#include "records/store/knownfiles.h"
#include "records/store/machine.h"
#include "records/store/mornings.h"
#include "records/store/slotfolder.h"
#include "records/store/slotrescue.h"
#include "records/tables/worldreport.h"
#include "session/build.h"

namespace grapplemont {

namespace {

constexpr const char* kProgramPictures[] = {"vxm_back.jpg", "vxm_title.jpg"};

/// A folder "data" alone is no home: half of all folders that people work in have one.
bool HasWorldAndPictures(Disk& disk, const std::string& folder) {
  return MissingDataFiles(disk, {folder + "/data"}).empty() &&
         std::ranges::all_of(kProgramPictures, [&](const char* picture) {
           return disk.Look(folder + "/gfx/" + picture) == Disk::Kind::File;
         });
}

/// Where what came with the program may lie: beside a program that was built or moved, and where
/// the build was told to install it.
std::vector<std::string> SharesOf(const Surroundings& around) {
  const auto beside = std::filesystem::path(around.Program).parent_path().parent_path();
  std::vector<std::string> shares;
  if (!beside.empty()) shares.push_back((beside / "share" / "grapplemont").generic_string());
  if (!around.Installed.empty()) shares.push_back(around.Installed);
  return shares;
}

/// Empty for none.
std::string ShareOf(Disk& disk, const Surroundings& around) {
  for (const std::string& share : SharesOf(around))
    if (HasWorldAndPictures(disk, share)) return share;
  return {};
}

/// Whether the program lies where it was built: what configured the build is beside it.
bool IsInItsBuild(Disk& disk, const Surroundings& around) {
  const auto build = std::filesystem::path(around.Program).parent_path().parent_path();
  return disk.Look((build / "CMakeCache.txt").generic_string()) == Disk::Kind::File;
}

SlotSummary NotPlayable(const char* caption, std::string details = {}) {
  return {caption, std::move(details), false, false};
}
constexpr const char* kUnreadable = "Slot Cannot Be Read";

}  // namespace

Surroundings MachineSurroundings() {
  const UserFolders user = FoldersOfUser();
  return {ProgramFile(), kInstalledShare, ".", user.Data, user.Config, user.State};
}

void MakeFolders(Disk& disk, const std::string& folder) {
  for (std::size_t end = folder.find('/', 1);; end = folder.find('/', end + 1)) {
    const std::string part = folder.substr(0, end);
    if (disk.Look(part) == Disk::Kind::Nothing) disk.MakeFolder(part);
    if (end == std::string::npos) return;
  }
}

std::string Surroundings::FaultFile() const {
  return UserState.empty() ? std::string() : UserState + "/faults.log";
}

Home FindHome(Disk& disk, const Surroundings& around) {
  const std::string share = ShareOf(disk, around);
  if (IsInItsBuild(disk, around) && HasWorldAndPictures(disk, around.Working))
    return {around.Working, share};
  if (around.UserData.empty())
    throw std::runtime_error(
        "Neither HOME nor XDG_DATA_HOME says where your games are kept. Name a folder with "
        "--home.");
  if (share.empty() && !HasWorldAndPictures(disk, around.UserData))
    throw std::runtime_error("The world and the pictures that come with the game are neither in " +
                             Joined(SharesOf(around), " nor in ") +
                             ". Install the game again, or name a folder that has data and gfx "
                             "with --home.");
  MakeFolders(disk, around.UserData);
  if (!share.empty()) RemoveCopies(disk, around.UserData, share);
  return {around.UserData, share};
}

Home HomeAt(Disk& disk, const std::string& folder, const Surroundings& around) {
  if (folder.empty() || !IsFolder(disk, folder)) {
    const bool isNew = !folder.empty() && disk.Look(folder) == Disk::Kind::Nothing;
    throw std::runtime_error("\"" + folder +
                             (isNew ? "\" is not there. Make that folder first"
                                    : "\" is not a folder. Name one with --home") +
                             ", or leave --home out and play where your games are usually kept.");
  }
  return {folder, ShareOf(disk, around)};
}

Layers WithPages(Layers pictures, const std::string& home) {
  pictures.push_back(home);
  return pictures;
}

std::vector<std::string> WaitingPictures(Disk& disk, const Layers& folders, int set) {
  std::vector<std::string> pictures;
  const int most = set == 0 ? 4 : 10;
  for (int i = 1; i <= most; ++i) {
    const std::string number = std::to_string(i);
    const std::string file =
        set == 0 ? "VXM_load" + number + ".jpg"
                 : "VXM_Set" + std::to_string(set) + "_" + (i < 10 ? "0" : "") + number + ".jpg";
    if (!FileIn(disk, folders, file).empty()) pictures.push_back(file);
  }
  return pictures;
}

std::string DrawWaitingPicture(Disk& disk, const Layers& folders, int set, Draws& draws) {
  std::vector<std::string> pictures = WaitingPictures(disk, folders, set);
  if (pictures.empty() && set != 0) pictures = WaitingPictures(disk, folders, 0);
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
  const auto moments = files.find(kMorningsName);
  summary.GoesBack = moments == files.end() || Mornings(moments->second).Keeps();
  if (!summary.GoesBack)
    summary.House += (summary.House.empty() ? "" : ", ") + std::string("no way back");
  if (files.contains(kCommandsName))
    summary.House += (summary.House.empty() ? "" : ", ") + std::string("recorded");
  const auto isShow = [&](const HistoryEntry& held) {
    return held.Promotion == uid && !held.CalledOff &&
           (held.Kind == kPastTv || held.Kind == kPastEvent);
  };
  if (const auto show = LastOf<HistoryEntry>(files, isShow))
    summary.LastShow = show->Name.Str() + " " + std::to_string(show->Rating) + "%";
}

}  // namespace

SlotSummary SummaryOf(const SlotContents& files) {
  if (!files.contains(std::string(LayoutOf<GameInfo>().File))) return {};
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
}

SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder) try {
  const std::string name(LayoutOf<GameInfo>().File);
  const std::string standing = StandingFolder(disk, folder);
  if (standing.empty()) return {};
  const Disk::Kind kind = disk.Look(standing + "/" + name);
  if (kind == Disk::Kind::Folder || kind == Disk::Kind::Other)
    return NotPlayable(kUnreadable, name + " is not a plain file.");
  return SummaryOf(ExamineSlot(disk, standing, KnownFiles()).Files);
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

}  // namespace grapplemont
