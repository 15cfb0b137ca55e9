#pragma once

#include "records/world.h"

// What a show leaves behind with its promotion, whosever it is.

namespace grapplemont {

/// Calling off an Event costs money by its type, and image; a television show image and a strike
/// with its network. An Event's gives the dollars it cost.
int CallOffEvent(World& world, Promotion& promotion, int type);
void CallOffTv(World& world, Promotion& promotion);
/// A network looks at the promotion's show of today: too risky, too poorly produced. Each complaint
/// is a strike, and a mail where it is the player's show.
void CheckShow(World& world, const Promotion& promotion);
/// Each sponsor pays in full for an Event, a quarter (the main one) or a tenth for a television
/// show. Gives the dollars they paid.
long long PayEventSponsors(World& world, Promotion& promotion);
long long PayTvSponsors(World& world, Promotion& promotion);

}  // namespace grapplemont
