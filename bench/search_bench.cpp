#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "info/search.h"

// What a letter costs in the search of everything, and how long it takes to begin one; beside them
// one letter looked for in the workers' names, read from the file record by record.

namespace grapplemont {
namespace {

constexpr std::size_t kMost = 6;

void BM_BeginSearch(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(NameSearch(world));
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

/// A letter that many names hold, a whole name, and one with a slip, which is compared letter by
/// letter.
void BM_Search(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  const NameSearch names(world);
  std::string slip = world.Workers()[1].Name.Str();
  std::swap(slip[1], slip[2]);
  const std::string typed[] = {"a", world.Workers()[1].Name.Str(), slip};
  const std::string& letters = typed[state.range(1)];
  for (auto _ : state) benchmark::DoNotOptimize(names.Find(letters, kMost));
  state.SetLabel("\"" + letters + "\", " + bench::AgeText(static_cast<int>(state.range(0))));
}

void BM_SearchBaseline(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  const bench::WorldInFiles files(world);
  for (auto _ : state)
    files.Go({&LayoutOf<Worker>(), false}, [&](ByteSpan record) {
      const auto& worker = reinterpret_cast<const Worker&>(*record.data());
      benchmark::DoNotOptimize(worker.Name.View().find("a"));
    });
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

constexpr int kAges[] = {bench::kTenYears, bench::kLargest, bench::kSmall, bench::kMiddle};
void Ages(benchmark::internal::Benchmark* figure) {
  for (const int age : kAges) figure->Arg(age);
  figure->Unit(benchmark::kMicrosecond);
}
void AgesAndLetters(benchmark::internal::Benchmark* figure) {
  for (const int age : kAges)
    for (const int letters : {0, 1, 2}) figure->Args({age, letters});
  figure->Unit(benchmark::kMicrosecond);
}
BENCHMARK(BM_BeginSearch)->Apply(Ages);
BENCHMARK(BM_Search)->Apply(AgesAndLetters);
BENCHMARK(BM_SearchBaseline)->Apply(Ages);

}  // namespace
}  // namespace grapplemont
