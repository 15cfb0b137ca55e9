#include "roster/workerties.h"

#include "records/modWresCheck.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

std::string TeamLine(const World& world, const Team& team, const Worker& worker) {
  const int partner = team.Worker1 == worker.Uid ? team.Worker2 : team.Worker1;
  const std::string finisher =
      team.Finisher == "None" || team.Finisher == "" ? "" : ", finisher " + team.Finisher.Str();
  return team.Name + " with " + WorkerName(world, partner) + ", experience " +
         std::to_string(team.Experience) + finisher + ".";
}

}  // namespace

std::vector<std::string> OfficesOf(const World& world, const Worker& worker) {
  std::vector<std::string> offices;
  for (const Promotion& promotion : world.Promotions())
    if (promotion.Commissioner == worker.Uid)
      offices.push_back("Commissioner of " + promotion.Name + ".");
  for (const Show& show : world.Shows())
    if (show.ColourIsWorker && show.Colour == worker.Uid)
      offices.push_back("Colour commentator of " + show.Name + ".");
  return offices;
}

std::vector<std::string> CompanyOf(const World& world, const Worker& worker) {
  std::vector<std::string> company;
  if (!(worker.Stable == "None") && !worker.Stable.View().empty())
    company.push_back("Member of " + worker.Stable + ".");
  for (const Team& team : world.Teams())
    if (team.Worker1 == worker.Uid || team.Worker2 == worker.Uid)
      company.push_back(TeamLine(world, team, worker));
  if (const Worker* manager = world.FindWorker(worker.Manager))
    company.push_back("Managed by " + manager->Name + ".");
  for (const Worker& client : world.Workers())
    if (client.Manager == worker.Uid) company.push_back("Manages " + client.Name + ".");
  return company;
}

std::vector<std::string> FeudsOf(const World& world, const Worker& worker) {
  std::vector<std::string> feuds;
  for (const Feud& feud : world.Feuds()) {
    const FeudSides sides = SidesOf(feud);
    if (IsFreeSlot(feud) || (!sides.One.Has(worker.Uid) && !sides.Two.Has(worker.Uid))) continue;
    feuds.push_back(SideName(world, sides.One) + " vs " + SideName(world, sides.Two) + ", heat " +
                    std::to_string(feud.Heat) + ".");
  }
  return feuds;
}

}  // namespace grapplemont
