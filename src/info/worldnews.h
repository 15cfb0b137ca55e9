#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The news of the wrestling world: what was done in public this month and the last, the player's
// promotion among the others.

namespace grapplemont {

struct NewsItem {
  Day On;
  std::string What;   // "Signing", "Title", "Injury" and so on
  std::string House;  // the initials of whom it concerns; empty for nobody's
  std::string Words;
};

/// The latest first; those of a day as they happened, Titles last.
std::vector<NewsItem> WorldNews(const World& world);
/// From which day on there is news: the first of the month before.
Day NewsBegin(const World& world);

/// One of so many, 0 to `of` - 1, that stays the same for the same words and the same day.
std::size_t ChoiceFor(std::string_view words, Day day, std::size_t of);

}  // namespace grapplemont
