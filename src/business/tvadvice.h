#pragma once

#include <vector>

#include "business/tvtalks.h"

namespace grapplemont {

/// What Maeve thinks of a show of the player's, box by box.
std::vector<TvRemark> TvAdvice(const World& world, const Show& show, const Network& network);

/// What the network asks of the show, a line each.
std::vector<std::string> NetworkWants(const Promotion& promotion, const Show& show,
                                      const Network& network);

}  // namespace grapplemont
