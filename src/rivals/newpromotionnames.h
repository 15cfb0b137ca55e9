#pragma once

namespace grapplemont {

/// A promotion that may yet open. words/promotions.h has those that a draw picks from.
struct NewPromotionName {
  const char* Name;
  const char* Initials;
};

}  // namespace grapplemont
