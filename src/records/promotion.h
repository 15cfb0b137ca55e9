#pragma once

#include <array>

#include "records/field.h"
#include "records/vocabulary.h"

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

static_assert(sizeof(MonthBooks) == 36 && sizeof(Promotion) == 309 && alignof(Promotion) == 1);
static_assert(offsetof(Promotion, Uid) == 0 && offsetof(Promotion, Active) == 2);
static_assert(offsetof(Promotion, Name) == 4 && offsetof(Promotion, Initials) == 44);
static_assert(offsetof(Promotion, Size) == 50 && offsetof(Promotion, Money) == 52);
static_assert(offsetof(Promotion, TicketPrice) == 56 && offsetof(Promotion, Image) == 58);
static_assert(offsetof(Promotion, Momentum) == 60 && offsetof(Promotion, Commissioner) == 62);
static_assert(offsetof(Promotion, Production) == 64 && offsetof(Promotion, Risk) == 66);
static_assert(offsetof(Promotion, Advertising) == 68 && offsetof(Promotion, Merchandising) == 70);
static_assert(offsetof(Promotion, MeetingDay) == 72 && offsetof(Promotion, Rank) == 81);
static_assert(offsetof(Promotion, MoneyBefore) == 91 && offsetof(Promotion, LoanAmount) == 111);
static_assert(offsetof(Promotion, LoanMonths) == 115 && offsetof(Promotion, LoanRepaid) == 117);
static_assert(offsetof(Promotion, LoanMissed) == 121 && offsetof(Promotion, ThisMonth) == 123);
static_assert(offsetof(MonthBooks, TicketIncome) == 0 && offsetof(MonthBooks, MerchIncome) == 4);
static_assert(offsetof(MonthBooks, PpvIncome) == 8 && offsetof(MonthBooks, SponsorIncome) == 12);
static_assert(offsetof(MonthBooks, WrestlerWages) == 16 && offsetof(MonthBooks, StaffWages) == 20);
static_assert(offsetof(MonthBooks, ProductionCost) == 24);
static_assert(offsetof(MonthBooks, AdvertisingCost) == 28 && offsetof(MonthBooks, MerchCost) == 32);
static_assert(offsetof(Promotion, LastMonth) == 159 && offsetof(Promotion, Split) == 195);
static_assert(offsetof(Promotion, Sponsor) == 235 && offsetof(Promotion, CampName) == 243);
static_assert(offsetof(Promotion, CampFacilities) == 268);
static_assert(offsetof(Promotion, HeadTrainer) == 270 && offsetof(Promotion, DevName) == 272);
static_assert(offsetof(Promotion, DevBooker) == 307);

template <>
const RecordLayout& LayoutOf<Promotion>();

/// The name that marks a Promotion or a Show which has ceased to exist.
inline constexpr std::string_view kToBeDeleted = "To Be Deleted";

/// "Global" to "Backyard"; empty for another size.
std::string_view SizeText(int size);
/// The standing that is kept at month ends: (6 - Size) x 100 + Image.
int StandingScore(const Promotion& promotion);

}  // namespace grapplemont
