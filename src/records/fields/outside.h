#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <random>

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

/// The same numbers on every machine for the same seed.
class SeededDraws : public Draws {
 public:
  explicit SeededDraws(std::uint64_t seed) : engine_(seed) {}
  int Draw(int n) override;

 private:
  std::mt19937_64 engine_;
};

/// A seed from the operating system, for a player.
std::uint64_t MachineSeed();

}  // namespace grapplemont
