#include "editor/worldcopy.h"

namespace grapplemont {

World TrialCopyOf(const World& world) {
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(world)) files.emplace(file.Name, std::move(file.Contents));
  World copy;
  copy.Load(files);
  return copy;
}

}  // namespace grapplemont
