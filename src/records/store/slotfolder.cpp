#include "records/store/slotfolder.h"

#include <algorithm>
#include <functional>

#include "records/store/journal.h"
#include "records/store/journalfile.h"
#include "records/store/knownfiles.h"
#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr std::int64_t kSealedIdSize = 16;

std::string NewOf(const std::string& folder) {
  return folder + kBesideSuffix;
}
std::string OldOf(const std::string& folder) {
  return folder + ".old";
}

/// Removes a folder that was to take the place of `folder` or has given it up: the slot's files in
/// it go, whatever else it holds moves to `folder`. What has no place there keeps the folder alive.
void ClearAway(Disk& disk, const std::string& path, const std::string& folder) {
  if (disk.Look(path) != Disk::Kind::Folder) return;
  bool moved = false, keeps = false;
  const bool takes = disk.Look(folder) == Disk::Kind::Folder;
  std::vector<std::string> slotFiles;
  for (const std::string& name : disk.List(path)) {
    const std::string from = path + "/" + name, to = folder + "/" + name;
    if (IsOfSlot(name) && disk.Look(from) == Disk::Kind::File) {
      slotFiles.push_back(from);
    } else if (takes && !IsOfSlot(name) && disk.Look(to) == Disk::Kind::Nothing) {
      disk.Rename(from, to);
      moved = true;
    } else {
      keeps = true;
    }
  }
  if (moved) disk.SyncFolder(folder);
  for (const std::string& file : slotFiles) disk.Remove(file);
  if (!keeps) disk.Remove(path);
}

/// What fails here is done when the slot is opened the next time.
void ClearQuietly(Disk& disk, const std::string& path, const std::string& folder) {
  try {
    ClearAway(disk, path, folder);
  } catch (const DiskError&) {
  }
}

/// Nothing that a slot could not be in goes with it.
void RequirePlainFiles(Disk& disk, const std::string& folder) {
  const Disk::Kind there = disk.Look(folder);
  if (there == Disk::Kind::Nothing) return;
  if (there != Disk::Kind::Folder) throw DiskError(folder, "replace", "it is not a plain folder");
  for (const std::string& name : disk.List(folder))
    if (IsOfSlot(name) && disk.Look(folder + "/" + name) != Disk::Kind::File)
      throw DiskError(folder + "/" + name, "replace", "it is not a plain file");
}

void PutInPlace(Disk& disk, const std::string& folder, const JournalQuirks& quirks) {
  const std::string parent = ParentOf(folder), built = NewOf(folder), old = OldOf(folder);
  if (disk.Look(folder) == Disk::Kind::Nothing) {
    disk.Rename(built, folder);
    disk.SyncFolder(parent);
    return;
  }
  if (disk.Exchange(built, folder)) {
    if (!quirks.RemoveBeforeSwap) disk.SyncFolder(parent);
    ClearQuietly(disk, built, folder);
    return;
  }
  // Two steps where the file system has no single one. FinishSwap knows the moment between them by
  // the folder that is missing; each step is on disk before the next one begins.
  disk.Rename(folder, old);
  disk.SyncFolder(parent);
  disk.Rename(built, folder);
  disk.SyncFolder(parent);
  ClearQuietly(disk, old, folder);
}

/// `fill` writes the files of the folder that is to take the place of `folder`.
void Replace(Disk& disk, const std::string& folder, const JournalQuirks& quirks,
             const std::function<void(const std::string& built)>& fill) {
  RequirePlainFiles(disk, folder);
  const std::string built = NewOf(folder);
  try {
    disk.MakeFolder(built);
    fill(built);
    disk.SyncFolder(built);
    disk.SyncFolder(ParentOf(folder));
  } catch (const DiskError&) {
    ClearQuietly(disk, built, folder);
    throw;
  }
  PutInPlace(disk, folder, quirks);
}

}  // namespace

SlotLock::SlotLock(Disk& disk, const std::string& folder) : disk_(disk), path_(folder + ".lock") {
  if (!disk_.Lock(path_)) throw SlotBusy(folder);
}

