#pragma once

#include "console/console.h"

namespace grapplemont::console {

/// Lines typed at a terminal that can be edited, come again with the arrows and are completed by
/// Tab; an empty one where the program was built without the library for it.
Typist TerminalTypist();

}  // namespace grapplemont::console
