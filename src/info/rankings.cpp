#include "info/rankings.h"

#include <algorithm>

#include "business/networks.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/promotionfacts.h"
#include "roster/postings.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

using Rows = std::vector<RankRow>;

constexpr std::size_t kMost = 100;
constexpr int kYoung = 25;

RankFigure Figure(int number) {
  return {static_cast<double>(number), std::to_string(number)};
}

std::string HouseOf(const World& world, int promotionUid) {
  return promotionUid == 0 ? "" : PromotionInitials(world, promotionUid);
}

int SkillOf(const Worker& worker) {
  return (worker.Brawl + worker.Technical + worker.Speed) / 3;
}
int OverOf(const Worker& worker) {
  return worker.Over;
}
int AgeOf(const Worker& worker) {
  return worker.Age;
}

/// Whoever may wrestle, with or without a job.
template <class Test>
Rows Wrestlers(const World& world, Test test, int (*first)(const Worker&),
               int (*second)(const Worker&)) {
  Rows rows;
  for (const Worker& worker : world.Workers())
    if (IsOnRoster(worker) && test(worker))
      rows.push_back({worker.Name.Str(), HouseOf(world, worker.Employer), Figure(first(worker)),
                      Figure(second(worker))});
  return rows;
}

bool IsMan(const Worker& worker) {
  return worker.Gender;
}
bool IsWoman(const Worker& worker) {
  return !worker.Gender;
}

Rows PromotionRows(const World& world) {
  Rows rows;
  for (const Promotion* promotion : PromotionsByStanding(world))
    rows.push_back(
        {promotion->Name.Str(),
         promotion->Initials.Str(),
         {static_cast<double>(StandingScore(*promotion)), std::string(SizeText(promotion->Size))},
         Figure(promotion->Image)});
  return rows;
}

Rows ShowRows(const World& world) {
  Rows rows;
  for (const Show& show : world.Shows())
    if (show.Rating3 > 0)
      rows.push_back({show.Name.Str(),
                      HouseOf(world, show.Owner),
                      {static_cast<double>(show.Rating3), RatingText(show.Rating3)},
                      {0, NetworkName(world, show.Network)}});
  return rows;
}

Rows NetworkRows(const World& world) {
  Rows rows;
  for (const Network& network : world.Networks())
    rows.push_back({network.Name.Str(),
                    "",
                    {static_cast<double>(network.PrimeAudience), RatingText(network.PrimeAudience)},
                    Figure(ShowsOn(world, network))});
  return rows;
}

Rows TeamRows(const World& world) {
  Rows rows;
  for (const Team& team : world.Teams()) {
    const Worker* one = world.FindWorker(team.Worker1);
    const Worker* two = world.FindWorker(team.Worker2);
    if (!one || !two || one->Employer != two->Employer) continue;
    rows.push_back({team.Name.Str(), HouseOf(world, one->Employer),
                    Figure((one->Over + two->Over) / 2), Figure(team.Experience)});
  }
  return rows;
}

Rows TitleRows(const World& world) {
  Rows rows;
  for (const Title& title : world.Titles())
    if (world.FindPromotion(title.Owner) && !title.Suspended)
      rows.push_back({title.Name.Str(),
                      HouseOf(world, title.Owner),
                      Figure(title.Image),
                      {0, ChampionText(world, title)}});
  return rows;
}

constexpr Ranking kRankings[] = {
    {"Promotions", "Name", "Size", "Image", PromotionRows},
    {"Men by popularity", "Worker", "Over", "Skill",
     [](const World& world) { return Wrestlers(world, IsMan, OverOf, SkillOf); }},
    {"Women by popularity", "Worker", "Over", "Skill",
     [](const World& world) { return Wrestlers(world, IsWoman, OverOf, SkillOf); }},
    {"Men by skill", "Worker", "Skill", "Over",
     [](const World& world) { return Wrestlers(world, IsMan, SkillOf, OverOf); }},
    {"Women by skill", "Worker", "Skill", "Over",
     [](const World& world) { return Wrestlers(world, IsWoman, SkillOf, OverOf); }},
    {"The young", "Worker", "Over", "Age",
     [](const World& world) {
       return Wrestlers(
           world, [](const Worker& w) { return w.Age < kYoung; }, OverOf, AgeOf);
     }},
    {"Tag Teams", "Team", "Over", "Experience", TeamRows},
    {"Titles", "Title", "Image", "Champion", TitleRows},
    {"Television shows", "Show", "Last rating", "Network", ShowRows},
    {"Networks", "Network", "Prime Time", "Shows", NetworkRows}};

}  // namespace

std::span<const Ranking> Rankings() {
  return kRankings;
}

std::vector<RankRow> RowsOf(const World& world, const Ranking& ranking) {
  std::vector<RankRow> rows = ranking.Rows(world);
  std::stable_sort(rows.begin(), rows.end(), [](const RankRow& a, const RankRow& b) {
    return a.First.Number > b.First.Number;
  });
  if (rows.size() > kMost) rows.resize(kMost);
  return rows;
}

}  // namespace grapplemont
