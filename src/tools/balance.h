#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont::tools {

/// What a month brings in and costs, in dollars.
struct MonthMoney {
  long long TvTickets = 0;
  long long EventTickets = 0;
  long long HouseShows = 0;  // a rival's
  long long PayPerView = 0;
  long long Merchandise = 0;
  long long Sponsors = 0;

  long long WorkerWages = 0;
  long long StaffWages = 0;
  long long Production = 0;
  long long Events = 0;  // putting them on
  long long Advertising = 0;
  long long Merchandising = 0;

  long long Income() const;
  long long Costs() const;
  /// What it costs to earn a hundred dollars.
  int CostsPerHundred() const;
};

/// The workers of a promotion in one place on the card.
struct PlaceOnCard {
  int Position;
  int Workers;
  int MeanOver;  // rounded
};

struct PromotionBalance {
  const Promotion* Of;
  std::vector<PlaceOnCard> Card;  // in the order of screens; places without workers left out
  MonthMoney AsPlayers;           // with the spending that its record has
  MonthMoney AsRival;             // with the spending and the sponsors of a rival
};

/// An average month of every promotion of a world: an even economy, fair ticket prices, crowds at
/// their mean. A player has four sponsors of mean pay out of those who would come, a rival those
/// who sign on the first day.
std::vector<PromotionBalance> BalanceOf(const World& world);

}  // namespace grapplemont::tools
