#pragma once

#include <string>

namespace grapplemont::test {

/// The folder of the checkout; `name` begins with a slash: "/gfx".
std::string Checkout(const std::string& name = "");

}  // namespace grapplemont::test
