#pragma once

#include <string>

#include "ui/game.h"

namespace grapplemont {

/// Asks where a file is to be written, and again where one is there already; its whole path, empty
/// for nowhere. `offered` is a name to begin from.
std::string FileToWrite(Game& game, const std::string& title, const std::string& offered);

}  // namespace grapplemont
