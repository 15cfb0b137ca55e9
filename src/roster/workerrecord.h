#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What the past tells of a worker, in lines.

namespace grapplemont {

/// His matches for each promotion the player has run: "CWA: 12 won, 5 lost, 1 drawn, 4 for a
/// Title. Rated 61% on average."
std::vector<std::string> RecordLines(const World& world, const Worker& worker);
/// His last matches, the latest first, at most so many: "14/03/26: beat Ilya Marsh, 71%".
std::vector<std::string> LastMatchLines(const World& world, const Worker& worker, int most);
/// The awards of the years, the latest first: "Wrestler of the Year 2026".
std::vector<std::string> AwardLines(const World& world, const Worker& worker);

/// The Titles that he holds, alone or with a partner.
std::vector<const Title*> TitlesHeldBy(const World& world, int workerUid);
/// All his reigns, the latest first: "CWA Crown, 03 March 2026 to 12 March 2026 (9 days)". Of a
/// game whose past was not kept yet, what the Titles' own records remember: "CWA Crown, since 03
/// March 2026"; those go by names, so a reign under a former name is not his.
std::vector<std::string> ReignsOf(const World& world, const Worker& worker);

}  // namespace grapplemont
