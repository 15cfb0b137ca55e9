#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// The Titles that he holds, alone or with a partner.
std::vector<const Title*> TitlesHeldBy(const World& world, int workerUid);
/// What the Titles remember of him, a line a reign: "CWA Crown, since 03 March 2026". Histories go
/// by names, so a reign under a former name is not his.
std::vector<std::string> ReignsOf(const World& world, const Worker& worker);

}  // namespace grapplemont
