#include "session/slots.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>
#include <span>

#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/store/knownfiles.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "session/home.h"

namespace grapplemont {

namespace {

constexpr std::string_view kDeletedMark = ".deleted.";
constexpr const char* kAllInUse = "All slots are in use. Delete a game first.";

std::string GameFile() {
  return std::string(LayoutOf<GameInfo>().File);
}

/// Puts another name into the bytes of a gameinfo.dat.
void SetSaveName(Bytes& bytes, std::string_view name) {
  GameInfo game;
  if (bytes.size() < sizeof(game)) return;
  std::memcpy(&game, bytes.data(), sizeof(game));
  game.SaveName = name;
  std::memcpy(bytes.data(), &game, sizeof(game));
}

constexpr std::int64_t kLongestPage = 1 << 24;  // bytes of a picture of the last page

std::string FolderOf(const std::string& home, int slot) {
  return home + "/s" + std::to_string(slot);
}

std::string PlayedFile(const std::string& home) {
  return home + "/lastslot";
}

/// The slot that a digit names; 0 for none.
int SlotOfDigit(char digit) {
  const int slot = digit - '0';
  return slot >= 1 && slot <= kSlots ? slot : 0;
}

/// What is done to a game that nobody plays stands in its record, too; one that is not recorded
/// leaves the line out.
std::string RenamedLine(std::string_view name) {
  return std::string(kCommandRenamed) + " " + std::string(name) + "\n";
}

/// What a game looked like last goes where the game goes; without it the game is as whole.
void MovePage(Disk& disk, const std::string& from, const std::string& to) try {
  RemoveTree(disk, PageOf(to));
  if (disk.Look(PageOf(from)) == Disk::Kind::File) disk.Rename(PageOf(from), PageOf(to));
} catch (const DiskError&) {
  // It is shown again once the game has been played.
}

void CopyPage(Disk& disk, const std::string& from, const std::string& to) try {
  if (disk.Look(PageOf(from)) != Disk::Kind::File) return;
  if (const auto page = ReadWithin(disk, PageOf(from), kLongestPage))
    WriteFile(disk, PageOf(to), *page);
} catch (const DiskError&) {
  // As above.
}

void MakeSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
              std::uint64_t worldId) {
  Slot::Create(disk, folder, files, worldId);
  RemoveTree(disk, PageOf(folder));
}

}  // namespace

