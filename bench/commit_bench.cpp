#include <benchmark/benchmark.h>

#include "bench/worlds.h"
#include "records/store/slot.h"
#include "support/gameonworld.h"
#include "support/scratchfolder.h"
#include "tools/officework.h"

// The commit of a day, its show held and told, beside the least that any program can do to keep it
// (the same bytes written to one file, and a sync), and what a program without a journal does for
// it: each changed file written in place and synced (a power cut leaves anything), each replaced by
// a synced copy (a power cut leaves old files beside new ones). The same for a click that changes
// five records. Then slots made and opened. TMPDIR says which disk is measured.

namespace grapplemont {
namespace {

constexpr int kDays = 60;

/// Two months, each day of which is kept by `keep` from Game's files.
template <class Keep>
void KeepDays(benchmark::State& state, Syncs syncs, const Keep& keep) {
  const int age = static_cast<int>(state.range(0));
  test::GameOnWorld career(bench::Played(age), RealDisk(syncs));
  std::size_t changed = 0;
  for (auto _ : state) {
    tools::PlayDay(career.World(), tools::Shows::Auto);
    for (const FileChange& change : career.World().Changes())
      for (const JournalRange& range : change.Ranges) changed += range.Contents.size();
    bench::Time(state, [&] { keep(career.Play); });
    career.World().MarkCommitted();
  }
  state.counters["kB"] =
      static_cast<double>(changed) / 1024 / static_cast<double>(state.iterations());
  state.SetLabel(bench::AgeText(age));
}

void BM_Commit(benchmark::State& state) {
  KeepDays(state, Syncs::Real, [](Game& game) { game.Commit(); });
}
void BM_CommitUnsynced(benchmark::State& state) {
  KeepDays(state, Syncs::None, [](Game& game) { game.Commit(); });
}

/// What an act on each file that the day has changed takes.
template <class Act>
void KeepFiles(benchmark::State& state, const Act& act) {
  KeepDays(state, Syncs::Real, [&](Game& game) {
    for (const FileChange& change : game.World().Changes()) {
      const std::string path = game.SlotFolder(1) + "/" + change.Name;
      if (change.ExistsAfter)
        act(game.Disk(), path, change);
      else
        game.Disk().Remove(path);
    }
  });
}

/// Room that was written before, as a journal's is, and is written again and again.
class OneFile {
 public:
  OneFile() : file_(*disk_, folder_ / "file", true) {
    disk_->WriteAt(file_, 0, Bytes(kRoom));
    disk_->Sync(file_);
  }
  void Keep(ByteSpan bytes) {
    if (end_ + bytes.size() > kRoom) end_ = 0;
    disk_->WriteAt(file_, static_cast<std::int64_t>(end_), bytes);
    disk_->Sync(file_);
    end_ += bytes.size();
  }

