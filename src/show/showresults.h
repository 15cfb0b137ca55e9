#pragma once

#include "records/score.h"
#include "records/world.h"

// What a show brings in: attendance, tickets, buy rates and television ratings, reported by mail.
// The player's and rivals' shows are alike; a rival's mail comes under the mail options.

namespace grapplemont {

/// The promotion's show of this weekday, the first in the file; nullptr for none.
Show* ShowOn(World& world, int promotionUid, Day day);

/// What a show found and what it was worth.
struct ShowTakings {
  int People = 0;
  int Viewers = 0;       // hundredths: a television rating, or a pay-per-view's buy rate
  long long Income = 0;  // dollars, from tickets and pay-per-view
  long long Costs = 0;   // dollars, for an Event's production
};

/// Draws for the buy rate of a pay-per-view, then for the attendance. The image must have moved.
/// `type` is the Event's as it was held: the image may have changed what the next ones will be.
ShowTakings EventReport(World& world, Promotion& promotion, const Event& event, int type);
/// Draws for the rating, once for each competitor, and for the attendance. The image must have
/// moved. Nothing comes of a day without a show or a show without a network.
ShowTakings TvReport(World& world, Promotion& promotion);
/// What shows of other promotions on the same day and in the same slot do to the rating. Draws once
/// for each, in the order of the file. Reports the player's own show alone.
void HeadToHead(World& world, const Show& show, Score& rating);

}  // namespace grapplemont
