#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// The Titles that he holds, alone or with a partner.
std::vector<const Title*> TitlesHeldBy(const World& world, int workerUid);
/// All his reigns, the latest first: "CWA Crown, 03 March 2026 to 12 March 2026 (9 days)". Of a
/// game whose past was not kept yet, what the Titles' own records remember: "CWA Crown, since 03
/// March 2026"; those go by names, so a reign under a former name is not his.
std::vector<std::string> ReignsOf(const World& world, const Worker& worker);

}  // namespace grapplemont
