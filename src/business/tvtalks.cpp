#include "business/tvtalks.h"

#include <algorithm>
#include <array>

#include "business/networks.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"

namespace grapplemont {

namespace {

// By size, Global to Backyard, in dollars.
constexpr std::array<int, 6> kPenalties = {20000000, 20000000, 15000000, 8000000, 6000000, 2000000};

/// A network talks about more weeks when no more than these are left.
constexpr int kTalkWeeks = 12;
constexpr int kHappyWeeks = 24;
constexpr int kGreatWeeks = 36;

struct ViewWords {
  const char* Title;
  const char* Text;
};
constexpr ViewWords kViewWords[] = {
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
  remarks.push_back({kViewWords[view].Title, kViewWords[view].Text});
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

}  // namespace grapplemont
