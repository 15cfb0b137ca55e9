#pragma once

#include <span>
#include <string_view>

namespace grapplemont {

/// One band of the second reporter's ratings.
struct VerdictBand {
  int UpTo;                   // the highest Overall that it rates
  std::string_view Lines[3];  // the last may be empty

  constexpr int Count() const { return Lines[2].empty() ? 2 : 3; }
};

namespace modTolland {
/// From the worst to the best; the last one reaches to 100.
std::span<const VerdictBand> Verdicts();
}  // namespace modTolland

inline constexpr std::string_view kNoBattleRoyals = "I don't rate battle royals. ";

}  // namespace grapplemont
