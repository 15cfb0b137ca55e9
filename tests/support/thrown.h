#pragma once

#include <exception>
#include <string>

namespace grapplemont::test {

/// What the exception says that the action throws; "nothing" where it throws none.
template <class Fault = std::exception, class Action>
std::string ThrownBy(Action action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "nothing";
}

}  // namespace grapplemont::test
