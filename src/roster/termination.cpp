#include "roster/termination.h"

#include "records/modVar.h"
#include "roster/release.h"

namespace grapplemont {

namespace {

/// Half of the months, rounded down below 0 as well.
int HalfOf(int months) {
  return (months - (months < 0)) / 2;
}

/// A settled man of good conduct, let down while he does not feel well, makes it known.
bool IsBetrayed(const Worker& worker) {
  return worker.Morale < 70 && worker.Behaviour >= 81 && worker.Age >= 36;
}

void BreakWord(World& world, Worker& worker) {
  if (!IsBetrayed(worker)) {
    worker.Loyalty -= 20;
    return;
  }
  GameInfo& game = world.Game();
  game.Reputation -= 15;
  worker.Loyalty = 0;
  AddNews(world, worker.Name,
          "I can't believe you broke my verbal contract! I'll never work for you again!");
}

long long CostOf(const World& world, const Worker& worker) {
  return BuyOutCost(world.Game().Difficulty, worker.Wage, worker.ContractMonths);
}

}  // namespace

long long BuyOutCost(int difficulty, int wage, int months) {
  const long long month = 1000LL * wage;
  const long long cost = difficulty == kEasy     ? month
                         : difficulty == kMedium ? HalfOf(months) * month
                         : difficulty == kHard   ? months * month
                                                 : 2 * months * month;
  return cost < 0 ? 6 * month : cost;
}

Parting PartingOf(const Worker& worker) {
  if (worker.Status == "Hom" || worker.Morale < 20) return Parting::Gladly;
  return worker.ContractType == "Non" ? Parting::Verbal : Parting::BuyOut;
}

std::string TerminationQuestion(const World& world, const Worker& worker) {
  switch (PartingOf(worker)) {
    case Parting::BuyOut:
      return "Terminating this contract will cost $" + std::to_string(CostOf(world, worker)) +
             ". Proceed?";
    case Parting::Verbal:
      return "This worker is only under a verbal contract, and so can be released for free. "
             "Proceed?";
    case Parting::Gladly:
      break;
  }
  return "This wrestler is happy to leave. Proceed?";
}

void Terminate(World& world, Worker& worker) {
  const Parting parting = PartingOf(worker);
  if (parting == Parting::BuyOut) {
    world.Player().Money -= CostOf(world, worker);
    worker.Loyalty -= 30;
  }
  if (parting == Parting::Verbal) BreakWord(world, worker);
  ReleaseWorker(world, worker);
}

}  // namespace grapplemont
