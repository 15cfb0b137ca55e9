#pragma once

#include <string>
#include <string_view>

#include "records/world.h"

// How the scripts of golden months write worlds and records.

namespace grapplemont::test {

/// "default": the world that comes with the game; else the tables in tests/golden/worlds/NAME.
World TablesOf(const std::string& name);

/// "workers,Maul Gantry,Morale=20,Employer=GAC" changes the record of that name, or that number:
/// "feuds,1,Heat=90". Cells are those of the tables. Throws std::logic_error for what does not fit.
void SetCells(World& world, std::string_view line);
/// "incidents,Type=3,Uid=7" adds a record at the end.
void AddRecord(World& world, std::string_view line);

}  // namespace grapplemont::test
