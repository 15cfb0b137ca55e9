#pragma once

#include <algorithm>
#include <array>

#include "records/fields/vocabulary.h"
#include "records/world.h"

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

/// An amount of chance: a base and the size of the draw on top of it. Nothing is drawn for a Draw
/// of 0.
struct BaseAndDraw {
  int Base = 0;
  int Draw = 0;
};

/// The base and one draw.
inline int Drawn(World& world, BaseAndDraw amount) {
  return amount.Draw == 0 ? amount.Base : amount.Base + world.RandomDraw(amount.Draw);
}

/// What comes out on average, rounded down.
constexpr int Mean(BaseAndDraw amount) {
  return amount.Draw == 0 ? amount.Base : amount.Base + (amount.Draw + 1) / 2;
}

}  // namespace grapplemont
