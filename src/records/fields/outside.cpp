#include "records/fields/outside.h"

#include <ctime>

namespace grapplemont {

Day MachineToday() {
  using namespace std::chrono;
  const std::time_t now = system_clock::to_time_t(system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  return sys_days{year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday};
}

int SeededDraws::Draw(int n) {
  // A draw is spent even where there is no choice, so that a table that shrinks to one row moves no
  // later result.
  const double uniform = static_cast<double>(engine_() >> 11) * 0x1.0p-53;
  return n < 2 ? 1 : static_cast<int>(uniform * n) + 1;
}

std::uint64_t MachineSeed() {
  std::random_device machine;
  return (std::uint64_t{machine()} << 32) | machine();
}

}  // namespace grapplemont
