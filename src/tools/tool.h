#pragma once

#include <iosfwd>
#include <span>
#include <string>

#include "records/fields/outside.h"

namespace grapplemont::tools {

/// Where the tool speaks and what it knows of the machine.
struct Shell {
  std::ostream& Out;
  std::ostream& Errors;
  bool Terminal = false;  // somebody watches: progress is worth telling
  Clock Today = MachineToday;
};

/// The tool for worlds behind its arguments (without the program's name): 0 when all went well, 1
/// for faults and failures, each told in a line, 2 for arguments that make no sense.
int RunWorldTool(std::span<const std::string> arguments, Shell shell);

}  // namespace grapplemont::tools
