#pragma once

#include <string>

#include "records/store/disk.h"

namespace grapplemont {

/// The folder that holds data/, gfx/ and the slots: the working directory if it has data/, else the
/// user's data folder, filled from the installed files the first time.
std::string FindHome(Disk& disk);

}  // namespace grapplemont
