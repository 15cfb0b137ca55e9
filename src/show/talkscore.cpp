#include "show/angletable.h"
#include "show/consequences.h"
#include "show/feudheat.h"
#include "show/feudslots.h"
#include "show/meanrating.h"
#include "show/scoring.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

/// How an interview counts, by its style: so many of its speakers make the crowd and score against
/// the one they speak of.
struct TalkRow {
  int Style;
  int Heard;
  int Opponent;  // a place
  int Tallies;
};
constexpr TalkRow kTalks[] = {{kSingleTalk, 1, 2, 1},
                              {kTeamTalk, 2, 3, 1},
                              {kManagedTalk, 1, 3, 2},
                              {kManagedTeamTalk, 1, 4, 2}};

constexpr int kGuestRating = 100;
constexpr int kDivaLoss = 5;
constexpr int kDivaLossDraw = 6;

int WorkerAt(const Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
}

const TalkRow* FindTalk(int style) {
  for (const TalkRow& row : kTalks)
    if (row.Style == style) return &row;
  return nullptr;
}

int PersonOf(const SegmentRun& run, int who) {
  if (who != kLeader) return WorkerAt(run.Segment, who);
  const Worker* leader = StableLeader(run.World, run.Segment.Text);
  return leader ? int(leader->Uid) : 0;
}

/// Only those who are named count.
void AddPeople(SegmentRun& run, const AngleScore& angle) {
  MeanRating talk;
  for (const int who : angle.People) {
    if (who == 0) continue;
    if (who == kGuest) {
      talk.Add("the guest", kGuestRating);
    } else if (const int uid = PersonOf(run, who)) {
      talk.Add(run.World, uid, TalkRating);
    }
  }
  run.Crowd.Add(talk.Mean(), talk.Told("talk"));
}

void AddAngleFeud(SegmentRun& run, AngleFeud feud) {
  const auto& worker = run.Segment.Worker;
  if (feud == AngleFeud::None) return;
  FeudLift(run, feud == AngleFeud::Pair
                    ? FeudSlotOf(run.World, worker[0], worker[1])
                    : FeudSlotOfTeams(run.World, worker[0], worker[1], worker[2], worker[3]));
  if (feud != AngleFeud::TeamsLift) HeatFollowsTalk(run);
}

void TallyAngle(SegmentRun& run, const AngleScore& angle) {
  for (const AngleTally& tally : angle.Tallies) {
    if (tally.From == 0) continue;
    const int from = PersonOf(run, tally.From), against = PersonOf(run, tally.Against);
    if (from != 0 && against != 0) TallyVerbal(run, from, against);
  }
}

void AddProduction(SegmentRun& run) {
  if (!IsVideo(run.Segment.Style)) return;
  const int production = run.World.Player().Production;
  run.Crowd.Add(production / 2 / 2, "production " + std::to_string(production));
}

void AddDivas(SegmentRun& run) {
  if (!IsForDivas(run.Segment.Style)) return;
  for (const int place : {1, 2}) {
    const Worker* worker = run.World.FindWorker(WorkerAt(run.Segment, place));
    if (worker && !worker->Diva)
      run.Crowd.Add(-kDivaLoss - run.World.RandomDraw(kDivaLossDraw), worker->Name + " is no diva");
  }
}

void AddSpectacle(SegmentRun& run) {
  if (!IsSpectacle(run.Segment.Style)) return;
  run.Crowd.Scale(11, 10, "spectacle");
  run.Crowd.Limit();
}

}  // namespace

void ScoreInterview(SegmentRun& run) {
  const TalkRow* row = FindTalk(run.Segment.Style);
  if (!row) return;
  MeanRating talk;
  for (int place = 1; place <= row->Heard; ++place)
    talk.Add(run.World, WorkerAt(run.Segment, place), TalkRating);
  run.Crowd.Add(talk.Mean(), talk.Told("talk"));

  const int opponent = WorkerAt(run.Segment, row->Opponent);
  if (opponent == 0) return;
  // The first two, though in most styles they are partners.
  FeudLift(run, FeudSlotOf(run.World, WorkerAt(run.Segment, 1), WorkerAt(run.Segment, 2)));
  HeatFollowsTalk(run);
  for (int place = 1; place <= row->Tallies; ++place)
    TallyVerbal(run, WorkerAt(run.Segment, place), opponent);
}

void ScoreAngle(SegmentRun& run) {
  const AngleScore* angle = FindAngleScore(run.Segment.Style);
  if (!angle) return;
  AddPeople(run, *angle);
  AddAngleFeud(run, angle->Feud);
  TallyAngle(run, *angle);
  AddProduction(run);
  AddDivas(run);
  AddSpectacle(run);
}

}  // namespace grapplemont
