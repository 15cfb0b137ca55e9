#include <benchmark/benchmark.h>

#include "bench/worlds.h"
#include "futures/futures.h"
#include "futures/habits.h"

// Many worlds from one morning: a copy, and a hundred of them played by habit. The baseline makes
// each copy from the files' bytes and plays it alone with every word written.

namespace grapplemont {
namespace {

void BM_CopyWorld(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  World copy;
  for (auto _ : state) copy.CopyFrom(world);
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_CopyWorld)->Arg(bench::kNew)->Arg(bench::kTwentyYears)->Unit(benchmark::kMicrosecond);

/// Days, threads, age.
void BM_HundredWorlds(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(2)));
  const FuturePlan plan{100, static_cast<int>(state.range(0))};
  for (auto _ : state) {
    Futures futures(world, {}, plan, static_cast<int>(state.range(1)));
    while (!futures.Work().WaitFor(std::chrono::hours(1))) continue;
    benchmark::DoNotOptimize(futures.Lives());
  }
  state.SetLabel(std::to_string(plan.Days) + " days, " + std::to_string(state.range(1)) +
                 " threads, " + bench::AgeText(static_cast<int>(state.range(2))));
}
BENCHMARK(BM_HundredWorlds)
    ->ArgsProduct({{30, 365}, {1, 2, 8}, {bench::kNew}})
    ->Args({30, 2, bench::kTwentyYears})
    ->Unit(benchmark::kMicrosecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

void BM_HundredWorldsBaseline(benchmark::State& state) {
  const std::vector<NewFile> files = FilesOf(bench::Played(bench::kNew));
  std::map<std::string, Bytes> read;
  for (const NewFile& file : files) read.emplace(file.Name, file.Contents);
  for (auto _ : state)
    for (std::uint64_t number = 1; number <= 100; ++number) {
      World world(std::make_unique<SeededDraws>(number));
      world.Load(read);
      LiveOn(world, static_cast<int>(state.range(0)), {.Then = AfterTheEnd::AnotherJob},
             [](int) { return true; });
    }
}
BENCHMARK(BM_HundredWorldsBaseline)->Arg(30)->Unit(benchmark::kMicrosecond)->Iterations(1);

}  // namespace
}  // namespace grapplemont
