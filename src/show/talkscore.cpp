#include "show/talkscore.h"

#include <algorithm>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "show/ratings.h"
#include "show/runsegment.h"
#include "show/showfeuds.h"
#include "storylines/partners.h"
#include "words/anglerules.h"

namespace grapplemont {

namespace {

/// How an interview counts, by its style: how many of its speakers make the crowd and score against
/// the first one they speak of.
struct TalkRow {
  int Style;
  int Heard;
  int Tallies;
};
constexpr TalkRow kTalks[] = {
    {kSingleTalk, 1, 1}, {kTeamTalk, 2, 1}, {kManagedTalk, 1, 2}, {kManagedTeamTalk, 1, 2}};

constexpr int kGuestRating = 100;
constexpr int kDivaLoss = 5;
constexpr int kDivaLossDraw = 6;

const TalkRow* FindTalk(int style) {
  for (const TalkRow& row : kTalks)
    if (row.Style == style) return &row;
  return nullptr;
}

int PersonOf(const SegmentRun& run, int who) {
  if (who != kLeader) return UidAt(run.Segment, who);
  const Worker* leader = StableLeader(run.World, run.Segment.Text);
  return leader ? int(leader->Uid) : 0;
}

/// Only those who are named count.
void AddPeople(SegmentRun& run, const AngleRules& angle) {
  MeanRating talk;
  for (const int who : angle.Talk) {
    if (who == kNobody) continue;
    if (who == kGuest) {
      talk.Add("the guest", kGuestRating);
    } else if (const int uid = PersonOf(run, who)) {
      talk.Add(run.World, uid, TalkRating);
    }
  }
  run.Crowd.Add(talk.Mean(), talk.Told("talk"));
}

void AddAngleFeud(SegmentRun& run, AngleFeud feud) {
  if (feud == AngleFeud::None) return;
  FeudLift(run, FeudSlotOf(run.World, run.Segment, feud != AngleFeud::Pair));
  if (feud != AngleFeud::TeamsLift) HeatFollowsTalk(run);
}

void TallyAngle(SegmentRun& run, const AngleRules& angle) {
  for (const AnglePair& score : angle.Scores) {
    if (score.By == kNobody) continue;
    const int by = PersonOf(run, score.By), on = PersonOf(run, score.On);
    if (by != 0 && on != 0) TallyVerbal(run, by, on);
  }
}

/// Only whoever is not a diva costs something.
void AddDivas(SegmentRun& run) {
  for (const int place : {1, 2}) {
    const Worker* worker = WorkerAt(run.World, run.Segment, place);
    if (worker && !worker->Diva)
      run.Crowd.Add(-kDivaLoss - run.World.RandomDraw(kDivaLossDraw), worker->Name + " is no diva");
  }
}

void AddExtra(SegmentRun& run, AngleExtra extra) {
  if (extra == AngleExtra::Video) {
    const int production = run.World.Player().Production;
    run.Crowd.Add(production / 2 / 2, "production " + std::to_string(production));
  }
  if (extra == AngleExtra::Divas) AddDivas(run);
  if (extra != AngleExtra::Spectacle) return;
  run.Crowd.Scale(11, 10, "spectacle");
  run.Crowd.Limit();
}

constexpr int kCapBonus = 10;
constexpr int kTalkDraw = 15;

}  // namespace

void ScoreInterview(SegmentRun& run) {
  const TalkRow* row = FindTalk(run.Segment.Style);
  if (!row) return;
  MeanRating talk;
  for (int place = 1; place <= row->Heard; ++place)
    talk.Add(run.World, UidAt(run.Segment, place), TalkRating);
  run.Crowd.Add(talk.Mean(), talk.Told("talk"));

  const int opponent = SeatedAs(run.Segment, Casting::Targets).front();
  if (opponent == 0) return;
  // The first two, though in most styles they are partners.
  FeudLift(run, FeudSlotOf(run.World, run.Segment, false));
  HeatFollowsTalk(run);
  for (int place = 1; place <= row->Tallies; ++place)
    TallyVerbal(run, UidAt(run.Segment, place), opponent);
}

void ScoreAngle(SegmentRun& run) {
  const AngleRules* angle = FindAngleRules(run.Segment.Style);
  if (!angle) return;
  AddPeople(run, *angle);
  AddAngleFeud(run, angle->Feud);
  TallyAngle(run, *angle);
  AddExtra(run, angle->Extra);
}

void CapByWriters(SegmentRun& run) {
  int count = 0, sum = 0, best = 0;
  for (const Staff& staff : run.World.AllStaff()) {
    if (!WorksForPlayer(run.World, staff) || staff.Position != kWriter) continue;
    ++count;
    sum += staff.Talent;
    best = std::max<int>(best, staff.Talent);
  }
  if (count == 0) return;
  const int cap = (sum / count + best) / 2 + kCapBonus;
  if (run.Quality <= cap) return;
  run.Quality.Become(cap, "no better than the writing team");
  run.Notes += " This angle would have been better if we had a better writing team. ";
}

void RateTalk(SegmentRun& run) {
  const int draw = run.World.RandomDraw(kTalkDraw);
  const bool isBeyond = run.Crowd < 0 || run.Crowd > 100;  // what is shown is limited later
  run.Overall.Become(Score::Floor(run.Crowd * 85 + draw * 100, 100),
                     "85% of Crowd " + std::to_string(run.Crowd) +
                         (isBeyond ? ", before its limit," : "") + " and a draw of " +
                         std::to_string(draw) + " out of " + std::to_string(kTalkDraw));
  run.Overall.Limit();
}

const AngleRules* FindAngleRules(int number) {
  return number >= 1 && number <= kAngles ? &kAngleRules[number - 1] : nullptr;
}

}  // namespace grapplemont
