#pragma once

#include <iosfwd>
#include <span>
#include <string>

#include "console/console.h"
#include "session/home.h"

namespace grapplemont::console {

struct Streams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Errors;
};

/// The whole program behind its arguments: 0 after a game, 1 when it could not start or go on, 2
/// for arguments that make no sense. `settings` tells of the terminal.
int RunConsole(std::span<const std::string> arguments, Streams streams, Settings settings,
               const Surroundings& around = MachineSurroundings());
/// The same between this process's own input and output.
int RunConsoleHere(std::span<const std::string> arguments);

}  // namespace grapplemont::console
