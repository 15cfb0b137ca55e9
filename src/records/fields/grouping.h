#pragma once

#include <string>

namespace grapplemont {

/// A whole number as it is read, in threes: "25,000", "-1,200".
std::string Grouped(long long number);

}  // namespace grapplemont
