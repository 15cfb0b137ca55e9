#include "business/tvtalks.h"

#include <algorithm>
#include <array>

#include "business/beside.h"
#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/notes.h"

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

std::string RiskOf(const Promotion& promotion, int limit, const char* bears = "they bear up to ") {
  return "Our risk is " + std::to_string(promotion.Risk) + "; " + bears + std::to_string(limit);
}

std::string SlotRiskOf(const Promotion& promotion, const Show& show, const Network& network) {
  return RiskOf(promotion, SlotRisk(network, show.Slot));
}

/// How the show does, as the network counts it.
std::string ViewOfRating(const Show& show, const Network& network) {
  constexpr const char* kReached[] = {"", "half of it at most", "above 50% of it",
                                      "above 70% of it", "above 90% of it"};
  const NetworkView view = ViewOf(show, network);
  if (view == kUnseen) return "No show has been seen yet";
  return "Measured against a rating of " + InHundredths(SlotAudience(network, show.Slot)) +
         ", the last one of " + InHundredths(show.Rating3) + " is " + kReached[view];
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
                                 const Network& network, Decision* why) {
  std::vector<TvRemark> remarks;
  const NetworkView view = ViewOf(show, network);
  if (view != kUnseen &&
      !Weigh(why, !IsTooRisky(promotion, show, network), SlotRiskOf(promotion, show, network)))
    remarks.push_back(
        {"Too risky!", "Network: 'We are not happy with the risky nature of your product.'"});
  Weigh(why, view >= kHappy, ViewOfRating(show, network));
  remarks.push_back(kViewWords[view]);
  return remarks;
}

ExtensionTalk TalkOfExtension(const Promotion& promotion, const Show& show,
                              const Network& network) {
  const NetworkView view = ViewOf(show, network);
  ExtensionTalk talk;
  const auto say = [&](const char* words, int weeks = 0) {
    talk.Text = words;
    talk.Weeks = weeks;
    return talk;
  };
  if (!talk.Why.Weigh(!IsTooRisky(promotion, show, network), SlotRiskOf(promotion, show, network)))
    return say(
        "Network: 'We are not going to negotiate until you lower your product's risk value!'");
  talk.Why.Weigh(view >= kHappy, ViewOfRating(show, network));
  if (view == kUnseen)
    return say("Network: 'We are not going to negotiate without having seen a show!'");
  if (view < kHappy)
    return say("Network: 'We are not looking to extend the contract at the present time.'");
  if (!talk.Why.Weigh(show.ContractWeeks <= kTalkWeeks,
                      Counted(show.ContractWeeks, "week") + " to run; they talk about " +
                          std::to_string(kTalkWeeks) + " or fewer"))
    return say(
        "Network: 'We do not want to enter negotiations when the contract still has over 3 months "
        "to run.'");
  if (view == kHappy)
    return say("Network: 'We are willing to offer a 6 month extension on the deal.'", kHappyWeeks);
  return say("Network: 'We are willing to offer a 9 month extension on the deal.'", kGreatWeeks);
}

EndingTalk TalkOfEnding(const Promotion& promotion, const Show& show, const Network& network) {
  EndingTalk talk;
  if (talk.Why.Weigh(ViewOf(show, network) == kTerrible, ViewOfRating(show, network))) {
    talk.Text = "Network: 'We are happy to mutually end this deal.'";
    return talk;
  }
  talk.Penalty = BySize(kPenalties, promotion.Size);
  talk.Text =
      "Network: 'We do not wish to end this deal.If you breach the contract, we will sue you for "
      "$" +
      std::to_string(talk.Penalty) + ".'";
  talk.Why.Weigh(false, "They sue a promotion of our size for " + Dollars(talk.Penalty));
  return talk;
}

void EndDeal(World& world, Show& show, int penalty) {
  MoveBeside(world, world.Player(), -penalty, "Ending the deal of " + show.Name);
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

std::string SlotNameOf(std::string_view slot) {
  return std::string(SlotName(slot));
}

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
                                const Network& network, Decision* why) {
  std::optional<Reason> reason;
  if (!Weigh(why, promotion.Size <= kSmall, "Our size: they deal with Small promotions and up"))
    reason = kTooSmall;
  if (!Weigh(why, promotion.Risk <= network.GraveRisk, RiskOf(promotion, network.GraveRisk)))
    reason = kTooRisky;
  const bool hasSpace = !IsFull(world, network) || network.Generic;
  if (!Weigh(why, hasSpace, hasSpace ? "There is space for a show" : "Every spot is taken"))
    reason = kNoSpace;
  const int potential = AudiencePotential(promotion, world.Game().Economy);
  const int least = PercentOf(network.GraveAudience, 60);
  const bool draws = Weigh(why, potential >= least,
                           "We could draw a rating of " + InHundredths(potential) + "; they want " +
                               InHundredths(least) + " at least");
  if (!draws && !reason) reason = kNoBenefit;
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
  const auto* move = std::ranges::find_if(
      kMoves, [&](const SlotMove& each) { return show.Slot == each.From && view == each.View; });
  MoveTalk talk;
  const std::string rating = ViewOfRating(show, network);
  if (move == std::end(kMoves)) {
    talk.Text = kRefuse;
    talk.Why.Weigh(false, rating + ": no reason to move it from " + SlotNameOf(show.Slot));
    return talk;
  }
  talk.Why.Weigh(true, rating + ": " + SlotNameOf(move->To) + " would suit it");
  const int risk = network.*move->RiskBelow;
  const bool isTame =
      talk.Why.Weigh(promotion.Risk < risk, RiskOf(promotion, risk, "it must be below "));
  const bool isFree = isTame && talk.Why.Weigh(!SlotTaken(world, network, move->To),
                                               SlotNameOf(move->To) + " must be free");
  talk.Text = !isTame ? move->TooRisky : !isFree ? TakenWords(move->To) : move->Offer;
  if (isFree) talk.Slot = move->To;
  return talk;
}

bool CouldUseTape(const World& world, const Network& network) {
  return !RefusalOf(world, world.Player(), network, nullptr);
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
  Decision why;
  const auto reason = RefusalOf(world, world.Player(), *network, &why);
  const bool isOffer =
      !reason && why.Weigh(world.RandomDraw(kOfferOdds) == kOfferDraw,
                           "A matter of luck: one such tape in " + std::to_string(kOfferOdds));
  NoteAnew(world, {kNoteTape, network->Name.Str()}, why);
  if (!isOffer) return AddNews(world, network->Name, reason ? kRefusals[*reason] : kNotLooking);
  game.TvOfferWait = int(network->Uid);
  AddNews(world, "Production",
          "We have recieved interest from " + network->Name.Str() +
              "! (Go to the 'Television' section)");
}

std::string WhyOfTape(const World& world) {
  const auto [whose, why] = NotedAnswer(world, kNoteTape);
  if (why.Steps().empty()) return {};
  return WhyText(whose + (why.IsYes() ? " made an offer" : " turned the tape down"), why);
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
