#include "session/layers.h"

#include <algorithm>

#include "records/world.h"

namespace grapplemont {

namespace {

constexpr std::int64_t kMostOfACopy = std::int64_t{1} << 26;

/// Whether a file is in both folders with the same bytes; the same file on two ways is no copy.
bool IsInBoth(Disk& disk, const std::string& name, const std::string& a, const std::string& b) {
  const std::string files[] = {a + "/" + name, b + "/" + name};
  if (disk.Look(files[0]) != Disk::Kind::File || disk.Look(files[1]) != Disk::Kind::File)
    return false;
  const OpenedFile mine(disk, files[0], false), theirs(disk, files[1], false);
  if (disk.IsAt(mine, files[1]) || disk.Size(mine) != disk.Size(theirs)) return false;
  const auto bytes = ReadWithin(disk, files[0], kMostOfACopy);
  return bytes && bytes == ReadWithin(disk, files[1], kMostOfACopy);
}

/// Removes files, and the folder with the last of them.
void RemoveFrom(Disk& disk, const std::string& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) disk.Remove(folder + "/" + name);
  if (!names.empty() && disk.List(folder).empty()) disk.Remove(folder);
}

}  // namespace

std::string FileIn(Disk& disk, const Layers& folders, const std::string& name) {
  for (const std::string& folder : folders)
    if (disk.Look(folder + "/" + name) == Disk::Kind::File) return folder + "/" + name;
  return {};
}

std::map<std::string, Bytes> ReadDefaultData(Disk& disk, const Layers& folders) {
  std::map<std::string, Bytes> files;
  for (const std::string& folder : folders) files.merge(ReadWorldFiles(disk, folder));
  return files;
}

std::vector<std::string> MissingDataFiles(Disk& disk, const Layers& folders) {
  std::vector<std::string> missing;
  for (const std::string_view file : kDataSet)
    if (FileIn(disk, folders, std::string(file)).empty()) missing.emplace_back(file);
  return missing;
}

void RemoveCopies(Disk& disk, const std::string& own, const std::string& came) try {
  const auto copies = [&](const std::string& folder) {
    std::vector<std::string> names;
    if (disk.Look(own + folder) == Disk::Kind::Folder) names = disk.List(own + folder);
    std::erase_if(names, [&](const std::string& name) {
      return !IsInBoth(disk, name, own + folder, came + folder);
    });
    return names;
  };
  RemoveFrom(disk, own + "/gfx", copies("/gfx"));
  if (const auto data = copies("/data"); std::ranges::all_of(kDataSet, [&](std::string_view file) {
        return std::ranges::find(data, file) != data.end();
      }))
    RemoveFrom(disk, own + "/data", data);
} catch (const DiskError&) {
}

}  // namespace grapplemont
