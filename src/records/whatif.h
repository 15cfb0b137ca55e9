#pragma once

#include <functional>
#include <string>

#include "records/world.h"

namespace grapplemont {

/// One answer to a question, as it is given in a copy of the world. Copies are played at the same
/// time, each in a thread of its own: an answer touches nothing but the world that it is handed.
struct Answer {
  std::string Words;                        // "Yes, sign them"
  std::function<void(World& copy)> Give;    // on the first morning; empty for nothing
  std::function<void(World& copy)> Keep{};  // every morning, against the habits; empty for nothing
};

/// A question that a player weighs.
struct WhatIf {
  std::string Question;  // "Sign Bram Okafor for 2 years at $40,000 a month?"
  Answer Yes, No;
  std::string Assumes{};  // what is taken for granted beside the habits: "they agree"
};

}  // namespace grapplemont
