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

void JournalFile::Replace(const JournalMarker& marker, ByteSpan records) {
  Drop();
  const std::string beside = path_ + kBesideSuffix;
  WriteJournal(disk_, beside, marker, records, bytes_, 0);
  disk_.Rename(beside, path_);
  disk_.SyncFolder(folder_);
  Continue(kJournalStart + std::ssize(records), 0);
}

bool JournalFile::IsInPlace() {
  return !handle_ || disk_.IsAt(*handle_, path_);
}

void JournalFile::MakeRoom(ByteSpan record) {
  Handle();
  const std::int64_t needed = end_ + std::ssize(record);
  if (needed <= size_) return;
  try {
    Grow(std::max(needed, bytes_));
  } catch (const DiskError&) {
    if (needed >= bytes_) throw;
    Grow(needed);
  }
}

void JournalFile::Grow(std::int64_t size) {
  disk_.Allocate(Handle(), size);
  disk_.Resize(Handle(), size);
  size_ = size;
}

void JournalFile::Append(ByteSpan record) {
  disk_.WriteAt(Handle(), end_, record);
  Sync();
  end_ += std::ssize(record);
}

void JournalFile::Empty(JournalMarker marker) {
  const int block = 1 - markerBlock_;
  const Disk::Handle handle = Handle();
  marker.Reserved = size_;
  disk_.WriteAt(handle, block * kJournalBlock, PackMarker(marker));
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

void WriteJournal(Disk& disk, const std::string& path, JournalMarker marker, ByteSpan records,
                  std::int64_t size, std::int64_t least) {
  const OpenedFile file(disk, path, true);
  const auto write = [&](std::int64_t length) {
    disk.Resize(file, 0);
    disk.Allocate(file, length);
    marker.Reserved = length;
    Bytes whole = PackMarker(marker);
    whole.resize(kJournalStart);
    whole.insert(whole.end(), records.begin(), records.end());
    // Zeros that were really written: a sync over them later has no new blocks to note down, which
    // makes it several times faster.
    whole.resize(static_cast<std::size_t>(length));
    disk.WriteAt(file, 0, whole);
  };
  const std::int64_t needed = kJournalStart + std::ssize(records);
  least = std::max(least, needed);
  size = std::max(size, needed);
  try {
    write(size);
  } catch (const DiskError&) {
    if (least >= size) throw;
    write(least);
  }
  disk.Sync(file);
}

}  // namespace grapplemont
