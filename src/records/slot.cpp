#include "records/slot.h"

#include <algorithm>
#include <cstring>

#include "records/journal.h"

namespace grapplemont {

namespace {

constexpr const char* kJournalFile = "journal";
constexpr const char* kIdFile = "world.id";
constexpr std::uint64_t kAll = ~std::uint64_t{0};

std::string ParentOf(const std::string& folder) {
  const auto slash = folder.rfind('/');
  return slash == std::string::npos ? "." : folder.substr(0, slash);
}

std::string LockOf(const std::string& folder) {
  return folder + ".lock";
}
std::string BuildOf(const std::string& folder) {
  return folder + ".new";
}
std::string OldOf(const std::string& folder) {
  return folder + ".old";
}

void RequireLock(Disk& disk, const std::string& folder) {
  if (!disk.Lock(LockOf(folder))) throw SlotBusy(folder);
}

/// Clears away what a creation that was cut short has left.
void Settle(Disk& disk, const std::string& folder) {
  if (disk.Look(folder) == Disk::Kind::Nothing && disk.Look(OldOf(folder)) != Disk::Kind::Nothing) {
    disk.Rename(OldOf(folder), folder);
    disk.SyncFolder(ParentOf(folder));
  }
  RemoveTree(disk, OldOf(folder));
  RemoveTree(disk, BuildOf(folder));
}

void WriteSynced(Disk& disk, const std::string& path, ByteSpan bytes) {
  const Disk::Handle file = disk.Open(path, true);
  try {
    disk.WriteAt(file, 0, bytes);
    disk.Sync(file);
  } catch (...) {
    disk.Close(file);
    throw;
  }
  disk.Close(file);
}

Bytes IdBytes(std::uint64_t id) {
  Bytes bytes(8);
  for (std::size_t i = 0; i < 8; ++i) bytes[i] = static_cast<std::byte>(id >> (8 * i));
  return bytes;
}

void CopyTree(Disk& disk, const std::string& from, const std::string& to) {
  disk.MakeFolder(to);
  for (const std::string& name : disk.List(from))
    if (disk.Look(from + "/" + name) == Disk::Kind::File)
      WriteFile(disk, to + "/" + name, ReadFile(disk, from + "/" + name));
}

/// What a journal's record makes of a file's contents.
std::optional<Bytes> Overlaid(std::optional<Bytes> contents, const JournalFile& file) {
  if (!file.Exists) return std::nullopt;
  if (!contents) contents.emplace();
  contents->resize(static_cast<std::size_t>(file.Length));
  for (const JournalRange& range : file.Ranges)
    if (range.Offset + range.Contents.size() <= contents->size())
      std::copy(range.Contents.begin(), range.Contents.end(),
                contents->begin() + static_cast<std::ptrdiff_t>(range.Offset));
  return contents;
}

}  // namespace

SlotBusy::SlotBusy(const std::string& folder)
    : std::runtime_error(
          "The slot " + folder +
          " is open in another program. Close it there first; nothing was changed.") {}

SlotDamaged::SlotDamaged(const std::string& folder, std::string copy)
    : std::runtime_error("The journal of the slot " + folder +
                         " is damaged. A copy of the slot as it is was put into " + copy +
                         "; the game can go on from before the damage."),
      copy_(std::move(copy)) {}

void Slot::Create(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                  std::uint64_t worldId) {
  RequireLock(disk, folder);
  try {
    Settle(disk, folder);
    const std::string build = BuildOf(folder);
    disk.MakeFolder(build);
    for (const NewFile& file : files) WriteSynced(disk, build + "/" + file.Name, file.Contents);
    WriteSynced(disk, build + "/" + kIdFile, IdBytes(worldId));
    Bytes journal = PackMarker({worldId, 0});
    journal.resize(static_cast<std::size_t>(kJournalSize));
    WriteSynced(disk, build + "/" + kJournalFile, journal);
    disk.SyncFolder(build);
    if (disk.Look(folder) == Disk::Kind::Nothing) {
      disk.Rename(build, folder);
    } else {
      disk.Exchange(build, folder);
    }
    disk.SyncFolder(ParentOf(folder));
    RemoveTree(disk, build);
  } catch (...) {
    disk.Unlock(LockOf(folder));
    throw;
  }
  disk.Unlock(LockOf(folder));
}

bool Slot::Busy(Disk& disk, const std::string& folder) {
  if (!disk.Lock(LockOf(folder))) return true;
  disk.Unlock(LockOf(folder));
  return false;
}

std::optional<Bytes> Slot::Peek(Disk& disk, const std::string& folder, const std::string& name) {
  if (disk.Lock(LockOf(folder))) {
    Settle(disk, folder);
    disk.Unlock(LockOf(folder));
  }
  std::optional<Bytes> contents;
  if (disk.Look(folder + "/" + name) == Disk::Kind::File) contents = ReadFile(disk, folder + "/" + name);
  if (disk.Look(folder + "/" + kJournalFile) != Disk::Kind::File) return contents;
  const Bytes journal = ReadFile(disk, folder + "/" + kJournalFile);
  const auto marker = UnpackMarker(journal);
  if (!marker) return contents;
  std::uint64_t sequence = marker->Sequence;
  for (std::int64_t at = kJournalBlock;;) {
    const auto entry = UnpackRecord(journal, at);
    if (!entry || entry->Record.World != marker->World || entry->Record.Sequence != sequence + 1)
      return contents;
    sequence = entry->Record.Sequence;
    at += entry->Size;
    for (const JournalFile& file : entry->Record.Files)
      if (file.Name == name) contents = Overlaid(std::move(contents), file);
  }
}

Slot::Slot(Disk& disk, std::string folder, std::vector<KnownFile> known, Damage damage)
    : disk_(disk), folder_(std::move(folder)), known_(std::move(known)) {
  RequireLock(disk_, folder_);
  try {
    Settle(disk_, folder_);
    Recover(damage, kAll);
    ReadFiles();
  } catch (...) {
    DropHandles();
    disk_.Unlock(LockOf(folder_));
    throw;
  }
}

Slot::~Slot() {
  DropHandles();
  disk_.Unlock(LockOf(folder_));
}

bool Slot::Knows(const std::string& name) const {
  return std::any_of(known_.begin(), known_.end(), [&](auto& file) { return file.Name == name; });
}

Disk::Handle Slot::Handle(const std::string& name, bool create) {
  const auto open = handles_.find(name);
  if (open != handles_.end()) return open->second;
  return handles_[name] = disk_.Open(Path(name), create);
}

void Slot::DropHandles() {
  for (const auto& [name, handle] : handles_) disk_.Close(handle);
  handles_.clear();
}

template <class File>
void Slot::Apply(const File& file) {
  if (!file.Exists) {
    if (const auto open = handles_.find(file.Name); open != handles_.end()) {
      disk_.Close(open->second);
      handles_.erase(open);
    }
    if (disk_.Look(Path(file.Name)) != Disk::Kind::Nothing) disk_.Remove(Path(file.Name));
    return;
  }
  const Disk::Handle handle = Handle(file.Name, true);
  for (const JournalRange& range : file.Ranges)
    disk_.WriteAt(handle, static_cast<std::int64_t>(range.Offset), range.Contents);
  if (disk_.Size(handle) != static_cast<std::int64_t>(file.Length))
    disk_.Resize(handle, static_cast<std::int64_t>(file.Length));
}

void Slot::ReadWorldId() {
  if (disk_.Look(Path(kIdFile)) != Disk::Kind::File) {
    // A folder from elsewhere: no journal can be this world's but one that says so too.
    worldId_ = 0;
    return;
  }
  const Bytes bytes = ReadFile(disk_, Path(kIdFile));
  worldId_ = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(bytes.size(), 8); ++i)
    worldId_ |= std::to_integer<std::uint64_t>(bytes[i]) << (8 * i);
}

