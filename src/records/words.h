#pragma once

#include <span>
#include <string_view>

// The texts of words/, as the build puts them into the program.

namespace grapplemont {

/// The lines under one heading. The numbers say which, as its room counts them.
struct Block {
  int Heading = 0;
  int Band = 0;
  std::span<const std::string_view> Lines;
};
/// The headings of one file.
using Blocks = std::span<const Block>;

/// The lines of a heading; empty for one that does not exist.
inline std::span<const std::string_view> LinesUnder(Blocks blocks, int heading) {
  for (const Block& block : blocks)
    if (block.Heading == heading) return block.Lines;
  return {};
}

}  // namespace grapplemont
