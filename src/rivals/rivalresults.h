#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What anybody can read of the shows that rivals held.

namespace grapplemont {

/// A show and its card.
struct RivalShow {
  Day On;
  int Is = kUnseenTv;  // UnseenShow
  std::string Name;
  int Draw = kNoEnd;                           // percent; kNoEnd where nobody measured it
  int Viewers = 0;                             // hundredths: a rating, or a buy rate
  int People = 0;                              // 0 where nobody counted
  std::vector<const CardMatch*> Matches = {};  // the main event last
};
/// Those whose cards are kept, the latest first.
std::vector<RivalShow> RivalShowsOf(const World& world, int promotionUid);

/// "Television", "Event", "House show".
std::string_view UnseenShowText(int show);
/// "Bram Okafor beat Ilya Marsh to win the CWA Crown", without a full stop.
std::string MatchLine(const World& world, const CardMatch& match);
/// The match in the player's voice, the same whenever it is read; empty where somebody who was in
/// it has left the business.
std::string TellMatch(World& world, const CardMatch& match);

}  // namespace grapplemont
