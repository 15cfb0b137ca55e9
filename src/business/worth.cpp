#include "business/worth.h"

#include <algorithm>
#include <array>

#include "business/development.h"
#include "business/networks.h"
#include "business/sponsors.h"
#include "business/tvshows.h"
#include "records/arithmetic.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "roster/talks.h"

namespace grapplemont {

namespace {

// By size, Global to Backyard: dollars for the name, and for each point of a worker's popularity
// squared in a month, since a bigger stage earns more with the same face.
constexpr std::array<int, 6> kNameWorth = {60000000, 20000000, 8000000, 3000000, 800000, 50000};
constexpr std::array<int, 6> kFameWorth = {40, 12, 12, 12, 15, 4};

constexpr int kYearMonths = 12, kYearWeeks = 52;  // nobody pays for what is further away
constexpr int kDollarsPerRating = 300;            // a hundredth of a rating, for a week

int MonthsThatCount(int contractMonths) {
  return contractMonths == kNoEnd ? kYearMonths : std::clamp(contractMonths, 0, kYearMonths);
}

WorthLine NameWorth(const Promotion& promotion) {
  const int base = BySize(kNameWorth, promotion.Size), percent = 50 + promotion.Image;
  return {"Name and image",
          std::string(SizeText(promotion.Size)) + ", " + Dollars(base) + " x " +
              std::to_string(percent) + "% for an image of " + std::to_string(promotion.Image) +
              "%",
          static_cast<long long>(base) * percent / 100};
}

struct Roster {
  int People = 0;
  long long Fame = 0;   // popularity squared, times the months that count
  long long Wages = 0;  // thousands of dollars over the same months
};

Roster RosterOf(const World& world, const Promotion& promotion) {
  Roster roster;
  for (const Worker& worker : world.Workers()) {
    if (worker.Employer != promotion.Uid) continue;
    const long long months = MonthsThatCount(worker.ContractMonths);
    const int over = worker.Over;
    ++roster.People;
    roster.Fame += months * over * over;
    roster.Wages += months * MonthlyWage(worker) / kThousand;
  }
  return roster;
}

WorthLine FameWorth(const Promotion& promotion, const Roster& roster) {
  const int rate = BySize(kFameWorth, promotion.Size);
  return {"The popularity of the roster",
          Counted(roster.People, "worker") + ", " + Dollars(rate) +
              " for each point squared in each month of contract, a year at most",
          roster.Fame * rate};
}

int RatingOf(const World& world, const Promotion& promotion, const Show& show) {
  if (show.Rating3 > 0) return show.Rating3;
  const Network* network = world.FindNetwork(show.Network);
  const int potential = AudiencePotential(promotion, world.Game().Economy);
  return network ? std::min(potential, SlotAudience(*network, show.Slot)) : 0;
}

WorthLine TelevisionWorth(const World& world, const Promotion& promotion) {
  const auto shows = ShowsOf(world, promotion.Uid);
  long long dollars = 0;
  for (const Show* show : shows)
    dollars += static_cast<long long>(RatingOf(world, promotion, *show)) * kDollarsPerRating *
               std::clamp<int>(show->ContractWeeks, 0, kYearWeeks);
  return {"Television deals",
          Counted(std::ssize(shows), "show") + ", " + Dollars(kDollarsPerRating) +
              " a week for each hundredth of the rating, a year at most",
          dollars};
}

WorthLine SponsorWorth(const World& world, const Promotion& promotion) {
  const auto shows = std::ssize(ShowsOf(world, promotion.Uid));
  const auto events = std::ranges::count_if(
      world.Events(), [&](const Event& event) { return event.Owner == promotion.Uid; });
  long long dollars = 0, sponsors = 0;
  for (const Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != promotion.Uid) continue;
    ++sponsors;
    const long long tv = SponsorPayForTv(sponsor, promotion.Sponsor[0] == sponsor.Uid);
    const long long year = sponsor.Pay * static_cast<long long>(events) + tv * shows * kYearWeeks;
    dollars += year * kThousand * MonthsThatCount(sponsor.ContractMonths) / kYearMonths;
  }
  return {"Sponsors",
          Counted(sponsors, "sponsor") +
              ", what they will pay for the shows until their deals end, a year at most",
          dollars};
}

WorthLine DevelopmentWorth(const Promotion& promotion) {
  long long dollars = 0;
  for (const Site site : {Site::Camp, Site::Territory})
    if (HasSite(promotion, site)) dollars += SitePrice(site, promotion.CampFacilities);
  return {"Training camp and territory", "Half of what they would cost", dollars / 2};
}

}  // namespace

std::vector<WorthLine> PromotionWorth(const World& world, const Promotion& promotion) {
  const Roster roster = RosterOf(world, promotion);
  const int money = promotion.Money;
  const long long owed = static_cast<long long>(promotion.LoanAmount) - promotion.LoanRepaid;
  return {NameWorth(promotion),
          FameWorth(promotion, roster),
          {"The roster's wages", "Promised for the same months", -roster.Wages * kThousand},
          TelevisionWorth(world, promotion),
          SponsorWorth(world, promotion),
          DevelopmentWorth(promotion),
          {"Cash", "In hand", std::max(money, 0)},
          {"Debts", "What is overdrawn", std::min(money, 0)},
          {"Loan", "What is still to be repaid", std::min<long long>(0, -owed)}};
}

long long SumOf(const std::vector<WorthLine>& lines) {
  long long sum = 0;
  for (const WorthLine& line : lines) sum += line.Dollars;
  return sum;
}

}  // namespace grapplemont
