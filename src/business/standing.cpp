#include "business/standing.h"

#include <algorithm>

#include "business/months.h"
#include "business/past.h"

namespace grapplemont {

namespace {

struct EconomyWords {
  int From;
  const char* Words;
};
constexpr EconomyWords kEconomy[] = {{90, "Booming"},        {81, "Strong"},
                                     {30, "Steady"},         {20, "Slow"},
                                     {10, "In a recession"}, {-32768, "In a slump"}};

}  // namespace

PastStanding FromScore(Day on, int score) {
  const int size = std::clamp(kBackyard - score / 100, int(kGlobal), int(kBackyard));
  return {on, size, score - (kBackyard - size) * 100};
}

std::vector<PastStanding> StandingsOf(const World& world, const Promotion& promotion, int most) {
  const auto months = MonthsOf(world, promotion.Uid);
  std::vector<PastStanding> standings;
  for (std::size_t i = promotion.Rank.size(); i-- > months.size();)
    if (promotion.Rank[i] != kNoEnd)
      standings.push_back(
          FromScore(MonthsBefore(world.Today(), static_cast<int>(i)), promotion.Rank[i]));
  for (const HistoryEntry* month : months)
    standings.push_back({month->On, month->Size, month->Image});
  if (!standings.empty() && standings.back().On == world.Today()) standings.pop_back();
  standings.push_back({world.Today(), promotion.Size, promotion.Image});
  const auto surplus = static_cast<std::ptrdiff_t>(standings.size()) - std::max(most, 1);
  if (surplus > 0) standings.erase(standings.begin(), standings.begin() + surplus);
  return standings;
}

std::vector<std::string> CaptionsOf(const std::vector<PastStanding>& standings) {
  std::vector<std::string> captions;
  for (const PastStanding& standing : standings) captions.push_back(MonthClosedBefore(standing.On));
  if (!captions.empty()) captions.back() = "Today";
  return captions;
}

std::string_view EconomyText(int economy) {
  for (const EconomyWords& row : kEconomy)
    if (economy >= row.From) return row.Words;
  return kEconomy[std::size(kEconomy) - 1].Words;
}

}  // namespace grapplemont
