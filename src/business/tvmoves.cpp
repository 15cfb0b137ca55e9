#include <algorithm>

#include "business/networks.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"

// Where a network would move a show, by where it is and how it does.

namespace grapplemont {

namespace {

constexpr const char* kRefuse = "Network: 'We do not wish to move the time slot of this show.'";
constexpr const char* kRiskOfMovingBack =
    "Network: 'We would be willing to move this show back, but only if your promotion reduced its "
    "risk level.'";

struct SlotMove {
  std::string_view From;
  NetworkView View;
  std::string_view To;
  Percent Network::*RiskBelow;
  const char* Offer;
  const char* TooRisky;
};

// A show that falls out of prime time to the graveyard is held to the late evening's risk.
constexpr SlotMove kMoves[] = {
    {"E", kTerrible, "G", &Network::GraveRisk,
     "Network: 'We would be happy to move this show to a graveyard slot.'", kRiskOfMovingBack},
    {"E", kHappy, "L", &Network::LateRisk,
     "Network: 'We are willing to move this show to a late evening slot.'",
     "Network: 'We would be willing to move this show to a late evening slot, but only if your "
     "promotion reduced its risk level.'"},
    {"E", kGreat, "P", &Network::PrimeRisk,
     "Network: 'We are willing to move this show to prime time.'",
     "Network: 'We would be willing to move this show to prime time, but only if your promotion "
     "reduced its risk level.'"},
    {"P", kTerrible, "G", &Network::LateRisk,
     "Network: 'We would be happy to move this show down to a graveyard slot.'", kRiskOfMovingBack},
    {"P", kLow, "L", &Network::LateRisk,
     "Network: 'We would be happy to move this show down to a late evening slot.'",
     kRiskOfMovingBack},
    {"L", kTerrible, "G", &Network::GraveRisk,
     "Network: 'We would be happy to move this show down to a graveyard slot.'", kRiskOfMovingBack},
    {"L", kLow, "G", &Network::GraveRisk,
     "Network: 'We would be happy to move this show down to a graveyard slot.'", kRiskOfMovingBack},
    {"L", kGreat, "P", &Network::PrimeRisk,
     "Network: 'We are willing to move this show to a prime time slot.'",
     "Network: 'We would be willing to move this show to prime time, but only if your promotion "
     "reduced its risk level.'"},
    {"G", kGreat, "L", &Network::LateRisk,
     "Network: 'We are willing to move this show to a late evening slot.'",
     "Network: 'We would be willing to move this show forward, but only if your promotion reduced "
     "its risk level.'"}};

struct TakenSlot {
  std::string_view Slot;
  const char* Text;
};
constexpr TakenSlot kTaken[] = {
    {"G", "Network: 'We would move you to a graveyard slot, but we already have a show then.'"},
    {"L", "Network: 'We would move you to a late night slot, but we already have a show then.'"},
    {"P", "Network: 'We would move you to a prime time slot, but we already have a show then.'"}};

const char* TakenWords(std::string_view slot) {
  return std::find_if(std::begin(kTaken), std::end(kTaken),
                      [&](const TakenSlot& taken) { return taken.Slot == slot; })
      ->Text;
}

}  // namespace

MoveTalk TalkOfMove(const World& world, const Promotion& promotion, const Show& show,
                    const Network& network) {
  const NetworkView view = ViewOf(show, network);
  for (const SlotMove& move : kMoves) {
    if (!(show.Slot == move.From) || view != move.View) continue;
    if (promotion.Risk >= network.*move.RiskBelow) return {move.TooRisky, {}};
    if (SlotTaken(world, network, move.To)) return {TakenWords(move.To), {}};
    return {move.Offer, move.To};
  }
  return {kRefuse, {}};
}

}  // namespace grapplemont
