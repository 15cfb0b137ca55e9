#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/checks/checkworld.h"
#include "records/tables/worldtables.h"

// How a world, its faults and the mistakes in its tables are reported.

namespace grapplemont {

/// "a, b, c and 4 more" of many names.
std::string Listed(const std::vector<std::string>& names);
/// "18 promotions, 648 workers, 302 staff"
std::string ContentsOf(const World& world);
/// What CheckWorld takes for granted (the files of a data set), and all that it finds. Gives how
/// many faults that is.
std::size_t TellFaults(
    const World& world, const TakeFault& take = [](Fault&&) {});
/// The mistakes, a line each, with "and 4711 more" where not all are kept.
std::vector<std::string> MistakeLines(const Building& building);
/// "3 mistakes; nothing was built."
std::string NothingBuilt(const Building& building);
/// "has 3 faults, which HOW lists; the tables will not build until they are mended."
std::string FaultyExport(std::size_t faults, std::string_view how);

}  // namespace grapplemont
