#pragma once

#include <string_view>

namespace grapplemont {

/// What a screen is for and how it is worked. `Screen` may end in a star, for all that begin so.
struct HelpRow {
  std::string_view Screen, For, How;
};

/// A term with what its field alone does not say; all but the term may be empty.
struct GlossaryRow {
  std::string_view Term, Field, Also, Range, Means, Moves;
};

}  // namespace grapplemont
