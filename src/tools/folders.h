#pragma once

#include <ostream>
#include <string>

#include "records/world.h"

namespace grapplemont::tools {

std::string WithoutSlashes(std::string folder);  // behind it
/// The folder's name without slashes behind it, for files that lie beside it. Throws for what is no
/// folder.
std::string FolderName(Disk& disk, const std::string& folder);

/// The world of a folder: default data, or a saved game with all that its journal holds. Remarks on
/// what was left aside go to `remarks`. Throws for a folder without any file of a world.
World ReadWorld(Disk& disk, const std::string& folder, std::ostream& remarks);

/// Writes a world to a folder, made if it is not there: a game as a slot of its own; default data
/// file by file, once all of it is written beside. Other files in it stay. Throws for a folder that
/// holds a saved game when the world is none.
void WriteWorld(Disk& disk, const std::string& folder, const World& world);

}  // namespace grapplemont::tools
