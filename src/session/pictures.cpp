#include "session/pictures.h"

namespace grapplemont {

std::vector<std::string> WaitingPictures(Disk& disk, const std::string& pictureFolder, int set) {
  std::vector<std::string> pictures;
  const int most = set == 0 ? 4 : 10;
  for (int i = 1; i <= most; ++i) {
    const std::string number = std::to_string(i);
    const std::string file =
        set == 0 ? "VXM_load" + number + ".jpg"
                 : "VXM_Set" + std::to_string(set) + "_" + (i < 10 ? "0" : "") + number + ".jpg";
    if (disk.Look(pictureFolder + "/" + file) == Disk::Kind::File) pictures.push_back(file);
  }
  return pictures;
}

std::string DrawWaitingPicture(Disk& disk, const std::string& pictureFolder, int set,
                               Draws& draws) {
  std::vector<std::string> pictures = WaitingPictures(disk, pictureFolder, set);
  if (pictures.empty() && set != 0) pictures = WaitingPictures(disk, pictureFolder, 0);
  if (pictures.empty()) return {};
  return pictures[static_cast<std::size_t>(draws.Draw(static_cast<int>(pictures.size())) - 1)];
}

}  // namespace grapplemont
