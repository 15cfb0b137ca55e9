#include "halls/lives.h"

#include <algorithm>

namespace grapplemont {

std::vector<Life> LivesOf(const Ledger& ledger, const HouseKey& house) {
  std::vector<Life> lives(ledger.Careers.size());
  for (std::size_t i = 0; i < lives.size(); ++i) lives[i].Of = &ledger.Careers[i];
  for (const Tenure& tenure : ledger.Tenures) {
    const int place = ledger.PlaceOf(tenure.Career);
    if (place < 0 || !IsOf(house, tenure.Promotion, tenure.Initials.View())) continue;
    Life& life = lives[static_cast<std::size_t>(place)];
    const std::pair<int Life::*, const Natural Tenure::*> sums[] = {
        {&Life::Months, &Tenure::Months},       {&Life::Won, &Tenure::Won},
        {&Life::Lost, &Tenure::Lost},           {&Life::Drawn, &Tenure::Drawn},
        {&Life::ForTitles, &Tenure::ForTitles}, {&Life::MainEvents, &Tenure::MainEvents},
        {&Life::Rough, &Tenure::Rough},         {&Life::Reigns, &Tenure::Reigns},
        {&Life::Defences, &Tenure::Defences}};
    for (const auto& [sum, part] : sums) life.*sum += tenure.*part;
    // A damaged file may hold more days than a number does.
    life.Days = static_cast<int>(std::min<long long>(0LL + life.Days + tenure.Days, kMostDollars));
    life.Ratings += tenure.Ratings;
    life.Best = std::max<int>(life.Best, tenure.Best);
    life.Wage = std::max<int>(life.Wage, tenure.Wage);
    ++life.Promotions;
    if (tenure.Months <= life.LongestMonths && !life.LongestAt.empty()) continue;
    life.LongestMonths = tenure.Months;
    life.LongestAt = tenure.Initials.Str();
  }
  return lives;
}

std::string YearsOf(const Career& career) {
  const std::string from = std::to_string(YearOf(career.First));
  if (Day(career.Last) == kNoTitleDate) return "since " + from;
  const std::string to = std::to_string(YearOf(career.Last));
  return from == to ? from : from + " to " + to;
}

}  // namespace grapplemont
