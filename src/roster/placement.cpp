#include "roster/placement.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"

namespace grapplemont {

namespace {

/// The Over above which the positions from 5 up to 1 are reached.
struct Ladder {
  int Start;
  std::array<int, 5> Above;  // 5 Opener, 4 Lower Midcard, 3 Midcard, 2 Upper Midcard, 1 Main Event
};
constexpr int kStart = -1;
// By size, Global to Backyard. Rungs at and below the start are passed by anybody.
constexpr std::array<Ladder, 6> kLadders = {{
    {kJobber, {20, 40, 60, 80, 90}},
    {kJobber, {20, 40, 55, 70, 80}},
    {kJobber, {10, 20, 40, 50, 65}},
    {kJobber, {10, 20, 35, 45, 55}},
    {kOpener, {kStart, 5, 10, 20, 35}},
    {kMidcard, {kStart, kStart, kStart, 10, 25}},
}};

}  // namespace

int FittingPosition(int size, int over) {
  const Ladder& ladder = BySize(kLadders, size);
  int position = ladder.Start;
  for (int rung = kOpener; rung >= kMainEvent; --rung)
    if (rung < position && over > ladder.Above[static_cast<std::size_t>(kOpener - rung)])
      position = rung;
  return position;
}

int PlacementPosition(const Worker& worker, int size) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return worker.Position;
  return FittingPosition(size, worker.Over);
}

int ContractMonthsAt(int size) {
  return size > kRegional ? 6 : size >= kCult ? 12 : 24;
}

}  // namespace grapplemont
