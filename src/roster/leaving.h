#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "roster/talks.h"

namespace grapplemont {

/// The worker leaves the player's roster: contract, stable, manager, clients, feuds, Titles and
/// commentary end. Draws of 3; on a 1 the market reacts, and a rival who can pay them may sign them
/// on the spot.
void ReleaseWorker(World& world, Worker& worker);
/// The same without the market: they leave whoever employs them, and nothing is drawn. A Title that
/// they held loses a tenth of its image.
void PartWith(World& world, Worker& worker);

// Offering a worker to let them go: they take it only where they have somewhere to go.

struct ReleaseAnswer {
  std::vector<Remark> Remarks;
  bool Accepted = false;
};
/// Of a worker of the player's.
ReleaseAnswer AnswerToRelease(const World& world, const Worker& worker);

// What a broken word costs: the worker's loyalty, or all of that and some of one's reputation.
inline constexpr int kBrokenWordLoyalty = 20, kBrokenWordReputation = 15;

// Ending the contract of a worker of the player's before its time.

/// What it costs to buy out a contract, in dollars: by the difficulty, the wage in thousands of
/// dollars a month and the months left. What would be below 0, for want of an end, is half a year
/// of wages.
long long BuyOutCost(int difficulty, int wage, int months);
template <class Person>
long long BuyOutCost(const World& world, const Person& person) {
  return BuyOutCost(world.Game().Difficulty, person.Wage, person.ContractMonths);
}
/// Pays it, whatever is in the bank, and they feel it.
template <class Person>
void BuyOut(World& world, Person& person) {
  world.Player().Money -= BuyOutCost(world, person);
  person.Loyalty -= 30;
}

/// How they would go.
enum class Parting { BuyOut, Verbal, Gladly };
Parting PartingOf(const Worker& worker);
Parting PartingOf(const Staff& staff);
/// What the player is asked before it happens.
std::string TerminationQuestion(const World& world, const Worker& worker);
/// Pays, whatever is in the bank, lets them feel it, and releases them. Draws as ReleaseWorker
/// does.
void Terminate(World& world, Worker& worker);

}  // namespace grapplemont
