#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/worlds.h"
#include "program/screens.h"
#include "records/slot.h"
#include "support/scriptdesk.h"
#include "ui/game.h"

// Opening a slot and showing the main screen, without the window; beside it the same files opened
// and read record by record.

namespace grapplemont {
namespace {

/// A home in a temporary folder whose slot 1 holds the world.
struct SlotOnDisk {
  explicit SlotOnDisk(bool large)
      : Home((std::filesystem::temp_directory_path() / "grapplemont-open-bench").string()),
        Drive(RealDisk()) {
    RemoveTree(*Drive, Home);
    Drive->MakeFolder(Home);
    Slot::Create(*Drive, Home + "/s1", FilesOf(bench::StartedWorld(large, bench::kSomeDay)), 1);
  }
  ~SlotOnDisk() { RemoveTree(*Drive, Home); }
  std::string Home;
  std::unique_ptr<Disk> Drive;
};

void BM_ShowMainScreen(benchmark::State& state) {
  SlotOnDisk slot(state.range(0) != 0);
  for (auto _ : state) {
    test::ScriptDesk desk;
    Game game(desk, *slot.Drive, {slot.Home});
    RegisterScreens(game);
    game.OpenSlot(1);
    desk.Open("frmMainScreen");
    state.PauseTiming();
    game.CloseSlot();
    desk.CloseAll();
    state.ResumeTiming();
  }
  state.SetLabel(state.range(0) ? "largest world" : "default world");
}
BENCHMARK(BM_ShowMainScreen)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_ReadSlotBaseline(benchmark::State& state) {
  SlotOnDisk slot(state.range(0) != 0);
  for (auto _ : state) {
    World shapes;
    for (const Table* table : std::as_const(shapes).Tables()) {
      const std::string path = slot.Home + "/s1/" + std::string(table->File());
      if (!table->Layout() || slot.Drive->Look(path) != Disk::Kind::File) continue;
      const auto file = slot.Drive->Open(path, false);
      Bytes record(static_cast<std::size_t>(table->Layout()->Size));
      for (std::int64_t at = 0; at + std::ssize(record) <= slot.Drive->Size(file);
           at += std::ssize(record))
        slot.Drive->ReadAt(file, at, record);
      slot.Drive->Close(file);
    }
  }
  state.SetLabel(state.range(0) ? "largest world" : "default world");
}
BENCHMARK(BM_ReadSlotBaseline)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont
