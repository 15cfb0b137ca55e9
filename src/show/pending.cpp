#include "show/consequences.h"
#include "show/feudslots.h"
#include "show/titlechange.h"

namespace grapplemont {

Title* TitleAtStake(World& world, const Segment& segment) {
  if (segment.TitleName == "None") return nullptr;
  for (Title& title : world.Titles())
    if (title.Owner == world.PlayerUid() && title.Name == segment.TitleName.View()) return &title;
  return nullptr;
}

void MatchConsequences(SegmentRun&) {}
void HurtOthers(SegmentRun&, const Worker&) {}
void GainTeamExperience(SegmentRun&) {}
void ChangeTitle(SegmentRun&) {}
void ApplyTurns(SegmentRun&) {}
void MoveTitleImage(SegmentRun&) {}
void TalkConsequences(SegmentRun&) {}
void TallyVerbal(SegmentRun& run, int speakerUid, int targetUid) {
  const int slot = FeudSlotOf(run.World, speakerUid, targetUid);
  if (slot == 0) return;
  Feud& feud = run.World.Feuds()[slot];
  ++(FeudSideOf(feud, speakerUid) == 1 ? feud.Interference1 : feud.Interference2);
}
void TallyAttack(SegmentRun&, int, int) {}

}  // namespace grapplemont
