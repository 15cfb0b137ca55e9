#include "futures/jobs.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "records/fields/wording.h"

namespace grapplemont {

int CoresHere() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

std::string ProgressText(const Progress& progress, std::string_view what) {
  std::string text = std::to_string(progress.Done) + " of " + std::to_string(progress.Of) + " " +
                     std::string(what);
  if (progress.Done == progress.Of || progress.SecondsLeft < 0) return text;
  constexpr double kMinutesFrom = 120;
  const double left = progress.SecondsLeft;
  return text + ", about " +
         (left < kMinutesFrom ? Counted(std::max(1L, std::lround(left)), "second")
                              : Counted(std::lround(left / 60), "minute")) +
         " left";
}

Jobs::Jobs(int count, int threads, WorkOfThread make) : count_(count), make_(std::move(make)) {
  running_ = std::clamp(threads, 1, std::max(1, count));
  for (int i = running_; i > 0; --i) threads_.emplace_back([this] { Run(stop_.get_token()); });
}

Jobs::~Jobs() {
  Stop();
}

void Jobs::Stop() {
  stop_.request_stop();
}

Progress Jobs::Now() const {
  const std::lock_guard hold(lock_);
  Progress progress{done_, count_};
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began_;
  if (done_ > 0) progress.SecondsLeft = took.count() / done_ * (count_ - done_);
  return progress;
}

bool Jobs::Over() const {
  const std::lock_guard hold(lock_);
  return running_ == 0;
}

bool Jobs::WaitFor(std::chrono::milliseconds most) {
  std::unique_lock hold(lock_);
  const bool over = ended_.wait_for(hold, most, [this] { return running_ == 0; });
  if (over && failure_) std::rethrow_exception(failure_);
  return over;
}

int Jobs::Take(const std::stop_token& stop) {
  const std::lock_guard hold(lock_);
  return stop.stop_requested() || taken_ == count_ ? 0 : ++taken_;
}

void Jobs::Fail(int number) {
  const std::lock_guard hold(lock_);
  if (!failure_ || number < failedAt_) {
    failedAt_ = number;
    failure_ = std::current_exception();
  }
  stop_.request_stop();
}

void Jobs::Run(const std::stop_token& stop) {
  int number = std::numeric_limits<int>::max();  // while the work is made
  try {
    const Work work = make_();
    while ((number = Take(stop)) != 0) {
      work(number, stop);
      const std::lock_guard hold(lock_);
      if (!stop.stop_requested()) ++done_;
    }
  } catch (...) {
    Fail(number);
  }
  const std::lock_guard hold(lock_);
  --running_;
  ended_.notify_all();
}

void RunJobs(int count, int threads, Jobs::WorkOfThread make,
             const std::function<void(const Progress&)>& tell) {
  constexpr std::chrono::milliseconds kBetween(200);
  if (count < 1) return;
  Jobs jobs(count, threads, std::move(make));
  while (!jobs.WaitFor(kBetween))
    if (tell) tell(jobs.Now());
}

}  // namespace grapplemont
