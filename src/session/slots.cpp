#include "session/slots.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <span>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/store/knownfiles.h"
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

void MakeSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
              std::uint64_t worldId) {
  Slot::Create(disk, folder, files, worldId);
  RemoveTree(disk, PageOf(folder));
}

}  // namespace

std::string PathInHome(const std::string& home, std::string_view typed) {
  std::string path = ToUtf8(detail::Trimmed(typed));
  if (!path.starts_with('/')) path = home + "/" + path;
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

void RememberPlayed(Disk& disk, const std::string& home, int slot) try {
  if (LastPlayed(disk, home) == slot) return;
  const std::string text = std::to_string(slot);
  WriteFile(disk, PlayedFile(home), std::as_bytes(std::span(text)));
} catch (const DiskError&) {
  // The game is open; which one it was last is a convenience.
}

std::vector<std::string> RenameSlot(Disk& disk, const std::string& folder, std::string_view name) {
  const std::string file = GameFile();
  Slot opened(disk, folder, KnownFiles());
  const auto found = opened.Files().find(file);
  if (found == opened.Files().end()) throw DiskError(folder, "rename", "it holds no game");
  const Bytes before = found->second;
  Bytes after = before;
  SetSaveName(after, name);
  if (const auto change = ChangeBetween(file, &before, &after)) opened.Commit({*change});
  opened.Checkpoint();
  return opened.Remarks();
}

void CopySlot(Disk& disk, const std::string& from, const std::string& to, std::string_view name,
              std::uint64_t worldId) {
  std::vector<NewFile> files = ReadSlot(disk, from);
  for (NewFile& file : files)
    if (file.Name == GameFile()) SetSaveName(file.Contents, name);
  MakeSlot(disk, to, files, worldId);
}

void ExportSlot(Disk& disk, const std::string& folder, const std::string& path) {
  const Bytes packed = PackSlot(ReadSlot(disk, folder));
  WriteFile(disk, path, packed);
  disk.SyncFolder(ParentOf(path));
}

void ImportSlot(Disk& disk, const std::string& path, const std::string& folder,
                std::uint64_t worldId, World& scratch) {
  if (disk.Look(path) != Disk::Kind::File) throw DiskError(path, "import", "there is no such file");
  const auto bytes = ReadWithin(disk, path, MostPackedBytes());
  if (!bytes) throw DiskError(path, "import", "it is longer than any game");
  const std::vector<NewFile> files = UnpackSlot(*bytes, path);
  // What no game can be opened from is better refused here than on loading.
  std::map<std::string, Bytes> contents;
  for (const NewFile& file : files) contents.emplace(file.Name, file.Contents);
  scratch.Load(std::move(contents));
  if (!scratch.HasGame() || scratch.Game().Version != kVersion)
    throw WorldFault(ForScreen(path) + " holds no game of this version.");
  MakeSlot(disk, folder, files, worldId);
}

void DeleteSlot(Disk& disk, const std::string& folder, Day today) {
  const std::string away = folder + std::string(kDeletedMark) + IsoDate(today);
  PutAway(disk, folder, FreeName(disk, away));
  RemoveTree(disk, PageOf(folder));
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
    if (deleted.DaysLeft <= 0) RemoveForGood(disk, deleted.Folder);
} catch (const DiskError&) {
  // The next time will do.
}

int RestoreSlot(Disk& disk, const std::string& home, const DeletedSlot& deleted) {
  const bool own = StandingFolder(disk, FolderOf(home, deleted.Slot)).empty();
  const std::optional<int> slot = own ? deleted.Slot : FreeSlot(disk, home);
  if (!slot) throw std::runtime_error(kAllInUse);
  BringBack(disk, deleted.Folder, FolderOf(home, *slot));
  return *slot;
}

}  // namespace grapplemont
