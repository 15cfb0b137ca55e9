#include "calendar/incidents.h"

#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "show/injuries.h"

namespace grapplemont {

namespace {

bool IsAlive(const World& world, const Incident& incident) {
  if (incident.Type != kJobOffer) {
    const Worker* worker = world.FindWorker(incident.Uid);
    return worker && WorksForPlayer(world, *worker);
  }
  const Promotion* promotion = world.FindPromotion(incident.Uid);
  return promotion && promotion->Uid != world.PlayerUid() && !(promotion->Name == kToBeDeleted);
}

/// Opening the list again finds him where it left him.
void TakeOut(World& world, const Incident& incident) {
  Worker* worker = world.FindWorker(incident.Uid);
  if (!worker || !(worker->Status == "Nor")) return;
  if (incident.Type == kRehab) {
    worker->Status = "Reh";
    worker->StatusMonths = 1 + world.RandomDraw(3);
  } else if (incident.Type == kInjury) {
    BreakSomething(world, *worker);
  }
}

std::string OfferText(const World& world, const Promotion& promotion) {
  return WhoDecides(world, promotion) + " would like to offer you a job. ";
}

}  // namespace

const Incident* FirstIncident(World& world) {
  while (world.Incidents().Count() > 0 && world.Incidents()[1].Type != 0) {
    const Incident& incident = world.Incidents()[1];
    if (IsAlive(world, incident)) {
      TakeOut(world, incident);
      return &incident;
    }
    CloseIncident(world);
  }
  return nullptr;
}

std::string IncidentText(const World& world, const Incident& incident) {
  if (incident.Type == kJobOffer) return OfferText(world, *world.FindPromotion(incident.Uid));
  const Worker& worker = *world.FindWorker(incident.Uid);
  const std::string name = worker.Name.Str();
  switch (incident.Type) {
    case kFight:
      return name + " has been involved in a backstage fight!";
    case kLate:
      return name + " showed up very late to our last show!";
    case kPolice:
      return name + " has been involved in a police incident! Apparently " +
             (worker.Gender ? "he" : "she") + " was carrying drugs when stopped.";
    case kRehab:
      return name +
             " has been forced to check into rehab because of personal problems!\nThe stay "
             "takes " +
             Counted(worker.StatusMonths, "month") + ".";
    default:
      return name + " has sustained an injury!\n" + worker.InjuryName.Str() + ", out for " +
             Counted(worker.StatusMonths, "month") + ".";
  }
}

void CloseIncident(World& world) {
  auto& incidents = world.Incidents();
  for (int number = 1; number < incidents.Count(); ++number)
    incidents[number] = incidents[number + 1];
  incidents[incidents.Count()] = {};
}

}  // namespace grapplemont
