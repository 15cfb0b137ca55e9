#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/tablereader.h"
#include "records/world.h"

namespace grapplemont {

/// The tables of a world by their file names, in UTF-8.
using Tables = std::map<std::string, std::string>;

/// What came of building a world: the world, or all that is wrong in its tables, in their order.
struct Building {
  std::optional<World> Made;
  std::vector<Mistake> Mistakes;
};

/// The world that the tables tell, held to every rule of CheckWorld. Draws nothing. Other files
/// among the tables are passed over, but for a table whose name is nearly one of a world's.
Building BuildWorld(const Tables& tables);

/// The tables from which BuildWorld makes the same bytes again, for any world without faults.
/// Columns that hold nothing but their default are left out.
Tables ExportWorld(const World& world);

/// Reads the tables of a folder. Throws DiskError, and WorldFault for one that is too long.
Tables ReadTables(Disk& disk, const std::string& folder);
/// Writes the tables, and removes those of a world that are not among them. Makes the folder.
void WriteTables(Disk& disk, const std::string& folder, const Tables& tables);

}  // namespace grapplemont
