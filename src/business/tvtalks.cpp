#include "business/tvtalks.h"

#include <array>

#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

// By size, Global to Backyard, in dollars.
constexpr std::array<int, 6> kPenalties = {20000000, 20000000, 15000000, 8000000, 6000000, 2000000};

/// A network talks about more weeks when no more than these are left.
constexpr int kTalkWeeks = 12;
constexpr int kHappyWeeks = 24;
constexpr int kGreatWeeks = 36;

/// In the order of NetworkView.
const TvRemark kViewWords[] = {
    {"No shows", "Network: 'We haven't seen any shows yet.'"},
    {"Terrible ratings!",
     "Network: 'We are extremely concerned about the poor ratings that this show is getting.'"},
    {"Low ratings!", "Network: 'We are concerned about the ratings that this show is getting.'"},
    {"Happy.", "Network: 'We are happy with the ratings for this show.'"},
    {"Great ratings!", "Network: 'We are very happy with the ratings for this show.'"}};

bool IsTooRisky(const Promotion& promotion, const Show& show, const Network& network) {
  return promotion.Risk > SlotRisk(network, show.Slot);
}

}  // namespace

NetworkView ViewOf(const Show& show, const Network& network) {
  if (show.Rating1 == 0) return kUnseen;
  const int audience = SlotAudience(network, show.Slot);
  if (show.Rating3 > PercentOf(audience, 90)) return kGreat;
  if (show.Rating3 > PercentOf(audience, 70)) return kHappy;
  return show.Rating3 > PercentOf(audience, 50) ? kLow : kTerrible;
}

std::vector<TvRemark> AskNetwork(const Promotion& promotion, const Show& show,
                                 const Network& network) {
  std::vector<TvRemark> remarks;
  const NetworkView view = ViewOf(show, network);
  if (view != kUnseen && IsTooRisky(promotion, show, network))
    remarks.push_back(
        {"Too risky!", "Network: 'We are not happy with the risky nature of your product.'"});
  remarks.push_back(kViewWords[view]);
  return remarks;
}

ExtensionTalk TalkOfExtension(const Promotion& promotion, const Show& show,
                              const Network& network) {
  if (IsTooRisky(promotion, show, network))
    return {"Network: 'We are not going to negotiate until you lower your product's risk value!'"};
  const NetworkView view = ViewOf(show, network);
  if (view == kUnseen)
    return {"Network: 'We are not going to negotiate without having seen a show!'"};
  if (view < kHappy)
    return {"Network: 'We are not looking to extend the contract at the present time.'"};
  if (show.ContractWeeks > kTalkWeeks)
    return {
        "Network: 'We do not want to enter negotiations when the contract still has over 3 months "
        "to run.'"};
  if (view == kHappy)
    return {"Network: 'We are willing to offer a 6 month extension on the deal.'", kHappyWeeks};
  return {"Network: 'We are willing to offer a 9 month extension on the deal.'", kGreatWeeks};
}

EndingTalk TalkOfEnding(const Promotion& promotion, const Show& show, const Network& network) {
  if (ViewOf(show, network) == kTerrible)
    return {"Network: 'We are happy to mutually end this deal.'"};
  const int penalty = BySize(kPenalties, promotion.Size);
  return {
      "Network: 'We do not wish to end this deal.If you breach the contract, we will sue you for "
      "$" +
          std::to_string(penalty) + ".'",
      penalty};
}

void EndDeal(World& world, Show& show, int penalty) {
  world.Player().Money -= penalty;
  EndShow(world, show);
}

// Where a network would move a show, by where it is and how it does.

namespace {

constexpr const char* kRefuse = "Network: 'We do not wish to move the time slot of this show.'";
constexpr const char* kRiskOfMovingBack =
    "Network: 'We would be willing to move this show back, but only if your promotion reduced its "
    "risk level.'";
constexpr const char* kDownToGrave =
    "Network: 'We would be happy to move this show down to a graveyard slot.'";
constexpr const char* kPrimeOnRisk =
    "Network: 'We would be willing to move this show to prime time, but only if your promotion "
    "reduced its risk level.'";

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
     "Network: 'We are willing to move this show to prime time.'", kPrimeOnRisk},
    {"P", kTerrible, "G", &Network::LateRisk, kDownToGrave, kRiskOfMovingBack},
    {"P", kLow, "L", &Network::LateRisk,
     "Network: 'We would be happy to move this show down to a late evening slot.'",
     kRiskOfMovingBack},
    {"L", kTerrible, "G", &Network::GraveRisk, kDownToGrave, kRiskOfMovingBack},
    {"L", kLow, "G", &Network::GraveRisk, kDownToGrave, kRiskOfMovingBack},
    {"L", kGreat, "P", &Network::PrimeRisk,
     "Network: 'We are willing to move this show to a prime time slot.'", kPrimeOnRisk},
    {"G", kGreat, "L", &Network::LateRisk,
     "Network: 'We are willing to move this show to a late evening slot.'",
     "Network: 'We would be willing to move this show forward, but only if your promotion reduced "
     "its risk level.'"}};