Bytes PackWorldId(std::uint64_t id) {
  Packer out;
  out.Put(id);
  out.Put(Checksum(out.Packed()));
  return std::move(out).Packed();
}

std::optional<std::uint64_t> ReadWorldId(Disk& disk, const std::string& folder) {
  const std::string path = folder + "/" + kWorldIdName;
  if (disk.Look(path) != Disk::Kind::File) return std::nullopt;
  const Bytes bytes = ReadStart(disk, path, kSealedIdSize + 1);
  const auto id = Unpacker(bytes).Get<std::uint64_t>();
  return bytes == PackWorldId(id) ? std::optional(id) : std::nullopt;
}

bool IsOfSlot(std::string_view name) {
  for (const std::string_view suffix : {"", kRoomSuffix, kBesideSuffix, ".tmp"}) {
    if (!name.ends_with(suffix)) continue;
    const std::string_view stem = name.substr(0, name.size() - suffix.size());
    if (stem == kJournalName || stem == kWorldIdName || stem.starts_with(kOtherJournalName) ||
        stem == kSealName || MostBytesOf(stem) > 0)
      return true;
  }
  return false;
}

void ReplaceSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                 std::uint64_t worldId, std::int64_t journalBytes, const JournalQuirks& quirks) {
  Replace(disk, folder, quirks, [&](const std::string& built) {
    WorldDigest digest;
    for (const NewFile& file : files) {
      WriteNewFile(disk, built + "/" + file.Name, file.Contents);
      digest.Set(file.Name, file.Contents);
    }
    WriteNewFile(disk, built + "/" + kWorldIdName, PackWorldId(worldId));
    WriteNewFile(disk, built + "/" + kSealName, PackSeal(worldId, 0, digest));
    WriteJournal(disk, built + "/" + kJournalName, {worldId, 0, digest.Value()}, {}, journalBytes,
                 journalBytes);
  });
}

void ReplaceFolder(Disk& disk, const std::string& folder, const std::vector<NewFile>& files) {
  Replace(disk, folder, {}, [&](const std::string& built) {
    for (const NewFile& file : files) WriteNewFile(disk, built + "/" + file.Name, file.Contents);
  });
}

void FinishSwap(Disk& disk, const std::string& folder) {
  const std::string parent = ParentOf(folder), built = NewOf(folder), old = OldOf(folder);
  const bool hasNew = disk.Look(built) != Disk::Kind::Nothing;
  const bool hasOld = disk.Look(old) != Disk::Kind::Nothing;
  if (!hasNew && !hasOld) return;
  // An old folder lies aside only once the new one is whole; then the new one is the one to keep.
  if (hasOld && disk.Look(folder) == Disk::Kind::Nothing) disk.Rename(hasNew ? built : old, folder);
  // Before anything is cleared away, what stands in the slot's place has to stand there for good.
  disk.SyncFolder(parent);
  ClearAway(disk, built, folder);
  ClearAway(disk, old, folder);
  disk.SyncFolder(parent);
}

std::string StandingFolder(Disk& disk, const std::string& folder) {
  if (disk.Look(folder) != Disk::Kind::Nothing) return folder;
  if (disk.Look(OldOf(folder)) == Disk::Kind::Nothing) return "";
  return disk.Look(NewOf(folder)) == Disk::Kind::Nothing ? OldOf(folder) : NewOf(folder);
}

std::string FreeName(Disk& disk, const std::string& path) {
  std::string name = path;
  for (int i = 2; disk.Look(name) != Disk::Kind::Nothing; ++i)
    name = path + "-" + std::to_string(i);
  return name;
}

void CopyBeside(Disk& disk, const std::string& folder, const std::string& copy) {
  // Not where FinishSwap looks: what it finds there it takes for a slot.
  const std::string built = NewOf(copy);
  RemoveTree(disk, built);
  try {
    disk.MakeFolder(built);
    for (const std::string& name : disk.List(folder))
      if (disk.Look(folder + "/" + name) == Disk::Kind::File)
        CopyFile(disk, folder + "/" + name, built + "/" + name);
    disk.SyncFolder(built);
    disk.Rename(built, copy);
  } catch (const DiskError&) {
    try {
      RemoveTree(disk, built);
    } catch (const DiskError&) {  // the first fault is the one to tell
    }
    throw;
  }
  disk.SyncFolder(ParentOf(folder));
}

