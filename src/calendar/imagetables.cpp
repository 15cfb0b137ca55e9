#include "calendar/imagetables.h"

#include <algorithm>
#include <array>
#include <span>

#include "records/arithmetic.h"
#include "records/fields/vocabulary.h"

namespace grapplemont {

namespace {

/// From this rating up comes the step; the rows fall.
struct ImageBand {
  int From;
  int Step;
};
using Bands = std::span<const ImageBand>;
using Ladders = std::array<Bands, 6>;  // Global to Backyard

// The player's Events.
constexpr ImageBand kEvent1[] = {{90, 5}, {80, 4}, {60, 2}, {40, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kEvent2[] = {{90, 6}, {80, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kEvent3[] = {{90, 10}, {80, 4}, {60, 2}, {40, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kEvent4[] = {{90, 10}, {80, 6},  {60, 3},  {50, 1},
                                 {40, 0},  {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kEvent5[] = {{90, 10}, {80, 6},  {60, 3},  {50, 2},
                                 {40, 1},  {30, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kEvent6[] = {{90, 10}, {80, 6}, {60, 3}, {50, 2}, {20, 1}, {0, -2}};
constexpr Ladders kEvents = {kEvent1, kEvent2, kEvent3, kEvent4, kEvent5, kEvent6};

// The player's television shows. A Backyard show of 90 jumps a class almost at once: meant so.
constexpr ImageBand kTv1[] = {{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kTv2[] = {{90, 3}, {80, 2}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kTv3[] = {{90, 4}, {80, 2}, {60, 1}, {40, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kTv4[] = {{90, 4}, {80, 2}, {50, 1}, {40, 0}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kTv5[] = {{90, 5}, {80, 4},  {60, 3},  {50, 2},
                              {40, 1}, {30, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kTv6[] = {{90, 25}, {80, 4}, {60, 3}, {50, 2}, {20, 1}, {0, -2}};
constexpr Ladders kTvShows = {kTv1, kTv2, kTv3, kTv4, kTv5, kTv6};

// Rivals' Events.
constexpr ImageBand kRivalEvent1[] = {{90, 5}, {80, 4}, {68, 2}, {50, -3}, {20, -7}, {0, -15}};
constexpr ImageBand kRivalEvent2[] = {{85, 6}, {75, 3}, {60, 1}, {40, -3}, {20, -5}, {0, -12}};
constexpr ImageBand kRivalEvent3[] = {{75, 10}, {60, 4}, {48, 2}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent4[] = {{75, 10}, {65, 6},  {55, 3},  {45, 2},
                                      {35, 1},  {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent5[] = {{90, 10}, {80, 6}, {60, 4},  {45, 3},
                                      {35, 2},  {30, 1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalEvent6[] = {{90, 10}, {80, 6}, {60, 3}, {30, 2}, {10, 1}, {0, -2}};
constexpr Ladders kRivalEvents = {kRivalEvent1, kRivalEvent2, kRivalEvent3,
                                  kRivalEvent4, kRivalEvent5, kRivalEvent6};

// Rivals' television shows.
constexpr ImageBand kRivalTv1[] = {{90, 3}, {80, 2}, {68, 1}, {50, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv2[] = {{85, 3}, {75, 2}, {60, 1}, {40, -2}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv3[] = {{75, 3}, {60, 2}, {48, 1}, {30, -1}, {20, -2}, {0, -5}};
constexpr ImageBand kRivalTv4[] = {{75, 5}, {65, 4},  {55, 3},  {45, 2},
                                   {38, 1}, {30, -1}, {20, -2}, {0, -3}};
constexpr ImageBand kRivalTv5[] = {{90, 6}, {80, 5}, {60, 4},  {45, 3},
                                   {35, 2}, {30, 1}, {20, -3}, {0, -5}};
constexpr ImageBand kRivalTv6[] = {{90, 4}, {60, 3}, {30, 2}, {10, 1}, {0, -5}};
constexpr Ladders kRivalTvShows = {kRivalTv1, kRivalTv2, kRivalTv3,
                                   kRivalTv4, kRivalTv5, kRivalTv6};

int StepIn(const Ladders& tables, int size, int rating) {
  const Bands bands = BySize(tables, size);
  for (const ImageBand& band : bands)
    if (rating >= band.From) return band.Step;
  return bands.back().Step;
}

}  // namespace

int EventImageStep(int size, int rating) {
  return StepIn(kEvents, size, rating);
}
int TvImageStep(int size, int rating) {
  return StepIn(kTvShows, size, rating);
}
int RivalEventImageStep(int size, int quality) {
  return StepIn(kRivalEvents, size, quality);
}
int RivalTvImageStep(int size, int quality) {
  return StepIn(kRivalTvShows, size, quality);
}

}  // namespace grapplemont
