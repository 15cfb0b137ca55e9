#include "show/runsegment.h"

#include <span>

#include "show/aftermatch.h"
#include "show/holdshow.h"
#include "show/matchscore.h"
#include "show/overchange.h"
#include "show/showfeuds.h"
#include "show/talkscore.h"
#include "show/titlechange.h"
#include "show/turns.h"

namespace grapplemont {

namespace {

/// A Segment on its way through the steps.
struct Telling {
  SegmentRun& Run;
  int Number;          // its record
  LineMemory* Memory;  // nullptr for no prose
  Title* AtStake;      // nullptr for no Title
  grapplemont::Scene Scene = {};
  std::string Report = {}, Verdict = {};
  std::vector<SaidSentence> Sentences = {};
};

using Step = void (*)(Telling&);

template <void (*Rule)(SegmentRun&)>
void Do(Telling& telling) {
  Rule(telling.Run);
}

/// Nothing is booked behind this row.
bool IsLastToCome(const World& world, int number, bool isEvent) {
  const int last = LastRow(world, isEvent);
  for (int row = number + 1; row <= last; ++row)
    if (world.Segments()[row].Style != 0) return false;
  return true;
}

void SetScene(Telling& telling) {
  telling.Scene.Feuds = FeudsAtTheBell(telling.Run.World);
  const ShowRun& show = telling.Run.Show;
  telling.Scene.Row = telling.Number;
  telling.Scene.IsEvent = show.IsEvent;
  telling.Scene.IsLast = IsLastToCome(telling.Run.World, telling.Number, show.IsEvent);
  if (const int slot = FeudEndedBy(telling.Run.World, telling.Run.Segment); slot != 0)
    telling.Scene.Ends = telling.Run.World.Feuds()[slot];
  if (!telling.AtStake) return;
  telling.Scene.Champion = telling.AtStake->Holder;
  telling.Scene.CoChampion = telling.AtStake->Partner;
}

/// Whoever waited for it becomes what the rules make of them.
void MakeTurns(Telling& telling) {
  for (const TurnMade& made : ApplyTurns(telling.Run)) {
    Turning turn{.Uid = made.Turner,
                 .FellFlat = made.Outcome == TurnOutcome::Flat,
                 .CameTooSoon = made.Outcome == TurnOutcome::TooSoon};
    if (made.Outcome != TurnOutcome::Baffling)
      turn.Becomes = telling.Run.World.FindWorker(made.Turner)->Disposition.Str();
    telling.Scene.Turns.push_back(std::move(turn));
  }
}

void LookForChampion(Telling& telling) {
  CheckChampion(telling.Run, telling.AtStake);
}

void WriteProse(Telling& telling) {
  if (!telling.Memory) return;
  telling.Scene.Overall = telling.Run.Overall;
  telling.Scene.Crowd = telling.Run.Crowd;
  telling.Report = WriteReport(telling.Run.World, telling.Run.Segment, telling.Scene,
                               *telling.Memory, &telling.Sentences);
}

void LimitBoth(SegmentRun& run) {
  run.Quality.Limit();
  run.Crowd.Limit();
}

void GiveVerdict(Telling& telling) {
  if (telling.Memory)
    telling.Verdict =
        Verdict(telling.Run.World, telling.Run.Segment, telling.Run.Overall, telling.Memory);
}

/// What opens an Event counts for nothing.
void KeepRating(Telling& telling) {
  const int rating = telling.Run.Overall;
  telling.Run.Segment.Rating = rating;
  ShowRun& show = telling.Run.Show;
  show.LastOverall = rating;
  if (show.IsEvent && telling.Number == 1) return;
  show.ShowSum += rating;
  ++show.ShowSegments;
}

// The order is a rule: later steps read what earlier ones left. The champions and feuds of the
// scene are those before the match, the burn-out sees a crowd that turns have moved, a Title's
// image and the words see the overall rating as it stands in the end. A talk is rated by a crowd
// that may lie beyond its limits, which only what is shown keeps to.
constexpr Step kMatchSteps[] = {
    SetScene,
    Do<RemarkOnShape>,
    Do<ScoreMatch>,
    Do<MatchConsequences>,
    Do<AddSelling>,
    Do<AddStiffness>,
    Do<GainTeamExperience>,
    LookForChampion,
    Do<ChangeTitle>,
    MakeTurns,
    Do<LimitBoth>,
    Do<AddBurnOut>,
    Do<WeighMatch>,
    Do<MoveTitleImage>,
    WriteProse,
    GiveVerdict,
    KeepRating,
};

constexpr Step kInterviewSteps[] = {
    SetScene,      Do<ScoreInterview>,   MakeTurns,  WriteProse, Do<RateTalk>,
    Do<LimitBoth>, Do<TalkConsequences>, KeepRating,
};

constexpr Step kAngleSteps[] = {
    SetScene,      Do<ScoreAngle>,       MakeTurns,  WriteProse, Do<CapByWriters>, Do<RateTalk>,
    Do<LimitBoth>, Do<TalkConsequences>, KeepRating,
};

std::span<const Step> StepsOf(const Segment& segment) {
  switch (segment.Kind) {
    case kMatch:
      return kMatchSteps;
    case kInterview:
      return kInterviewSteps;
    case kAngle:
      return kAngleSteps;
    default:
      return {};  // an empty place on the sheet
  }
}

}  // namespace

ToldSegment RunSegment(World& world, int number, LineMemory* memory) {
  Segment& segment = world.Segments()[number];
  SegmentRun run{world, segment, world.ShowRuns()[1], {}, {}, {}, 1, false, {}, number};
  Telling telling{run, number, memory, TitleAtStake(world, segment)};
  for (const Step step : StepsOf(segment)) step(telling);
  return {std::move(run.Quality),      std::move(run.Crowd),      std::move(run.Overall),
          std::move(run.Notes),        std::move(telling.Report), std::move(telling.Verdict),
          std::move(telling.Sentences)};
}

void MatchConsequences(SegmentRun& run) {
  // A battle royal is too big for any one of it to be marked by it.
  if (run.Segment.Style == kSpecial) return;
  const auto after = [&](const std::vector<int>& people, bool areWinners) {
    for (const int uid : people)
      if (Worker* worker = run.World.FindWorker(uid)) AfterMatch(run, *worker, areWinners);
  };
  after(PeopleOf(run.Segment), false);
  after(WinnersOf(run.Segment), true);
  ShiftOver(run);
  TallyResult(run);
  TallyAttacks(run);
  EndFeudByMatch(run);
  DrawInjuries(run);
}

}  // namespace grapplemont
