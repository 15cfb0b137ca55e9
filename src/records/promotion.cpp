#include "records/promotion.h"

namespace grapplemont {

namespace {

#define FIELD(member) GM_FIELD(Promotion, member)
#define NUMBERED(member) GM_NUMBERED(Promotion, member)
#define BOOK(month, member, name)                                      \
  detail::MakeField<decltype(MonthBooks::member)>(                     \
      name, offsetof(Promotion, month) + offsetof(MonthBooks, member)) \
      .Counts("dollars")

constexpr Field kFields[] = {
    FIELD(Uid).In(1, 32767).Key().Means("The number by which other records know the promotion."),
    FIELD(Active).Means("Set for every promotion that exists."),
    FIELD(Name).Key().Means("Full name."),
    FIELD(Initials).Key().Means("Initials, shown almost everywhere instead of the name."),
    FIELD(Size).In(1, 6).From(kSizes).Means("Size class."),
    FIELD(Money).Counts("dollars").Means("Cash; may be negative."),
    FIELD(TicketPrice).Counts("dollars").Means("Price of a ticket."),
    FIELD(Image).Counts("percent").Means("For a promotion to go to the \"next size\", they have to "
                                         "reach 100% image during the game."),
    FIELD(Momentum).Means("The way the image is going."),
    FIELD(Commissioner)
        .In(0, 32767)
        .LeadsTo(Refers::Worker)
        .Means("A non-wrestler who rules on screen."),
    FIELD(Production).Counts("percent").Means("Production values."),
    FIELD(Risk).Counts("percent").Means("Riskiness of the product."),
    FIELD(Advertising).Counts("levels of $10000 a month").Means("Advertising."),
    FIELD(Merchandising).Counts("levels of $20000 a month").Means("Merchandise."),
    FIELD(MeetingDay).From(kWeekDays).Means("Day of the weekly staff meeting."),
    NUMBERED(Rank).Means("Standing at past month ends, newest first."),
    detail::MakeNumbered<decltype(Promotion::MoneyBefore)>("Money#",
                                                           offsetof(Promotion, MoneyBefore))
        .Counts("dollars")
        .Means("Cash at past month ends, newest first; -1 for no data."),
    FIELD(LoanAmount).Counts("dollars").Means("Bank loan to repay; 0 for none."),
    FIELD(LoanMonths).Counts("months").Means("Length of the loan."),
    FIELD(LoanRepaid).Counts("dollars").Means("Repaid so far."),
    FIELD(LoanMissed).Means("Missed repayments."),
    BOOK(ThisMonth, TicketIncome, "TicketIncome").Means("Ticket sales this month."),
    BOOK(ThisMonth, MerchIncome, "MerchIncome").Means("Merchandise sales this month."),
    BOOK(ThisMonth, PpvIncome, "PpvIncome").Means("Pay-per-view revenue this month."),
    BOOK(ThisMonth, SponsorIncome, "SponsorIncome").Means("Sponsors' money this month."),
    BOOK(ThisMonth, WrestlerWages, "WrestlerWages").Means("Workers' wages this month."),
    BOOK(ThisMonth, StaffWages, "StaffWages").Means("Staff wages this month."),
    BOOK(ThisMonth, ProductionCost, "ProductionCost").Means("Production this month."),
    BOOK(ThisMonth, AdvertisingCost, "AdvertisingCost").Means("Advertising this month."),
    BOOK(ThisMonth, MerchCost, "MerchCost").Means("Cost of merchandise this month."),
    BOOK(LastMonth, TicketIncome, "LastTicketIncome").Means("Ticket sales last month."),
    BOOK(LastMonth, MerchIncome, "LastMerchIncome").Means("Merchandise sales last month."),
    BOOK(LastMonth, PpvIncome, "LastPpvIncome").Means("Pay-per-view revenue last month."),
    BOOK(LastMonth, SponsorIncome, "LastSponsorIncome").Means("Sponsors' money last month."),
    BOOK(LastMonth, WrestlerWages, "LastWrestlerWages").Means("Workers' wages last month."),
    BOOK(LastMonth, StaffWages, "LastStaffWages").Means("Staff wages last month."),
    BOOK(LastMonth, ProductionCost, "LastProductionCost").Means("Production last month."),
    BOOK(LastMonth, AdvertisingCost, "LastAdvertisingCost").Means("Advertising last month."),
    BOOK(LastMonth, MerchCost, "LastMerchCost").Means("Cost of merchandise last month."),
    NUMBERED(Split).Means("Name of a part of the roster, or None."),
    NUMBERED(Sponsor)
        .In(0, 32767)
        .LeadsTo(Refers::Sponsor)
        .Means("Sponsors; the first is the main one."),
    FIELD(CampName).Means("Training camp, or None."),
    FIELD(CampFacilities).In(0, 4).From(kCampFacilities).Means("Facilities of the camp."),
    FIELD(HeadTrainer).In(0, 32767).LeadsTo(Refers::Staff).Means("Head trainer of the camp."),
    FIELD(DevName).Means("Development territory, or None."),
    FIELD(DevBooker).In(0, 32767).LeadsTo(Refers::Staff).Means("Booker of the territory."),
};

constexpr RecordLayout kLayout{"Promotion", "promos.dat", sizeof(Promotion), 35, kFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<Promotion>() {
  return kLayout;
}

std::string_view SizeText(int size) {
  return Says(kSizes, size);
}

int StandingScore(const Promotion& promotion) {
  return (6 - promotion.Size) * 100 + promotion.Image;
}

}  // namespace grapplemont
