#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

/// "1 month", "12 months"; `many` is for words that do more than take an s.
std::string Counted(long long count, std::string_view one, std::string_view many = {});
/// "Ann, Bea, Cy".
std::string Joined(const std::vector<std::string>& parts, std::string_view between = ", ");

}  // namespace grapplemont
