#include "business/sponsorlimits.h"

#include <algorithm>
#include <array>

#include "records/arithmetic.h"

namespace grapplemont {

namespace {

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

}  // namespace

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

}  // namespace grapplemont
