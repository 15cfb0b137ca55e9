#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "program/screens.h"
#include "records/dates.h"
#include "records/slot.h"
#include "tools/career.h"

// A year of the default world with the player's shows booked by the auto booker and told in full,
// a commit a day without syncing; beside it the walks of the same days done in the files.

namespace grapplemont {
namespace {

constexpr int kDays = 365;

/// A home in a temporary folder whose slot 1 holds a new game.
struct CareerOnDisk {
  explicit CareerOnDisk(const World& fresh)
      : Home((std::filesystem::temp_directory_path() / "grapplemont-year-bench").string()),
        Drive(RealDisk(Syncs::None)) {
    RemoveTree(*Drive, Home);
    Drive->MakeFolder(Home);
    Slot::Create(*Drive, Home + "/s1", FilesOf(fresh), 1);
  }
  ~CareerOnDisk() { RemoveTree(*Drive, Home); }
  std::string Home;
  std::unique_ptr<Disk> Drive;
};

void BM_Year(benchmark::State& state) {
  const auto shows = state.range(0) ? tools::Shows::Auto : tools::Shows::Cancel;
  const World fresh = bench::StartedWorld(state.range(1) != 0, bench::kSomeDay);
  int days = 0;
  for (auto _ : state) {
    state.PauseTiming();
    CareerOnDisk career(fresh);
    tools::EmptyDesk desk;
    Game game(desk, *career.Drive, {career.Home, MachineToday, 1});
    RegisterScreens(game);
    game.OpenSlot(1);
    state.ResumeTiming();
    days = tools::PlayDays(game, kDays, shows, [](int) {}).Days;
    state.PauseTiming();
    game.CloseSlot();
    state.ResumeTiming();
  }
  state.SetLabel(std::to_string(days) + " days, shows " +
                 (state.range(0) ? "auto-booked" : "cancelled") +
                 (state.range(1) ? ", largest world" : ", default world"));
}
BENCHMARK(BM_Year)
    ->ArgsProduct({{0, 1}, {0}})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void BM_YearBaseline(benchmark::State& state) {
  const bench::WorldInFiles files(bench::StartedWorld(false, bench::kSomeDay));
  for (auto _ : state)
    for (int day = 0; day < kDays; ++day)
      files.Walk(bench::WalksOn(bench::kSomeDay + std::chrono::days{day}));
}
BENCHMARK(BM_YearBaseline)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
}  // namespace grapplemont
