#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "bench/worlds.h"
#include "records/segments.h"
#include "report/report.h"

// The prose of an Event's eight matches and talks, beside a baseline: the same number of letters
// put together by drawn pieces of text, without a cast, parts or sentences.

namespace grapplemont {
namespace {

/// A working day's card: six matches of several styles, an interview and an angle.
std::vector<Segment> EventCard(const World& world) {
  std::vector<int> people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == world.PlayerUid() && people.size() < 30) people.push_back(worker.Uid);
  for (const Worker& worker : world.Workers())
    if (worker.Employer != world.PlayerUid() && people.size() < 30) people.push_back(worker.Uid);
  struct Booked {
    int Kind, Style, Type;
  };
  constexpr Booked kCard[] = {{kMatch, kSingles, kPlainSingles}, {kMatch, kTag, kPlainTag},
                              {kInterview, kSingleTalk, 0},      {kMatch, kSingles, kHardcore},
                              {kMatch, kFourOnFour, kSurvivor},  {kAngle, 5, 0},
                              {kMatch, kThreeTeams, kTriangle},  {kMatch, kSingles, kIronMan}};
  std::vector<Segment> card;
  for (const Booked& booked : kCard) {
    Segment segment = EmptySegment();
    segment.Kind = booked.Kind;
    segment.Style = booked.Style;
    segment.MatchType = booked.Type;
    segment.Purpose = kHypeMatch;
    for (std::size_t i = 0; i < 8; ++i)
      segment.Worker[i] = people[(i + card.size()) % people.size()];
    segment.Winner = segment.Worker[0];
    const int perSide = booked.Kind == kMatch ? FindMatchStyle(booked.Style)->PerSide : 1;
    segment.Loser = segment.Worker[static_cast<std::size_t>(perSide)];
    segment.Finish = kClean;
    card.push_back(segment);
  }
  return card;
}

std::size_t TellEvent(World& world, const std::vector<Segment>& card) {
  LineMemory memory;
  std::size_t letters = 0;
  for (const Segment& segment : card) letters += WriteReport(world, segment, {}, memory).size();
  return letters;
}

void BM_Report(benchmark::State& state) {
  World world = bench::StartedWorld(bench::kDefaultSize, bench::kSomeDay);
  world.Game().Reporter = static_cast<int>(state.range(0));
  const auto card = EventCard(world);
  std::size_t letters = 0;
  for (auto _ : state) letters += TellEvent(world, card);
  state.SetLabel("Event, " + std::string(VoiceName(static_cast<int>(state.range(0)))));
  state.counters["letters"] = static_cast<double>(letters) /
                              static_cast<double>(std::max<std::int64_t>(1, state.iterations()));
}
BENCHMARK(BM_Report)->DenseRange(kLamplighter, kQvd)->Unit(benchmark::kMicrosecond);

void BM_ReportBaseline(benchmark::State& state) {
  World world = bench::StartedWorld(bench::kDefaultSize, bench::kSomeDay);
  const std::size_t letters = TellEvent(world, EventCard(world));
  constexpr std::string_view kPieces[] = {"Okafor hits a bulldog off the ropes. ",
                                          "Big clothesline from Marsh. ", "1 - 2 - shoulder up. "};
  for (auto _ : state) {
    std::string text;
    while (text.size() < letters) text += kPieces[world.Prose().Draw(3) - 1];
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_ReportBaseline)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace grapplemont
