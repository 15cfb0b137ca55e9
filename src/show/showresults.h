#pragma once

#include "records/world.h"

// What a show brings in: attendance, tickets, buy rates and television ratings, told by mail. The
// player's and rivals' shows are alike; a rival's mail comes under the mail options.

namespace grapplemont {

/// The promotion's show of this weekday, the first in the file; nullptr for none.
Show* ShowOn(World& world, int promotionUid, Day day);

/// Draws for the buy rate of a pay-per-view, then for the attendance. The image must have moved.
/// `type` is the Event's as it was held: the image may have changed what the next ones will be.
void EventReport(World& world, Promotion& promotion, const Event& event, int type);
/// Draws for the rating, once for each competitor, and for the attendance. The image must have
/// moved.
void TvReport(World& world, Promotion& promotion);
/// What shows of other promotions on the same day and in the same slot do to the rating. Draws once
/// for each, in the order of the file. Tells the player about his own show alone.
int HeadToHead(World& world, const Show& show, int rating);

}  // namespace grapplemont
