#pragma once

#include <cstddef>

#include "ui/controls.h"

namespace grapplemont::ui {

/// A piece of a text that leads somewhere when a player follows it: the name of somebody who has a
/// page.
struct Link {
  std::size_t From = 0, Length = 0;
  Handler Open;
};

}  // namespace grapplemont::ui