std::string TakenWords(std::string_view slot) {
  const std::string name = slot == "G" ? "graveyard" : slot == "L" ? "late night" : "prime time";
  return "Network: 'We would move you to a " + name + " slot, but we already have a show then.'";
}

// By size, Global to Backyard.
constexpr std::array<int, 6> kOfferedWeeks = {52, 24, 12, 12, 6, 6};

/// One tape in this many that please a network becomes an offer.
constexpr int kOfferOdds = 4;
constexpr int kOfferDraw = 2;

constexpr const char* kNotLooking =
    "Thanks for the promo tapes - we're not currently looking for new programming, but feel free "
    "to try again in a few months time.";

enum Reason { kNoBenefit, kTooSmall, kTooRisky, kNoSpace };
constexpr const char* kRefusals[] = {
    "Thanks for the promo tapes, but we don't feel your shows would benefit our network.",
    "Thanks for the promo tapes, but we don't feel your promotion is really big enough for our "
    "network to consider working with.",
    "Thanks for the promo tapes, but we're not comfortable with the riskiness of your product.",
    "Thanks for the promo tapes, but we really don't have any space in our schedule for you at "
    "the moment."};

/// Nothing when the network could use the show. Of several reasons the last is given; a show that
/// would draw too few gives none of its own.
std::optional<Reason> RefusalOf(const World& world, const Promotion& promotion,
                                const Network& network) {
  std::optional<Reason> reason;
  if (promotion.Size > kSmall) reason = kTooSmall;
  if (promotion.Risk > network.GraveRisk) reason = kTooRisky;
  if (IsFull(world, network) && !network.Generic) reason = kNoSpace;
  const int potential = AudiencePotential(promotion, world.Game().Economy);
  if (potential < PercentOf(network.GraveAudience, 60) && !reason) reason = kNoBenefit;
  return reason;
}

std::string_view OfferedSlot(const Network& network, int potential) {
  std::string_view slot = "G";
  for (const std::string_view better : {"E", "L", "P"})
    if (potential > SlotAudience(network, better)) slot = better;
  return slot;
}

}  // namespace

MoveTalk TalkOfMove(const World& world, const Promotion& promotion, const Show& show,
                    const Network& network) {
  const NetworkView view = ViewOf(show, network);
  for (const SlotMove& move : kMoves) {
    if (show.Slot != move.From || view != move.View) continue;
    if (promotion.Risk >= network.*move.RiskBelow) return {move.TooRisky, {}};
    if (SlotTaken(world, network, move.To)) return {TakenWords(move.To), {}};
    return {move.Offer, move.To};
  }
  return {kRefuse, {}};
}

bool CouldUseTape(const World& world, const Network& network) {
  return !RefusalOf(world, world.Player(), network);
}

std::string WhyNoTape(const World& world) {
  return world.Game().TapeWait != 0 ? "You can only send out one tape per month."
                                    : WhyNoMoreShows(world);
}

void SendTape(World& world, int networkUid) {
  world.Game().TapeWait = networkUid;
}

void AnswerPromoTapes(World& world) {
  GameInfo& game = world.Game();
  const Network* network = world.FindNetwork(game.TapeWait);
  DropOffer(world);
  if (!network) return;
  if (const auto reason = RefusalOf(world, world.Player(), *network))
    return AddNews(world, network->Name, kRefusals[*reason]);
  if (world.RandomDraw(kOfferOdds) != kOfferDraw) return AddNews(world, network->Name, kNotLooking);
  game.TvOfferWait = int(network->Uid);
  AddNews(world, "Production",
          "We have recieved interest from " + network->Name.Str() +
              "! (Go to the 'Television' section)");
}

std::optional<TvOffer> OfferOnTheTable(const World& world) {
  const Network* network = world.FindNetwork(world.Game().TvOfferWait);
  if (!network) return std::nullopt;
  const Promotion& player = world.Player();
  TvOffer offer{
      network, 0, OfferedSlot(*network, AudiencePotential(player, world.Game().Economy)), {}};
  offer.Weeks = BySize(kOfferedWeeks, player.Size);
  offer.Days = FreeDays(world, player.Uid, *network, offer.Slot);
  return offer;
}

void DropOffer(World& world) {
  world.Game().TapeWait = 0;
  world.Game().TvOfferWait = 0;
}

void AcceptOffer(World& world, const TvOffer& offer, int day, std::string_view name) {
  AddShow(world, name, {world.PlayerUid(), offer.From->Uid, offer.Slot, day, offer.Weeks});
  DropOffer(world);
}

}  // namespace grapplemont
