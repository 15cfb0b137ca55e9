#include "records/slotfiles.h"

#include <algorithm>

#include "records/slotfolder.h"

namespace grapplemont {

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
    const Disk::Handle handle = disk_.Open(Path(name), true);  // throws before there is an entry
    open_[name] = {handle, 0};
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
  reserved_[name] = {handle, size};
  disk_.Allocate(handle, size);
}

std::string SlotFiles::Displaced() {
  for (const auto& [name, file] : open_)
    if (!disk_.IsAt(file.Handle, Path(name))) return Path(name);
  return {};
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
  const Disk::Handle file = Open(patch.Name).Handle;
  for (const JournalRange& range : patch.Ranges) disk_.WriteAt(file, range.Offset, range.Contents);
  if (disk_.Size(file) != patch.Length) disk_.Resize(file, patch.Length);
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
