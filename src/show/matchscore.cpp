#include "show/matchscore.h"

#include <algorithm>
#include <array>
#include <vector>

#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "show/aftermatch.h"
#include "show/nightbook.h"
#include "show/ratings.h"
#include "show/showfeuds.h"
#include "show/titlechange.h"

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
  for (int place = 1; place <= EntrantsOf(run.Segment); ++place) {
    const int uid = UidAt(run.Segment, place);
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
    for (const int other : {segment.Other1, segment.Other2}) MarkFeud(run, uid, other);
    if (segment.Style != kTag) continue;
    for (const int other : {segment.Other3, segment.Other4}) MarkFeud(run, uid, other);
  }
}

void MarkEverybody(SegmentRun& run) {
  const std::vector<int> people = PeopleOf(run.Segment);
  for (std::size_t one = 0; one < people.size(); ++one)
    for (std::size_t other = one + 1; other < people.size(); ++other)
      MarkFeud(run, people[one], people[other]);
}

/// The crowd is lifted first, so that the heat follows the higher one.
void AddFeuds(SegmentRun& run) {
  const int style = run.Segment.Style;
  if (style == kSpecial) return;
  if (style != kSingles && style != kTag) return MarkEverybody(run);
  FeudLift(run, FeudSlotOf(run.World, run.Segment, style == kTag));
  HeatFollowsMatch(run);
  MarkRunIns(run);
}

void AddAlignment(SegmentRun& run) {
  if (run.Segment.Style != kSingles) return;
  const Worker* first = run.World.FindWorker(run.Segment.Worker[0]);
  const Worker* second = run.World.FindWorker(run.Segment.Worker[1]);
  if (!first || !second || first->Disposition != second->Disposition) return;
  const int loss = first->Disposition == "H" ? kTwoHeels : run.World.RandomDraw(kTwoAlikeDraw);
  run.Crowd.Add(-loss, "two " + std::string(DispositionText(first->Disposition)) + "s");
}

struct Band {
  int From;
  int Gives;
};
/// What a team adds, by its experience.
constexpr Band kLevels[] = {{96, 4}, {76, 3}, {51, 2}, {26, 1}};
/// The draw that the match takes, by the level of all.
constexpr Band kDraws[] = {{14, 12}, {11, 10}, {5, 8}, {1, 5}};

template <std::size_t N>
int Given(const Band (&bands)[N], int value) {
  for (const Band& band : bands)
    if (value >= band.From) return band.Gives;
  return 0;
}

/// Whether the two are a side of a match of teams.
/// The teams whose two stand in one corner.
template <class Teams>
auto TeamsIn(Teams& teams, const Segment& segment) {
  std::vector<decltype(&*teams.begin())> found;
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  if (!style || style->PerSide != 2) return found;
  const auto sides = SidesOf(segment);
  for (auto& team : teams)
    if (team.Worker1 != 0 && team.Worker2 != 0 &&
        std::ranges::any_of(sides, [&](const std::vector<int>& side) {
          return std::ranges::is_permutation(side,
                                             std::array{int(team.Worker1), int(team.Worker2)});
        }))
      found.push_back(&team);
  return found;
}

constexpr int kNoMood = 30;
constexpr int kBadShape = 40;
constexpr int kWreck = 30;

constexpr int kStiff = 82;
constexpr int kSoft = 25;

constexpr int kPumpedUp = 81;
constexpr int kLetDown = 18;

/// How poorly one sells, and what it costs the match in tenths.
struct Selling {
  int SellBelow;
  int Tenths;
  std::string_view Remark;
  std::string_view Why;
};
constexpr Selling kSelling[] = {
    {30, 3, " basically no-sold everything, which ruined the match. ", " sold nothing"},
    {50, 2, " didn't really sell very much, which hurt the match rating. ", " sold very little"},
};

std::string ShapeRemark(const Worker& worker) {
  const std::string he = worker.Gender ? "He" : "She";
  if (worker.Morale < kNoMood && worker.Condition < kBadShape)
    return " looked unmotivated and in bad shape. " + he +
           " blew numerous spots throughout the match. ";
  if (worker.Condition < kWreck)
    return " is a physical wreck at the moment, and could barely do anything. " + he +
           " needs time off to heal! ";
  if (worker.Morale < kNoMood) return " was sluggish and didn't put much effort in. ";
  return {};
}

/// Those at whose cost the match was to put somebody over.
std::vector<int> MustSell(const Segment& segment) {
  const auto& worker = segment.Worker;
  if (segment.Style == kSingles && segment.Purpose == purpose1::kPutWinnerOver) {
    std::vector<int> losers{worker[0], worker[1]};
    std::erase(losers, segment.Winner);
    return losers;
  }
  if (segment.Style != kTag) return {};
  if (segment.Purpose == purpose2::kPutSecondTeamOver) return {worker[0], worker[1]};
  if (segment.Purpose == purpose2::kPutFirstTeamOver) return {worker[2], worker[3]};
  return {};
}

