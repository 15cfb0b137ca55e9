#include "show/wear.h"

#include <algorithm>

#include "show/cardposition.h"
#include "show/consequences.h"
#include "show/overreport.h"
#include "show/scoring.h"

namespace grapplemont {

namespace {

/// Condition lost by Strain: so much and a draw.
struct Wear {
  int Sure;
  int Draw;
};
constexpr Wear kWear[] = {{3, 2}, {5, 5}, {8, 7}, {12, 16}, {20, 30}};  // Strain 1 to 5

/// How a match moves morale, for those whose Attitude is at least From. The falls add up.
struct MoraleBand {
  int From;
  int Better;    // the match was above the worker's standing
  int Worse;     // below it
  int FarWorse;  // more than 5 below
  int Dreadful;  // more than 10 below
};
constexpr MoraleBand kMoraleBands[] = {
    {75, 3, -5, -5, -7}, {50, 3, -5, -5, -5}, {25, 2, -3, -3, -3}};
constexpr int kMatchAhead = 15;

/// A match of this quality carries those below the Over with it.
struct Showcase {
  int OverBelow;
  int QualityFrom;
  int Gain;
};
// The second sees what the first has given.
constexpr Showcase kShowcases[] = {{80, 91, 5}, {40, 66, 3}};

constexpr int kWinnersJoy = 3;

void WearOut(SegmentRun& run, Worker& worker) {
  if (run.Strain < 1) return;
  const Wear& wear = kWear[std::min(run.Strain, static_cast<int>(std::size(kWear))) - 1];
  worker.Condition -= wear.Sure + run.World.RandomDraw(wear.Draw);
}

int MoraleFrom(int attitude, int matchLevel, int workerLevel) {
  for (const MoraleBand& band : kMoraleBands) {
    if (attitude < band.From) continue;
    int change = 0;
    if (matchLevel > workerLevel) change += band.Better;
    if (matchLevel < workerLevel) change += band.Worse;
    if (matchLevel + 5 < workerLevel) change += band.FarWorse;
    if (matchLevel + 10 < workerLevel) change += band.Dreadful;
    return change;
  }
  return 0;
}

}  // namespace

void AfterMatch(SegmentRun& run, Worker& worker, bool isWinner) {
  const int matchLevel = WeighRating(run.Quality, run.Crowd) + kMatchAhead;
  const int workerLevel = WeighRating(BestSkill(worker), worker.Over);
  int over = worker.Over, morale = worker.Morale;
  if (isWinner) {
    morale += run.World.RandomDraw(kWinnersJoy);
  } else {
    const CardPull pull = CheckCardPosition(run.World, worker);
    over += pull.Over;
    morale += pull.Morale;
    WearOut(run, worker);
    morale += MoraleFrom(worker.Attitude, matchLevel, workerLevel);
  }
  for (const Showcase& showcase : kShowcases)
    if (over < showcase.OverBelow && run.Quality >= showcase.QualityFrom) over += showcase.Gain;
  ReportOver(run, worker, ChangeOver(worker, over - worker.Over), true);
  worker.Morale = morale;
}

}  // namespace grapplemont
