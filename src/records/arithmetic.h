#pragma once

#include <algorithm>
#include <array>

#include "records/vocabulary.h"

// The arithmetic that the tables of every room share.

namespace grapplemont {

/// The row of a table by a promotion's size, Global to Backyard; sizes outside the six count as the
/// nearest.
template <class Row>
constexpr const Row& BySize(const std::array<Row, 6>& rows, int size) {
  return rows[static_cast<std::size_t>(std::clamp<int>(size, kGlobal, kBackyard) - kGlobal)];
}

/// So many hundredths of a whole, cut towards zero: 20 percent of 19 are 3, of -19 they are -3.
/// Whole numbers only, so that every machine cuts alike.
constexpr int PercentOf(int whole, int percent) {
  return static_cast<int>(static_cast<long long>(whole) * percent / 100);
}

}  // namespace grapplemont
