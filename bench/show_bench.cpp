#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench/worlds.h"
#include "booking/autobooker.h"
#include "records/disk.h"
#include "records/segments.h"
#include "report/linememory.h"
#include "show/holdshow.h"

// A whole Event from its first bell to its close, with prose and without, beside a baseline: the
// same reads and writes made by opening the file for each record, every time.

namespace grapplemont {
namespace {

constexpr Day kEventDay{std::chrono::year{2026} / 3 / 29};

/// The default world with an Event's card of the auto booker on the sheet.
World BookedWorld(bool large) {
  World world = bench::StartedWorld(large, kEventDay);
  const AutoCard card = AutoBook(world, true, kEventRows);
  world.Segments().Rewrite(card.Rows);
  world.MarkCommitted();
  return world;
}

void HoldEvents(benchmark::State& state, LineMemory* memory) {
  World world = BookedWorld(state.range(0) != 0);
  int booked = 0;
  for (const Segment& segment : world.Segments()) booked += segment.Kind != kEmptySegment;
  for (auto _ : state) {
    state.PauseTiming();
    world.Rollback();
    state.ResumeTiming();
    benchmark::DoNotOptimize(HoldShow(world, true, {}, 0, memory));
  }
  state.SetLabel(std::to_string(booked) + " Segments" +
                 (state.range(0) ? ", largest world" : ", default world"));
}

void BM_Event(benchmark::State& state) {
  HoldEvents(state, nullptr);
}
BENCHMARK(BM_Event)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void BM_EventWithProse(benchmark::State& state) {
  LineMemory memory;
  HoldEvents(state, &memory);
}
BENCHMARK(BM_EventWithProse)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

/// The files of a world, each record of which is reached by opening its file.
class RecordFiles {
 public:
  explicit RecordFiles(const World& world)
      : folder_((std::filesystem::temp_directory_path() / "grapplemont-bench-show").string()) {
    RemoveTree(*disk_, folder_);
    disk_->MakeFolder(folder_);
    for (const NewFile& file : FilesOf(world))
      WriteFile(*disk_, folder_ + "/" + file.Name, file.Contents);
  }
  ~RecordFiles() { RemoveTree(*disk_, folder_); }
  RecordFiles(const RecordFiles&) = delete;
  RecordFiles& operator=(const RecordFiles&) = delete;

  template <class T>
  void Touch(int number, bool writes) {
    const auto file = disk_->Open(Path<T>(), false);
    Reach<T>(file, number, writes);
    disk_->Close(file);
  }
  /// Each record in turn under one opening of the file.
  template <class T>
  void Walk(bool writes = false) {
    const auto file = disk_->Open(Path<T>(), false);
    const auto count = disk_->Size(file) / static_cast<std::int64_t>(sizeof(T));
    for (int number = 1; number <= count; ++number) Reach<T>(file, number, writes);
    disk_->Close(file);
  }

 private:
  template <class T>
  std::string Path() const {
    return folder_ + "/" + std::string(LayoutOf<T>().File);
  }
  template <class T>
  void Reach(Disk::Handle file, int number, bool writes) {
    T record;
    const auto at = (number - 1) * static_cast<std::int64_t>(sizeof(T));
    disk_->ReadAt(file, at, std::as_writable_bytes(std::span(&record, 1)));
    benchmark::DoNotOptimize(record);
    if (writes) disk_->WriteAt(file, at, std::as_bytes(std::span(&record, 1)));
  }

  std::unique_ptr<Disk> disk_ = RealDisk();
  std::string folder_;
};

/// How often the steps of a Segment go to each of its people, and through the feuds' slots.
struct Visits {
  int Reads, Writes, Feuds;
};
// A match: shape, score, drawing power, selling, stiffness; wear, joy, result, injury; lift, heat,
// marks, win, attacks, end. Talk: score; Over; lift, heat, tally.
constexpr Visits kMatchVisits{5, 4, 6}, kTalkVisits{1, 1, 3};

void RunFromFiles(RecordFiles& files, const World& world, const Segment& segment, int number) {
  files.Touch<Segment>(number, true);
  const bool isMatch = segment.Kind == kMatch;
  const Visits& visits = isMatch ? kMatchVisits : kTalkVisits;
  for (const int uid : PeopleOf(segment)) {
    const int record = world.Workers().NumberOf(*world.FindWorker(uid));
    for (int i = 0; i < visits.Reads; ++i) files.Touch<Worker>(record, false);
    for (int i = 0; i < visits.Writes; ++i) files.Touch<Worker>(record, true);
  }
  for (int i = 0; i < visits.Feuds; ++i) files.Walk<Feud>();
  if (isMatch && segment.Style == kTag)  // chemistry, experience
    for (const bool writes : {false, true}) files.Walk<Team>(writes);
  if (!(segment.TitleName == "None"))  // the champion, the change, the image
    for (int i = 0; i < 3; ++i) files.Walk<Title>(i > 0);
  if (segment.Kind == kAngle) files.Walk<Staff>();  // the writers
  if (!isMatch) files.Walk<Stable>();
}

/// Everybody is looked up on the whole sheet.
void CloseFromFiles(RecordFiles& files, const World& world) {
  for (const Worker& worker : world.Workers()) {
    const bool isOwn = worker.Employer == world.PlayerUid();
    files.Touch<Worker>(world.Workers().NumberOf(worker), isOwn);
    if (isOwn) files.Walk<Segment>();
  }
  files.Walk<Feud>(true);
  files.Walk<Title>(true);
}

void BM_EventBaseline(benchmark::State& state) {
  const World world = BookedWorld(state.range(0) != 0);
  RecordFiles files(world);
  for (auto _ : state) {
    int number = 0;
    for (const Segment& segment : world.Segments())
      if (++number; segment.Kind != kEmptySegment) RunFromFiles(files, world, segment, number);
    CloseFromFiles(files, world);
  }
  state.SetLabel(state.range(0) ? "largest world" : "default world");
}
BENCHMARK(BM_EventBaseline)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond)->Iterations(3);

}  // namespace
}  // namespace grapplemont