void Sell(SegmentRun& run, const Worker& worker) {
  for (const Selling& band : kSelling) {
    if (worker.Sell >= band.SellBelow) continue;
    run.Quality.Add(-Score::Floor(run.Quality * band.Tenths, 10), worker.Name + band.Why);
    run.Notes += worker.Name + band.Remark;
    return;
  }
}

bool HoldsSingles(const Segment& segment, const Title& title) {
  const auto& worker = segment.Worker;
  const auto last = segment.Style == kSpecial ? worker.end() : worker.begin() + 4;
  return std::find(worker.begin(), last, title.Holder) != last;
}

bool HoldsTag(const Segment& segment, const Title& title) {
  for (int first = 1; first < 8; first += 2)
    if (AreChampions(title, UidAt(segment, first), UidAt(segment, first + 1))) return true;
  return false;
}

bool IsChampionThere(const Segment& segment, const Title& title) {
  if (title.Holder == 0) return true;
  return title.Singles ? HoldsSingles(segment, title) : HoldsTag(segment, title);
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

Chemistry ChemistryOf(const World& world, const Segment& segment) {
  Chemistry chemistry;
  for (const Team* team : TeamsIn(world.Teams(), segment)) {
    const int level = Given(kLevels, team->Experience);
    if (level == 0) continue;
    chemistry.Level += level;
    chemistry.Teams.push_back(team->Name.Str());
  }
  return chemistry;
}

void GainTeamExperience(SegmentRun& run) {
  for (Team* team : TeamsIn(run.World.Teams(), run.Segment)) ++team->Experience;
}

void AddChemistry(SegmentRun& run, const Chemistry& chemistry) {
  const int draw = Given(kDraws, chemistry.Level);
  if (draw == 0) return;
  const std::string why = "chemistry of " + Joined(chemistry.Teams);
  run.Quality.Add(run.World.RandomDraw(draw), why);
  run.Crowd.Add(run.World.RandomDraw(draw), why);
}

void RemarkOnShape(SegmentRun& run) {
  for (const int uid : PeopleOf(run.Segment)) {
    const Worker* worker = run.World.FindWorker(uid);
    const std::string remark = worker ? ShapeRemark(*worker) : std::string();
    if (!remark.empty()) run.Notes += worker->Name + remark;
  }
}

void AddSelling(SegmentRun& run) {
  const std::vector<int> sellers = MustSell(run.Segment);
  if (sellers.empty()) return;
  for (const int uid : sellers)
    if (const Worker* worker = run.World.FindWorker(uid)) Sell(run, *worker);
  for (Score* score : {&run.Quality, &run.Crowd})
    if (*score < 0) score->Become(0, "limit");
}

void AddStiffness(SegmentRun& run) {
  if (run.Segment.Style != kSingles && run.Segment.Style != kTag) return;
  for (const int uid : PeopleOf(run.Segment)) {
    const Worker* worker = run.World.FindWorker(uid);
    if (!worker) continue;
    if (worker->Stiff > kStiff) HurtOthers(run, *worker);
    if (worker->Stiff < kSoft) run.Quality.Scale(9, 10, worker->Name + " worked too softly");
  }
}

void CheckChampion(SegmentRun& run, const Title* title) {
  if (!title || IsChampionThere(run.Segment, *title)) return;
  run.Crowd.Scale(5, 10, "no champion in the Title match");
  run.Notes += "The crowd were confused as to why this was a title match, when the champion" +
               std::string(title->Singles ? " wasn't" : "s weren't") +
               " involved. This affected their response to the entire match. ";
}

void AddBurnOut(SegmentRun& run) {
  const int previous = run.Show.PreviousCrowd;
  if (previous >= kPumpedUp && run.Crowd < previous - kLetDown) {
    run.Crowd.Scale(8, 10, "burn-out after the last match");
    run.Notes +=
        "This match suffered because the crowd were still pumped up from the last one, and so this "
        "bout was seen as something of a let-down to them. ";
  }
  run.Show.PreviousCrowd = run.Crowd;
}

void WeighMatch(SegmentRun& run) {
  const bool isCrowdStronger = run.Quality <= run.Crowd;
  const std::string crowd = isCrowdStronger ? "70" : "50", quality = isCrowdStronger ? "30" : "50";
  run.Overall.Become(WeighRating(run.Quality, run.Crowd),
                     crowd + "% of Crowd " + std::to_string(run.Crowd) + " and " + quality +
                         "% of Quality " + std::to_string(run.Quality));
  if (run.Show.FlatNight) run.Overall.Scale(9, 10, std::string(kFlatNight));
  run.Overall.Limit();
}

}  // namespace grapplemont
