#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The shows that are on the air: whose they are, what they are called, which days are free.

namespace grapplemont {

/// As many as a promotion may have.
inline constexpr int kMostShows = 3;

/// A promotion's shows in the order of the file.
std::vector<const Show*> ShowsOf(const World& world, int promotionUid);
/// The player's show of this name; nullptr when there is none.
Show* PlayerShow(World& world, std::string_view name);

/// Why this can be no show's name at all; empty when it can, though it may be taken.
std::string WhyNoShowName(std::string_view name);
bool ShowNameTaken(const World& world, std::string_view name);

/// Whether the network has a show in the slot on some day. A generic one has room for any number.
bool SlotTaken(const World& world, const Network& network, std::string_view slot);
/// The days, 1 Monday to 7 Sunday, on which the promotion has no show and the network room in the
/// slot.
std::vector<int> FreeDays(const World& world, int promotionUid, const Network& network,
                          std::string_view slot);

/// A deal that begins: nobody at the table, no rating, no strike.
struct TvDeal {
  int Owner = 0;    // promotion uid
  int Network = 0;  // uid
  std::string_view Slot;
  int Day = 0;  // 1 Monday to 7 Sunday
  int Weeks = 0;
};
/// Puts the show on the air. Throws TableFull at the file's limit.
void AddShow(World& world, std::string_view name, const TvDeal& deal);
/// Takes the show off the air at once. Requires a show of this world.
void EndShow(World& world, Show& show);

/// Tells the player about a promotion's television deal, as his mail option has it.
void TellOfDeal(World& world, const Promotion& owner, std::string_view text);

}  // namespace grapplemont
