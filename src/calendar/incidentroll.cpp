#include <array>

#include "calendar/daysteps.h"
#include "calendar/incidents.h"
#include "records/modWresCheck.h"
#include "roster/staffneeds.h"

namespace grapplemont {

namespace {

constexpr int kIncidentsKept = 10;
constexpr int kOfferDraw = 180, kOfferHit = 5;
constexpr int kQuietDays = 60;
constexpr int kInjuryHit = 100;

/// Out of so many; 0: never.
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

bool IsShortOfAgents(const World& world) {
  const int player = world.PlayerUid();
  int wrestlers = 0, agents = 0;
  for (const Worker& worker : world.Workers())
    wrestlers += worker.Employer == player && worker.Position < kDevelopmentDeal;
  for (const Staff& staff : world.AllStaff())
    agents += staff.Employer == player && staff.Position == kRoadAgent;
  return agents < AgentsNeeded(wrestlers);
}

/// The day's list, filled from the front; what does not fit is dropped.
class Bookings {
 public:
  explicit Bookings(World& world) : incidents_(world.Incidents()) {
    incidents_.Rewrite(std::vector<Incident>(kIncidentsKept));
  }
  void Book(int type, int uid) {
    if (next_ > kIncidentsKept) return;
    incidents_[next_].Type = type;
    incidents_[next_].Uid = uid;
    ++next_;
  }

 private:
  Records<Incident>& incidents_;
  int next_ = 1;
};

void RollFor(World& world, const Worker& worker, bool isShort, Bookings& bookings) {
  bool booked = false;
  const auto book = [&](int type) {
    if (booked) return;
    bookings.Book(type, worker.Uid);
    booked = true;
  };
  if (world.RandomDraw(InjuryOdds(worker.Condition)) == kInjuryHit) book(kInjury);
  const std::size_t band = BehaviourBand(worker.Behaviour);
  for (const ConductRow& row : kConduct) {
    const int odds = row.Odds[band];
    if (odds == 0) continue;
    if (world.RandomDraw(odds - (isShort ? row.OffWhenShort : 0)) == row.Hit) book(row.Type);
  }
}

bool IsAround(const Worker& worker) {
  return worker.Status == "Nor" && worker.Position < kSentToDevelopment &&
         worker.Position != kDevelopmentDeal && worker.Position != kTrainingCamp;
}

void RollRoster(World& world, Bookings& bookings) {
  const bool isShort = IsShortOfAgents(world);
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker) && IsAround(worker))
      RollFor(world, worker, isShort, bookings);
}

void RollOffer(World& world, Bookings& bookings) {
  if (world.Promotions().Count() == 0) return;
  const Promotion& promotion = world.Promotions()[world.RandomDraw(world.Promotions().Count())];
  if (promotion.Uid != world.PlayerUid() && promotion.Size > world.Session.StartSize - 3)
    bookings.Book(kJobOffer, promotion.Uid);
}

}  // namespace

void IncidentRoll(World& world) {
  Bookings bookings(world);
  int draw = world.RandomDraw(kOfferDraw);
  const Day start = world.Game().StartDate;
  if (start + std::chrono::days{kQuietDays} >= world.Today()) draw = 1;
  if (draw == kOfferHit)
    RollOffer(world, bookings);
  else
    RollRoster(world, bookings);
}

}  // namespace grapplemont
