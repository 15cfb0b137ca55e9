#include "business/sponsors.h"

#include <algorithm>
#include <array>
#include <utility>

#include "business/beside.h"
#include "business/networks.h"
#include "records/arithmetic.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

constexpr int kLeastMonths = 6;
constexpr int kDrawnMonths = 18;

Word& PlaceOf(Promotion& promotion, int place) {
  return promotion.Sponsor.at(static_cast<std::size_t>(place - 1));
}

struct PayLimits {
  int Image51Up;
  int Below51;
};
// By size, Global to Backyard.
constexpr std::array<PayLimits, 6> kPlayerLimits = {
    {{1001, 801}, {751, 651}, {576, 476}, {401, 301}, {151, 101}, {51, 11}}};
constexpr std::array<PayLimits, 6> kRivalLimits = {
    {{1001, 1001}, {921, 861}, {821, 701}, {601, 531}, {451, 321}, {251, 101}}};

int LimitOf(const std::array<PayLimits, 6>& limits, int size, int image) {
  const PayLimits& row = BySize(limits, size);
  return image >= 51 ? row.Image51Up : row.Below51;
}

/// From which risk on.
constexpr std::pair<int, const char*> kRiskWords[] = {{81, "Nothing is too much"},
                                                      {61, "For grown-ups only"},
                                                      {41, "An edge that some mind"},
                                                      {21, "For most of the family"}};

void Tell(World& world, const Promotion& promotion, const std::string& ours,
          const std::string& theirs) {
  if (promotion.Uid == world.PlayerUid())
    AddNews(world, "News Desk", ours);
  else if (ShouldTell(world, world.Game().MailSponsor, promotion.Size))
    AddNews(world, promotion.Initials + " News", theirs);
}

}  // namespace

Sponsor* SponsorAt(World& world, const Promotion& promotion, int place) {
  return world.FindSponsor(promotion.Sponsor.at(static_cast<std::size_t>(place - 1)));
}

int SponsorPlace(const Promotion& promotion, int sponsorUid) {
  if (sponsorUid == 0) return 0;
  for (int place = kMainSponsor; place <= kSponsorPlaces; ++place)
    if (promotion.Sponsor[static_cast<std::size_t>(place - 1)] == sponsorUid) return place;
  return 0;
}

int FreeSponsorPlace(World& world, const Promotion& promotion, int from) {
  for (int place = from; place <= kSponsorPlaces; ++place)
    if (!SponsorAt(world, promotion, place)) return place;
  return 0;
}

void SignSponsor(World& world, Promotion& promotion, Sponsor& sponsor, int place) {
  LoseSponsor(world, sponsor);
  if (Sponsor* before = SponsorAt(world, promotion, place)) LoseSponsor(world, *before);
  PlaceOf(promotion, place) = sponsor.Uid;
  sponsor.Promotion = promotion.Uid;
  sponsor.ContractMonths = kLeastMonths + world.RandomDraw(kDrawnMonths);
}

void MoveSponsor(Promotion& promotion, int sponsorUid, int place) {
  if (const int from = SponsorPlace(promotion, sponsorUid); from != 0)
    std::swap(PlaceOf(promotion, from), PlaceOf(promotion, place));
}

void LoseSponsor(World& world, Sponsor& sponsor) {
  for (Promotion& promotion : world.Promotions())
    std::ranges::replace_if(
        promotion.Sponsor, [&](const Word& place) { return place == sponsor.Uid; }, 0);
  sponsor.Promotion = 0;
  sponsor.ContractMonths = 0;
}

SponsorAnswer AnswerOf(const Sponsor& sponsor, const Promotion& promotion, Decision* why) {
  const bool bears = BearsRisk(sponsor, promotion.Risk);
  Weigh(why, bears,
        "They bear a risk of " + std::to_string(100 - sponsor.Morality) + "%; ours is " +
            std::to_string(promotion.Risk) + "%.");
  if (!bears) return SponsorAnswer::TooRisky;
  const int limit = SponsorPayLimit(promotion.Size, promotion.Image);
  const bool accepts = sponsor.Pay < limit;
  Weigh(why, accepts,
        "Our size and image bring sponsors who pay less than " + Dollars(1LL * limit * kThousand) +
            " a show; they pay " + Dollars(1LL * sponsor.Pay * kThousand) + ".");
  return accepts ? SponsorAnswer::Accepts : SponsorAnswer::Declines;
}

