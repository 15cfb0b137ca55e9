#include "business/promotapes.h"

#include <algorithm>
#include <array>

#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

// By size, Global to Backyard.
constexpr std::array<int, 6> kOfferedWeeks = {52, 24, 12, 12, 6, 6};

/// One tape in so many that please a network becomes an offer.
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

/// Nothing when the network could use the show. Of several reasons the last is told; a show that
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

bool CouldUseTape(const World& world, const Network& network) {
  return !RefusalOf(world, world.Player(), network);
}

std::string WhyNoTape(const World& world) {
  if (world.Game().TapeWait != 0) return "You can only send out one tape per month.";
  if (ShowsOf(world, world.PlayerUid()).size() >= kMostShows)
    return "You already have the maximum amount of TV shows allowed.";
  return {};
}

void SendTape(World& world, int networkUid) {
  world.Game().TapeWait = networkUid;
}

void AnswerPromoTapes(World& world) {
  GameInfo& game = world.Game();
  const Network* network = world.FindNetwork(game.TapeWait);
  game.TapeWait = 0;
  game.TvOfferWait = 0;
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
