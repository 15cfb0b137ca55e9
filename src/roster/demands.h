#pragma once

#include "records/world.h"

// What a worker wants of a contract.

namespace grapplemont {

/// Whether he wants it in writing, from a promotion of this size.
bool WantsWritten(int size, const Worker& worker);

/// The wage that a worker of the player's wants for staying, thousands of dollars a month.
int RenewalWage(const Worker& worker);

/// What somebody from outside wants for coming.
struct Demands {
  int Position = 0;  // a code of Worker.Position; 0 for an Over that no table knows
  int Months = 12;
  bool Written = true;
  int Wage = 0;  // thousands of dollars a month
  bool CreativeControl = false;
};
/// Of the player's promotion.
Demands ContractDemands(const World& world, const Worker& worker);

}  // namespace grapplemont
