#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// A line for each file that has filled nine tenths of what it may hold: long before nobody new can
/// be found. Whoever reads it can still act. Looked at are workers, staff, Tag Teams, stables,
/// Titles, shows, Events, networks and sponsors; of promotions a world may well have as many as it
/// can, and mails and the past make room by themselves.
std::vector<std::string> NearlyFullFiles(const World& world);

}  // namespace grapplemont