std::string PathInHome(const std::string& home, std::string_view typed) {
  std::string path = ToUtf8(detail::Trimmed(typed));
  if (!std::filesystem::path(path).has_root_directory()) path = home + "/" + path;
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

bool IsFree(Disk& disk, const std::string& home, int slot) {
  return StandingFolder(disk, FolderOf(home, slot)).empty();
}

std::optional<int> FreeSlot(Disk& disk, const std::string& home) {
  for (int slot = 1; slot <= kSlots; ++slot)
    if (IsFree(disk, home, slot)) return slot;
  return std::nullopt;
}

int LastPlayed(Disk& disk, const std::string& home) try {
  const std::string path = PlayedFile(home);
  if (disk.Look(path) != Disk::Kind::File) return 0;
  const Bytes bytes = ReadStart(disk, path, 1);
  return bytes.empty() ? 0 : SlotOfDigit(std::to_integer<char>(bytes[0]));
} catch (const DiskError&) {
  return 0;
}

int SlotToContinue(Disk& disk, const std::string& home,
                   const std::function<bool(int slot)>& canGoOn) {
  if (const int last = LastPlayed(disk, home); last != 0 && canGoOn(last)) return last;
  for (int slot = 1; slot <= kSlots; ++slot)
    if (canGoOn(slot)) return slot;
  return 0;
}

void RememberPlayed(Disk& disk, const std::string& home, int slot) try {
  if (LastPlayed(disk, home) == slot) return;
  const std::string text = std::to_string(slot);
  WriteFile(disk, PlayedFile(home), std::as_bytes(std::span(text)));
} catch (const DiskError&) {
  // The game is open; which one it was last is a convenience.
}

std::vector<NewFile> BeginningFiles(const World& world, bool records, bool goesBack) {
  std::vector<NewFile> files = FilesOf(world);
  if (!goesBack) files.push_back({kMorningsName, Mornings::NoWayBack()});
  if (!records) return files;
  Bytes beginning = PackSlot(files, "A game as it began.");
  files.push_back({kBeginningName, std::move(beginning)});
  files.push_back({kCommandsName, CommandLog::Empty()});
  return files;
}

std::vector<std::string> RenameSlot(Disk& disk, const std::string& folder, std::string_view name) {
  const std::string file = GameFile();
  PlayedSlot opened(disk, folder);
  const auto found = opened.Files().find(file);
  if (found == opened.Files().end()) throw DiskError(folder, "rename", "it holds no game");
  const Bytes before = found->second;
  Bytes after = before;
  SetSaveName(after, name);
  if (const auto change = ChangeBetween(file, &before, &after))
    opened.Commit({*change}, {.Commands = RenamedLine(name)});
  opened.Checkpoint();
  return opened.Remarks();
}

namespace {

bool IsHistory(const NewFile& file) {
  return file.Name == kMorningsName && Mornings(file.Contents).Keeps();
}

bool IsRecord(const NewFile& file) {
  return file.Name == kBeginningName || file.Name == kCommandsName;
}

std::map<std::string, Bytes> ByName(std::vector<NewFile> files) {
  std::map<std::string, Bytes> contents;
  for (NewFile& file : files) contents.emplace(file.Name, std::move(file.Contents));
  return contents;
}

/// "Save Game 1 ( Medium level, started ...). CWA, ..."
std::string AboutGame(const SlotSummary& summary) {
  std::string about = summary.Caption + " " + summary.Details;
  if (summary.Own)
    about += "\n" + summary.Own->Name.Str() + ", image " + std::to_string(summary.Own->Image) +
             "%, " + Dollars(summary.Own->Money);
  if (!summary.LastShow.empty()) about += "\nLast show: " + summary.LastShow;
  if (!summary.House.empty()) about += "\nHouse rules: " + summary.House;
  return about;
}

/// What is not in order, a line each; a world in order is not worth a word.
std::string FaultsIn(const World& world) {
  FaultList faults;
  CheckWorld(world, [&faults](Fault&& fault) { faults.Take(std::move(fault)); });
  if (faults.empty()) return "\nEverything in it is in order.";
  std::string text = "\nNot in order, " + Counted(faults.Count, "fault") + ":";
  for (const Fault& fault : faults.First) text += "\n" + fault.Line();
  if (faults.Count > faults.First.size())
    text += "\nand " + std::to_string(faults.Count - faults.First.size()) +
            " more; once it is in a slot, \"grapplemont-world check\" names them all.";
  return text;
}

}  // namespace

void CopySlot(Disk& disk, const std::string& from, const std::string& to, std::string_view name,
              std::uint64_t worldId) {
  auto files = ByName(ReadSlot(disk, from));
  if (!files.contains(GameFile())) throw DiskError(from, "copy", "it holds no game");
  Bytes game = files[GameFile()];
  SetSaveName(game, name);
  // Renamed as any game is, so that the copy can go back as the original can; before it is made, so
  // that no moment finds it under the original's name.
  files = FilesAfter(std::move(files), GameFile(), std::move(game), RenamedLine(name));
  std::vector<NewFile> copy;
  for (auto& [file, contents] : files) copy.push_back({file, std::move(contents)});
  MakeSlot(disk, to, copy, worldId);
  CopyPage(disk, from, to);
}

bool HasHistory(Disk& disk, const std::string& folder) {
  const auto moments = Slot::Peek(disk, folder, KnownFiles(), kMorningsName);
  return moments && Mornings(*moments).Count() > 0;
}

bool IsRecorded(Disk& disk, const std::string& folder) {
  return Slot::Peek(disk, folder, KnownFiles(), kCommandsName).has_value();
}

void ExportSlot(Disk& disk, const std::string& folder, const std::string& path,
                const TakenAlong& along) {
  std::vector<NewFile> files = ReadSlot(disk, folder);
  const bool hasRecord = along.Record && std::ranges::any_of(files, IsRecord);
  const std::string about =
      "\nA saved game of Grapplemont: " + AboutGame(SummaryOf(ByName(files))) + "\n" +
      (along.History ? "With what it can go back to.\n" : "") +
      (hasRecord ? "With a record of what the player did and typed.\n" : "");
  if (!along.History) std::erase_if(files, IsHistory);
  if (!along.Record) std::erase_if(files, IsRecord);
  const Bytes packed = PackSlot(files, ToUtf8(about));
  WriteFile(disk, path, packed);
  disk.SyncFolder(ParentOf(path));
}

Importable ReadExported(Disk& disk, const std::string& path, World& scratch) {
  if (disk.Look(path) != Disk::Kind::File) throw DiskError(path, "import", "there is no such file");
  const auto bytes = ReadWithin(disk, path, MostPackedBytes());
  if (!bytes) throw DiskError(path, "import", "it is longer than any game");
  Importable game{UnpackSlot(*bytes, path), {}};
  // What no game can be opened from is better refused here than on loading.
  const auto contents = ByName(game.Files);
  scratch.Load(contents);
  if (!scratch.HasGame() || scratch.Game().Version != kVersion)
    throw WorldFault(ForScreen(path) + " holds no game of this version.");
  const bool hasHistory = std::ranges::any_of(game.Files, IsHistory);
  game.Preview = AboutGame(SummaryOf(contents)) +
                 (hasHistory ? "\nIt brings along what it can go back to." : "") +
                 FaultsIn(scratch);
  return game;
}

void ImportSlot(Disk& disk, const Importable& game, const std::string& folder,
                std::uint64_t worldId) {
  MakeSlot(disk, folder, game.Files, worldId);
}

void DeleteSlot(Disk& disk, const std::string& folder, Day today) {
  const std::string away = folder + std::string(kDeletedMark) + IsoDate(today);
  const std::string free = FreeName(disk, away);
  PutAway(disk, folder, free);
  MovePage(disk, folder, free);
}

namespace {

/// What the name of a folder in the home says; nothing for any other folder. A second game that was
/// deleted from the slot on one day has "-2" behind its day.
std::optional<DeletedSlot> ReadDeletedName(const std::string& name) {
  constexpr std::size_t kDayLetters = 10;
  const std::size_t mark = name.find(kDeletedMark);
  if (mark == std::string::npos || !name.starts_with('s')) return std::nullopt;
  const int slot = mark == 2 ? SlotOfDigit(name[1]) : 0;
  const auto day = ParseIsoDate(name.substr(mark + kDeletedMark.size(), kDayLetters));
  if (slot == 0 || !day) return std::nullopt;
  return DeletedSlot{.Folder = name, .Name = {}, .Slot = slot, .Deleted = *day};
}

std::vector<DeletedSlot> FindDeleted(Disk& disk, const std::string& home, Day today) {
  std::vector<DeletedSlot> found;
  for (const std::string& name : disk.List(home)) {
    auto deleted = ReadDeletedName(name);
    if (!deleted) continue;
    deleted->Folder = home + "/" + name;
    if (disk.Look(deleted->Folder) != Disk::Kind::Folder) continue;
    // A clock that was set back keeps a game longer, never shorter.
    const auto days = (today - deleted->Deleted).count();
    deleted->DaysLeft = kDaysKept - std::max(0, static_cast<int>(days));
    found.push_back(*std::move(deleted));
  }
  return found;
}

}  // namespace

std::vector<DeletedSlot> DeletedSlots(Disk& disk, const std::string& home, Day today) {
  std::vector<DeletedSlot> found = FindDeleted(disk, home, today);
  std::erase_if(found, [](const DeletedSlot& deleted) { return deleted.DaysLeft <= 0; });
  for (DeletedSlot& deleted : found) deleted.Name = ReadSlotSummary(disk, deleted.Folder).Caption;
  std::ranges::stable_sort(found, std::ranges::greater(), &DeletedSlot::Deleted);
  return found;
}

void ClearDeleted(Disk& disk, const std::string& home, Day today) try {
  for (const DeletedSlot& deleted : FindDeleted(disk, home, today))
    if (deleted.DaysLeft <= 0) {
      RemoveForGood(disk, deleted.Folder);
      RemoveTree(disk, PageOf(deleted.Folder));
    }
} catch (const DiskError&) {
  // The next time will do.
}

int RestoreSlot(Disk& disk, const std::string& home, const DeletedSlot& deleted) {
  const bool own = StandingFolder(disk, FolderOf(home, deleted.Slot)).empty();
  const std::optional<int> slot = own ? deleted.Slot : FreeSlot(disk, home);
  if (!slot) throw std::runtime_error(kAllInUse);
  BringBack(disk, deleted.Folder, FolderOf(home, *slot));
  MovePage(disk, deleted.Folder, FolderOf(home, *slot));
  return *slot;
}

}  // namespace grapplemont
