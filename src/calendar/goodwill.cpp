#include "calendar/goodwill.h"

#include <algorithm>
#include <numeric>

#include "calendar/imagetables.h"

namespace grapplemont {

namespace {

constexpr int kPoorReputation = 25;

// By difficulty from 1 to 4.
using ByDifficulty = std::array<int, 4>;
constexpr ByDifficulty kEvents = {1, 0, -2, -3};
constexpr ByDifficulty kTvShows = {1, 0, -1, -2};

int StepAt(const ByDifficulty& steps, const GameInfo& game) {
  return steps[static_cast<std::size_t>(std::clamp<int>(game.Difficulty, kEasy, kRockHard) - 1)];
}

int Disrepute(const GameInfo& game) {
  return game.Reputation < kPoorReputation ? -1 : 0;
}

int SumOf(const Goodwill& goodwill) {
  return std::accumulate(goodwill.begin(), goodwill.end(), 0);
}

}  // namespace

Goodwill EventGoodwill(const GameInfo& game) {
  return {StepAt(kEvents, game), Disrepute(game), game.Reputation == 0 ? -1 : 0};
}

Goodwill TvGoodwill(const GameInfo& game) {
  return {StepAt(kTvShows, game), Disrepute(game), 0};
}

int WholeEventStep(const GameInfo& game, int size, int rating) {
  return SumOf(EventGoodwill(game)) + EventImageStep(size, rating);
}

int WholeTvStep(const GameInfo& game, int size, int rating) {
  return SumOf(TvGoodwill(game)) + TvImageStep(size, rating);
}

}  // namespace grapplemont
