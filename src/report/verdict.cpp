#include <algorithm>
#include <iterator>

#include "records/segments.h"
#include "report/report.h"
#include "report/voices.h"

namespace grapplemont {

std::string Verdict(World& world, const Segment& segment, int overall) {
  if (!world.HasGame() || world.Game().Reporter != kTolland || segment.Kind != kMatch) return {};
  if (segment.Style == kSpecial && segment.MatchType != kRoyalRumble)
    return std::string(BlockOf(kTolland, Family::NoVerdict, 0)->Lines[0]);
  const auto* last = std::end(kVerdictsUpTo) - 1;
  const auto band = std::lower_bound(std::begin(kVerdictsUpTo), last, overall);
  const auto lines =
      BlockOf(kTolland, Family::Verdict, static_cast<int>(band - kVerdictsUpTo))->Lines;
  const int draw = world.Prose().Draw(static_cast<int>(lines.size()));
  return std::string(lines[static_cast<std::size_t>(draw - 1)]);
}

}  // namespace grapplemont
