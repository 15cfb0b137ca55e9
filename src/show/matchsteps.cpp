#include "show/matchsteps.h"

#include "show/consequences.h"
#include "show/scoring.h"

namespace grapplemont {

namespace {

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

void NotBelowZero(Score& score) {
  if (score < 0) score.Become(0, "limit");
}

bool HoldsSingles(const Segment& segment, const Title& title) {
  const int places = segment.Style == kSpecial ? 30 : 4;
  for (int place = 0; place < places; ++place)
    if (segment.Worker[static_cast<std::size_t>(place)] == title.Holder) return true;
  return false;
}

bool HoldsTag(const Segment& segment, const Title& title) {
  for (std::size_t first = 0; first < 8; first += 2) {
    const int one = segment.Worker[first], other = segment.Worker[first + 1];
    if ((one == title.Holder && other == title.Partner) ||
        (one == title.Partner && other == title.Holder))
      return true;
  }
  return false;
}

bool IsChampionThere(const Segment& segment, const Title& title) {
  if (title.Holder == 0) return true;
  return title.Singles ? HoldsSingles(segment, title) : HoldsTag(segment, title);
}

}  // namespace

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
  NotBelowZero(run.Quality);
  NotBelowZero(run.Crowd);
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
  run.Notes += title->Singles
                   ? "The crowd were confused as to why this was a title match, when the champion "
                     "wasn't involved. "
                   : "The crowd were confused as to why this was a title match, when the champions "
                     "weren't involved. ";
  run.Notes += "This affected their response to the entire match. ";
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
  run.Overall.Become(WeighRating(run.Quality, run.Crowd),
                     (isCrowdStronger ? "70% of Crowd " : "50% of Crowd ") +
                         std::to_string(run.Crowd) +
                         (isCrowdStronger ? " and 30% of Quality " : " and 50% of Quality ") +
                         std::to_string(run.Quality));
  if (run.Show.FlatNight) run.Overall.Scale(9, 10, "flat night");
  run.Overall.Limit();
}

}  // namespace grapplemont
