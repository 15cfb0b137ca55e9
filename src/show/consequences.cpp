#include "show/consequences.h"

#include "show/feudend.h"
#include "show/feudtallies.h"
#include "show/injuries.h"
#include "show/resultover.h"
#include "show/wear.h"

namespace grapplemont {

namespace {

void AfterMatchFor(SegmentRun& run, const std::vector<int>& people, bool isWinner) {
  for (const int uid : people)
    if (Worker* worker = run.World.FindWorker(uid)) AfterMatch(run, *worker, isWinner);
}

}  // namespace

void MatchConsequences(SegmentRun& run) {
  // A battle royal is too big for any one of it to be marked by it.
  if (run.Segment.Style == kSpecial) return;
  AfterMatchFor(run, PeopleOf(run.Segment), false);
  AfterMatchFor(run, WinnersOf(run.Segment), true);
  ShiftOver(run);
  TallyResult(run);
  TallyAttacks(run);
  EndFeudByMatch(run);
  DrawInjuries(run);
}

}  // namespace grapplemont
