#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "roster/talks.h"
#include "show/forecast.h"

// The size class that is in sight: what the promotion as it is today would be there. It is tried
// out on a copy of the world; neither the world nor its draws move.

namespace grapplemont {

/// What shows of these ratings do to the image there, with the public's goodwill in it.
struct BandThere {
  int From = 0, To = 0;
  int EventStep = 0, TvStep = 0;
  bool IsExpected = false;  // the middle of the forecast lies in it
};
/// How many who wrestle have earned a place on the card, here and there.
struct PlaceThere {
  int Position = 0;
  int Here = 0, There = 0;
};
/// Somebody who would come to that class and whose first year can be paid from what is in hand.
struct RecruitThere {
  int Uid = 0;
  Demands Wants;
};

struct Prospect {
  int Size = 0;
  bool IsRise = false;
  Forecast Event;  // of a card that the auto booker makes there; 0 to 0 where it cannot fill one
  std::vector<BandThere> Bands;        // the best first
  std::vector<PlaceThere> Places;      // from the main event down
  std::vector<RecruitThere> Recruits;  // better than half the roster; the most popular first
  std::vector<std::string> Facts;      // what else is different there, a line each
  std::vector<std::string> WillLeave;  // the names of those who would sign for it no more
};

/// Of the class that is in sight, else of the one above, and of the one below where there is none.
Prospect ProspectOf(const World& world);

/// "Ready For Cult?", "What Awaits Us At Small".
std::string ProspectTitle(const Prospect& prospect);

}  // namespace grapplemont
