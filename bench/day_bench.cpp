#include <benchmark/benchmark.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "bench/walks.h"
#include "bench/worlds.h"
#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "records/fields/fields.h"
#include "report/report.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"
#include "tools/officework.h"
#include "ui/game.h"

// The day and the new game, each beside a baseline: for each walk that the steps make, the file is
// opened, and every record read, and written back where the step writes.

namespace grapplemont {
namespace {

using std::chrono::year;

/// The days the figures are for.
enum Morning { kPlain, kMonday, kFirst };
struct Example {
  const char* Text;
  Day Date;
};
constexpr Example kMornings[] = {{"plain day", year{2026} / 3 / 4},
                                 {"Monday", year{2026} / 3 / 9},
                                 {"first of a month", year{2026} / 4 / 1}};

bool IsLike(Day day, Day example) {
  return IsMonday(day) == IsMonday(example) && IsFirstOfMonth(day) == IsFirstOfMonth(example);
}

/// Holds the player's show where there is one, so that the day can end; false where none can be
/// held.
bool EndEvening(World& world) {
  world.Session.ShowRating = 0;
  world.Session.ShowFlag = 0;
  const DayKind kind = DayKindToday(world, [] { return true; });
  LineMemory memory;
  return kind == DayKind::Plain || HoldAutoShow(world, kind == DayKind::Event, &memory);
}

const std::vector<std::vector<std::int64_t>> kAgesAndMornings = {
    {bench::kNew, bench::kTenYears, bench::kTwentyYears, bench::kLargest, bench::kSmall,
     bench::kMiddle},
    {kPlain, kMonday, kFirst}};

/// The evenings before the next mornings of the kind, their shows held.
std::vector<bench::FreshWorld> Evenings(int age, int morning, int count) {
  World world = bench::Played(age);
  std::vector<bench::FreshWorld> found;
  while (std::ssize(found) < count) {
    World evening = test::CopyOf(world);
    if (IsLike(world.Today() + std::chrono::days{1}, kMornings[morning].Date) &&
        EndEvening(evening))
      found.emplace_back(std::move(evening));
    tools::PlayDay(world, tools::Shows::Auto);
  }
  return found;
}

void BM_Day(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0)), morning = static_cast<int>(state.range(1));
  // Shows come on days of their own: a plain day is the mean of several.
  auto evenings = Evenings(age, morning, morning == kPlain ? 5 : 1);
  std::size_t round = 0;
  for (auto _ : state) {
    World& world = evenings[round++ % evenings.size()].Again();
    bench::Time(state, [&] { AdvanceDay(world, false); });
  }
  state.SetLabel(std::string(kMornings[morning].Text) + ", " + bench::AgeText(age));
}
BENCHMARK(BM_Day)
    ->ArgsProduct(kAgesAndMornings)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(100);

/// A plain day's routines and their commit, which nothing syncs.
void BM_DayWithCommit(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  test::GameOnWorld career(bench::Played(age), RealDisk(Syncs::None));
  World& world = career.World();
  const auto isPlain = [&] {
    return IsLike(world.Today() + std::chrono::days{1}, kMornings[kPlain].Date) &&
           DayKindToday(world, [] { return true; }) == DayKind::Plain;
  };
  for (auto _ : state) {
    while (!isPlain()) {
      tools::PlayDay(world, tools::Shows::Auto);
      career.Play.Commit();
    }
    bench::Time(state, [&] {
      AdvanceDay(world, false);
      career.Play.Commit();
    });
  }
  state.SetLabel(bench::AgeText(age));
}
BENCHMARK(BM_DayWithCommit)
    ->ArgsProduct({kAgesAndMornings[0]})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(100);

/// The first day of a new game, on which rivals cut or fill their rosters.
void BM_FirstDay(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  bench::FreshWorld evening(bench::StartedWorld(size, bench::kSomeDay));
  for (auto _ : state) {
    World& world = evening.Again();
    bench::Time(state, [&] { AdvanceDay(world, false); });
  }
  state.SetLabel(bench::SizeText(size));
}
BENCHMARK(BM_FirstDay)
    ->DenseRange(bench::kDefaultSize, bench::kMiddleSize)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(20);

void BM_DayBaseline(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  const Example& morning = kMornings[state.range(1)];
  const bench::WorldInFiles files(bench::Played(age));
  const auto walks = bench::WalksOf(morning.Date);
  for (auto _ : state) files.Go(walks);
  state.SetLabel(std::string(morning.Text) + ", " + bench::AgeText(age));
}
BENCHMARK(BM_DayBaseline)
    ->ArgsProduct(kAgesAndMornings)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime()
    ->Iterations(5);

/// The same bytes moved from memory to memory.
void BM_DayLimit(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  const Example& morning = kMornings[state.range(1)];
  bench::WorldInMemory bytes(bench::Played(age));
  const auto walks = bench::WalksOf(morning.Date);
  for (auto _ : state) bytes.Go(walks);
  state.SetLabel(std::string(morning.Text) + ", " + bench::AgeText(age));
}
BENCHMARK(BM_DayLimit)->ArgsProduct(kAgesAndMornings)->Unit(benchmark::kMicrosecond);

/// A step on the world as the steps before it leave it.
void BM_Step(benchmark::State& state, Step step, int morning) {
  bench::FreshWorld before = std::move(Evenings(bench::kTenYears, morning, 1).front());
  World& evening = before.Again();
  AdvanceDay(evening, false, [&](std::string_view next) {
    if (next == step.Name) evening.MarkCommitted();
  });
  for (auto _ : state) {
    World& world = before.Again();
    bench::Time(state, [&] { step.Run(world); });
  }
}

const bool kStepsRegistered = [] {
  const std::pair<std::span<const Step>, int> kBlocks[] = {{kDayBlocks.Daily, kPlain},
                                                           {kDayBlocks.Monday, kMonday},
                                                           {kDayBlocks.FirstOfMonth, kFirst},
                                                           {kDayBlocks.Closing, kPlain}};
  for (const auto& [steps, morning] : kBlocks)
    for (const Step& step : steps)
      benchmark::RegisterBenchmark(("BM_Step/" + InWords(step.Name)).c_str(), BM_Step, step,
                                   morning)
          ->Unit(benchmark::kMicrosecond)
          ->UseManualTime()
          ->Iterations(100);
  return true;
}();

void BM_NewGame(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  bench::FreshWorld data(bench::DataWorld(size));
  for (auto _ : state) {
    World& world = data.Again();
    bench::Time(state, [&] { bench::Begin(world, bench::kSomeDay); });
  }
  state.SetLabel(bench::SizeText(size));
}
BENCHMARK(BM_NewGame)
    ->DenseRange(bench::kDefaultSize, bench::kMiddleSize)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(20);

void BM_NewGameBaseline(benchmark::State& state) {
  const int size = static_cast<int>(state.range(0));
  World world = bench::DataWorld(size);
  const bench::WorldInFiles files(world);
  std::vector<bench::Walk> walks;
  bench::Begin(world, bench::kSomeDay, [&](std::string_view step) {
    std::ranges::copy(bench::WalksOf(step), std::back_inserter(walks));
  });
  for (auto _ : state) files.Go(walks);
  state.SetLabel(bench::SizeText(size));
}
BENCHMARK(BM_NewGameBaseline)
    ->DenseRange(bench::kDefaultSize, bench::kMiddleSize)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime()
    ->Iterations(5);

}  // namespace
}  // namespace grapplemont
