#pragma once

namespace grapplemont {

/// The least and the most that a draw or a table of a rule can give.
struct Span {
  int Least = 0, Most = 0;
  friend bool operator==(const Span&, const Span&) = default;
};

}  // namespace grapplemont
