#include "session/layers.h"

#include "records/world.h"

namespace grapplemont {

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

}  // namespace grapplemont
