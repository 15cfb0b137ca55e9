#include <benchmark/benchmark.h>

#include "bench/worlds.h"
#include "records/store/playedslot.h"
#include "session/slots.h"
#include "support/gameonworld.h"
#include "support/scratchfolder.h"
#include "tools/officework.h"
#include "ui/goingback.h"

// What it costs to keep mornings and clicks: a commit of a slot that keeps them beside the same
// commit of one that never goes back, nothing synced, since a sync would hide it. Then the way back
// to the oldest morning of a year, beside reading as many bytes from a file that has the world
// whole.

namespace grapplemont {
namespace {

/// A slot of the world that keeps moments, or none.
class KeptWorld {
 public:
  KeptWorld(World world, bool goesBack) : world_(std::move(world)) {
    Slot::Create(*disk_, folder_ / "s1", BeginningFiles(world_, false, goesBack), 1);
    slot_.emplace(*disk_, folder_ / "s1");
    slot_->Forget();
    world_.MarkCommitted();
  }
  World& Kept() { return world_; }
  void Commit() {
    const auto changes = world_.Changes();
    slot_->Commit(changes, {PlayedStep::Click, "Sign, Contract Talks"});
    world_.MarkCommitted(changes);
  }
  std::int64_t FileBytes() {
    const std::string path = folder_ / ("s1/" + std::string(kMorningsName));
    if (disk_->Look(path) != Disk::Kind::File) return 0;
    const OpenedFile file(*disk_, path, false);
    return disk_->Size(file);
  }

 private:
  test::ScratchFolder folder_;
  std::unique_ptr<Disk> disk_ = RealDisk(Syncs::None);
  World world_;
  std::optional<PlayedSlot> slot_;
};

/// Commits of one kind, in a slot with moments or without.
template <class Change>
void Compare(benchmark::State& state, bool goesBack, const Change& change) {
  const int age = static_cast<int>(state.range(0));
  KeptWorld kept(bench::Played(age), goesBack);
  int turn = 0;
  for (auto _ : state) {
    change(kept.Kept(), ++turn);
    bench::Time(state, [&] { kept.Commit(); });
  }
  state.counters["kB"] = static_cast<double>(kept.FileBytes()) / 1024;
  state.SetLabel(bench::AgeText(age));
}

void PlayADay(World& world, int) {
  tools::PlayDay(world, tools::Shows::Auto);
}

void BM_KeptClick(benchmark::State& state) {
  Compare(state, true, bench::Click);
}
void BM_KeptClickBaseline(benchmark::State& state) {
  Compare(state, false, bench::Click);
}
void BM_KeptDay(benchmark::State& state) {
  Compare(state, true, PlayADay);
}
void BM_KeptDayBaseline(benchmark::State& state) {
  Compare(state, false, PlayADay);
}

void KeptAges(benchmark::internal::Benchmark* figure) {
  for (const int age : {bench::kNew, bench::kTwentyYears}) figure->Arg(age);
  figure->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(400);
}
BENCHMARK(BM_KeptClick)->Apply(KeptAges);
BENCHMARK(BM_KeptClickBaseline)->Apply(KeptAges);
BENCHMARK(BM_KeptDay)->Apply(KeptAges);
BENCHMARK(BM_KeptDayBaseline)->Apply(KeptAges);

/// From the end of a year to its first morning and, by the road that was left, to its end again.
void BM_GoBack(benchmark::State& state) {
  constexpr int kDays = 400;
  test::GameOnWorld career(bench::Played(bench::kTwentyYears), RealDisk());
  career.Desk.IsEasy = true;
  for (int day = 0; day < kDays; ++day) {
    tools::PlayDay(career.World(), tools::Shows::Auto);
    career.Play.Commit();
  }
  for (auto _ : state) {
    const auto past = PastMoments(career.Play);
    bench::Time(state,
                [&] { career.Desk.Event([&] { GoBackTo(career.Play, past.back().Number); }); });
    career.Desk.Event([&] { GoBackTo(career.Play, PastMoments(career.Play).front().Number); });
  }
  state.SetLabel(bench::AgeText(bench::kTwentyYears));
}
BENCHMARK(BM_GoBack)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(5);

/// The whole world read from files, taken over, and the main screen opened.
void BM_GoBackBaseline(benchmark::State& state) {
  test::GameOnWorld career(bench::Played(bench::kTwentyYears), RealDisk());
  career.Desk.IsEasy = true;
  for (auto _ : state)
    bench::Time(state, [&] {
      career.Desk.CloseAll();
      career.Reopen();
      career.Desk.Open("frmMainScreen");
    });
  state.SetLabel(bench::AgeText(bench::kTwentyYears));
}
BENCHMARK(BM_GoBackBaseline)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(5);

}  // namespace
}  // namespace grapplemont
