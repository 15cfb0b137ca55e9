#include "storylines/managers.h"

#include "storylines/storynames.h"

namespace grapplemont {

namespace {

template <class Stays>
std::vector<const Worker*> Of(std::vector<const Worker*> people, Stays stays) {
  std::erase_if(people, [&](const Worker* worker) { return !stays(*worker); });
  return people;
}

}  // namespace

std::vector<const Worker*> Managers(const World& world) {
  return Of(SeenOnShows(world), [](const Worker& w) { return w.Position == kManager; });
}

std::vector<const Worker*> Clients(const World& world) {
  return Of(SeenOnShows(world), IsOnRoster);
}

const Worker* ManagerOf(const World& world, const Worker& client) {
  const Worker* manager = world.FindWorker(client.Manager);
  return manager && manager->Employer == client.Employer ? manager : nullptr;
}

std::vector<const Worker*> ClientsOf(const World& world, const Worker& manager) {
  return Of(SeenOnShows(world), [&](const Worker& w) { return w.Manager == manager.Uid; });
}

std::string WhyNotManage(const Worker& manager, const Worker& client) {
  if (client.Manager == manager.Uid)
    return manager.Name + " manages " + client.Name.Str() + " already.";
  return {};
}

void GiveManager(Worker& client, const Worker& manager) {
  client.Manager = manager.Uid;
}

void TakeManager(Worker& client) {
  client.Manager = 0;
}

}  // namespace grapplemont
