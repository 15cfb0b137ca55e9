#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "roster/talks.h"

namespace grapplemont {

/// The worker leaves the player's roster: contract, stable, manager, clients, feuds, Titles and
/// commentary end. Draws of 3; on a 1 the market reacts, and a rival who can pay him may sign him
/// on the spot.
void ReleaseWorker(World& world, Worker& worker);
/// The same without the market: he leaves whoever employs him, and nothing is drawn. A Title that
/// he held loses a tenth of its image.
void PartWith(World& world, Worker& worker);

// Offering a worker to let him go: he takes it only where he has somewhere to go.

struct ReleaseAnswer {
  std::vector<Remark> Remarks;
  bool Accepted = false;
};
/// Of a worker of the player's.
ReleaseAnswer AnswerToRelease(const World& world, const Worker& worker);

// Ending the contract of a worker of the player's before its time.

/// What it costs to buy out a contract, in dollars: by the difficulty, the wage in thousands of
/// dollars a month and the months left. What would be below 0, for want of an end, is half a year
/// of wages.
long long BuyOutCost(int difficulty, int wage, int months);
template <class Person>
long long BuyOutCost(const World& world, const Person& person) {
  return BuyOutCost(world.Game().Difficulty, person.Wage, person.ContractMonths);
}
/// Pays it, whatever is in the bank, and he feels it.
template <class Person>
void BuyOut(World& world, Person& person) {
  world.Player().Money -= BuyOutCost(world, person);
  person.Loyalty -= 30;
}

/// How he would go.
enum class Parting { BuyOut, Verbal, Gladly };
Parting PartingOf(const Worker& worker);
Parting PartingOf(const Staff& staff);
/// What the player is asked before it happens.
std::string TerminationQuestion(const World& world, const Worker& worker);
/// Pays, whatever is in the bank, lets him feel it, and releases him. Draws as ReleaseWorker does.
void Terminate(World& world, Worker& worker);

}  // namespace grapplemont
