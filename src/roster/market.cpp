#include "roster/market.h"

#include <algorithm>

#include "records/modWresCheck.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

bool All(const Worker&) {
  return true;
}
template <int position>
bool At(const Worker& worker) {
  return worker.Position == position;
}
template <int low, int high>
bool Aged(const Worker& worker) {
  return worker.Age >= low && worker.Age <= high;
}
/// Not of free agents and the unsackable.
template <int months>
bool EndsWithin(const Worker& worker) {
  return worker.Employer != 0 && !worker.Unsackable && worker.ContractMonths >= 0 &&
         worker.ContractMonths <= months;
}
template <int tier>
bool Skilled(const Worker& worker) {
  return SkillTier(worker) >= tier;
}
template <Percent Worker::*skill>
bool Good(const Worker& worker) {
  return worker.*skill >= 61;
}

constexpr int kEldest = 32767;

constexpr WorkerFilter kByPosition[] = {
    {"All", All},
    {"Main Event", At<kMainEvent>},
    {"Upper Midcard", At<kUpperMidcard>},
    {"Midcard", At<kMidcard>},
    {"Lower Midcard", At<kLowerMidcard>},
    {"Opener", At<kOpener>},
    {"Jobber", At<kJobber>},
    {"Manager", At<kManager>},
    {"Non-wrestler", At<kNonWrestler>},
    {"In development", IsInDevelopment},
    {"Training Camp", IsInCamp},
};
constexpr WorkerFilter kBySex[] = {
    {"All", All},
    {"Men", [](const Worker& w) { return bool(w.Gender); }},
    {"Women", [](const Worker& w) { return !w.Gender; }},
};
constexpr WorkerFilter kByDisposition[] = {
    {"All", All},
    {"Face", [](const Worker& w) { return w.Disposition == "F"; }},
    {"Heel", [](const Worker& w) { return w.Disposition == "H"; }},
    {"Tweener", [](const Worker& w) { return w.Disposition == "T"; }},
};
constexpr WorkerFilter kByStatus[] = {
    {"All", All},
    {"Available", [](const Worker& w) { return w.Status == "Nor"; }},
    {"Not available", [](const Worker& w) { return w.Status != "Nor"; }},
    {"Injured", [](const Worker& w) { return w.Status == "Inj"; }},
    {"Suspended", [](const Worker& w) { return w.Status == "Sus"; }},
    {"In rehab", [](const Worker& w) { return w.Status == "Reh"; }},
    {"Sitting out", [](const Worker& w) { return w.Status == "Hom"; }},
};
constexpr WorkerFilter kByMonths[] = {
    {"All", All},
    {"1 month or less", EndsWithin<1>},
    {"3 months or less", EndsWithin<3>},
    {"6 months or less", EndsWithin<6>},
    {"12 months or less", EndsWithin<12>},
    {"No end", [](const Worker& w) { return bool(w.Unsackable); }},
};
constexpr WorkerFilter kByBond[] = {
    {"All", All},
    {"Free agents", [](const Worker& w) { return w.Employer == 0; }},
    {"Verbal contracts",
     [](const Worker& w) { return w.Employer != 0 && w.ContractType == "Non" && !w.Unsackable; }},
    {"Written contracts",
     [](const Worker& w) { return w.Employer != 0 && w.ContractType == "Wri"; }},
    {"Expiring contracts", EndsWithin<3>},
};
constexpr WorkerFilter kByWork[] = {
    {"All", All},
    {"Wrestlers", [](const Worker& w) { return !At<kManager>(w) && !At<kNonWrestler>(w); }},
    {"Managers", At<kManager>},
    {"Non-wrestlers", At<kNonWrestler>},
};
constexpr WorkerFilter kBySkill[] = {
    {"All", All},
    {"One of 61 up", Skilled<1>},
    {"One of 76 up", Skilled<2>},
    {"Brawl 61 up", Good<&Worker::Brawl>},
    {"Technical 61 up", Good<&Worker::Technical>},
    {"Speed 61 up", Good<&Worker::Speed>},
    {"Charisma 61 up", Good<&Worker::Charisma>},
};
constexpr WorkerFilter kByAge[] = {
    {"All", All},
    {"Under 25", Aged<-32768, 24>},
    {"25 to 34", Aged<25, 34>},
    {"35 to 44", Aged<35, 44>},
    {"45 and over", Aged<45, kEldest>},
};

constexpr FilterFamily kRosterFilters[] = {
    {"cmbposition", "Position", kByPosition},    {"cmbsex", "Sex", kBySex},
    {"cmbdispo", "Disposition", kByDisposition}, {"cmbstatus", "Status", kByStatus},
    {"cmbmonths", "Contract", kByMonths},
};
constexpr FilterFamily kMarketFilters[] = {
    {"cmbbond", "Contract", kByBond}, {"cmbsex", "Sex", kBySex}, {"cmbwork", "Work", kByWork},
    {"cmbskill", "Skill", kBySkill},  {"cmbage", "Age", kByAge},
};

}  // namespace

std::span<const FilterFamily> RosterFilters() {
  return kRosterFilters;
}
std::span<const FilterFamily> MarketFilters() {
  return kMarketFilters;
}

bool IsShortlisted(const World& world, int workerUid) {
  const auto& places = world.Game().Shortlist;
  return workerUid != 0 &&
         std::ranges::any_of(places, [=](const Word& place) { return place == workerUid; });
}

std::vector<const Worker*> Shortlisted(const World& world) {
  std::vector<const Worker*> people;
  for (const Word& place : world.Game().Shortlist)
    if (const Worker* worker = world.FindWorker(place)) people.push_back(worker);
  return people;
}

std::string WhyNotShortlist(const World& world, const Worker& worker) {
  if (IsShortlisted(world, worker.Uid)) return worker.Name + " is on your shortlist already.";
  if (WorksForPlayer(world, worker)) return worker.Name + " works for you.";
  const std::size_t places = world.Game().Shortlist.size();
  if (Shortlisted(world).size() < places) return {};
  return "Your shortlist is full: it holds " + std::to_string(places) +
         " workers. Take somebody off it first.";
}

void AddToShortlist(World& world, int workerUid) {
  for (Word& place : world.Game().Shortlist)
    if (!world.FindWorker(place)) {
      place = workerUid;
      return;
    }
}

void RemoveFromShortlist(World& world, int workerUid) {
  for (Word& place : world.Game().Shortlist)
    if (place == workerUid) place = 0;
}

std::string MarketStanding(const World& world, const Worker& worker) {
  if (worker.Employer == 0) return "Free to sign.";
  const bool own = WorksForPlayer(world, worker);
  const std::string employer = own ? "you" : PromotionInitials(world, worker.Employer);
  if (worker.Unsackable) return "Bound to " + employer + " for good.";
  const std::string kind = worker.ContractType == "Wri" ? "Under contract to " : "Verbally with ";
  const int months = worker.ContractMonths;
  return kind + employer +
         (months <= 1 ? ", in the last month." : ", " + std::to_string(months) + " months left.");
}

}  // namespace grapplemont
