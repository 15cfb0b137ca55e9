#pragma once

#include <string>
#include <vector>

#include "records/fields/companies.h"
#include "records/score.h"
#include "records/world.h"

// How sponsors and promotions, the player's and rivals' alike, come together and part.

namespace grapplemont {

/// Dollars. Pay and wages count in thousands.
inline constexpr int kThousand = 1000;

/// Places of a promotion's sponsors, numbered from 1; the first is the main one's.
inline constexpr int kMainSponsor = 1;
inline constexpr int kSponsorPlaces = 4;

/// The sponsor in place 1 to 4, nullptr for a free one.
Sponsor* SponsorAt(World& world, const Promotion& promotion, int place);
/// The place 1 to 4 that the sponsor has in the promotion, 0 for none.
int SponsorPlace(const Promotion& promotion, int sponsorUid);
/// The first free place from `from` on, 0 for none. That of a sponsor who is gone is free.
int FreeSponsorPlace(World& world, const Promotion& promotion, int from = kMainSponsor);

/// The sponsor takes place 1 to 4, wherever it was before, for 7 to 24 months. Draws once, of 18.
void SignSponsor(World& world, Promotion& promotion, Sponsor& sponsor, int place);
/// A sponsor of the promotion's own moves to another place; whoever has that place takes the other.
/// The deal runs on.
void MoveSponsor(Promotion& promotion, int sponsorUid, int place);
/// The deal is over: no promotion lists the sponsor any more, and it is free. Nothing is paid.
void LoseSponsor(World& world, Sponsor& sponsor);

/// How a sponsor answers the player's offer, by the promotion's risk, then by its standing. `why`
/// gets what was weighed.
enum class SponsorAnswer { Accepts, TooRisky, Declines };
SponsorAnswer AnswerOf(const Sponsor& sponsor, const Promotion& promotion, Decision* why = nullptr);

/// Dollars that it costs to end a deal before its time.
long long EndingCost(const Sponsor& sponsor);
/// The promotion pays for the rest of the deal, into debt if need be, and loses the sponsor.
void EndSponsorship(World& world, Promotion& promotion, Sponsor& sponsor);

// Steps of the day.
/// Mondays: sponsors whose promotion has become too risky for them walk out.
void SponsorRiskReview(World& world);
/// The first of a month: a month off every deal; the last month ends it.
void SponsorContractCountdown(World& world);

/// Whether the sponsor can bear the product: the more moral, the less risk.
bool BearsRisk(const Sponsor& sponsor, int risk);

/// A sponsor whose Pay (in thousands of dollars a show) is this or more turns the player's
/// promotion down; by its size and image.
int SponsorPayLimit(int size, int image);
/// The same for a rival, whom sponsors court more.
int RivalSponsorPayLimit(int size, int image);

/// Thousands of dollars that a sponsor gives for a television show, as the main or a minor one; an
/// Event brings the whole Pay from either.
int SponsorPayForTv(const Sponsor& sponsor, bool isMain);

// How risky the product may be, and who would not bear it.

/// A partner of the player's and the highest risk that it bears.
struct RiskLimit {
  std::string Who;   // "Friday Fire", "Gulp"
  std::string What;  // "Television, Prime Time on Nine", "Main sponsor"
  int Limit;
  std::string Otherwise;  // what happens above it
};
/// Of the player's television shows and sponsors, in the order of their files.
std::vector<RiskLimit> RiskLimits(const World& world);

/// Of how many that are there to be had a product of this risk can be had by how many.
struct RiskMarket {
  int Sponsors = 0, SponsorsThatBear = 0;
  int Slots = 0, SlotsThatBear = 0;  // a network has four
};
RiskMarket MarketFor(const World& world, int risk);

/// "For the whole family" and so on.
const char* RiskText(int risk);

}  // namespace grapplemont
