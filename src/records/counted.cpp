#include "records/counted.h"

namespace grapplemont {

std::string Counted(long long count, std::string_view one, std::string_view many) {
  std::string text = std::to_string(count) + " ";
  if (count == 1 || many.empty()) text += one;
  if (count != 1) text += many.empty() ? "s" : many;
  return text;
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

}  // namespace grapplemont
