#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>

#include "records/world.h"

namespace grapplemont::bench {

inline constexpr Day kSomeDay{std::chrono::year{2026} / 3 / 1};

/// Default data: those that come with the game, the largest that the files may hold, and two sizes
/// that show with them how a figure grows.
enum Size { kDefaultSize, kLargestSize, kSmallSize, kMiddleSize };
World DataWorld(int size);
/// "2,500 workers".
const char* SizeText(int size);
/// Makes a new game of it; `watcher` hears each step's name.
void Begin(World& data, Day start, const std::function<void(std::string_view)>& watcher = {});
World StartedWorld(int size, Day start);

/// The worlds that are played: the default one after some years, and those of other sizes.
enum Age { kNew, kTenYears, kTwentyYears, kLargest, kFiftyYears, kSmall, kMiddle };
/// The world at that age, its shows auto-booked from a fixed seed, and a month older: by then
/// rivals have brought what a new game gave them to the size they want.
World Played(int age);
/// "after 10 years".
const char* AgeText(int age);

/// What a click changes, another mood for five workers far apart: 20 kB of blocks.
void Click(World& world, int turn);

/// A world that each repetition finds as it was, with the same draws before it.
class FreshWorld {
 public:
  explicit FreshWorld(World world) : world_(std::move(world)) { world_.MarkCommitted(); }
  World& Again() {
    world_.Rollback();
    world_.SetChance(std::make_unique<SeededDraws>(1));
    return world_;
  }

 private:
  World world_;
};

/// One repetition of a figure with UseManualTime: the time that the work takes, and nothing else.
template <class Work>
void Time(benchmark::State& state, const Work& work) {
  const auto began = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
  state.SetIterationTime(took.count());
}

}  // namespace grapplemont::bench