namespace {

/// Room is taken in steps, so that a mailbox that grows by a letter a day asks for it once a year.
constexpr std::int64_t kRoomStep = 64 * 1024;

}  // namespace

SlotFiles::Opened& SlotFiles::Open(const std::string& name) {
  if (const auto open = open_.find(name); open != open_.end()) return open->second;
  if (const auto reserved = reserved_.find(name); reserved != reserved_.end()) {
    disk_.Rename(Path(name + kRoomSuffix), Path(name));
    open_[name] = reserved->second;
    reserved_.erase(reserved);
  } else {
    const Disk::Handle handle = disk_.Open(Path(name), true);
    std::int64_t length = 0;
    try {
      length = disk_.Size(handle);
    } catch (const DiskError&) {  // an entry of a length that nobody knows would be believed
      disk_.Close(handle);
      throw;
    }
    open_[name] = {handle, 0, length};
  }
  return open_[name];
}

void SlotFiles::Close(const std::string& name) {
  const auto open = open_.find(name);
  if (open == open_.end()) return;
  disk_.Close(open->second.Handle);
  open_.erase(open);
}

void SlotFiles::Reserve(const std::string& name, std::int64_t size) {
  Opened& file = Open(name);
  if (size <= file.Room) return;
  const std::int64_t room = (size + kRoomStep - 1) / kRoomStep * kRoomStep;
  disk_.Allocate(file.Handle, room);
  file.Room = room;
}

void SlotFiles::ReserveNew(const std::string& name, std::int64_t size) {
  const Disk::Handle handle = disk_.Open(Path(name + kRoomSuffix), true);
  reserved_[name] = {handle, size, 0};
  disk_.Allocate(handle, size);
}

std::string SlotFiles::Displaced() {
  for (const auto& [name, file] : open_)
    if (!disk_.IsAt(file.Handle, Path(name))) return Path(name);
  return {};
}

bool SlotFiles::IsAsLeft(const std::string& name) {
  const auto open = open_.find(name);
  return open == open_.end() || disk_.Size(open->second.Handle) == open->second.Length;
}

std::vector<std::string> SlotFiles::NotAsLeft() {
  std::vector<std::string> names;
  for (const auto& [name, file] : open_)
    if (!IsAsLeft(name)) names.push_back(name);
  return names;
}

void SlotFiles::GiveBack() {
  for (const auto& [name, file] : reserved_) {
    disk_.Close(file.Handle);
    try {
      disk_.Remove(Path(name + kRoomSuffix));
    } catch (...) {
      // It is empty, and the next opening clears it away.
    }
  }
  reserved_.clear();
}

void SlotFiles::Apply(const FilePatch& patch) {
  touched_.insert(patch.Name);
  if (!patch.Exists) {
    Close(patch.Name);
    if (disk_.Look(Path(patch.Name)) != Disk::Kind::Nothing) disk_.Remove(Path(patch.Name));
    return;
  }
  Opened& file = Open(patch.Name);
  for (const JournalRange& range : patch.Ranges) {
    disk_.WriteAt(file.Handle, range.Offset, range.Contents);
    file.Length = std::max(file.Length, range.Offset + std::ssize(range.Contents));
  }
  if (file.Length != patch.Length) disk_.Resize(file.Handle, patch.Length);
  file.Length = patch.Length;
}

void SlotFiles::Sync() {
  for (const std::string& name : touched_)
    if (disk_.Look(Path(name)) == Disk::Kind::File) disk_.Sync(Open(name).Handle);
  disk_.SyncFolder(folder_);
  touched_.clear();
}

void SlotFiles::Drop() {
  GiveBack();
  for (const auto& [name, file] : open_) disk_.Close(file.Handle);
  open_.clear();
  touched_.clear();
}

}  // namespace grapplemont
