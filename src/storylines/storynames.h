#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// What stables, teams and their like share: names, and who is there to be in them.

namespace grapplemont {

/// As much as the records hold of a name.
inline constexpr int kNameLetters = 25;
/// Why this can be no name at all, of at most `letters`: it is blank, too long, more than a line,
/// or a word that the files mean something by. Empty when it can.
std::string WhyNoName(std::string_view name, int letters = kNameLetters);
/// Why a name of any kind is not a line of plain text; empty when it is one.
std::string WhyNotPlain(std::string_view name);
/// Without blanks at its ends.
std::string_view TrimmedName(std::string_view name);

/// A wrestler, manager or non-wrestler: who is seen on shows, fit or not.
bool IsSeenOnShows(const Worker& worker);
/// All of them who work for the player. The most popular first.
std::vector<const Worker*> SeenOnShows(const World& world);
/// Most popular first, those alike in the order of the file.
void SortByOver(std::vector<const Worker*>& people);
/// "him" or "her".
std::string_view HimOrHer(const Worker& worker);

}  // namespace grapplemont
