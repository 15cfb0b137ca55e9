#include "show/consequences.h"

namespace grapplemont {

void GainTeamExperience(SegmentRun& run) {
  const int style = run.Segment.Style;
  if (style != kTag && style != kThreeTeams && style != kFourTeams) return;
  for (Team& team : run.World.Teams())
    if (team.Worker2 != 0 && PartnerOf(run.Segment, team.Worker1) == team.Worker2)
      ++team.Experience;
}

}  // namespace grapplemont
