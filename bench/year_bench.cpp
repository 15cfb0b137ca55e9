#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "support/gameonworld.h"
#include "tools/officework.h"

// A year with the player's shows booked by the auto booker and told in full, a commit a day,
// without syncing and with; beside it the walks of the same days done in the files.

namespace grapplemont {
namespace {

constexpr int kYear = 365, kThirtyYears = 10957;  // days

void PlayOn(benchmark::State& state, Syncs syncs, int wanted) {
  const int age = static_cast<int>(state.range(0));
  const auto shows = state.range(1) ? tools::Shows::Auto : tools::Shows::Cancel;
  int days = 0;
  for (auto _ : state) {
    test::GameOnWorld career(bench::Played(age), RealDisk(syncs));
    bench::Time(state, [&] {
      days = tools::PlayDays(
                 career.Play, wanted, shows, [](int) {}, tools::AfterTheEnd::AnotherJob)
                 .Days;
    });
  }
  state.SetLabel(std::to_string(days) + " days, shows " +
                 (state.range(1) ? "auto-booked, " : "cancelled, ") + bench::AgeText(age));
}

void BM_Year(benchmark::State& state) {
  PlayOn(state, Syncs::None, kYear);
}
void BM_YearSynced(benchmark::State& state) {
  PlayOn(state, Syncs::Real, kYear);
}
void BM_ThirtyYears(benchmark::State& state) {
  PlayOn(state, Syncs::None, kThirtyYears);
}
BENCHMARK(BM_Year)
    ->Args({bench::kNew, 0})
    ->Args({bench::kNew, 1})
    ->Args({bench::kTenYears, 1})
    ->Args({bench::kTwentyYears, 1})
    ->Args({bench::kLargest, 1})
    ->Args({bench::kSmall, 1})
    ->Args({bench::kMiddle, 1})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK(BM_ThirtyYears)
    ->Args({bench::kNew, 1})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK(BM_YearSynced)
    ->Args({bench::kNew, 1})
    ->Args({bench::kTwentyYears, 1})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();

void BM_YearBaseline(benchmark::State& state) {
  const bench::WorldInFiles files(bench::Played(bench::kNew));
  for (auto _ : state)
    for (int day = 0; day < kYear; ++day)
      files.Go(bench::WalksOf(bench::kSomeDay + std::chrono::days{day}));
}
BENCHMARK(BM_YearBaseline)->Unit(benchmark::kMicrosecond)->UseRealTime()->Iterations(1);

}  // namespace
}  // namespace grapplemont
