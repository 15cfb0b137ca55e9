#pragma once

#include <string>
#include <vector>

#include "records/fields/outside.h"
#include "records/store/disk.h"

namespace grapplemont {

/// The pictures of a gallery that are there: set 0 is the program's own "VXM_load1.jpg" to
/// "VXM_load4.jpg", sets 1 to 4 are "VXM_Set1_01.jpg" to "VXM_Set1_10.jpg" and so on.
std::vector<std::string> WaitingPictures(Disk& disk, const std::string& pictureFolder, int set);
/// One of them at random; of set 0 when the set has none; empty when there is none at all.
std::string DrawWaitingPicture(Disk& disk, const std::string& pictureFolder, int set, Draws& draws);

}  // namespace grapplemont