void Slot::Recover(Damage damage, std::uint64_t upTo) {
  DropHandles();
  if (disk_.Look(folder_) != Disk::Kind::Folder)
    throw DiskError(folder_, "open the slot", "there is no such folder");
  ReadWorldId();
  const Disk::Kind kind = disk_.Look(Path(kJournalFile));
  if (kind != Disk::Kind::File && kind != Disk::Kind::Nothing)
    throw DiskError(Path(kJournalFile), "open", "it is no plain file");
  const Disk::Handle journal = Handle(kJournalFile, true);
  journalSize_ = disk_.Size(journal);
  Bytes bytes(static_cast<std::size_t>(journalSize_));
  if (!bytes.empty()) disk_.ReadAt(journal, 0, bytes);
  Replay(bytes, damage, upTo);
  if (journalSize_ < kJournalSize) {
    // A journal that came without its room gets it before anything is written to it.
    disk_.WriteAt(journal, journalSize_,
                  Bytes(static_cast<std::size_t>(kJournalSize - journalSize_)));
    journalSize_ = kJournalSize;
  }
  EmptyJournal();
  broken_ = false;
}

void Slot::Replay(ByteSpan journal, Damage damage, std::uint64_t upTo) {
  end_ = kJournalBlock;
  sequence_ = 0;
  const auto marker = UnpackMarker(journal);
  auto entry = UnpackRecord(journal, end_);
  if (marker && marker->World != worldId_) {
    remarks_.push_back("The journal belongs to another world and was left aside.");
    return;
  }
  if (marker) {
    sequence_ = marker->Sequence;
  } else if (entry) {
    // The marker was lost while the journal was emptied: all of its records stand in the files
    // already, and no new one can have been written. Replaying them changes nothing.
    sequence_ = entry->Record.Sequence - 1;
  }
  while (entry && entry->Record.World == worldId_ && entry->Record.Sequence == sequence_ + 1 &&
         entry->Record.Sequence <= upTo &&
         std::all_of(entry->Record.Files.begin(), entry->Record.Files.end(),
                     [&](auto& file) { return Knows(file.Name); })) {
    sequence_ = entry->Record.Sequence;
    for (const JournalFile& file : entry->Record.Files) Apply(file);
    end_ += entry->Size;
    entry = UnpackRecord(journal, end_);
  }
  if (upTo == kAll) return RefuseDamage(journal, damage);
  // The record that failed may stand there whole: its number is spent, so that it is never taken
  // for the next one.
  sequence_ = upTo + 1;
}

