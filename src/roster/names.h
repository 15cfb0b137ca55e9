#pragma once

#include <string_view>

#include "records/modWresCheck.h"

// What invented people are made of: words/names.h, which the build makes of words/names.txt. Any
// first name, a blank and any surname fit a person's 25 letters; any surname fits the 10 of a
// worker's short name.

namespace grapplemont {

/// A move that a draw picks. All brawling ones stand before all technical ones, and speed is last.
struct FinisherMove {
  char Kind;  // 'B', 'T', 'S'
  FinisherType Type;
  std::string_view Name;
};

/// Where somebody may come from: "Halifax", "in Canada"; the country is part of some names.
struct HomeTown {
  std::string_view Where;
  std::string_view Name;
};

}  // namespace grapplemont
