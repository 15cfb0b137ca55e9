#pragma once

#include "records/arithmetic.h"
#include "show/ratings.h"

// How many people come to a show. The promotion's standing decides, never the card: a good show
// moves the image, and the image the crowd. Each figure is a base and a draw by size and image;
// then the economy and the price of the tickets have their say.

namespace grapplemont {

/// The promotion's part in a crowd.
struct Gate {
  int Size;
  int TicketPrice;  // dollars
  int Economy;      // 0 to 100
};

// Before the economy and the price. `type` is the Event's, 1 pay-per-view to 4 small; a promotion
// too small for the type draws nobody, and nothing is drawn.
BaseAndDraw EventCrowd(int type, int size, int image);
BaseAndDraw TvCrowd(int size, int image);
/// The people left once the economy and the price have had their say, with the reasons.
Score EventGate(int crowd, const Gate& gate);
Score TvGate(int crowd, const Gate& gate);
/// Draws once. The present image counts, so the show must have moved it before.
Score EventAttendance(World& world, const Promotion& promotion, int type);
Score TvAttendance(World& world, const Promotion& promotion);

/// Whether this many dollars are more than anybody pays at this size.
bool IsNobodysPrice(int size, int ticketPrice);

/// Dollars that putting on an Event of a type costs.
int EventProductionCost(int type);

// How many watch a show from home, in hundredths. The promotion's standing decides, never the card:
// a good show moves the image, and the image the viewers. Each figure is a base and a draw.

/// Pay-per-view, for sizes Global to Regional; 0 below, and nothing is drawn.
BaseAndDraw BuyRateBase(int size, int image);
/// Draws once. The present image counts, so the show must have moved it before.
Score BuyRate(World& world, const Promotion& promotion);
/// Dollars for a buy rate.
int PpvIncome(int buyRate);

BaseAndDraw TvRatingBase(int size, int image);
/// A television show's rating before networks and competitors have their say; the economy moves it
/// but in a backyard. Draws once.
Score TvBaseRating(World& world, int size, int image);

}  // namespace grapplemont
