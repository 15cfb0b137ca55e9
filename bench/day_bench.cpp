#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/worlds.h"
#include "calendar/advanceday.h"
#include "records/dates.h"
#include "records/disk.h"
#include "records/world.h"
#include "ui/waiting.h"

// The day and the new game, each beside a baseline: the same walks done by opening the file,
// reading and writing back every record, once for each walk that the steps make.

namespace grapplemont {
namespace {

/// The days the figures are for: what the morning is.
enum Morning { kPlain, kMonday, kFirst };
Day Evening(int morning) {
  using std::chrono::year;
  if (morning == kMonday) return year{2026} / 3 / 8;
  return morning == kFirst ? Day{year{2026} / 3 / 31} : Day{year{2026} / 3 / 3};
}

void Describe(benchmark::State& state) {
  constexpr const char* kMornings[] = {"plain day", "Monday", "first of a month"};
  state.SetLabel(std::string(kMornings[state.range(0)]) +
                 (state.range(1) ? ", largest world" : ", default world"));
}

void BM_Day(benchmark::State& state) {
  const World fresh =
      bench::StartedWorld(state.range(1) != 0, Evening(static_cast<int>(state.range(0))));
  const auto files = [&] {
    std::map<std::string, Bytes> all;
    for (NewFile& file : FilesOf(fresh)) all.emplace(file.Name, std::move(file.Contents));
    return all;
  }();
  for (auto _ : state) {
    state.PauseTiming();
    World world;
    world.Load(files);
    state.ResumeTiming();
    AdvanceDay(world, false);
  }
  Describe(state);
}

int WalksOf(int morning) {
  const auto count = [](auto steps) { return static_cast<int>(steps.size()); };
  int walks = 2 + count(DailySteps()) + count(ClosingSteps());
  if (morning == kMonday) walks += count(MondaySteps());
  if (morning == kFirst) walks += count(FirstOfMonthSteps()) + count(SecondFirstOfMonthSteps());
  return walks;
}

/// One walk as a routine without tables makes it: open, read and write back each record in the
/// file, close.
template <class T>
void WalkFile(Disk& disk, const std::string& path) {
  const auto file = disk.Open(path, false);
  const auto count = disk.Size(file) / static_cast<std::int64_t>(sizeof(T));
  T record;
  for (std::int64_t i = 0; i < count; ++i) {
    const auto at = i * static_cast<std::int64_t>(sizeof(T));
    disk.ReadAt(file, at, std::as_writable_bytes(std::span(&record, 1)));
    benchmark::DoNotOptimize(record);
    disk.WriteAt(file, at, std::as_bytes(std::span(&record, 1)));
  }
  disk.Close(file);
}

void BM_DayBaseline(benchmark::State& state) {
  const World world =
      bench::StartedWorld(state.range(1) != 0, Evening(static_cast<int>(state.range(0))));
  const auto disk = RealDisk();
  const std::string folder =
      (std::filesystem::temp_directory_path() / "grapplemont-bench").string();
  RemoveTree(*disk, folder);
  disk->MakeFolder(folder);
  for (const NewFile& file : FilesOf(world))
    WriteFile(*disk, folder + "/" + file.Name, file.Contents);
  const int walks = WalksOf(static_cast<int>(state.range(0)));
  for (auto _ : state)
    for (int walk = 0; walk < walks; ++walk) {
      WalkFile<Promotion>(*disk, folder + "/promos.dat");
      WalkFile<Worker>(*disk, folder + "/wrestler.dat");
    }
  RemoveTree(*disk, folder);
  Describe(state);
}

void Mornings(benchmark::internal::Benchmark* bench) {
  for (int large : {0, 1})
    for (int morning : {kPlain, kMonday, kFirst}) bench->Args({morning, large});
  bench->Unit(benchmark::kMillisecond);
}
// The world is laid anew for each day, which takes longer than the day: few rounds are enough.
BENCHMARK(BM_Day)->Apply(Mornings)->Iterations(25);
BENCHMARK(BM_DayBaseline)->Apply(Mornings)->Iterations(2);

void BM_Step(benchmark::State& state, Step step) {
  World world = bench::StartedWorld(false, Evening(kFirst));
  for (auto _ : state) step.Run(world);
}

const bool kStepsRegistered = [] {
  for (const auto steps : {DailySteps(), MondaySteps(), FirstOfMonthSteps(),
                           SecondFirstOfMonthSteps(), ClosingSteps()})
    for (const Step& step : steps)
      benchmark::RegisterBenchmark(("BM_Step/" + InWords(step.Name)).c_str(), BM_Step, step);
  return true;
}();

void BM_NewGame(benchmark::State& state) {
  const World data = bench::DataWorld(state.range(0) != 0);
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(data)) files.emplace(file.Name, std::move(file.Contents));
  for (auto _ : state) {
    World world;
    world.Load(files);
    benchmark::DoNotOptimize(bench::Started(std::move(world), Evening(kPlain)));
  }
  state.SetLabel(state.range(0) ? "largest world" : "default world");
}
BENCHMARK(BM_NewGame)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont
