#include <algorithm>
#include <array>

#include "booking/wizard/roster.h"
#include "calendar/advanceday.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/leaving.h"
#include "roster/moods.h"
#include "roster/staff.h"

namespace grapplemont {

namespace {

/// What a worker says when they go, and how the legend says it.
struct Parting {
  std::string_view Words;
  std::string_view Legend;
};
constexpr Parting kWalksOut = {
    "I'm not happy in this promotion, so i am leaving to work elsewhere.",
    "Brother, I'm not happy in this promotion, so i am leaving to take Maulamania elsewhere!"};
constexpr Parting kLeaves = {
    "I've had enough with this promotion and the way i've been treated, i'm leaving.",
    "I've had enough with this promotion and the way i've been treated, i'm leaving."};
constexpr Parting kSitsOut = {
    "I've had enough with this promotion, i refuse to wrestle for you again.",
    "Dude, I've had enough with this promotion, i refuse to wrestle for you again, brother!"};

void Say(World& world, const Worker& worker, const Parting& parting) {
  AddNews(world, worker.Name, worker.Name == "Maul Gantry" ? parting.Legend : parting.Words);
}

bool MayRebel(const Worker& worker) {
  return worker.Status == "Nor" && !worker.Unsackable;
}

/// True when they have left.
bool WalksOut(World& world, Worker& worker) {
  if (worker.ContractType != "Non" || !MayRebel(worker) || worker.Behaviour >= 80 ||
      worker.Morale >= kWalksOutBelow)
    return false;
  Say(world, worker, kWalksOut);
  ReleaseWorker(world, worker);
  return true;
}

/// With no morale left, a written contract is sat out and any other is broken.
void HaveHadEnough(World& world, Worker& worker) {
  if (worker.Morale > 0 || !MayRebel(worker) || worker.Behaviour >= 75) return;
  worker.Loyalty = 0;
  worker.Status = "Hom";
  const bool isBound = worker.ContractType == "Wri";
  Say(world, worker, isBound ? kSitsOut : kLeaves);
  if (!isBound) ReleaseWorker(world, worker);
}

/// Kept away from the main roster the young bloom and the grown fret; at 26 and from 35 on nothing
/// moves.
void FeelAway(World& world, Worker& worker) {
  if (!IsInDevelopment(worker)) return;
  if (worker.Age < 26)
    MoveMorale(world, worker, world.RandomDraw(2) - 1, kMoodAway);
  else if (worker.Age >= 27 && worker.Age <= 34) {
    const int up = world.RandomDraw(2);
    MoveMorale(world, worker, up - world.RandomDraw(2), kMoodAway);
  }
}

/// Whoever leaves has been in the promotion's care this morning and still recovers by it.
void UpkeepOfPlayers(World& world, Worker& worker, bool adequateMedics) {
  if (!WalksOut(world, worker)) HaveHadEnough(world, worker);
  worker.Condition += world.RandomDraw(adequateMedics ? kRestWithMedics : kRest);
  FeelAway(world, worker);
}

void UpkeepOfOthers(World& world, Worker& worker) {
  worker.Condition += world.RandomDraw(2) - 1;
  if (worker.Employer != 0 && worker.Morale < 65) worker.Morale += 1;
}

struct Absence {
  std::string_view Status;
  std::string_view From;
};
constexpr std::array<Absence, 3> kAbsences = {
    {{"Inj", "injury"}, {"Reh", "rehab"}, {"Sus", "suspension"}}};

void TellReturn(World& world, const Worker& worker) {
  for (const Absence& absence : kAbsences)
    if (worker.Status == absence.Status)
      AddNews(world, "Roster News",
              worker.Name + " has returned from " + std::string(absence.From) + ".");
}

}  // namespace

void DailyWorkerUpkeep(World& world) {
  const int player = world.PlayerUid();
  const bool adequateMedics = !IsShort(PostCountOf(world, kMedical));
  for (Worker& worker : world.Workers()) {
    if (worker.Employer == player)
      UpkeepOfPlayers(world, worker, adequateMedics);
    else
      UpkeepOfOthers(world, worker);
  }
  for (Staff& staff : world.AllStaff())
    if (staff.Employer != 0 && staff.Employer != player) staff.Morale += 1;
}

void StatusCountdown(World& world) {
  for (Worker& worker : world.Workers()) {
    if (worker.Status == "Nor" || worker.Status == "Hom") continue;
    const bool isLast = worker.StatusMonths == 1;
    worker.StatusMonths -= 1;
    if (!isLast) continue;
    if (WorksForPlayer(world, worker)) TellReturn(world, worker);
    worker.Status = "Nor";
    worker.InjuryName = "";
  }
}

void WriterWorkload(World& world) {
  const int shows = PlayerShows(world);
  const int writers = PlayerWriters(world);
  if (shows == 0 || writers >= WritersNeeded(shows)) return;
  AddNews(world, "Maeve",
          "Our writers can't keep up. For " + Counted(shows, "television show") +
              " we need at least " + std::to_string(WritersNeeded(shows)) +
              " writers, and we have " + (writers == 0 ? "none" : std::to_string(writers)) +
              ". Until we hire more, I can't put any angles on television.");
}

namespace {

constexpr int kCycleWeeks = 208, kSlump = 5, kBoom = 95, kMostAWeek = 3;

/// Where the cycle stands this week: as far up as down, from a beginning of this game's own.
int CycleNow(const World& world) {
  constexpr int kHalf = kCycleWeeks / 2;
  const int begin = world.Fate("economy", {}).Draw(kCycleWeeks);
  const auto week = static_cast<int>((world.Today() - kDayZero).count() / 7);
  const int at = (week + begin) % kCycleWeeks;
  return kSlump + (kBoom - kSlump) * (at < kHalf ? at : kCycleWeeks - at) / kHalf;
}

void FollowTheCycle(World& world) {
  GameInfo& game = world.Game();
  const int step = std::clamp(CycleNow(world) - game.Economy, -kMostAWeek, kMostAWeek);
  if (step != 0) game.EconomyRising = step > 0;
  game.Economy += step;
}

}  // namespace

void EconomyDrift(World& world) {
  if (Holds(world, HouseRule::EconomyCycles)) return FollowTheCycle(world);
  GameInfo& game = world.Game();
  int economy = game.Economy;
  const bool calm = economy >= kCalmFrom && economy <= kCalmTo;
  if (calm && world.RandomDraw(kDriftOf) > kDriftDays) return;
  const int step = economy < kCalmFrom ? 7 : 1;
  economy += game.EconomyRising ? step : -step;
  // Steps of 7 can pass over 0, and then nothing but the field's own end stops the fall.
  game.Economy = economy;
  if (economy == 100) game.EconomyRising = false;
  if (economy == 0) game.EconomyRising = true;
}

}  // namespace grapplemont
