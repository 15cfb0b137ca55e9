#include "records/clock.h"

#include <ctime>

namespace grapplemont {

Day MachineToday() {
  using namespace std::chrono;
  const std::time_t now = system_clock::to_time_t(system_clock::now());
  std::tm local{};
  localtime_r(&now, &local);
  return sys_days{year{local.tm_year + 1900} / (local.tm_mon + 1) / local.tm_mday};
}

}  // namespace grapplemont
