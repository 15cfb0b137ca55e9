#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "calendar/advanceday.h"
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

void BM_DayBaseline(benchmark::State& state) {
  const Day evening = Evening(static_cast<int>(state.range(0)));
  const bench::WorldInFiles files(bench::StartedWorld(state.range(1) != 0, evening));
  const int walks = bench::WalksOn(evening + std::chrono::days{1});
  for (auto _ : state) files.Walk(walks);
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
