#include "records/modWresCheck.h"
#include "show/chemistry.h"
#include "show/feudheat.h"
#include "show/feudslots.h"
#include "show/meanrating.h"
#include "show/scoring.h"

namespace grapplemont {

namespace {

/// What a match type does. The changes are draws: -10 takes off a draw of 10. A type that is not
/// here changes nothing and is easy on the body.
struct TypeRow {
  int Style;
  int Type;
  int Quality;
  int Crowd;
  int Strain;
  int QualityUnder = 32767;  // quality changes only while it is below
};
constexpr int kThreeWayHardcore = 3;
constexpr int kThreeWayCage = 4;
constexpr TypeRow kTypes[] = {
    // Style, type, draw for quality, draw for the crowd, strain
    {kSingles, kSubmission, 0, -10, 2},
    {kSingles, kIronMan, -15, -15, 2},
    {kSingles, kHardcore, 0, 0, 3},
    {kSingles, kCage, -10, 5, 2},
    {kSingles, kTexasDeath, 0, 0, 2},
    {kSingles, kLastManStanding, 0, 0, 3},
    {kSingles, kFallsCountAnywhere, 0, 0, 2},
    {kSingles, kLadder, 0, 5, 3},
    {kSingles, kTables, -10, 5, 2, 70},
    {kSingles, kBraAndPanties, -20, 10, 1},
    {kSingles, kIQuit, 0, 0, 3},
    {kSingles, kFirstBlood, 0, 0, 2},
    {kSingles, kInferno, -10, 5, 2},
    {kSingles, kHellInACell, 0, 15, 4},
    {kSingles, kHighIncident, -30, 15, 5},
    {kSingles, kBarbedWire, -10, 5, 5},
    {kSingles, kDeathMatch, 0, 0, 5},
    {kSingles, kBuckNaked, -10, 20, 1},
    {kTag, kTagHardcore, 0, 0, 2},
    {kTag, kTagCage, -10, 0, 2},
    {kTag, kTagLadder, 10, 10, 4},
    {kTag, kTagTables, -5, 5, 2},
    {kThreeWay, kThreeWayHardcore, 0, 0, 2},
    {kThreeWay, kThreeWayCage, 0, 5, 3},
    {kThreeTeams, kThreeTeamsLadder, 15, 10, 3},
    {kThreeTeams, kThreeTeamsTlc, 18, 15, 4},
    {kFourWay, kElimination, 0, 0, 2},
    {kFourTeams, kFourTeamsTlc, 0, 0, 4},
    {kFourOnFour, kSurvivor, -15, 10, 1},
    {kSpecial, kTwentyMan, -20, 0, 0},
    {kSpecial, kTenMan, -20, 0, 0},
};

constexpr int kTwoHeels = 20;
constexpr int kTwoAlikeDraw = 10;

TypeRow EffectOf(const Segment& segment) {
  for (const TypeRow& row : kTypes)
    if (row.Style == segment.Style && row.Type == segment.MatchType) return row;
  return {segment.Style, segment.MatchType, 0, 0, segment.Style == kSpecial ? 0 : 1};
}

void AddDraw(World& world, Score& score, int draw, const std::string& why) {
  if (draw > 0) score.Add(world.RandomDraw(draw), why);
  if (draw < 0) score.Add(-world.RandomDraw(-draw), why);
}

void AddMeans(SegmentRun& run) {
  MeanRating work, draw;
  for (int place = 0; place < EntrantsOf(run.Segment); ++place) {
    const int uid = run.Segment.Worker[static_cast<std::size_t>(place)];
    work.Add(run.World, uid, WorkRating);
    draw.Add(run.World, uid, DrawRating);
  }
  run.Quality.Add(work.Mean(), work.Told("work"));
  run.Crowd.Add(draw.Mean(), draw.Told("drawing power"));
}

void AddType(SegmentRun& run) {
  const TypeRow effect = EffectOf(run.Segment);
  const std::string why(MatchTypeText(run.Segment.Style, run.Segment.MatchType));
  run.Strain = effect.Strain;
  if (run.Quality < effect.QualityUnder) AddDraw(run.World, run.Quality, effect.Quality, why);
  AddDraw(run.World, run.Crowd, effect.Crowd, why);
}

void MarkRunIns(SegmentRun& run) {
  const Segment& segment = run.Segment;
  for (const int uid : PeopleOf(segment)) {
    MarkFeud(run.World, run.Show, uid, segment.Other1);
    MarkFeud(run.World, run.Show, uid, segment.Other2);
    if (segment.Style != kTag) continue;
    MarkFeud(run.World, run.Show, uid, segment.Other3);
    MarkFeud(run.World, run.Show, uid, segment.Other4);
  }
}

void MarkEverybody(SegmentRun& run) {
  const std::vector<int> people = PeopleOf(run.Segment);
  for (std::size_t one = 0; one < people.size(); ++one)
    for (std::size_t other = one + 1; other < people.size(); ++other)
      MarkFeud(run.World, run.Show, people[one], people[other]);
}

/// The crowd is lifted first, so that the heat follows the higher one.
void AddFeuds(SegmentRun& run) {
  const auto& worker = run.Segment.Worker;
  switch (run.Segment.Style) {
    case kSingles:
      FeudLift(run, FeudSlotOf(run.World, worker[0], worker[1]));
      break;
    case kTag:
      FeudLift(run, FeudSlotOfTeams(run.World, worker[0], worker[1], worker[2], worker[3]));
      break;
    case kSpecial:
      return;
    default:
      return MarkEverybody(run);
  }
  HeatFollowsMatch(run);
  MarkRunIns(run);
}

void AddAlignment(SegmentRun& run) {
  if (run.Segment.Style != kSingles) return;
  const Worker* first = run.World.FindWorker(run.Segment.Worker[0]);
  const Worker* second = run.World.FindWorker(run.Segment.Worker[1]);
  if (!first || !second || !(first->Disposition == second->Disposition)) return;
  const int loss = first->Disposition == "H" ? kTwoHeels : run.World.RandomDraw(kTwoAlikeDraw);
  run.Crowd.Add(-loss, "two " + std::string(DispositionText(first->Disposition)) + "s");
}

}  // namespace

void ScoreMatch(SegmentRun& run) {
  const Chemistry chemistry = ChemistryOf(run.World, run.Segment);
  AddMeans(run);
  AddType(run);
  AddFeuds(run);
  AddAlignment(run);
  AddChemistry(run, chemistry);
}

}  // namespace grapplemont
