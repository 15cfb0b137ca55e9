#include "business/productrisk.h"

#include "business/networks.h"
#include "business/sponsorlimits.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

struct RiskWords {
  int From;
  const char* Words;
};
constexpr RiskWords kRiskWords[] = {{81, "Nothing is too much"},
                                    {61, "For grown-ups only"},
                                    {41, "An edge that some mind"},
                                    {21, "For most of the family"},
                                    {0, "For the whole family"}};

constexpr int kHighestRisk = 100;

RiskLimit LimitOf(const Show& show, const Network& network) {
  return {show.Name.Str(),
          "Television, " + std::string(Says(kTimeSlots, show.Slot)) + " on " + network.Name.Str(),
          SlotRisk(network, show.Slot), "A strike for every show"};
}

RiskLimit LimitOf(const Sponsor& sponsor, bool isMain) {
  return {sponsor.Name.Str(), isMain ? "Main sponsor" : "Minor sponsor",
          kHighestRisk - sponsor.Morality, "Leaves on Monday"};
}

}  // namespace

std::vector<RiskLimit> RiskLimits(const World& world) {
  std::vector<RiskLimit> limits;
  const Promotion& player = world.Player();
  for (const Show& show : world.Shows())
    if (show.Owner == player.Uid)
      if (const Network* network = world.FindNetwork(show.Network))
        limits.push_back(LimitOf(show, *network));
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == player.Uid)
      limits.push_back(LimitOf(sponsor, player.Sponsor[0] == sponsor.Uid));
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
  for (const RiskWords& row : kRiskWords)
    if (risk >= row.From) return row.Words;
  return kRiskWords[std::size(kRiskWords) - 1].Words;
}

}  // namespace grapplemont
