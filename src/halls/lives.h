#pragma once

#include <string>
#include <vector>

#include "halls/ledger.h"

namespace grapplemont {

/// A career with what its tenures add up to, all of them or those with one promotion.
struct Life {
  const Career* Of = nullptr;
  int Months = 0, Won = 0, Lost = 0, Drawn = 0, ForTitles = 0, MainEvents = 0, Rough = 0;
  int Best = 0, Reigns = 0, Days = 0, Defences = 0, Wage = 0, Promotions = 0;
  long long Ratings = 0;
  int LongestMonths = 0;  // with one promotion
  std::string LongestAt;  // its initials

  int Matches() const { return Won + Lost + Drawn; }
};

/// One a career, in the order of the ledger's. With a promotion, those who have not been there have
/// neither months nor matches.
std::vector<Life> LivesOf(const Ledger& ledger, const HouseKey& house = {});

/// "2026 to 2041", "since 2026".
std::string YearsOf(const Career& career);

}  // namespace grapplemont
