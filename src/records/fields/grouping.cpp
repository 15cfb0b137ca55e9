#include "records/fields/grouping.h"

#include <cstddef>

namespace grapplemont {

std::string Grouped(long long number) {
  std::string digits = std::to_string(number);
  const std::size_t sign = number < 0 ? 1 : 0;
  for (std::size_t place = digits.size(); place > sign + 3;) digits.insert(place -= 3, ",");
  return digits;
}

}  // namespace grapplemont
