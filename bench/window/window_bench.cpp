#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <vector>

#include "bench/worlds.h"
#include "desktop/evening.h"
#include "desktop/look.h"

// How long somebody waits for the window: from each key or click of an evening to the painted
// frame. The figure is what 95 in 100 stay below; beside it the median and the longest.

namespace grapplemont {
namespace {

using test::Evening;

void Tell(benchmark::State& state, std::vector<double> frames) {
  std::ranges::sort(frames);
  const auto share = [&](double part) {
    return frames[static_cast<std::size_t>(part * static_cast<double>(frames.size() - 1))];
  };
  state.SetIterationTime(share(0.95) / 1000);
  state.counters["median_ms"] = share(0.5);
  state.counters["longest_ms"] = frames.back();
  state.counters["acts"] = static_cast<double>(frames.size());
}

const char* PeopleText(bool large) {
  return large ? "25,000 workers" : "default world";
}

void BM_KeyToFrame(benchmark::State& state) {
  const bool large = state.range(0) != 0;
  const auto hands = state.range(1) ? Evening::Hands::Keys : Evening::Hands::Mouse;
  const World data = bench::DataWorld(large);
  for (auto _ : state) {
    std::vector<double> frames;
    Evening evening(data, hands);
    evening.Watch = [&](const std::string&, double took) { frames.push_back(took); };
    evening.All();
    Tell(state, std::move(frames));
  }
  state.SetLabel(std::string(PeopleText(large)) + (state.range(1) ? ", keys" : ", mouse"));
}

/// Each letter of the search of everything, with a slip in the name.
void BM_SearchKeyToFrame(benchmark::State& state) {
  const bool large = state.range(0) != 0;
  const World data = bench::DataWorld(large);
  for (auto _ : state) {
    std::vector<double> frames;
    Evening evening(data, Evening::Hands::Mouse);
    evening.NewGame();
    evening.Watch = [&](const std::string& act, double took) {
      if (act == "a letter of the search") frames.push_back(took);
    };
    std::string name = data.Workers()[data.Workers().Count() / 2].Name.Str();
    std::swap(name[1], name[2]);
    for (int i = 0; i < 5; ++i) evening.Search(QString::fromStdString(name));
    Tell(state, std::move(frames));
  }
  state.SetLabel(PeopleText(large));
}

BENCHMARK(BM_KeyToFrame)
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SearchKeyToFrame)
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  grapplemont::desktop::ReadDesktop();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
