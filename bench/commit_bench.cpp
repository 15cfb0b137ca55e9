#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <string>

#include "records/slot.h"

// A commit of so many kilobytes over twelve files, beside what a program without a journal does for
// it: each file written in place and synced (a power cut leaves anything), each file replaced by a
// synced copy (a power cut leaves old files beside new ones). TMPDIR says which disk is measured.

namespace grapplemont {
namespace {

constexpr int kFiles = 12;
constexpr std::size_t kFileBytes = 160 * 1024;
constexpr std::int64_t kBlock = 4096;

/// Twelve files, and the same twelve with a part of each changed, to go back and forth between.
class Event {
 public:
  explicit Event(std::int64_t kilobytes) {
    const auto blocks = static_cast<std::size_t>(kilobytes * 1024 / kBlock);
    for (int i = 0; i < kFiles; ++i) {
      names_[Index(i)] = "file" + std::to_string(i) + ".dat";
      contents_[0][Index(i)] = Bytes(kFileBytes, static_cast<std::byte>(i));
      contents_[1][Index(i)] = contents_[0][Index(i)];
    }
    constexpr std::size_t kStep = 2 * kBlock;  // scattered: no two blocks side by side
    for (std::size_t block = 0; block < blocks; ++block)
      contents_[1][block % kFiles][block / kFiles * kStep % kFileBytes] = std::byte{0xff};
  }

  std::vector<KnownFile> Known() const {
    std::vector<KnownFile> known;
    for (const std::string& name : names_) known.push_back({name, kFileBytes});
    return known;
  }
  std::vector<NewFile> Files() const {
    std::vector<NewFile> files;
    for (int i = 0; i < kFiles; ++i) files.push_back({names_[Index(i)], contents_[0][Index(i)]});
    return files;
  }
  /// What the next step changes.
  std::vector<FileChange> Next() {
    const auto &before = contents_[at_], &after = contents_[1 - at_];
    at_ = 1 - at_;
    std::vector<FileChange> changes;
    for (int i = 0; i < kFiles; ++i)
      if (before[Index(i)] != after[Index(i)])
        changes.push_back({names_[Index(i)], true, true, before[Index(i)], after[Index(i)]});
    return changes;
  }

 private:
  static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
  std::array<std::string, kFiles> names_;
  std::array<std::array<Bytes, kFiles>, 2> contents_;
  std::size_t at_ = 0;
};

/// A slot that is made for a run and removed after it.
class BenchSlot {
 public:
  BenchSlot(Disk& disk, const Event& event)
      : disk_(disk),
        folder_((std::filesystem::temp_directory_path() / "grapplemont-commit-bench").string()) {
    Slot::Create(disk_, folder_, event.Files(), 1);
  }
  ~BenchSlot() {
    RemoveTree(disk_, folder_);
    RemoveTree(disk_, folder_ + ".lock");
  }
  BenchSlot(const BenchSlot&) = delete;
  BenchSlot& operator=(const BenchSlot&) = delete;
  const std::string& Folder() const { return folder_; }

 private:
  Disk& disk_;
  std::string folder_;
};

void CommitThroughTheJournal(benchmark::State& state, Syncs syncs) {
  const auto disk = RealDisk(syncs);
  Event event(state.range(0));
  const BenchSlot made(*disk, event);
  Slot slot(*disk, made.Folder(), event.Known());
  for (auto _ : state) {
    state.PauseTiming();
    const auto changes = event.Next();
    state.ResumeTiming();
    slot.Commit(changes);
  }
  slot.Checkpoint();
}

void BM_Commit(benchmark::State& state) {
  CommitThroughTheJournal(state, Syncs::Real);
}
void BM_CommitUnsynced(benchmark::State& state) {
  CommitThroughTheJournal(state, Syncs::None);
}

void BM_BaselineSyncEachFile(benchmark::State& state) {
  const auto disk = RealDisk();
  Event event(state.range(0));
  const BenchSlot made(*disk, event);
  for (auto _ : state) {
    state.PauseTiming();
    const auto changes = event.Next();
    state.ResumeTiming();
    for (const FileChange& change : changes) {
      const OpenedFile file(*disk, made.Folder() + "/" + change.Name, false);
      for (const JournalRange& range : ChangedRanges(change.Before, change.After))
        disk->WriteAt(file, range.Offset, range.Contents);
      disk->Sync(file);
    }
  }
}

void BM_BaselineReplaceEachFile(benchmark::State& state) {
  const auto disk = RealDisk();
  Event event(state.range(0));
  const BenchSlot made(*disk, event);
  for (auto _ : state) {
    state.PauseTiming();
    const auto changes = event.Next();
    state.ResumeTiming();
    for (const FileChange& change : changes)
      WriteFile(*disk, made.Folder() + "/" + change.Name, change.After);
  }
}

/// Left cleanly, or killed with kilobytes in the journal that are to be replayed.
void BM_OpenSlot(benchmark::State& state) {
  const auto disk = RealDisk();
  Event event(400);
  const BenchSlot made(*disk, event);
  for (auto _ : state) {
    state.PauseTiming();
    {
      Slot slot(*disk, made.Folder(), event.Known());
      for (std::int64_t kilobytes = 400; kilobytes <= state.range(0); kilobytes += 400)
        slot.Commit(event.Next());
      if (state.range(0) == 0) slot.Checkpoint();
    }
    state.ResumeTiming();
    const Slot slot(*disk, made.Folder(), event.Known());
    benchmark::DoNotOptimize(slot.Files());
  }
  state.SetLabel(state.range(0) == 0 ? "left cleanly" : "killed");
}

void BM_CreateSlot(benchmark::State& state) {
  const auto disk = RealDisk();
  const Event event(20);
  const BenchSlot made(*disk, event);
  for (auto _ : state) Slot::Create(*disk, made.Folder(), event.Files(), 1);
}

void Kilobytes(benchmark::internal::Benchmark* bench) {
  for (const std::int64_t kilobytes : {20, 100, 400}) bench->Arg(kilobytes);
  bench->Unit(benchmark::kMicrosecond)->UseRealTime();
}
BENCHMARK(BM_Commit)->Apply(Kilobytes);
BENCHMARK(BM_CommitUnsynced)->Apply(Kilobytes);
BENCHMARK(BM_BaselineSyncEachFile)->Apply(Kilobytes);
BENCHMARK(BM_BaselineReplaceEachFile)->Apply(Kilobytes);
BENCHMARK(BM_OpenSlot)->Arg(0)->Arg(2000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BM_CreateSlot)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace grapplemont
