#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "futures/jobs.h"
#include "records/world.h"
#include "tools/tool.h"

// Commands that play many worlds, one a thread at a time. What they say does not depend on how many
// threads there are.

namespace grapplemont::tools {

inline constexpr OptionKind kJobsOption{"--jobs", "N"};
/// As many as the option says, else as the machine has cores.
int ThreadsOf(const Arguments& arguments);

/// The line of a terminal that says how far something is; it goes when this does.
class ProgressLine {
 public:
  explicit ProgressLine(Shell& shell) : shell_(shell) {}
  ~ProgressLine() { Clear(); }
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  void Tell(const std::string& text);
  void Clear();

 private:
  Shell& shell_;
  bool stands_ = false;
};

struct ManyWorlds {
  int Count;
  int Threads;
  const char* Called;  // "worlds"
};

/// Calls `play(world, number)` for 1 to Count in threads, with a world of the thread's own that
/// holds whatever it was left with; and `take`, here and in the order of the numbers, with what
/// each gave, as soon as all before it are through. Requires that `play` gives the same whatever
/// the world was before.
template <class Result>
void PlayInOrder(Shell& shell, const ManyWorlds& worlds,
                 const std::function<Result(World& world, int number)>& play,
                 const std::function<void(const Result&)>& take) {
  std::mutex lock;
  std::vector<std::unique_ptr<Result>> results(static_cast<std::size_t>(worlds.Count));
  std::size_t taken = 0;
  ProgressLine line(shell);
  const auto makeWork = [&]() -> Jobs::Work {
    return [&, world = std::make_shared<World>()](int number, const std::stop_token&) {
      auto result = std::make_unique<Result>(play(*world, number));
      const std::lock_guard hold(lock);
      results[static_cast<std::size_t>(number - 1)] = std::move(result);
    };
  };
  const auto takeAll = [&] {
    const std::lock_guard hold(lock);
    for (; taken < results.size() && results[taken]; ++taken) {
      line.Clear();
      take(*results[taken]);
      results[taken].reset();
    }
  };
  RunJobs(worlds.Count, worlds.Threads, makeWork, [&](const Progress& progress) {
    takeAll();
    line.Tell(ProgressText(progress, worlds.Called));
  });
  takeAll();
}

}  // namespace grapplemont::tools
