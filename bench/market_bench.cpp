#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "records/nameindex.h"
#include "support/gameonworld.h"

// What the market answers to a filter and a row, and the names in a long report; beside them the
// text searched for each name that the file holds.

namespace grapplemont {
namespace {

constexpr int kWords = 5000;

/// Prose of kWords words, every tenth of which begins somebody's name.
std::string Prose(const World& world) {
  std::string text;
  for (int word = 0; word < kWords; ++word) {
    const Worker& worker = world.Workers()[1 + word * 7 % world.Workers().Count()];
    text += word % 10 == 0 ? worker.Name.Str() + ", " : std::string("lock ");
  }
  return text;
}

void BM_FindNames(benchmark::State& state) {
  World world = bench::Played(static_cast<int>(state.range(0)));
  const std::string text = Prose(world);
  NameIndex names;
  for (auto _ : state) benchmark::DoNotOptimize(names.Find(world, text));
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

void BM_FindNamesBaseline(benchmark::State& state) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  const std::string text = Prose(world);
  const bench::WorldInFiles files(world);
  for (auto _ : state)
    files.Go({&LayoutOf<Worker>(), false}, [&](ByteSpan record) {
      const auto& worker = reinterpret_cast<const Worker&>(*record.data());
      benchmark::DoNotOptimize(text.find(worker.Name.View()));
    });
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

void BM_FilterMarket(benchmark::State& state) {
  test::GameOnWorld market(bench::Played(static_cast<int>(state.range(0))));
  market.Desk.Open("frmOtherWres");
  for (auto _ : state) {
    market.Desk.Pick("cmbsex", "Men");
    market.Desk.Pick("cmbsex", "All");
  }
  state.SetLabel(std::string("both ways, ") + bench::AgeText(static_cast<int>(state.range(0))));
}

void BM_PickInMarket(benchmark::State& state) {
  test::GameOnWorld market(bench::Played(static_cast<int>(state.range(0))));
  market.Desk.Open("frmOtherWres");
  const int rows = static_cast<int>(market.Desk.Rows("lstwres").size());
  int row = 0;
  for (auto _ : state) market.Desk.Pick("lstwres", 1 + row++ % rows);
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

void Ages(benchmark::internal::Benchmark* figure) {
  figure->Arg(bench::kTenYears)->Arg(bench::kLargest)->Unit(benchmark::kMicrosecond);
}
BENCHMARK(BM_FindNames)->Apply(Ages);
BENCHMARK(BM_FindNamesBaseline)->Apply(Ages);
BENCHMARK(BM_FilterMarket)->Apply(Ages);
BENCHMARK(BM_PickInMarket)->Apply(Ages);

}  // namespace
}  // namespace grapplemont
