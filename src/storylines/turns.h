#pragma once

#include <string>

#include "records/world.h"

// Turns in preparation. A booking that turns somebody only works once his turn has been prepared.

namespace grapplemont {

/// Days since his last turn; -1 when he has never turned.
int DaysSinceTurn(const World& world, const Worker& worker);
/// What the fans would make of a turn so soon after the last.
std::string TurnAdvice(const World& world, const Worker& worker);

void PrepareTurn(Worker& worker);
void CallOffTurn(Worker& worker);

}  // namespace grapplemont
