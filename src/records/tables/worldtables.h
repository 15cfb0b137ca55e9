#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/tables/tablenames.h"
#include "records/tables/tablereader.h"
#include "records/world.h"

namespace grapplemont {

/// The tables of a world by their file names, in UTF-8.
using Tables = std::map<std::string, std::string>;

/// What came of building a world: the world, or what is wrong in its tables, in their order. Of
/// very many mistakes the first few hundred stand for all.
struct Building {
  std::optional<World> Made;
  std::vector<Mistake> Mistakes;
  std::size_t MistakeCount = 0;
};

/// The world that the tables tell, held to every rule of CheckWorld. Draws nothing. Other files
/// among the tables are passed over, except a table whose name is nearly one of a world's.
Building BuildWorld(const Tables& tables);

/// The tables from which BuildWorld makes the same bytes again, for any world without faults.
/// Columns that hold nothing but their default are left out.
Tables ExportWorld(const World& world);

/// What the records of the world are called in its tables.
TableNames NamesIn(const World& world);

/// Reads the tables of a folder; what is not a table of a world stands among them without its text.
/// Throws DiskError, and WorldFault for tables that are too long.
Tables ReadTables(Disk& disk, const std::string& folder);

/// Writes the tables, and removes those of a world that are not among them. Makes the folder.
void WriteTables(Disk& disk, const std::string& folder, const Tables& tables);

/// What stands at a place that is to take tables.
struct TablesPlace {
  std::string WhyNot;                // why no tables may go there; empty when they may
  std::vector<std::string> Present;  // tables of a world that lie there and would be replaced
};
/// A folder may be new, empty, or hold tables of a world and nothing else. Notes are part of a
/// running game's tables; without these they are somebody's own.
TablesPlace LookForExport(Disk& disk, const std::string& folder);
/// Writes the world as tables. Requires a place that may take them. Throws DiskError; a folder that
/// was made for it is gone then.
void ExportTables(Disk& disk, const std::string& folder, const World& world);

}  // namespace grapplemont
