#pragma once

#include "records/arithmetic.h"

// How many watch a show from home, in hundredths. The promotion's standing decides, never the card:
// a good show moves the image, and the image the viewers. Each figure is a base and a draw.

namespace grapplemont {

/// Pay-per-view, for sizes Global to Regional; 0 below, and nothing is drawn.
BaseAndDraw BuyRateBase(int size, int image);
int BuyRateByEconomy(int rate, int economy);
/// Draws once. The present image counts, so the show must have moved it before.
int BuyRate(World& world, const Promotion& promotion);
/// Dollars for a buy rate.
int PpvIncome(int buyRate);

BaseAndDraw TvRatingBase(int size, int image);
/// A Backyard show has its few viewers in any economy.
int TvRatingByEconomy(int rating, int size, int economy);
/// A television show's rating before networks and competitors have their say. Draws once.
int TvBaseRating(World& world, int size, int image);

}  // namespace grapplemont
