#pragma once

#include <array>

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

namespace grapplemont {

/// The running totals of a month, in dollars.
struct MonthBooks {
  Cash TicketIncome;
  Cash MerchIncome;
  Cash PpvIncome;
  Cash SponsorIncome;
  Cash WrestlerWages;
  Cash StaffWages;
  Cash ProductionCost;
  Cash AdvertisingCost;
  Cash MerchCost;
};

/// A company of the world, the player's or a rival's: a record of promos.dat.
struct Promotion {
  Word Uid;
  Flag Active;
  Text<40> Name;
  Text<6> Initials;
  Word Size;
  Cash Money;
  RangedWord<0, 1000> TicketPrice;
  Percent Image;
  Word Momentum;
  Word Commissioner;
  Percent Production;
  Percent Risk;
  RangedWord<0, 100> Advertising;
  RangedWord<0, 100> Merchandising;
  Text<9> MeetingDay;
  std::array<RangedWord<0, 600, true>, 5> Rank;
  std::array<Cash, 5> MoneyBefore;
  RangedLong<0, kMostDollars> LoanAmount;
  RangedWord<0, 600> LoanMonths;
  RangedLong<0, kMostDollars> LoanRepaid;
  RangedWord<0, 100> LoanMissed;
  MonthBooks ThisMonth;
  MonthBooks LastMonth;
  std::array<Text<10>, 4> Split;
  std::array<Word, 4> Sponsor;
  Text<25> CampName;
  Word CampFacilities;
  Word HeadTrainer;
  Text<35> DevName;
  Word DevBooker;
};
GM_RECORD(Promotion, 309);

/// The name that marks a Promotion or a Show which has ceased to exist.
inline constexpr std::string_view kToBeDeleted = "To Be Deleted";

/// "Global" to "Backyard"; empty for another size.
std::string_view SizeText(int size);
/// The standing that is kept at month ends: (6 - Size) x 100 + Image.
int StandingScore(const Promotion& promotion);

// The partners and the programmes of promotions: television shows, networks, sponsors, Events.

/// A weekly television show: a record of tv.dat.
struct Show {
  Text<20> Name;
  Word Owner;
  Text<9> Day;
  Text<1> Slot;
  Word Network;
  RangedWord<0, 520> ContractWeeks;
  Word Announcer;
  Word Colour;
  Flag ColourIsWorker;
  Hundredths Rating1;           // highest so far, in hundredths; 0 before the first show
  Hundredths Rating2;           // lowest
  Hundredths Rating3;           // last
  RangedWord<0, 1000> Rating4;  // strikes
};
GM_RECORD(Show, 50);

/// A television network: a record of network.dat. Audiences are ratings in hundredths.
struct Network {
  Word Uid;
  Text<20> Name;
  Hundredths EarlyAudience;
  Hundredths PrimeAudience;
  Hundredths LateAudience;
  Hundredths GraveAudience;
  Percent EarlyRisk;
  Percent PrimeRisk;
  Percent LateRisk;
  Percent GraveRisk;
  Percent Production;
  Flag Generic;
};
GM_RECORD(Network, 42);

/// A sponsor: a record of sponsor.dat.
struct Sponsor {
  Word Uid;
  Text<20> Name;
  Text<40> Slogan;
  Word Promotion;
  RangedWord<0, 600> ContractMonths;
  Percent Morality;
  RangedLong<0, 100000> Pay;  // thousands of dollars a show
};
GM_RECORD(Sponsor, 72);

/// A monthly big show: a record of event.dat.
struct Event {
  Text<20> Name;
  Word Owner;
  Word Month;
  Word Type;
};
GM_RECORD(Event, 26);

}  // namespace grapplemont
