#include "records/disk.h"

#include <algorithm>

#include "records/charset.h"

namespace grapplemont {

namespace {

/// A path in the program's own letters.
std::string Shown(std::string_view path) {
  if (auto shown = FromUtf8(path)) return *std::move(shown);
  std::string plain(path);
  std::replace_if(
      plain.begin(), plain.end(), [](char letter) { return letter < ' '; }, '?');
  return plain;
}

}  // namespace

DiskError::DiskError(std::string_view path, std::string_view action, std::string_view reason)
    : std::runtime_error("Could not " + std::string(action) + " " + Shown(path) + ": " +
                         std::string(reason) + "."),
      path_(path) {}

DiskError::DiskError(const DiskError& fault, std::string_view consequence)
    : std::runtime_error(std::string(fault.what()) + " " + std::string(consequence)),
      path_(fault.path_) {}

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

Bytes ReadFile(Disk& disk, const std::string& path) {
  const OpenedFile file(disk, path, false);
  Bytes bytes(static_cast<std::size_t>(disk.Size(file)));
  if (!bytes.empty()) disk.ReadAt(file, 0, bytes);
  return bytes;
}

void WriteFile(Disk& disk, const std::string& path, ByteSpan bytes) {
  const std::string beside = path + ".tmp";
  {
    const OpenedFile file(disk, beside, true);
    disk.Resize(file, 0);
    if (!bytes.empty()) disk.WriteAt(file, 0, bytes);
    disk.Sync(file);
  }
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
