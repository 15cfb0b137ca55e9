#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>

#include "records/fields/fields.h"

namespace grapplemont {

/// Tells the present day of the world outside; nothing else in the program may ask for it.
using Clock = std::function<Day()>;

/// The machine's own calendar, in local time.
Day MachineToday();

/// Where chance comes from. Every draw of the program goes through one of these.
class Draws {
 public:
  virtual ~Draws() = default;
  /// A whole number from 1 to n, all equally likely; 1 for n under 2.
  virtual int Draw(int n) = 0;
};

/// The same numbers on every machine for the same seed: those of std::mt19937_64. That one works
/// out 624 words before its first number; many streams give two or three and are dropped, so here
/// each number works out what it alone needs.
class SeededDraws : public Draws {
 public:
  explicit SeededDraws(std::uint64_t seed) { words_[0] = seed; }
  SeededDraws(const SeededDraws& other) : Draws() { *this = other; }
  SeededDraws& operator=(const SeededDraws& other);
  int Draw(int n) override;

 private:
  static constexpr std::size_t kWords = 312, kAhead = 156;
  std::uint64_t Next();

  std::size_t seeded_ = 1, at_ = 0;
  std::array<std::uint64_t, kWords> words_;  // the first seeded_ have a value
};

/// A seed from the operating system, for a player.
std::uint64_t MachineSeed();

}  // namespace grapplemont
