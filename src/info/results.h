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

}  // namespace grapplemont
