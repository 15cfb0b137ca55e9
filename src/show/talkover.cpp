#include "show/talkover.h"

#include "records/angles.h"
#include "show/anglemoves.h"
#include "show/consequences.h"
#include "show/overreport.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

constexpr int kSensation = 91;
constexpr int kClearlyAbove = 8;
/// Nobody this popular gains by less than a sensation.
constexpr int kAtTheTop = 90;
constexpr int kBelow = 15;
constexpr int kFarBelow = 20;

/// How many places speak in an interview of a style, and which of them only stands by.
struct Speakers {
  int Style;
  int Count;
  int Secondary;  // place; 0 for none
};
constexpr Speakers kSpeakers[] = {
    {kSingleTalk, 1, 0}, {kTeamTalk, 2, 0}, {kManagedTalk, 2, 2}, {kManagedTeamTalk, 3, 3}};

int GainFrom(SegmentRun& run, int over, bool isSecondary) {
  const auto draw = [&](int n) {
    return isSecondary ? run.World.RandomDraw(2) - 1 : run.World.RandomDraw(n);
  };
  if (run.Overall <= over) return 0;
  if (run.Overall >= kSensation) return draw(4);
  return run.Overall > over + kClearlyAbove && over < kAtTheTop ? draw(3) : 0;
}

int LossFrom(SegmentRun& run, int over, bool isSecondary) {
  if (run.Overall >= over - kBelow) return 0;
  if (run.Overall < over - kFarBelow && !isSecondary) return -2 - run.World.RandomDraw(4);
  return -2;
}

void TalkOverOf(SegmentRun& run, int uid, bool isSecondary) {
  if (Worker* worker = run.World.FindWorker(uid)) TalkOver(run, *worker, isSecondary);
}

void AfterInterview(SegmentRun& run) {
  for (const Speakers& row : kSpeakers) {
    if (run.Segment.Style != row.Style) continue;
    for (int place = 1; place <= row.Count; ++place)
      TalkOverOf(run, run.Segment.Worker[static_cast<std::size_t>(place - 1)],
                 place == row.Secondary);
  }
}

void AfterAngle(SegmentRun& run) {
  const Angle* angle = FindAngle(run.Segment.Style);
  if (!angle) return;
  for (int place = 1; place <= kAnglePlaces; ++place) {
    // The one who is impersonated is only shown up.
    if (angle->Number == kImpression && place == 2) continue;
    TalkOverOf(run, run.Segment.Worker[static_cast<std::size_t>(place - 1)], false);
  }
  if (!HasStableRole(*angle)) return;
  const Worker* leader = StableLeader(run.World, run.Segment.Text);
  // Who is on camera in person has had his share.
  if (leader && !TakesPart(run.Segment, leader->Uid)) TalkOverOf(run, leader->Uid, false);
}

}  // namespace

void TalkOver(SegmentRun& run, Worker& worker, bool isSecondary) {
  const int over = worker.Over;
  ChangeOverAndTell(run, worker,
                    GainFrom(run, over, isSecondary) + LossFrom(run, over, isSecondary));
}

void TalkConsequences(SegmentRun& run) {
  if (run.Segment.Kind == kInterview) AfterInterview(run);
  if (run.Segment.Kind != kAngle) return;
  AfterAngle(run);
  MoveByAngle(run);
}

}  // namespace grapplemont
