#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// One field that is not the same in two worlds, as cells of their tables (worldtables.h). Without
/// a field it is the whole record that only one of them has, without a record the file.
struct Difference {
  std::string_view File;  // "wrestler.dat"
  int Record = 0;
  std::string Name;  // of the record, where it has one; UTF-8, as the cells are
  std::string Field;
  std::string Was, Is;

  /// "wrestler.dat, record 17, Bram Okafor, Morale: was 60, is 61"
  std::string Line() const;
};

/// What "Was" and "Is" hold for a record or a file.
inline constexpr std::string_view kThere = "there", kMissing = "missing";

/// All that differs, at most `most`, by file, record and field. A record that is new is followed by
/// its fields, as far as they are not what an empty cell would be.
std::vector<Difference> Differences(const World& world, const World& before,
                                    std::size_t most = std::numeric_limits<std::size_t>::max());

}  // namespace grapplemont