/// Records left from before the journal was last emptied have lower sequences than the chain. A
/// higher one behind its end can only stand there when the one between was once whole.
void Slot::RefuseDamage(ByteSpan journal, Damage damage) {
  std::uint64_t highest = sequence_;
  for (std::int64_t at = end_ + kJournalBlock; at < std::ssize(journal); at += kJournalBlock)
    if (const auto entry = UnpackRecord(journal, at);
        entry && entry->Record.World == worldId_ && entry->Record.Sequence > sequence_ + 1)
      highest = std::max(highest, entry->Record.Sequence);
  if (highest == sequence_) return;
  if (damage == Damage::Drop) {
    remarks_.push_back("What came behind a damaged place of the journal was dropped.");
    sequence_ = highest;
    return;
  }
  const std::string copy = folder_ + ".damaged";
  RemoveTree(disk_, copy);
  CopyTree(disk_, folder_, copy);
  throw SlotDamaged(folder_, copy);
}

void Slot::ReadFiles() {
  files_.clear();
  for (const KnownFile& known : known_) {
    const std::string path = Path(known.Name);
    const Disk::Kind kind = disk_.Look(path);
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File) throw DiskError(path, "open", "it is no plain file");
    const Disk::Handle handle = Handle(known.Name, false);
    const std::int64_t size = disk_.Size(handle);
    if (size > known.MaxBytes)
      throw DiskError(path, "open",
                      "it is " + std::to_string(size) + " bytes long, more than its most of " +
                          std::to_string(known.MaxBytes));
    Bytes bytes(static_cast<std::size_t>(size));
    if (size > 0) disk_.ReadAt(handle, 0, bytes);
    files_.emplace(known.Name, std::move(bytes));
  }
}

void Slot::MakeRoom(const std::vector<FileChange>& changes, std::int64_t recordSize) {
  for (const FileChange& change : changes)
    if (change.ExistsAfter && change.ExistsBefore && change.After.size() > change.Before.size())
      disk_.Allocate(Handle(change.Name, false), std::ssize(change.After));
  if (end_ + recordSize <= journalSize_) return;
  Checkpoint();
  if (end_ + recordSize <= journalSize_) return;
  const Disk::Handle journal = Handle(kJournalFile, false);
  disk_.Allocate(journal, end_ + recordSize);
  disk_.Resize(journal, end_ + recordSize);
  disk_.Sync(journal);
  journalSize_ = end_ + recordSize;
}

void Slot::Commit(const std::vector<FileChange>& changes) {
  committed_ = false;
  if (changes.empty()) return;
  if (broken_) Recover(Damage::Refuse, sequence_);
  JournalRecord record{worldId_, sequence_ + 1, {}};
  for (const FileChange& change : changes) {
    record.Files.push_back({change.Name, change.ExistsAfter, change.After.size(), {}});
    if (change.ExistsAfter) record.Files.back().Ranges = ChangedRanges(change.Before, change.After);
  }
  try {
    Append(changes, record);
  } catch (const DiskError&) {
    // What the disk holds now is unknown: only reading it anew tells, and it is never asked to sync
    // the same pages again. Where even that fails, the next commit begins with it.
    broken_ = true;
    try {
      Recover(Damage::Refuse, sequence_);
    } catch (const DiskError&) {
    }
    throw;
  }
  committed_ = true;
  try {
    for (const JournalFile& file : record.Files) Apply(file);
  } catch (const DiskError&) {
    broken_ = true;
    throw;
  }
}

void Slot::Append(const std::vector<FileChange>& changes, JournalRecord& record) {
  Bytes packed = PackRecord(record);
  MakeRoom(changes, std::ssize(packed));
  const Disk::Handle journal = Handle(kJournalFile, false);
  disk_.WriteAt(journal, end_, packed);
  disk_.Sync(journal);
  sequence_ = record.Sequence;
  end_ += std::ssize(packed);
}

void Slot::Checkpoint() {
  if (broken_) return Recover(Damage::Refuse, sequence_);
  if (end_ == kJournalBlock) return;
  try {
    EmptyJournal();
  } catch (const DiskError&) {
    broken_ = true;
    throw;
  }
}

void Slot::EmptyJournal() {
  for (const KnownFile& known : known_)
    if (disk_.Look(Path(known.Name)) == Disk::Kind::File) disk_.Sync(Handle(known.Name, false));
  disk_.SyncFolder(folder_);
  const Disk::Handle journal = Handle(kJournalFile, false);
  disk_.WriteAt(journal, 0, PackMarker({worldId_, sequence_}));
  disk_.Sync(journal);
  end_ = kJournalBlock;
}

}  // namespace grapplemont
