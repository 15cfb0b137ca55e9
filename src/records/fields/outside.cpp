#include "records/fields/outside.h"

#include <algorithm>
#include <ctime>
#include <random>

namespace grapplemont {

Day MachineToday() {
  using namespace std::chrono;
  const std::time_t now = system_clock::to_time_t(system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  return sys_days{year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday};
}

SeededDraws& SeededDraws::operator=(const SeededDraws& other) {
  seeded_ = other.seeded_;
  at_ = other.at_;
  std::copy_n(other.words_.begin(), seeded_, words_.begin());
  return *this;
}

std::uint64_t SeededDraws::Next() {
  for (const std::size_t wanted = std::min(kWords, at_ + kAhead + 1); seeded_ < wanted; ++seeded_) {
    const std::uint64_t last = words_[seeded_ - 1];
    words_[seeded_] = 6364136223846793005u * (last ^ (last >> 62)) + seeded_;
  }
  constexpr std::uint64_t kLow = 0x7FFFFFFF;
  const std::size_t next = at_ + 1 < kWords ? at_ + 1 : 0;
  const std::size_t ahead = at_ + kAhead < kWords ? at_ + kAhead : at_ + kAhead - kWords;
  const std::uint64_t joined = (words_[at_] & ~kLow) | (words_[next] & kLow);
  std::uint64_t word = words_[ahead] ^ (joined >> 1) ^ (joined & 1 ? 0xB5026F5AA96619E9u : 0);
  words_[at_] = word;
  at_ = next;
  word ^= (word >> 29) & 0x5555555555555555u;
  word ^= (word << 17) & 0x71D67FFFEDA60000u;
  word ^= (word << 37) & 0xFFF7EEE000000000u;
  return word ^ (word >> 43);
}

int SeededDraws::Draw(int n) {
  // A draw is spent even where there is no choice, so that a table that shrinks to one row moves no
  // later result.
  const double uniform = static_cast<double>(Next() >> 11) * 0x1.0p-53;
  return n < 2 ? 1 : static_cast<int>(uniform * n) + 1;
}

std::uint64_t MachineSeed() {
  std::random_device machine;
  return (std::uint64_t{machine()} << 32) | machine();
}

}  // namespace grapplemont
