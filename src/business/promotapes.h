#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// How a promotion comes on the air: a tape goes out, a network answers on the first of a month, an
// offer lies on the table until it is accepted or turned down.

namespace grapplemont {

/// Whether nothing about the player's promotion speaks against a show on the network.
bool CouldUseTape(const World& world, const Network& network);
/// Why no tape can go out now; empty when one can.
std::string WhyNoTape(const World& world);
void SendTape(World& world, int networkUid);

struct TvOffer {
  const Network* From = nullptr;
  int Weeks = 0;
  std::string_view Slot;
  std::vector<int> Days;  // to choose from, 1 Monday to 7 Sunday; without any it cannot be held
};
/// The offer that waits for the player; nothing without one, or when its network is no more.
std::optional<TvOffer> OfferOnTheTable(const World& world);
void DropOffer(World& world);
/// Puts the show on the air. Requires a day of the offer and a name that can be and is free.
void AcceptOffer(World& world, const TvOffer& offer, int day, std::string_view name);

/// The network that has the player's tape answers: a step of the first of a month. Requires a tape
/// under way.
void AnswerPromoTapes(World& world);

}  // namespace grapplemont
