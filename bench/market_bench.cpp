#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/worlds.h"
#include "program/screens.h"
#include "records/nameindex.h"
#include "records/slot.h"
#include "support/scriptdesk.h"
#include "ui/game.h"

// The market as a table and the names in a long report, in the largest world; beside them the same
// file read record by record, a search of the text for each name.

namespace grapplemont {
namespace {

constexpr int kWords = 5000;

/// Prose of so many words, every tenth of which begins somebody's name.
std::string Prose(const World& world) {
  std::string text;
  for (int word = 0; word < kWords; ++word) {
    const Worker& worker = world.Workers()[1 + word * 7 % world.Workers().Count()];
    text += word % 10 == 0 ? worker.Name.Str() + ", " : std::string("lock ");
  }
  return text;
}

/// What a name is searched in: the file, record by record.
class WorkersOnDisk {
 public:
  explicit WorkersOnDisk(const World& world) : disk_(RealDisk()) {
    for (NewFile& file : FilesOf(world))
      if (file.Name == "wrestler.dat") WriteFile(*disk_, path_, file.Contents);
    count_ = world.Workers().Count();
  }
  ~WorkersOnDisk() { std::filesystem::remove(path_); }
  WorkersOnDisk(const WorkersOnDisk&) = delete;
  WorkersOnDisk& operator=(const WorkersOnDisk&) = delete;

  template <class Visit>
  void Each(Visit visit) const {
    const OpenedFile file(*disk_, path_, false);
    Worker worker;
    for (int number = 0; number < count_; ++number) {
      disk_->ReadAt(file, number * static_cast<std::int64_t>(sizeof worker),
                    std::as_writable_bytes(std::span(&worker, 1)));
      visit(worker);
    }
  }

 private:
  std::unique_ptr<Disk> disk_;
  std::string path_ =
      (std::filesystem::temp_directory_path() / "grapplemont-bench-market").string();
  int count_ = 0;
};

void BM_FindNames(benchmark::State& state) {
  World world = bench::StartedWorld(state.range(0) != 0, bench::kSomeDay);
  const std::string text = Prose(world);
  NameIndex names;
  for (auto _ : state) benchmark::DoNotOptimize(names.Find(world, text));
  state.SetLabel(state.range(0) ? "largest world" : "default world");
}
BENCHMARK(BM_FindNames)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_FindNamesBaseline(benchmark::State& state) {
  World world = bench::StartedWorld(state.range(0) != 0, bench::kSomeDay);
  const std::string text = Prose(world);
  const WorkersOnDisk file(world);
  for (auto _ : state)
    file.Each(
        [&](const Worker& worker) { benchmark::DoNotOptimize(text.find(worker.Name.View())); });
}
BENCHMARK(BM_FindNamesBaseline)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

/// A game in slot 1 of a home of its own, on the market.
struct OnTheMarket {
  explicit OnTheMarket(bool large)
      : Home((std::filesystem::temp_directory_path() / "grapplemont-market-bench").string()),
        Drive(RealDisk()) {
    RemoveTree(*Drive, Home);
    Drive->MakeFolder(Home);
    Slot::Create(*Drive, Home + "/s1", FilesOf(bench::StartedWorld(large, bench::kSomeDay)), 1);
    Play = std::make_unique<Game>(Desk, *Drive, Game::Options{Home});
    RegisterScreens(*Play);
    Play->OpenSlot(1);
    Desk.Open("frmOtherWres");
  }
  ~OnTheMarket() {
    Desk.CloseAll();
    Play->CloseSlot();
    RemoveTree(*Drive, Home);
  }
  std::string Home;
  std::unique_ptr<Disk> Drive;
  test::ScriptDesk Desk;
  std::unique_ptr<Game> Play;
};

void BM_FilterMarket(benchmark::State& state) {
  OnTheMarket market(state.range(0) != 0);
  for (auto _ : state) {
    market.Desk.Pick("cmbsex", "Men");
    market.Desk.Pick("cmbsex", "All");
  }
  state.SetLabel("both ways");
}
BENCHMARK(BM_FilterMarket)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_PickInMarket(benchmark::State& state) {
  OnTheMarket market(state.range(0) != 0);
  int row = 0;
  for (auto _ : state) market.Desk.Pick("lstwres", 1 + row++ % 500);
}
BENCHMARK(BM_PickInMarket)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_MarketBaseline(benchmark::State& state) {
  const World world = bench::StartedWorld(state.range(0) != 0, bench::kSomeDay);
  const WorkersOnDisk file(world);
  for (auto _ : state) file.Each([](const Worker& worker) { benchmark::DoNotOptimize(worker); });
}
BENCHMARK(BM_MarketBaseline)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont
