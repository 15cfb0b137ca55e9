#include "roster/shortlist.h"

#include <algorithm>

#include "records/modWresCheck.h"

namespace grapplemont {

bool IsShortlisted(const World& world, int workerUid) {
  const auto& places = world.Game().Shortlist;
  return workerUid != 0 && std::any_of(places.begin(), places.end(),
                                       [=](const Word& place) { return place == workerUid; });
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
