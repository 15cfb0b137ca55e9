#pragma once

#include <string>

#include "records/world.h"

// Ending the contract of a worker of the player's before its time.

namespace grapplemont {

/// What it costs to buy out a contract, in dollars: by the difficulty, the wage in thousands of
/// dollars a month and the months left. What would be below 0, for want of an end, is half a year
/// of wages.
long long BuyOutCost(int difficulty, int wage, int months);

/// How he would go.
enum class Parting { BuyOut, Verbal, Gladly };
Parting PartingOf(const Worker& worker);
/// What the player is asked before it happens.
std::string TerminationQuestion(const World& world, const Worker& worker);
/// Pays, whatever is in the bank, lets him feel it, and releases him. Draws as ReleaseWorker does.
void Terminate(World& world, Worker& worker);

}  // namespace grapplemont
