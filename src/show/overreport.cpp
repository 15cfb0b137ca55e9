#include "show/overreport.h"

#include <cstdlib>

#include "show/consequences.h"

namespace grapplemont {

int ChangeOver(Worker& worker, int change) {
  const int before = worker.Over;
  worker.Over += change;
  return worker.Over - before;
}

void ReportOver(SegmentRun& run, const Worker& worker, int change, bool isMatch) {
  if (change == 0) return;
  run.Notes += worker.Name.Str() + (change < 0 ? " lost " : " gained ");
  if (run.World.Game().Difficulty == kEasy)
    run.Notes += std::to_string(std::abs(change)) + (change == 1 ? " point of " : " points of ");
  run.Notes += "overness from this ";
  run.Notes += run.FeudEnding ? "feud ending. " : isMatch ? "match. " : "segment. ";
}

void ChangeOverAndTell(SegmentRun& run, Worker& worker, int change) {
  ReportOver(run, worker, ChangeOver(worker, change), run.Segment.Kind == kMatch);
}

}  // namespace grapplemont
