#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// Who has not been seen yet, and how a show can bring them out.

namespace grapplemont {

/// Everybody of the player's who waits for their first appearance, the most popular first.
std::vector<const Worker*> WaitingForDebut(const World& world);

/// A way to bring somebody out.
struct DebutWay {
  std::string Kind;    // "Match" or "Angle"
  std::string How;     // what the wizard calls it
  std::string WhyNot;  // why it cannot be done today; empty when it can
};
/// Every way there is for this worker, on the sheet of an Event or of a television show.
std::vector<DebutWay> WaysToDebut(const World& world, const Worker& worker, bool isEvent);

}  // namespace grapplemont
