#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "booking/auto/autobooker.h"
#include "records/segments.h"
#include "show/holdshow.h"

// A card of the auto booker for a roster of 120, beside a baseline: the rosters that the wizard's
// lists show for the same card, each read from the file record by record.

namespace grapplemont {
namespace {

constexpr int kRoster = 120;

/// The world with the player's roster filled up by free agents, in feuds and in shape.
World FullHouse(int size) {
  World world = bench::StartedWorld(size, bench::kSomeDay);
  int roster = 0;
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == 0 && roster < kRoster && worker.Status == "Nor") {
      worker.Employer = world.PlayerUid();
      worker.Position = 1 + roster % kJobber;
      worker.Debuted = true;
    }
    roster += worker.Employer == world.PlayerUid();
  }
  return world;
}

void BM_AutoBook(benchmark::State& state) {
  const bool isEvent = state.range(0) != 0;
  const int size = static_cast<int>(state.range(1));
  World world = FullHouse(size);
  for (auto _ : state) benchmark::DoNotOptimize(AutoBook(world, isEvent, RowsOf(isEvent)));
  state.SetLabel(std::string(isEvent ? "Event, " : "show, ") + bench::SizeText(size));
}
BENCHMARK(BM_AutoBook)
    ->ArgsProduct(
        {{0, 1}, {bench::kDefaultSize, bench::kLargestSize, bench::kSmallSize, bench::kMiddleSize}})
    ->Unit(benchmark::kMicrosecond);

/// How often the wizard's steps list the roster for the card: once for each place, and for the
/// run-ins of finish and aftermath.
int ListsFor(const AutoCard& card) {
  int lists = 0;
  for (const Segment& row : card.Rows)
    lists += static_cast<int>(PeopleOf(row).size()) + (row.Kind == kMatch ? 2 : 0);
  return lists;
}

void BM_AutoBookBaseline(benchmark::State& state) {
  World world = FullHouse(bench::kDefaultSize);
  const int lists = ListsFor(AutoBook(world, false, RowsOf(false)));
  const bench::WorldInFiles files(world);
  for (auto _ : state)
    for (int list = 0; list < lists; ++list) files.Go({&LayoutOf<Worker>(), false});
}
BENCHMARK(BM_AutoBookBaseline)->Unit(benchmark::kMicrosecond)->Iterations(3);

}  // namespace
}  // namespace grapplemont
