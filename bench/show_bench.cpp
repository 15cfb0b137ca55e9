#include <benchmark/benchmark.h>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "booking/auto/autobooker.h"
#include "records/segments.h"
#include "report/report.h"
#include "show/holdshow.h"

// A whole Event from its first bell to its close, with prose and without, beside a baseline: the
// same reads and writes made by opening the file for each record, every time.

namespace grapplemont {
namespace {

constexpr Day kEventDay{std::chrono::year{2026} / 3 / 29};

/// A world with an Event's card of the auto booker on the sheet.
World BookedWorld(int size) {
  World world = bench::StartedWorld(size, kEventDay);
  const AutoCard card = AutoBook(world, true, kEventRows);
  world.Segments().Rewrite(card.Rows);
  return world;
}

void HoldEvents(benchmark::State& state, LineMemory* memory) {
  const int size = static_cast<int>(state.range(0));
  bench::FreshWorld fresh(BookedWorld(size));
  int booked = 0;
  for (const Segment& segment : fresh.Again().Segments()) booked += segment.Kind != kEmptySegment;
  for (auto _ : state) {
    World& world = fresh.Again();
    bench::Time(state, [&] { benchmark::DoNotOptimize(HoldShow(world, true, {}, 0, memory)); });
  }
  state.SetLabel(std::to_string(booked) + " Segments, " + bench::SizeText(size));
}

void Worlds(benchmark::internal::Benchmark* figure) {
  figure->DenseRange(bench::kDefaultSize, bench::kMiddleSize)->Unit(benchmark::kMicrosecond);
  figure->UseManualTime()->Iterations(100);
}

void BM_Event(benchmark::State& state) {
  HoldEvents(state, nullptr);
}
BENCHMARK(BM_Event)->Apply(Worlds);

void BM_EventWithProse(benchmark::State& state) {
  LineMemory memory;
  HoldEvents(state, &memory);
}
BENCHMARK(BM_EventWithProse)->Apply(Worlds);

/// How often the steps of a Segment go to each of its people, and through the feuds' slots.
struct Visits {
  int Reads, Writes, Feuds;
};
// A match: shape, score, drawing power, selling, stiffness; wear, joy, result, injury; lift, heat,
// marks, win, attacks, end. Talk: score; Over; lift, heat, tally.
constexpr Visits kMatchVisits{5, 4, 6}, kTalkVisits{1, 1, 3};

void RunFromFiles(const bench::WorldInFiles& files, const World& world, const Segment& segment,
                  int number) {
  files.Touch(LayoutOf<Segment>(), number, true);
  const bool isMatch = segment.Kind == kMatch;
  const Visits& visits = isMatch ? kMatchVisits : kTalkVisits;
  for (const int uid : PeopleOf(segment)) {
    const int record = world.Workers().NumberOf(*world.FindWorker(uid));
    for (int i = 0; i < visits.Reads; ++i) files.Touch(LayoutOf<Worker>(), record, false);
    for (int i = 0; i < visits.Writes; ++i) files.Touch(LayoutOf<Worker>(), record, true);
  }
  for (int i = 0; i < visits.Feuds; ++i) files.Go({&LayoutOf<Feud>(), false});
  if (isMatch && segment.Style == kTag)  // chemistry, experience
    for (const bool writes : {false, true}) files.Go({&LayoutOf<Team>(), writes});
  if (!(segment.TitleName == "None"))  // the champion, the change, the image
    for (int i = 0; i < 3; ++i) files.Go({&LayoutOf<Title>(), i > 0});
  if (segment.Kind == kAngle) files.Go({&LayoutOf<Staff>(), false});  // the writers
  if (!isMatch) files.Go({&LayoutOf<Stable>(), false});
}

/// Everybody is looked up on the whole sheet.
void CloseFromFiles(const bench::WorldInFiles& files, const World& world) {
  for (const Worker& worker : world.Workers()) {
    const bool isOwn = worker.Employer == world.PlayerUid();
    files.Touch(LayoutOf<Worker>(), world.Workers().NumberOf(worker), isOwn);
    if (isOwn) files.Go({&LayoutOf<Segment>(), false});
  }
  files.Go({&LayoutOf<Feud>(), true});
  files.Go({&LayoutOf<Title>(), true});
}

void BM_EventBaseline(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  const World world = BookedWorld(size);
  const bench::WorldInFiles files(world);
  for (auto _ : state) {
    int number = 0;
    for (const Segment& segment : world.Segments())
      if (++number; segment.Kind != kEmptySegment) RunFromFiles(files, world, segment, number);
    CloseFromFiles(files, world);
  }
  state.SetLabel(bench::SizeText(size));
}
BENCHMARK(BM_EventBaseline)
    ->DenseRange(bench::kDefaultSize, bench::kMiddleSize)
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(3);

}  // namespace
}  // namespace grapplemont
