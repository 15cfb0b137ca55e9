#include "calendar/incidents.h"

#include <array>

#include "calendar/advanceday.h"
#include "calendar/wishes.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "roster/leaving.h"
#include "roster/staff.h"
#include "show/aftermatch.h"

namespace grapplemont {

namespace {

bool IsAlive(const World& world, const Incident& incident) {
  if (incident.Type != kJobOffer) {
    const Worker* worker = world.FindWorker(incident.Uid);
    return worker && WorksForPlayer(world, *worker);
  }
  const Promotion* promotion = world.FindPromotion(incident.Uid);
  return promotion && promotion->Uid != world.PlayerUid() && promotion->Name != kToBeDeleted;
}

/// Opening the list again finds them where it left them.
void TakeOut(World& world, const Incident& incident) {
  Worker* worker = world.FindWorker(incident.Uid);
  if (!worker || worker->Status != "Nor") return;
  if (incident.Type == kRehab) {
    worker->Status = "Reh";
    worker->StatusMonths = 1 + world.RandomDraw(3);
  } else if (incident.Type == kInjury) {
    BreakSomething(world, *worker);
  }
}

}  // namespace

bool HasIncident(const World& world) {
  return world.Incidents().Count() > 0 && world.Incidents()[1].Type != 0;
}

const Incident* FirstIncident(World& world) {
  while (HasIncident(world)) {
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
  if (incident.Type == kJobOffer)
    return WhoDecides(world, *world.FindPromotion(incident.Uid)) +
           " would like to offer you a job. ";
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

namespace {

constexpr int kIncidentsKept = 10;
constexpr int kOfferDraw = 180, kOfferHit = 5;
constexpr int kQuietDays = 60;
constexpr int kInjuryHit = 100;

/// Out of this many; 0: never.
struct ConductRow {
  int Type;
  int Hit;
  std::array<int, 6> Odds;  // Behaviour 90 up, 70, 50, 30, 10, below
  int OffWhenShort;         // with too few road agents
};
constexpr std::array<ConductRow, 4> kConduct = {{
    {kRehab, 200, {0, 10000, 6000, 4000, 2500, 1200}, 200},
    {kPolice, 400, {0, 9000, 6500, 4200, 2800, 1400}, 150},
    {kLate, 3, {0, 8000, 4000, 1000, 500, 100}, 30},
    {kFight, 25, {0, 8000, 5000, 1200, 800, 200}, 20},
}};

std::size_t BehaviourBand(int behaviour) {
  constexpr std::array<int, 5> kFrom = {90, 70, 50, 30, 10};
  std::size_t band = 0;
  while (band < kFrom.size() && behaviour < kFrom[band]) ++band;
  return band;
}

int InjuryOdds(int condition) {
  if (condition < 40) return 800;
  if (condition < 60) return 1200;
  return condition < 90 ? 1800 : 2500;
}

/// The day's list is filled from the front; what does not fit is dropped.
void BookIncident(World& world, int type, int uid) {
  for (Incident& incident : world.Incidents()) {
    if (incident.Type != 0) continue;
    incident.Type = type;
    incident.Uid = uid;
    return;
  }
}

/// Everything is drawn; the first that hits is booked.
void RollFor(World& world, const Worker& worker, bool isShort) {
  int type = 0;
  if (world.RandomDraw(InjuryOdds(worker.Condition)) == kInjuryHit) type = kInjury;
  const std::size_t band = BehaviourBand(worker.Behaviour);
  for (const ConductRow& row : kConduct) {
    if (row.Odds[band] == 0) continue;
    const int odds = row.Odds[band] - (isShort ? row.OffWhenShort : 0);
    if (world.RandomDraw(odds) == row.Hit && type == 0) type = row.Type;
  }
  if (type != 0) BookIncident(world, type, worker.Uid);
}

bool IsAround(const Worker& worker) {
  return worker.Status == "Nor" && worker.Position < kSentToDevelopment &&
         worker.Position != kDevelopmentDeal && worker.Position != kTrainingCamp;
}

void RollRoster(World& world) {
  const bool isShort = IsShort(PostCountOf(world, kRoadAgent));
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && IsAround(worker)) RollFor(world, worker, isShort);
}

void RollOffer(World& world) {
  if (world.Promotions().Count() == 0) return;
  const Promotion& promotion = world.Promotions()[world.RandomDraw(world.Promotions().Count())];
  if (promotion.Uid != world.PlayerUid() && promotion.Size > world.Session.StartSize - 3)
    BookIncident(world, kJobOffer, promotion.Uid);
}

/// Rivals make no use of debuts, turns and suspended Titles that the player has had in mind.
void GoOnWithoutThePlayer(World& world, const Promotion& former) {
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != former.Uid) continue;
    worker.Debuted = true;
    worker.TurnPending = false;
  }
  for (Title& title : world.Titles())
    if (title.Owner == former.Uid) title.Suspended = false;
}

bool IsEmployed(const World& world, const Show& show, int uid, bool isWorker) {
  const auto worksThere = [&](const auto* person) {
    return person && person->Employer == show.Owner;
  };
  return isWorker ? worksThere(world.FindWorker(uid)) : worksThere(world.FindStaff(uid));
}

/// A rival's voices may have left without anybody taking their place.
void ClearTheBooth(World& world, const Promotion& promotion) {
  for (Show& show : world.Shows()) {
    if (show.Owner != promotion.Uid) continue;
    if (!IsEmployed(world, show, show.Announcer, false)) show.Announcer = 0;
    if (IsEmployed(world, show, show.Colour, show.ColourIsWorker)) continue;
    show.Colour = 0;
    show.ColourIsWorker = false;
  }
}

}  // namespace

void IncidentRoll(World& world) {
  world.Incidents().Rewrite(std::vector<Incident>(kIncidentsKept));
  const int draw = world.RandomDraw(kOfferDraw);
  const bool isQuiet = Day(world.Game().StartDate) + std::chrono::days{kQuietDays} >= world.Today();
  if (draw == kOfferHit && !isQuiet)
    RollOffer(world);
  else
    RollRoster(world);
}

void OfferJob(World& world, const Promotion& promotion) {
  BookIncident(world, kJobOffer, promotion.Uid);
}

void Suspend(Worker& worker, int months) {
  worker.Status = "Sus";
  worker.StatusMonths = months;
}

void ChangeJob(World& world, const Promotion& promotion) {
  GameInfo& game = world.Game();
  const Promotion& former = world.Player();
  GoOnWithoutThePlayer(world, former);
  ClearTheBooth(world, promotion);
  std::shift_right(game.Jobs.begin(), game.Jobs.end(), 1);
  game.Jobs[1].EndImage = former.Image;
  game.Jobs[1].EndSize = former.Size;
  Job job;
  job.Promotion = promotion.Name.View();
  job.Started = world.Today();
  job.StartImage = promotion.Image;
  job.StartSize = promotion.Size;
  game.Jobs[0] = job;
  game.PlayerPromotion = promotion.Uid;
  game.TapeWait = 0;
  game.TvOfferWait = 0;
  for (Feud& feud : world.Feuds()) feud = {};
  world.Session.StartSize = promotion.Size;
  DropFormerWishes(world);
}

}  // namespace grapplemont
