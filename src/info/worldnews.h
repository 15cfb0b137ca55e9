#pragma once

#include <span>
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

/// A number from 0 to `of` - 1, that stays the same for the same words and the same day.
std::size_t ChoiceFor(std::string_view words, Day day, std::size_t of);

// Who is at the top of the wrestling world, and of what.

struct RankFigure {
  double Number = 0;  // what it is ordered by
  std::string Text;
};
struct RankRow {
  std::string Name, House;  // whose
  RankFigure First, Second;
  int Place = 0;  // from 1
};
/// A list of the best, the first figure deciding.
struct Ranking {
  const char* Title;
  const char* What;            // heads the names
  const char *First, *Second;  // head the figures
  std::vector<RankRow> (*Rows)(const World& world);
};
std::span<const Ranking> Rankings();
/// Its rows from the top, a hundred at most.
std::vector<RankRow> RowsOf(const World& world, const Ranking& ranking);

}  // namespace grapplemont
