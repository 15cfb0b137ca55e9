#include <cstdlib>
#include <filesystem>

#include "session/home.h"

namespace grapplemont {

namespace {

bool HasWorld(Disk& disk, const std::string& folder) {
  return disk.Look(folder + "/data") != Disk::Kind::Nothing;
}

/// $XDG_DATA_HOME/grapplemont, by the rules of the desktop's base folders.
std::string UserFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
    return std::string(data) + "/grapplemont";
  const char* user = std::getenv("HOME");
  return std::string(user ? user : "") + "/.local/share/grapplemont";
}

/// Where the package put the world and the pictures, seen from the program's own place.
std::string InstalledFolder() {
  std::error_code ignored;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  return (program.parent_path().parent_path() / "share" / "grapplemont").string();
}

void MakeFolders(Disk& disk, const std::string& folder) {
  for (std::size_t end = folder.find('/', 1);; end = folder.find('/', end + 1)) {
    const std::string part = folder.substr(0, end);
    if (disk.Look(part) == Disk::Kind::Nothing) disk.MakeFolder(part);
    if (end == std::string::npos) return;
  }
}

void CopyFolder(Disk& disk, const std::string& from, const std::string& to) {
  MakeFolders(disk, to);
  for (const std::string& name : disk.List(from))
    if (disk.Look(from + "/" + name) == Disk::Kind::File)
      CopyFile(disk, from + "/" + name, to + "/" + name);
}

}  // namespace

std::string FindHome(Disk& disk) {
  if (HasWorld(disk, ".")) return ".";
  const std::string user = UserFolder();
  if (HasWorld(disk, user)) return user;
  const std::string installed = InstalledFolder();
  if (!HasWorld(disk, installed)) return ".";
  CopyFolder(disk, installed + "/gfx", user + "/gfx");
  // The folder that marks a home comes last and in one step: a copy cut short is made again.
  RemoveTree(disk, user + "/data.new");
  CopyFolder(disk, installed + "/data", user + "/data.new");
  disk.Rename(user + "/data.new", user + "/data");
  return user;
}

}  // namespace grapplemont
