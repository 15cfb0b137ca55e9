#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/checkworld.h"
#include "records/worldtables.h"

// How a world, its faults and the mistakes in its tables are told, to whoever asks for them.

namespace grapplemont {

/// "18 promotions, 648 workers, 302 staff"
std::string ContentsOf(const World& world);
/// What CheckWorld takes for granted (the files of a data set), and all that it finds.
std::vector<Fault> FaultsOf(const World& world);
/// "3 mistakes; nothing was built."
std::string NothingBuilt(const Building& building);
/// "has 3 faults, which HOW lists; the tables will not build until they are mended."
std::string FaultyExport(const std::vector<Fault>& faults, std::string_view how);

}  // namespace grapplemont
