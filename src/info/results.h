#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The player's shows looked back upon, as the history and the matches that were kept tell them.

namespace grapplemont {

/// The shows and Events of the player's, held or called off, the latest first. `name` and `year`
/// narrow them; empty and 0 are any.
std::vector<const HistoryEntry*> PastCards(const World& world, std::string_view name = {},
                                           int year = 0);
/// What is there to choose from: names in the order of the alphabet, years the latest first.
std::vector<std::string> NamesOfPastShows(const World& world);
std::vector<int> YearsOfPastShows(const World& world);

/// The matches of the show in the order of the card; none for a show that was called off or lies
/// too far back.
std::vector<const HeldMatch*> MatchesOf(const World& world, const HistoryEntry& show);
/// "Bram Okafor beat Ilya Marsh".
std::string ResultText(const HeldMatch& match);
/// "1 vs 1, Ladder"; "Royal Rumble"; the dark match says so.
std::string KindText(const HeldMatch& match);
/// What the shows add up to: "12 shows held, 1 called off. Rated 61% on average, 45200 people in
/// all."
std::string SumOf(const std::vector<const HistoryEntry*>& shows);

/// The years that awards were given in, the latest first.
std::vector<int> YearsOfAwards(const World& world);
/// `year` and `kind` narrow them; 0 is any. The latest year first, in it by kind.
std::vector<const YearAward*> AwardsOf(const World& world, int year, int kind);

// The player's career as the game's record and the past tell it.

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
