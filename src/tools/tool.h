#pragma once

#include <iosfwd>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/world.h"
#include "session/arguments.h"
#include "session/home.h"

namespace grapplemont::tools {

/// Where the tool speaks and what it knows of the machine.
struct Shell {
  std::ostream& Out;
  std::ostream& Errors;
  bool Terminal = false;  // somebody watches: progress is worth telling
  Clock Today = MachineToday;
  Surroundings Where = MachineSurroundings();
};

/// The tool for worlds behind its arguments (without the program's name): 0 when all went well, 1
/// for faults and failures, each reported in a line, 2 for arguments that make no sense.
int RunWorldTool(std::span<const std::string> arguments, Shell shell);
/// The same between this process's own input and output.
int RunWorldToolHere(std::span<const std::string> arguments);

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
