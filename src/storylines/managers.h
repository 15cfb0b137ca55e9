#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// Who stands in whose corner.

namespace grapplemont {

/// The player's managers, and his wrestlers who may have one; the most popular first.
std::vector<const Worker*> Managers(const World& world);
std::vector<const Worker*> Clients(const World& world);
/// The manager who works for the player and manages this worker; nullptr for none.
const Worker* ManagerOf(const World& world, const Worker& client);
/// Everybody whom he manages.
std::vector<const Worker*> ClientsOf(const World& world, const Worker& manager);

/// Why he cannot be given to the client; empty when he can.
std::string WhyNotManage(const Worker& manager, const Worker& client);
/// The client has this manager from now on, instead of any other.
void GiveManager(Worker& client, const Worker& manager);
void TakeManager(Worker& client);

}  // namespace grapplemont
