#pragma once

#include <set>
#include <string>

namespace grapplemont::test {

/// The folder of the checkout; `name` begins with a slash: "/gfx".
std::string Checkout(const std::string& name = "");
/// All names of screens that the program's sources write.
std::set<std::string> ScreenNames();

}  // namespace grapplemont::test
