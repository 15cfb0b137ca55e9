#pragma once

#include <string>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// Part of a worker's page.
struct FactGroup {
  std::string Heading;
  std::vector<std::string> Lines;
};

/// All that a player may know of somebody, in words; groups without a line are left out. How far he
/// can rise is told only of the player's people in the territory or the camp, by whoever teaches
/// them there.
std::vector<FactGroup> WorkerFacts(const World& world, const Worker& worker);

/// "34, a man born in June, a heavyweight" and the like: who he is.
std::string WhoHeIs(const Worker& worker);
/// How far he can rise, as his teacher sees it; empty where nobody can tell.
std::string PotentialWords(const World& world, const Worker& worker);
/// A mood or a habit of 0 to 100 in words; each has five steps.
std::string MoraleWords(int morale);
std::string LoyaltyWords(int loyalty);
std::string AttitudeWords(int attitude);
std::string BehaviourWords(int behaviour);

// What ties a worker to others, a sentence each.

/// Commissioner of a promotion, voice beside the ring.
std::vector<std::string> OfficesOf(const World& world, const Worker& worker);
/// His stable, his Tag Teams, his manager and those whom he manages.
std::vector<std::string> CompanyOf(const World& world, const Worker& worker);
/// The feuds that he is in, whatever side.
std::vector<std::string> FeudsOf(const World& world, const Worker& worker);

// What is known of a member of staff, in words.

/// "Announcer" and so on; "Unknown" for a code without a text.
std::string_view PostText(int post);
/// "Written contract for 12 months, at $5,000 per month"; empty for free agents and Owners.
std::string StaffContractLine(const Staff& staff);
/// The first group is the person, with the name for heading.
std::vector<FactGroup> StaffFacts(const World& world, const Staff& staff);

}  // namespace grapplemont
