#include "show/talkscore.h"
#include <algorithm>
#include "records/modWresCheck.h"
#include "show/ratings.h"
#include "show/runsegment.h"
#include "show/showfeuds.h"
#include "storylines/partners.h"

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
    const Worker* worker = run.World.FindWorker(UidAt(run.Segment, place));
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
    talk.Add(run.World, UidAt(run.Segment, place), TalkRating);
  run.Crowd.Add(talk.Mean(), talk.Told("talk"));

  const int opponent = SeatedAs(run.Segment, Casting::Targets).front();
  if (opponent == 0) return;
  // The first two, though in most styles they are partners.
  FeudLift(run, FeudSlotOf(run.World, UidAt(run.Segment, 1), UidAt(run.Segment, 2)));
  HeatFollowsTalk(run);
  for (int place = 1; place <= row->Tallies; ++place)
    TallyVerbal(run, UidAt(run.Segment, place), opponent);
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

namespace {

constexpr int kCapBonus = 10;
constexpr int kTalkDraw = 15;

struct Writers {
  int Count = 0, Sum = 0, Best = 0;
};

Writers WritersOf(const World& world) {
  Writers writers;
  for (const Staff& staff : world.AllStaff()) {
    if (!WorksForPlayer(world, staff) || staff.Position != kWriter) continue;
    ++writers.Count;
    writers.Sum += staff.Talent;
    writers.Best = std::max<int>(writers.Best, staff.Talent);
  }
  return writers;
}

}  // namespace

void CapByWriters(SegmentRun& run) {
  const Writers writers = WritersOf(run.World);
  if (writers.Count == 0) return;
  const int mean = writers.Sum / writers.Count;
  const int cap = (mean + writers.Best) / 2 + kCapBonus;
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

namespace {

using enum AngleFeud;

// Numbers, people, feud, tallies. A row holds the angles that are scored alike.
constexpr AngleScore kAngleScores[] = {
    {{1, 2, 21, 22, 26, 28, 29, 30, 33, 34, 35, 37, 38, 42, 49, 73, 74}, {1, 2}},
    {{4, 5, 6, 9, 10, 13, 14, 15, 18, 24, 25, 27, 39, 64}, {1, 2}, Pair, {{{2, 1}}}},
    {{23, 40, 41, 63, 67, 68, 69}, {1, 2}, Pair, {{{1, 2}}}},
    {{19}, {1, 2}, Pair},
    {{3, 16}, {1, 2}, None, {{{2, 1}, {3, 1}, {4, 2}, {4, 3}}}},
    {{12}, {1, 3}, None, {{{3, 1}, {3, 2}, {4, 1}, {4, 2}}}},
    {{20, 31, 32, 36, 43, 44, 60, 65}, {1}},
    {{45}, {1}, Pair, {{{1, 2}}}},
    {{47}, {1, 2, 3}, Pair, {{{2, 1}, {3, 1}}}},
    {{7}, {1, 2, 3}, None, {{{1, 3}, {2, 3}}}},
    {{8, 72}, {1, 2, 3}},
    {{11}, {1, 2, 3, 4}},
    {{17}, {1, 2, 3, 4}, None, {{{2, 1}, {3, 1}, {4, 1}}}},
    {{46, 56, 57, 58, 59}, {1, 2, 3, 4}, Teams, {{{1, 3}, {2, 4}}}},
    {{48}, {1, 2, 3, 4}, TeamsLift},
    {{50}, {1, kLeader}},
    {{51, 52, 53, 54, 75, 76, 77, 79}, {1, kLeader}, None, {{{kLeader, 1}}}},
    {{55}, {1, 2, kLeader}, None, {{{kLeader, 1}, {kLeader, 2}}}},
    {{78}, {4, 2, 1}, None, {{{4, 1}}}},
    {{61, 66, 71}, {1, 2}},
    {{62}, {kLeader}},
    {{70}, {1, kGuest}},
};

constexpr int kVideos[] = {60, 61, 62, 65, 66};
constexpr int kDivaAngles[] = {15, 19};
constexpr int kSpectacles[] = {24, 25, 26, 37, 38, 58, 59};

template <class Range>
bool Has(const Range& numbers, int number) {
  return std::find(std::begin(numbers), std::end(numbers), number) != std::end(numbers);
}

}  // namespace

const AngleScore* FindAngleScore(int number) {
  if (number == 0) return nullptr;  // what fills a row up
  const auto found = std::find_if(std::begin(kAngleScores), std::end(kAngleScores),
                                  [&](auto& row) { return Has(row.Numbers, number); });
  return found == std::end(kAngleScores) ? nullptr : &*found;
}

bool IsVideo(int number) {
  return Has(kVideos, number);
}
bool IsForDivas(int number) {
  return Has(kDivaAngles, number);
}
bool IsSpectacle(int number) {
  return Has(kSpectacles, number);
}

}  // namespace grapplemont
