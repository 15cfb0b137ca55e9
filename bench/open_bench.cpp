#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "support/gameonworld.h"

// Opening a slot and the main screen, and from there its longest lists, without the window; beside
// them the files that they show, opened and read record by record.

namespace grapplemont {
namespace {

constexpr const char* kMain = "frmMainScreen";

void BM_OpenSlotAndMainScreen(benchmark::State& state) {
  test::GameOnWorld play(bench::Played(static_cast<int>(state.range(0))), RealDisk());
  for (auto _ : state) {
    play.Desk.CloseAll();
    play.Play.CloseSlot();
    bench::Time(state, [&] {
      play.Play.OpenSlot(1);
      play.Desk.Open(kMain);
    });
  }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

void BM_Screen(benchmark::State& state, const char* screen) {
  test::GameOnWorld play(bench::Played(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    play.Desk.CloseAll();
    play.Desk.Open(kMain);
    bench::Time(state, [&] { play.Desk.Open(screen); });
  }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

/// A table of the records' screen, which is open already.
void BM_Records(benchmark::State& state, const char* table) {
  test::GameOnWorld play(bench::Played(static_cast<int>(state.range(0))));
  play.Desk.Open(kMain);
  play.Desk.Open("frmRecords");
  for (auto _ : state) {
    play.Desk.Pick("lsttables", "All-time ranking");
    bench::Time(state, [&] { play.Desk.Pick("lsttables", table); });
  }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

/// The file, or all of them.
void BM_ReadFileBaseline(benchmark::State& state, const char* name) {
  const World world = bench::Played(static_cast<int>(state.range(0)));
  const bench::WorldInFiles files(world);
  for (auto _ : state)
    for (const Table* table : world.Tables())
      if (table->Layout() && table->Exists() && (!name || table->File() == name))
        files.Go({table->Layout(), false});
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

/// The bytes of all files moved from memory to memory.
void BM_ReadLimit(benchmark::State& state) {
  const std::vector<NewFile> files = FilesOf(bench::Played(static_cast<int>(state.range(0))));
  for (auto _ : state)
    for (const NewFile& file : files) {
      const Bytes copy(file.Contents.begin(), file.Contents.end());
      benchmark::DoNotOptimize(copy.data());
    }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

void Ages(benchmark::internal::Benchmark* figure) {
  figure->DenseRange(bench::kNew, bench::kLargest)->Arg(bench::kSmall)->Arg(bench::kMiddle);
  figure->Unit(benchmark::kMicrosecond);
}
BENCHMARK(BM_OpenSlotAndMainScreen)->Apply(Ages)->UseManualTime()->Iterations(20);
BENCHMARK_CAPTURE(BM_ReadFileBaseline, all, nullptr)->Apply(Ages)->UseRealTime();
BENCHMARK(BM_ReadLimit)->Apply(Ages)->UseRealTime();
BENCHMARK_CAPTURE(BM_Screen, News, "frmNews")->Apply(Ages)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(BM_ReadFileBaseline, news, "news.dat")->Apply(Ages)->UseRealTime();
BENCHMARK_CAPTURE(BM_Screen, Market, "frmOtherWres")->Apply(Ages)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(BM_Screen, Roster, "frmRoster")->Apply(Ages)->UseManualTime()->Iterations(50);
BENCHMARK_CAPTURE(BM_ReadFileBaseline, workers, "wrestler.dat")->Apply(Ages)->UseRealTime();

// What has been added up of the past, when it is young and when it is old.
void YoungAndOld(benchmark::internal::Benchmark* figure) {
  figure->Arg(bench::kNew)->Arg(bench::kFiftyYears)->Unit(benchmark::kMicrosecond);
  figure->UseManualTime()->Iterations(50);
}
BENCHMARK_CAPTURE(BM_Screen, Records, "frmRecords")->Apply(YoungAndOld);
BENCHMARK_CAPTURE(BM_Records, LongestReigns, "Longest reigns")->Apply(YoungAndOld);
BENCHMARK_CAPTURE(BM_Screen, Hall, "frmHall")->Apply(YoungAndOld);
BENCHMARK_CAPTURE(BM_Screen, Yearbook, "frmYearbook")->Apply(YoungAndOld);
BENCHMARK_CAPTURE(BM_Screen, FamilyTree, "frmFamilyTree")->Apply(YoungAndOld);

}  // namespace
}  // namespace grapplemont
