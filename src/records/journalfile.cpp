#include "records/journalfile.h"

#include <algorithm>

#include "records/slotfolder.h"

namespace grapplemont {

JournalFile::JournalFile(Disk& disk, std::string folder, std::int64_t bytes,
                         const JournalQuirks& quirks)
    : disk_(disk),
      folder_(std::move(folder)),
      path_(folder_ + "/" + kJournalName),
      bytes_(std::max(bytes, kJournalStart + kJournalBlock)),
      quirks_(quirks) {}

Disk::Handle JournalFile::Handle() {
  if (!handle_) {
    handle_ = disk_.Open(path_, false);
    size_ = disk_.Size(*handle_);
  }
  return *handle_;
}

void JournalFile::Drop() {
  if (handle_) disk_.Close(*handle_);
  handle_.reset();
}

Bytes JournalFile::Read(std::int64_t limit) {
  const Disk::Kind kind = disk_.Look(path_);
  if (kind == Disk::Kind::Nothing) return {};
  if (kind != Disk::Kind::File) throw DiskError(path_, "open", "it is no plain file");
  const Disk::Handle handle = Handle();
  Bytes bytes(static_cast<std::size_t>(std::min(size_, limit)));
  if (!bytes.empty()) disk_.ReadAt(handle, 0, bytes);
  return bytes;
}

void JournalFile::Continue(std::int64_t end, int markerBlock) {
  end_ = end;
  markerBlock_ = markerBlock;
}

void JournalFile::Replace(ByteSpan bytes) {
  Drop();
  const std::string beside = path_ + kBesideSuffix;
  WriteJournal(disk_, beside, bytes, bytes_);
  disk_.Rename(beside, path_);
  disk_.SyncFolder(folder_);
}

void JournalFile::MakeRoom(ByteSpan record) {
  const Disk::Handle handle = Handle();
  const std::int64_t needed = std::max(end_ + std::ssize(record), bytes_);
  if (needed <= size_) return;
  disk_.Allocate(handle, needed);
  disk_.Resize(handle, needed);
  size_ = needed;
}

void JournalFile::Append(ByteSpan record) {
  disk_.WriteAt(Handle(), end_, record);
  Sync();
  end_ += std::ssize(record);
}

void JournalFile::Empty(const JournalMarker& marker) {
  const int block = 1 - markerBlock_;
  disk_.WriteAt(Handle(), block * kJournalBlock, PackMarker(marker));
  Sync();
  Continue(kJournalStart, block);
}

void JournalFile::Sync() {
  if (!quirks_.RetrySync) return disk_.Sync(Handle());
  try {
    disk_.Sync(Handle());
  } catch (const DiskError&) {
    disk_.Sync(Handle());
  }
}

Bytes EmptyJournal(const JournalMarker& marker) {
  Bytes bytes = PackMarker(marker);
  bytes.resize(kJournalStart);
  return bytes;
}

}  // namespace grapplemont
