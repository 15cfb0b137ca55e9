#include "show/anglemoves.h"

#include "records/angles.h"
#include "show/titlechange.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// The cast of the angle by its boxes; nullptr for nobody.
struct Cast {
  Worker* One;
  Worker* Two;
  Worker* Three;
};

int UidOf(const Worker* worker) {
  return worker ? int(worker->Uid) : 0;
}

void ChangeManager(SegmentRun&, const Cast& cast) {
  if (cast.Two) cast.Two->Manager = UidOf(cast.One);
  if (cast.Three) cast.Three->Manager = 0;
}

void TakeManager(SegmentRun&, const Cast& cast) {
  if (cast.Two) cast.Two->Manager = UidOf(cast.One);
}

void JoinStable(SegmentRun& run, const Cast& cast) {
  if (cast.One) cast.One->Stable = run.Segment.Text.View();
}

void LeaveStable(SegmentRun&, const Cast& cast) {
  if (cast.One) cast.One->Stable = "None";
}

void Award(SegmentRun& run, const Worker* holder, const Worker* partner) {
  Title* title = TitleAtStake(run.World, run.Segment);
  // Somebody may have won it since the show was booked.
  if (title && title->Holder == 0 && holder) Crown(run.World, *title, holder->Uid, UidOf(partner));
}

void AwardSingles(SegmentRun& run, const Cast& cast) {
  Award(run, cast.Two, nullptr);
}

void AwardTeam(SegmentRun& run, const Cast& cast) {
  if (cast.Three) Award(run, cast.Two, cast.Three);
}

struct Move {
  int Angle;
  void (*Apply)(SegmentRun&, const Cast&);
};
constexpr Move kMoves[] = {
    {kManagementIssues, ChangeManager},
    {kManagerialDebut, TakeManager},
    {kManagersSurprise, TakeManager},
    {kStableInduction, JoinStable},
    {kStableKickOut, LeaveStable},
    {kAwardSingles, AwardSingles},
    {kAwardTag, AwardTeam},
};

}  // namespace

void MoveByAngle(SegmentRun& run) {
  const auto& places = run.Segment.Worker;
  for (const Move& move : kMoves)
    if (run.Segment.Style == move.Angle)
      move.Apply(run, {run.World.FindWorker(places[0]), run.World.FindWorker(places[1]),
                       run.World.FindWorker(places[2])});
}

}  // namespace grapplemont
