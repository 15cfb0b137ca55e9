#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace grapplemont {

/// How many threads this machine runs at once, at least one.
int CoresHere();

/// How far work has come.
struct Progress {
  int Done = 0;
  int Of = 0;
  double SecondsLeft = -1;  // below 0: not known yet
};
/// "64 of 100 worlds, about 3 seconds left".
std::string ProgressText(const Progress& progress, std::string_view what);

/// Works through numbers in threads of its own. What is made of a number must not depend on the
/// thread, nor on the numbers before it.
class Jobs {
 public:
  /// Does one number; ends early, in any state, once it is asked to stop.
  using Work = std::function<void(int number, const std::stop_token& stop)>;
  /// Makes the work of a thread, with what that thread keeps from number to number.
  using WorkOfThread = std::function<Work()>;

  /// Begins with 1 and goes on to `count`. `make` is called in the threads.
  Jobs(int count, int threads, WorkOfThread make);
  ~Jobs();  // stops
  Jobs(const Jobs&) = delete;
  Jobs& operator=(const Jobs&) = delete;

  Progress Now() const;
  /// Nothing is done any more: all numbers are through, or it was stopped.
  bool Over() const;
  /// Waits until it is over, or for so long; whether it is over. Throws what the work threw at the
  /// lowest number; whatever threw has stopped all else.
  bool WaitFor(std::chrono::milliseconds most);
  /// Numbers that are being done are given up, no other is begun.
  void Stop();

 private:
  void Run(const std::stop_token& stop);
  int Take(const std::stop_token& stop);  // the next number; 0 for none
  void Fail(int number);

  const int count_;
  const WorkOfThread make_;
  const std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
  mutable std::mutex lock_;  // of all below
  std::condition_variable ended_;
  int taken_ = 0, done_ = 0, running_ = 0;
  int failedAt_ = 0;
  std::exception_ptr failure_;
  std::stop_source stop_;
  std::vector<std::jthread> threads_;  // last: they use all above
};

/// The same from beginning to end; `tell` hears how far it is from time to time.
void RunJobs(int count, int threads, Jobs::WorkOfThread make,
             const std::function<void(const Progress&)>& tell = {});

}  // namespace grapplemont
