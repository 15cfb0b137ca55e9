#include "business/sponsors.h"

#include <algorithm>
#include <utility>

#include "business/sponsorlimits.h"

namespace grapplemont {

namespace {

constexpr int kLeastMonths = 6;
constexpr int kDrawnMonths = 18;
constexpr int kThousand = 1000;

Word& PlaceOf(Promotion& promotion, int place) {
  return promotion.Sponsor.at(static_cast<std::size_t>(place - 1));
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
    std::replace_if(
        promotion.Sponsor.begin(), promotion.Sponsor.end(),
        [&](const Word& place) { return place == sponsor.Uid; }, 0);
  sponsor.Promotion = 0;
  sponsor.ContractMonths = 0;
}

SponsorAnswer AnswerOf(const Sponsor& sponsor, const Promotion& promotion) {
  if (!BearsRisk(sponsor, promotion.Risk)) return SponsorAnswer::TooRisky;
  return sponsor.Pay < SponsorPayLimit(promotion.Size, promotion.Image) ? SponsorAnswer::Accepts
                                                                        : SponsorAnswer::Declines;
}

long long EndingCost(const Sponsor& sponsor) {
  return static_cast<long long>(sponsor.Pay) * kThousand * sponsor.ContractMonths;
}

void EndSponsorship(World& world, Promotion& promotion, Sponsor& sponsor) {
  promotion.Money -= EndingCost(sponsor);
  LoseSponsor(world, sponsor);
}

}  // namespace grapplemont
