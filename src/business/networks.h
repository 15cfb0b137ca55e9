#pragma once

#include <string_view>

#include "records/world.h"

// What a network has to give and what it bears, by the time slots "E", "P", "L", "G".

namespace grapplemont {

/// The rating, in hundredths, that a show in the slot is measured against.
int SlotAudience(const Network& network, std::string_view slot);
/// The highest Promotion.Risk that the slot bears.
int SlotRisk(const Network& network, std::string_view slot);

/// The rating, in hundredths, that a promotion of this standing could draw.
int AudiencePotential(const Promotion& promotion, int economy);
/// Whether every spot of the week is taken; a network with more shows than spots counts as open.
bool IsFull(const World& world, const Network& network);

}  // namespace grapplemont
