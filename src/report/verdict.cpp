#include "report/verdict.h"

#include "records/segments.h"
#include "report/report.h"

namespace grapplemont {

std::string Verdict(World& world, const Segment& segment, int overall) {
  if (!world.HasGame() || world.Game().Reporter != kTolland || segment.Kind != kMatch) return {};
  if (segment.Style == kSpecial && segment.MatchType != kRoyalRumble)
    return std::string(kNoBattleRoyals);
  const auto bands = modTolland::Verdicts();
  const VerdictBand* band = &bands.back();
  for (const VerdictBand& each : bands)
    if (overall <= each.UpTo) {
      band = &each;
      break;
    }
  return std::string(band->Lines[world.Prose().Draw(band->Count()) - 1]);
}

}  // namespace grapplemont
