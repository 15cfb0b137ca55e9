#pragma once

#include <string_view>

#include "records/fields/chapters.h"

namespace grapplemont {

/// How a kind of wish is worded; words/wishes.txt has the rows.
struct WishWords {
  WishKind Is;
  std::string_view Says;
};

}  // namespace grapplemont
