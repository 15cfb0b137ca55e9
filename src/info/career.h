#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The player's career as the game's record and the past tell it.

namespace grapplemont {

/// "Respected" and so on, for a standing of 0 to 100.
std::string ReputationText(int reputation);

/// One of the player's jobs. The present one has no end: size and image are today's.
struct JobLine {
  std::string Promotion;
  Day From{}, To{};  // To is today for the present job, else the day on which the next began
  bool Present = false;
  int StartSize = 0, StartImage = 0, EndSize = 0, EndImage = 0;
};
/// The present job first; empty places are left out.
std::vector<JobLine> CareerOf(const World& world);

/// What the player has done in the present job, by the history.
struct JobRecord {
  int Shows = 0, Events = 0, CalledOff = 0;
  int MeanRating = 0;  // of the shows and Events that were held, floored
  std::string BestShow;
  int BestRating = 0;
  int Months = 0;
  long long Profit = 0;  // dollars, of the months that are closed
};
JobRecord RecordOfJob(const World& world);

}  // namespace grapplemont
