#include "records/store/disk.h"

#include <algorithm>

#include "records/fields/charset.h"

namespace grapplemont {

DiskError::DiskError(std::string_view path, std::string_view action, std::string_view reason)
    : std::runtime_error("Could not " + std::string(action) + " " + ForScreen(path) + ": " +
                         std::string(reason) + "."),
      path_(path) {}

DiskError::DiskError(const DiskError& fault, std::string_view consequence)
    : std::runtime_error(std::string(fault.what()) + " " + std::string(consequence)),
      path_(fault.path_) {}

bool IsFolder(Disk& disk, const std::string& path) {
  return disk.Look(path + "/.") == Disk::Kind::Folder;
}

std::string ParentOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

Bytes ReadStart(Disk& disk, const std::string& path, std::int64_t most) {
  const OpenedFile file(disk, path, false);
  Bytes bytes(static_cast<std::size_t>(std::min(disk.Size(file), most)));
  if (!bytes.empty()) disk.ReadAt(file, 0, bytes);
  return bytes;
}

std::optional<Bytes> ReadWithin(Disk& disk, const std::string& path, std::int64_t most) {
  Bytes bytes = ReadStart(disk, path, most + 1);
  if (std::ssize(bytes) > most) return std::nullopt;
  return bytes;
}

void CopyFile(Disk& disk, const std::string& from, const std::string& to) {
  constexpr std::int64_t kPiece = 1 << 16;
  const OpenedFile source(disk, from, false), target(disk, to, true);
  disk.Resize(target, 0);
  const std::int64_t size = disk.Size(source);
  Bytes piece;
  for (std::int64_t at = 0; at < size; at += kPiece) {
    piece.resize(static_cast<std::size_t>(std::min(kPiece, size - at)));
    disk.ReadAt(source, at, piece);
    // A file that is mostly empty takes no more room than it did.
    if (std::any_of(piece.begin(), piece.end(), [](std::byte byte) { return byte != std::byte(); }))
      disk.WriteAt(target, at, piece);
  }
  disk.Resize(target, size);
  disk.Sync(target);
}

void WriteNewFile(Disk& disk, const std::string& path, ByteSpan bytes) {
  const OpenedFile file(disk, path, true);
  disk.Resize(file, 0);
  if (!bytes.empty()) disk.WriteAt(file, 0, bytes);
  disk.Sync(file);
}

void WriteFile(Disk& disk, const std::string& path, ByteSpan bytes) {
  const std::string beside = path + ".tmp";
  WriteNewFile(disk, beside, bytes);
  disk.Rename(beside, path);
  disk.SyncFolder(ParentOf(path));
}

void RemoveTree(Disk& disk, const std::string& path) {
  const Disk::Kind kind = disk.Look(path);
  if (kind == Disk::Kind::Nothing) return;
  if (kind == Disk::Kind::Folder)
    for (const std::string& name : disk.List(path)) RemoveTree(disk, path + "/" + name);
  disk.Remove(path);
}

}  // namespace grapplemont
