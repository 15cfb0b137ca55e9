#include "show/anglemoves.h"

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "show/titlechange.h"

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

/// Tells what one has come to be to the other.
void Tell(SegmentRun& run, const Worker& one, std::string_view what, std::string_view other) {
  run.Notes += one.Name.Str() + std::string(what) + std::string(other) + ". ";
}

void TakeManager(SegmentRun& run, const Cast& cast) {
  const int manager = UidOf(cast.One);
  if (!cast.Two || cast.Two->Manager == manager) return;
  cast.Two->Manager = manager;
  if (cast.One) Tell(run, *cast.One, " now manages ", cast.Two->Name.View());
}

void ChangeManager(SegmentRun& run, const Cast& cast) {
  if (cast.Three && cast.Three->Manager != 0) {
    const std::string former = WorkerName(run.World, cast.Three->Manager);
    cast.Three->Manager = 0;
    if (!former.empty())
      run.Notes += former + " no longer manages " + cast.Three->Name.Str() + ". ";
  }
  TakeManager(run, cast);
}

void JoinStable(SegmentRun& run, const Cast& cast) {
  if (!cast.One) return;
  cast.One->Stable = run.Segment.Text.View();
  Tell(run, *cast.One, " joined ", run.Segment.Text.View());
}

void LeaveStable(SegmentRun& run, const Cast& cast) {
  if (!cast.One || cast.One->Stable == "None") return;
  Tell(run, *cast.One, " is out of ", cast.One->Stable.View());
  cast.One->Stable = "None";
}

void Award(SegmentRun& run, const Worker* holder, const Worker* partner) {
  Title* title = TitleAtStake(run.World, run.Segment);
  // Somebody may have won it since the show was booked.
  if (title && title->Holder == 0 && holder)
    PassTitle(run, *title, holder->Uid, UidOf(partner),
              partner ? " were awarded " : " was awarded ");
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
