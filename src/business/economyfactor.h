#pragma once

#include <span>

#include "records/arithmetic.h"

namespace grapplemont {

// The economy can run past its ends: the outermost bands have none.
inline constexpr int kAnyLow = -32768;
inline constexpr int kAnyHigh = 32767;

/// What the world's economy makes of an amount in one of its bands.
struct EconomyFactor {
  int From;
  int To;
  int Percent;
};

/// The amount by the band that the economy stands in; as it is between the bands.
constexpr int ByEconomy(int amount, std::span<const EconomyFactor> factors, int economy) {
  for (const EconomyFactor& factor : factors)
    if (economy >= factor.From && economy <= factor.To) return PercentOf(amount, factor.Percent);
  return amount;
}

}  // namespace grapplemont
