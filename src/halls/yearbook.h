#pragma once

#include <string>
#include <vector>

#include "halls/ledger.h"

// The page of a year: what was written when it ended, and of the running year what is known so far.

namespace grapplemont {

/// Counts the year, votes for the hall of fame and writes the year's page. Requires the end of 31
/// December, behind the awards and before everybody's Over is noted for the next year.
void CloseTheYear(World& world);

/// A row of the page.
struct YearRow {
  std::string Who, Figure, What;
  int Uid = 0;  // of a worker who is still there
};
struct YearSection {
  std::string Title;
  std::vector<YearRow> Rows;
};
/// The years that have a page, the latest first: the running one, and those before it.
std::vector<int> YearsOfBook(const Ledger& ledger);
/// Sections without rows are left out.
std::vector<YearSection> PageOfYear(const Ledger& ledger, int year);
/// The same in a few sentences.
std::string StoryOfYear(const std::vector<YearSection>& page, int year, bool isOver);

}  // namespace grapplemont
