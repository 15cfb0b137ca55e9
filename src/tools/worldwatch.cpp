#include "tools/worldwatch.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "records/fields/fields.h"
#include "roster/postings.h"

namespace grapplemont::tools {

namespace {

using Json = nlohmann::ordered_json;

constexpr int kLow = 50, kHigh = 80, kMonthsAYear = 12, kLongestMonth = 31;
constexpr std::size_t kTop = 20;
constexpr int kRich = 80000000;

double Rounded(double value) {
  return std::round(value * 10) / 10;
}

/// Percent to one place; 0 of nobody.
double Share(long part, long whole) {
  return whole == 0 ? 0 : Rounded(100.0 * static_cast<double>(part) / static_cast<double>(whole));
}

std::vector<const Worker*> TopOf(const World& world) {
  std::vector<const Worker*> all;
  for (const Worker& worker : world.Workers()) all.push_back(&worker);
  std::ranges::stable_sort(all, [](auto* a, auto* b) { return a->Over > b->Over; });
  all.resize(std::min(all.size(), kTop));
  return all;
}

double MeanSkill(const World& world) {
  double sum = 0;
  for (const Worker& worker : world.Workers()) sum += BestSkillOf(worker);
  return Rounded(sum / std::max(1, world.Workers().Count()));
}

void AddShares(const World& world, Json& figures) {
  long all = 0, women = 0, light = 0, onCard = 0, womenOnCard = 0, lightOnCard = 0;
  for (const Worker& worker : world.Workers()) {
    const bool isWoman = !worker.Gender, isLight = worker.Weight == "L";
    ++all;
    women += isWoman;
    light += isLight;
    if (worker.Employer == 0 || !IsOnRoster(worker)) continue;
    ++onCard;
    womenOnCard += isWoman;
    lightOnCard += isLight;
  }
  figures["women"] = Share(women, all);
  figures["light"] = Share(light, all);
  figures["rosterWomen"] = Share(womenOnCard, onCard);
  figures["rosterLight"] = Share(lightOnCard, onCard);
}

int ClashesOf(const World& world) {
  std::map<std::string_view, int> bearers;
  for (const Worker& worker : world.Workers()) ++bearers[worker.ShortName.View()];
  int clashes = 0;
  for (const auto& [name, count] : bearers) clashes += count > 1 ? count : 0;
  return clashes;
}

int LivingTeams(const World& world) {
  return static_cast<int>(std::ranges::count_if(world.Teams(), [&](const Team& team) {
    const Worker* one = world.FindWorker(team.Worker1);
    const Worker* two = world.FindWorker(team.Worker2);
    return one && two && one->Employer != 0 && one->Employer == two->Employer;
  }));
}

int LivingStables(const World& world) {
  std::map<std::pair<int, std::string_view>, int> members;
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && worker.Stable != "None")
      ++members[{worker.Employer, worker.Stable.View()}];
  return static_cast<int>(std::ranges::count_if(members, [](auto& row) { return row.second > 1; }));
}

int ClientsOf(const World& world) {
  return static_cast<int>(std::ranges::count_if(
      world.Workers(), [](auto& worker) { return worker.Employer != 0 && worker.Manager != 0; }));
}

bool WorksForRival(const World& world, const Worker& worker) {
  return worker.Employer != 0 && worker.Employer != world.PlayerUid();
}

}  // namespace

void WorldWatch::Look(const World& world) {
  if (!hasLooked_)
    for (const Promotion& promotion : world.Promotions()) starters_.insert(promotion.Uid);
  CountClosures(world);
  CompareClasses(world);
  honoured_ = world.Of<HallMember>().Count();
  for (const Worker& worker : world.Workers()) LookAt(world, worker);
  hasLooked_ = true;
}

void WorldWatch::LookAt(const World& world, const Worker& worker) {
  const int uid = worker.Uid, over = worker.Over;
  if (over < kLow) low_.insert(uid);
  if (over >= kHigh && low_.contains(uid) && risen_.insert(uid).second) ++rises_;
  if (!WorksForRival(world, worker)) {
    years_.erase(uid);
    return;
  }
  const auto [place, isNew] = years_.try_emplace(uid, Year{0, over, false});
  Year& year = place->second;
  if (isNew) return;
  year.Moved |= over != year.Over;
  year.Over = over;
  if (++year.Months < kMonthsAYear) return;
  ++rivalYears_;
  stillYears_ += !year.Moved;
  year = {0, over, false};
}

/// Whom somebody buys is gone as well; the deeds of the last month tell them apart.
void WorldWatch::CountClosures(const World& world) {
  const auto& deeds = world.Deeds();
  for (int number = deeds.Count(); number >= 1; --number) {
    const Deed& deed = deeds[number];
    if (Day(deed.On) < world.Today() - std::chrono::days{kLongestMonth}) return;
    if (deed.Kind == kDeedClosed && starters_.erase(deed.Promotion) > 0) ++startersLost_;
  }
}

void WorldWatch::CompareClasses(const World& world) {
  for (const Promotion& promotion : world.Promotions()) {
    const auto [place, isNew] = sizes_.try_emplace(promotion.Uid, promotion.Size);
    classChanges_ += std::abs(promotion.Size - place->second);
    place->second = promotion.Size;
  }
}

Json WorldWatch::Figures() const {
  return {{"rises", rises_},           {"classChanges", classChanges_}, {"rivalYears", rivalYears_},
          {"stillYears", stillYears_}, {"startersLost", startersLost_}, {"honoured", honoured_}};
}

Json PeopleFigures(const World& world) {
  Json figures;
  int age = 0;
  figures["top"] = Json::array();
  for (const Worker* worker : TopOf(world)) {
    figures["top"].push_back(int(worker->Uid));
    age += worker->Age;
  }
  figures["topAge"] = Rounded(age / std::max(1.0, double(figures["top"].size())));
  figures["skill"] = MeanSkill(world);
  AddShares(world, figures);
  figures["clashes"] = ClashesOf(world);
  figures["teams"] = LivingTeams(world);
  figures["stables"] = LivingStables(world);
  figures["clients"] = ClientsOf(world);
  return figures;
}

Json MoneyFigures(const World& world) {
  int rich = 0;
  long long income = 0, wages = 0;
  for (const Promotion& promotion : world.Promotions()) {
    rich += promotion.Money > kRich;
    if (promotion.Size != kGlobal) continue;
    const MonthBooks& books = promotion.LastMonth;
    for (const int part : {int(books.TicketIncome), int(books.MerchIncome), int(books.PpvIncome),
                           int(books.SponsorIncome)})
      income += part;
    wages += books.WrestlerWages;
    wages += books.StaffWages;
  }
  return {{"over80", rich}, {"globalIncome", income}, {"globalWages", wages}};
}

}  // namespace grapplemont::tools
