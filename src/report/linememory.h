#pragma once

#include <unordered_map>
#include <vector>

#include "records/fields/outside.h"

namespace grapplemont {

/// Which lines a show has used, so that none comes again before the others of its band have.
class LineMemory {
 public:
  /// A line of the band, from 0: the one that a draw of `lines` names, or, if the show has used it
  /// already, one that a second draw picks among those it has not. Once all have been used, the
  /// band begins anew. `band` tells the bands apart. Requires at least one line.
  int Pick(Draws& draws, const void* band, int lines);
  /// Whether it was picked since the band last began. What a text says cannot tell: two bands may
  /// use the same words.
  bool Used(const void* band, int line) const;

 private:
  std::unordered_map<const void*, std::vector<bool>> used_;
};

}  // namespace grapplemont
