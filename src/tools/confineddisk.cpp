#include "tools/confineddisk.h"

#include <filesystem>

namespace grapplemont::tools {

namespace {

/// Without "." and "..", and without slashes at its end.
std::string Straight(const std::string& path) {
  std::string straight = std::filesystem::path(path).lexically_normal().generic_string();
  while (straight.size() > 1 && straight.ends_with('/')) straight.pop_back();
  return straight;
}

bool IsWithin(const std::string& path, const std::string& folder) {
  return !folder.empty() && path.starts_with(folder) &&
         (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Where a path that leads out of the folder leads to.
std::string Elsewhere(const std::string& path, const std::string& folder) {
  std::string below = std::filesystem::path(path).relative_path().generic_string();
  while (below == ".." || below.starts_with("../")) below.erase(0, 3);
  return folder + "/elsewhere" + (below.empty() ? "" : "/" + below);
}

}  // namespace

ConfinedDisk::ConfinedDisk(Disk& disk, std::string folder, std::string readable)
    : disk_(disk),
      folder_(Straight(folder)),
      readable_(readable.empty() ? "" : Straight(readable)) {}

std::string ConfinedDisk::ToRead(const std::string& path) const {
  std::string straight = Straight(path);
  if (IsWithin(straight, folder_) || IsWithin(straight, readable_)) return straight;
  return Elsewhere(straight, folder_);
}

/// The folders of a place outside are taken to be there.
std::string ConfinedDisk::ToWrite(const std::string& path) {
  const std::string straight = Straight(path);
  if (IsWithin(straight, folder_)) return straight;
  std::string own = Elsewhere(straight, folder_);
  for (auto at = own.find('/', folder_.size() + 1); at != own.npos; at = own.find('/', at + 1))
    disk_.MakeFolder(own.substr(0, at));
  return own;
}

void ConfinedDisk::RequireOwn(Handle file) const {
  if (!IsWithin(places_.at(file), folder_))
    throw DiskError(readable_, "write", "it may only be read here");
}

std::vector<std::string> ConfinedDisk::List(const std::string& path) {
  return disk_.List(ToRead(path));
}

Disk::Handle ConfinedDisk::Open(const std::string& path, bool create) {
  const std::string place = create ? ToWrite(path) : ToRead(path);
  const Handle file = disk_.Open(place, create);
  places_[file] = place;
  return file;
}

void ConfinedDisk::Close(Handle file) {
  places_.erase(file);
  disk_.Close(file);
}

bool ConfinedDisk::IsAt(Handle file, const std::string& path) {
  return disk_.IsAt(file, ToRead(path));
}

void ConfinedDisk::ReadAt(Handle file, std::int64_t offset, std::span<std::byte> buffer) {
  disk_.ReadAt(file, offset, buffer);
}

void ConfinedDisk::WriteAt(Handle file, std::int64_t offset, ByteSpan bytes) {
  RequireOwn(file);
  if (const std::string& place = places_.at(file); Fails && Fails(place))
    throw DiskError(place, "write", "the record says that the disk failed");
  disk_.WriteAt(file, offset, bytes);
}

void ConfinedDisk::Allocate(Handle file, std::int64_t size) {
  RequireOwn(file);
  disk_.Allocate(file, size);
}

void ConfinedDisk::Resize(Handle file, std::int64_t size) {
  RequireOwn(file);
  disk_.Resize(file, size);
}

void ConfinedDisk::Rename(const std::string& from, const std::string& to) {
  const std::string own = ToWrite(from);
  disk_.Rename(own, ToWrite(to));
}

bool ConfinedDisk::Exchange(const std::string& a, const std::string& b) {
  const std::string own = ToWrite(a);
  return disk_.Exchange(own, ToWrite(b));
}

}  // namespace grapplemont::tools
