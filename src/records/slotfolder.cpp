#include "records/slotfolder.h"

#include <xxhash.h>

#include <algorithm>

#include "records/journalfile.h"

namespace grapplemont {

namespace {

constexpr std::size_t kIdSize = 8, kSealedIdSize = 16;

std::string NewOf(const std::string& folder) {
  return folder + kBesideSuffix;
}
std::string OldOf(const std::string& folder) {
  return folder + ".old";
}

std::uint64_t NumberAt(ByteSpan bytes, std::size_t at) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < kIdSize; ++i)
    number |= std::to_integer<std::uint64_t>(bytes[at + i]) << (8 * i);
  return number;
}

void Append(Bytes& bytes, std::uint64_t number) {
  for (std::size_t i = 0; i < kIdSize; ++i)
    bytes.push_back(static_cast<std::byte>(number >> (8 * i)));
}

/// What has been replaced is nobody's business any more; what is left of it goes the next time.
void ClearQuietly(Disk& disk, const std::string& path) {
  try {
    RemoveTree(disk, path);
  } catch (const DiskError&) {
  }
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
    ClearQuietly(disk, built);
    return;
  }
  // Two steps where the file system has no single one. FinishSwap knows the moment between them by
  // the folder that is missing; each step is on disk before the next one begins.
  disk.Rename(folder, old);
  disk.SyncFolder(parent);
  disk.Rename(built, folder);
  disk.SyncFolder(parent);
  ClearQuietly(disk, old);
}

}  // namespace

SlotLock::SlotLock(Disk& disk, const std::string& folder) : disk_(disk), path_(folder + ".lock") {
  if (!disk_.Lock(path_)) throw SlotBusy(folder);
}

void WriteNewFile(Disk& disk, const std::string& path, ByteSpan bytes) {
  const OpenedFile file(disk, path, true);
  disk.Resize(file, 0);
  if (!bytes.empty()) disk.WriteAt(file, 0, bytes);
  disk.Sync(file);
}

Bytes PackWorldId(std::uint64_t id) {
  Bytes bytes;
  Append(bytes, id);
  Append(bytes, XXH3_64bits(bytes.data(), bytes.size()));
  return bytes;
}

std::optional<std::uint64_t> UnpackWorldId(ByteSpan bytes) {
  if (bytes.size() != kSealedIdSize ||
      NumberAt(bytes, kIdSize) != XXH3_64bits(bytes.data(), kIdSize))
    return std::nullopt;
  return NumberAt(bytes, 0);
}

std::optional<std::uint64_t> ReadWorldId(Disk& disk, const std::string& folder) {
  const std::string path = folder + "/" + kWorldIdName;
  if (disk.Look(path) != Disk::Kind::File) return std::nullopt;
  return UnpackWorldId(ReadStart(disk, path, kSealedIdSize + 1));
}

void ReplaceSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                 std::uint64_t worldId, std::int64_t journalBytes, const JournalQuirks& quirks) {
  const Disk::Kind there = disk.Look(folder);
  if (there != Disk::Kind::Nothing && there != Disk::Kind::Folder)
    throw DiskError(folder, "replace", "it is no plain folder");
  const std::string built = NewOf(folder);
  try {
    disk.MakeFolder(built);
    WorldSeal seal{worldId, 0, {}};
    for (const NewFile& file : files) {
      WriteNewFile(disk, built + "/" + file.Name, file.Contents);
      seal.Files.Set(file.Name, file.Contents);
    }
    WriteNewFile(disk, built + "/" + kWorldIdName, PackWorldId(worldId));
    WriteNewFile(disk, built + "/" + kSealName, PackSeal(seal));
    WriteJournal(disk, built + "/" + kJournalName, {worldId, 0, seal.Files.Value()}, {},
                 journalBytes, journalBytes);
    disk.SyncFolder(built);
    disk.SyncFolder(ParentOf(folder));
  } catch (const DiskError&) {
    ClearQuietly(disk, built);
    throw;
  }
  PutInPlace(disk, folder, quirks);
}

void ReplaceFolder(Disk& disk, const std::string& folder, const std::vector<NewFile>& files) {
  const std::string built = NewOf(folder);
  try {
    disk.MakeFolder(built);
    for (const NewFile& file : files) WriteNewFile(disk, built + "/" + file.Name, file.Contents);
    disk.SyncFolder(built);
    disk.SyncFolder(ParentOf(folder));
  } catch (const DiskError&) {
    ClearQuietly(disk, built);
    throw;
  }
  PutInPlace(disk, folder, {});
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
  RemoveTree(disk, built);
  RemoveTree(disk, old);
  disk.SyncFolder(parent);
}

std::string StandingFolder(Disk& disk, const std::string& folder) {
  if (disk.Look(folder) != Disk::Kind::Nothing) return folder;
  if (disk.Look(OldOf(folder)) == Disk::Kind::Nothing) return "";
  return disk.Look(NewOf(folder)) == Disk::Kind::Nothing ? OldOf(folder) : NewOf(folder);
}

std::string FreeCopyName(Disk& disk, const std::string& folder) {
  std::string name = folder + ".damaged";
  for (int i = 2; disk.Look(name) != Disk::Kind::Nothing; ++i)
    name = folder + ".damaged-" + std::to_string(i);
  return name;
}

void CopyBeside(Disk& disk, const std::string& folder, const std::string& copy) {
  // Not where FinishSwap looks: what it finds there it takes for a slot.
  const std::string built = NewOf(copy);
  RemoveTree(disk, built);
  disk.MakeFolder(built);
  for (const std::string& name : disk.List(folder))
    if (disk.Look(folder + "/" + name) == Disk::Kind::File)
      WriteNewFile(disk, built + "/" + name, ReadFile(disk, folder + "/" + name));
  disk.SyncFolder(built);
  disk.Rename(built, copy);
  disk.SyncFolder(ParentOf(folder));
}

}  // namespace grapplemont
