#pragma once

#include <string>
#include <vector>

#include "futures/futures.h"

namespace grapplemont {

/// Everything that the worlds came to, a line a fact, as a table for other programs, in UTF-8.
/// `answers` names the answers in their order.
std::string FuturesAsCsv(const FirstMorning& morning, const std::vector<Day>& days,
                         const std::vector<std::vector<WorldLife>>& lives,
                         const std::vector<std::string>& answers);

}  // namespace grapplemont