long long EndingCost(const Sponsor& sponsor) {
  return static_cast<long long>(sponsor.Pay) * kThousand * sponsor.ContractMonths;
}

void EndSponsorship(World& world, Promotion& promotion, Sponsor& sponsor) {
  MoveBeside(world, promotion, -EndingCost(sponsor), "Ending the deal with " + sponsor.Name);
  LoseSponsor(world, sponsor);
}

bool BearsRisk(const Sponsor& sponsor, int risk) {
  return risk <= 100 - sponsor.Morality;
}

int SponsorPayLimit(int size, int image) {
  return LimitOf(kPlayerLimits, size, image);
}

int RivalSponsorPayLimit(int size, int image) {
  return LimitOf(kRivalLimits, size, image);
}

int SponsorPayForTv(const Sponsor& sponsor, bool isMain) {
  return isMain ? sponsor.Pay / 4 : sponsor.Pay / 10;
}

std::vector<RiskLimit> RiskLimits(const World& world) {
  std::vector<RiskLimit> limits;
  const Promotion& player = world.Player();
  for (const Show& show : world.Shows())
    if (show.Owner == player.Uid)
      if (const Network* network = world.FindNetwork(show.Network))
        limits.push_back({show.Name.Str(),
                          "Television, " + std::string(Says(kTimeSlots, show.Slot)) + " on " +
                              network->Name.Str(),
                          SlotRisk(*network, show.Slot), "A strike for every show"});
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == player.Uid)
      limits.push_back({sponsor.Name.Str(),
                        player.Sponsor[0] == sponsor.Uid ? "Main sponsor" : "Minor sponsor",
                        100 - sponsor.Morality, "Leaves on Monday"});
  return limits;
}

RiskMarket MarketFor(const World& world, int risk) {
  RiskMarket market;
  for (const Sponsor& sponsor : world.Sponsors()) {
    ++market.Sponsors;
    if (BearsRisk(sponsor, risk)) ++market.SponsorsThatBear;
  }
  for (const Network& network : world.Networks())
    for (const Term& slot : kTimeSlots) {
      ++market.Slots;
      if (risk <= SlotRisk(network, slot.Stored)) ++market.SlotsThatBear;
    }
  return market;
}

const char* RiskText(int risk) {
  for (const auto& [from, words] : kRiskWords)
    if (risk >= from) return words;
  return "For the whole family";
}

void SponsorRiskReview(World& world) {
  for (Sponsor& sponsor : world.Sponsors()) {
    const Promotion* promotion = world.FindPromotion(sponsor.Promotion);
    if (!promotion || BearsRisk(sponsor, promotion->Risk)) continue;
    Tell(world, *promotion,
         sponsor.Name +
             " have ended our sponsorship deal due to the increasingly risky material that we are "
             "using.",
         promotion->Initials + " have ended their sponsorship deal with " + sponsor.Name.Str() +
             " due to the increasingly risky material that they are using.");
    LoseSponsor(world, sponsor);
  }
}

void SponsorContractCountdown(World& world) {
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion == 0) continue;
    if (sponsor.ContractMonths > 1) {
      sponsor.ContractMonths -= 1;
      continue;
    }
    if (const Promotion* promotion = world.FindPromotion(sponsor.Promotion))
      Tell(world, *promotion, "Our sponsorship deal with " + sponsor.Name.Str() + " has now ended.",
           sponsor.Name + " have ended their sponsorship deal with " + promotion->Initials.Str() +
               ".");
    LoseSponsor(world, sponsor);
  }
}

}  // namespace grapplemont