 private:
  static constexpr std::size_t kRoom = 16 << 20;
  const test::ScratchFolder folder_;
  const std::unique_ptr<Disk> disk_ = RealDisk();
  const OpenedFile file_;
  std::size_t end_ = 0;
};

/// The bytes that changes write, in whole blocks and with a block to tell what they are.
Bytes BytesOf(const std::vector<FileChange>& changes) {
  Bytes bytes(kJournalBlock);
  for (const FileChange& change : changes)
    for (const JournalRange& range : change.Ranges)
      bytes.insert(bytes.end(), range.Contents.begin(), range.Contents.end());
  bytes.resize(static_cast<std::size_t>(RoundedToBlocks(std::ssize(bytes))));
  return bytes;
}

void BM_BaselineOneSync(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  World world = bench::Played(age);
  world.MarkCommitted();
  OneFile file;
  for (auto _ : state) {
    tools::PlayDay(world, tools::Shows::Auto);
    const Bytes bytes = BytesOf(world.Changes());
    bench::Time(state, [&] { file.Keep(bytes); });
    world.MarkCommitted();
  }
  state.SetLabel(bench::AgeText(age));
}

void BM_Click(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  test::GameOnWorld career(bench::Played(age), RealDisk());
  int turn = 0;
  for (auto _ : state) {
    bench::Click(career.World(), ++turn);
    bench::Time(state, [&] { career.Play.Commit(); });
  }
  state.SetLabel(bench::AgeText(age));
}

void BM_ClickBaselineOneSync(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  World world = bench::Played(age);
  world.MarkCommitted();
  OneFile file;
  int turn = 0;
  for (auto _ : state) {
    bench::Click(world, ++turn);
    const Bytes bytes = BytesOf(world.Changes());
    bench::Time(state, [&] { file.Keep(bytes); });
    world.MarkCommitted();
  }
  state.SetLabel(bench::AgeText(age));
}

/// Each of the five records read and written back in the file under an opening and a sync of its
/// own.
void BM_ClickBaseline(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  const auto disk = RealDisk();
  const test::ScratchFolder folder;
  World world = bench::Played(age);
  const RecordLayout& layout = LayoutOf<Worker>();
  const std::string path = folder / std::string(layout.File);
  for (const NewFile& file : FilesOf(world))
    if (file.Name == layout.File) WriteFile(*disk, path, file.Contents);
  const int count = world.Workers().Count(), step = std::max(1, count / 5);
  Bytes record(static_cast<std::size_t>(layout.Size));
  for (auto _ : state)
    bench::Time(state, [&] {
      for (int number = 1; number <= count; number += step) {
        const OpenedFile file(*disk, path, true);
        const std::int64_t at = static_cast<std::int64_t>(number - 1) * layout.Size;
        disk->ReadAt(file, at, record);
        disk->WriteAt(file, at, record);
        disk->Sync(file);
      }
    });
  state.SetLabel(bench::AgeText(age));
}

void BM_BaselineSyncEachFile(benchmark::State& state) {
  KeepFiles(state, [](Disk& disk, const std::string& path, const FileChange& change) {
    const OpenedFile file(disk, path, true);
    for (const JournalRange& range : change.Ranges)
      disk.WriteAt(file, range.Offset, range.Contents);
    disk.Resize(file, std::ssize(change.After));
    disk.Sync(file);
  });
}

void BM_BaselineReplaceEachFile(benchmark::State& state) {
  KeepFiles(state, [](Disk& disk, const std::string& path, const FileChange& change) {
    WriteFile(disk, path, change.After);
  });
}

void Ages(benchmark::internal::Benchmark* figure) {
  for (const int age : {bench::kNew, bench::kTenYears, bench::kTwentyYears}) figure->Arg(age);
  figure->Unit(benchmark::kMicrosecond)->UseManualTime();
}
BENCHMARK(BM_Commit)->Apply(Ages)->Iterations(kDays);
BENCHMARK(BM_CommitUnsynced)->Apply(Ages)->Iterations(kDays);
BENCHMARK(BM_BaselineOneSync)->Apply(Ages)->Iterations(kDays);
BENCHMARK(BM_Click)->Apply(Ages)->Iterations(200);
BENCHMARK(BM_ClickBaseline)->Apply(Ages)->Iterations(200);
BENCHMARK(BM_ClickBaselineOneSync)->Apply(Ages)->Iterations(200);
BENCHMARK(BM_BaselineSyncEachFile)->Apply(Ages)->Iterations(kDays);
BENCHMARK(BM_BaselineReplaceEachFile)->Apply(Ages)->Iterations(kDays);

/// Left cleanly, or killed with days in the journal that are to be replayed.
void BM_OpenSlot(benchmark::State& state) {
  const auto disk = RealDisk();
  const test::ScratchFolder home;
  const World played = bench::Played(bench::kTenYears);
  for (auto _ : state) {
    World world = test::CopyOf(played);
    Slot::Create(*disk, home / "s1", FilesOf(world), 1);
    {
      Slot slot(*disk, home / "s1", KnownFiles());
      for (int day = 0; day < state.range(0); ++day) {
        tools::PlayDay(world, tools::Shows::Auto);
        slot.Commit(world.Changes());
        world.MarkCommitted();
      }
    }
    bench::Time(state, [&] {
      const Slot slot(*disk, home / "s1", KnownFiles());
      benchmark::DoNotOptimize(slot.Files());
    });
  }
  state.SetLabel(state.range(0) == 0 ? "left cleanly" : "killed");
}
BENCHMARK(BM_OpenSlot)
    ->Arg(0)
    ->Arg(5)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(20);

void BM_CreateSlot(benchmark::State& state) {
  const auto disk = RealDisk();
  const test::ScratchFolder home;
  const auto files = FilesOf(bench::Played(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    RemoveTree(*disk, home / "s1");
    bench::Time(state, [&] { Slot::Create(*disk, home / "s1", files, 1); });
  }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}

/// The same files written one by one, each synced.
void BM_CreateSlotBaseline(benchmark::State& state) {
  const auto disk = RealDisk();
  const test::ScratchFolder home;
  const auto files = FilesOf(bench::Played(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    RemoveTree(*disk, home / "s1");
    bench::Time(state, [&] {
      disk->MakeFolder(home / "s1");
      for (const NewFile& made : files) {
        const OpenedFile file(*disk, home / ("s1/" + made.Name), true);
        disk->WriteAt(file, 0, made.Contents);
        disk->Sync(file);
      }
    });
  }
  state.SetLabel(bench::AgeText(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_CreateSlot)->Apply(Ages)->Iterations(20);
BENCHMARK(BM_CreateSlotBaseline)->Apply(Ages)->Iterations(20);

}  // namespace
}  // namespace grapplemont
