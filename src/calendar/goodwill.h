#pragma once

#include <array>

#include "records/fields/gameinfo.h"

// How the player's show moves the image: what the public thinks of it before it has seen it, by
// the difficulty and the player's reputation, and then by its rating.

namespace grapplemont {

/// The steps before the show in the order in which they are taken; 0 for none.
using Goodwill = std::array<int, 3>;
Goodwill EventGoodwill(const GameInfo& game);
Goodwill TvGoodwill(const GameInfo& game);

/// All that a show of this rating does to the image of a player's promotion of this size.
int WholeEventStep(const GameInfo& game, int size, int rating);
int WholeTvStep(const GameInfo& game, int size, int rating);

}  // namespace grapplemont
