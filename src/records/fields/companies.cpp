#include "records/fields/companies.h"

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
    FIELD(Commissioner).LeadsTo(Refers::Worker).Means("A non-wrestler who rules on screen."),
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
    NUMBERED(Sponsor).LeadsTo(Refers::Sponsor).Means("Sponsors; the first is the main one."),
    FIELD(CampName).Means("Training camp, or None."),
    FIELD(CampFacilities).In(0, 4).From(kCampFacilities).Means("Facilities of the camp."),
    FIELD(HeadTrainer).LeadsTo(Refers::Staff).Means("Head trainer of the camp."),
    FIELD(DevName).Means("Development territory, or None."),
    FIELD(DevBooker).LeadsTo(Refers::Staff).Means("Booker of the territory."),
};

}  // namespace

GM_LAYOUT(Promotion, "promos.dat", 35, kFields)

std::string_view SizeText(int size) {
  return Says(kSizes, size);
}

int StandingScore(const Promotion& promotion) {
  return (6 - promotion.Size) * 100 + promotion.Image;
}

namespace {

constexpr Field kShowFields[] = {
    GM_FIELD(Show, Name).Means("Name of the show."),
    GM_FIELD(Show, Owner).LeadsTo(Refers::Promotion).Means("The promotion it belongs to."),
    GM_FIELD(Show, Day).From(kWeekDays).Means("Day of the week."),
    GM_FIELD(Show, Slot).From(kTimeSlots).Means("Time of the evening."),
    GM_FIELD(Show, Network).LeadsTo(Refers::Network).Means("The network that airs it."),
    GM_FIELD(Show, ContractWeeks).Counts("weeks").Means("Weeks left of the deal."),
    GM_FIELD(Show, Announcer).LeadsTo(Refers::Staff).Means("Primary announcer."),
    GM_FIELD(Show, Colour).LeadsTo(Refers::Commentator).Means("Colour commentator."),
    GM_FIELD(Show, ColourIsWorker).Means("The colour commentator is a worker, not staff."),
    GM_FIELD(Show, Rating1).Counts("hundredths").Means("Highest rating; 0 before the first show."),
    GM_FIELD(Show, Rating2).Counts("hundredths").Means("Lowest rating."),
    GM_FIELD(Show, Rating3).Counts("hundredths").Means("Last rating."),
    GM_FIELD(Show, Rating4).Means("Strikes against the show."),
};

constexpr Field kNetworkFields[] = {
    GM_FIELD(Network, Uid).In(1, 32767).Key().Means("The number by which shows know the network."),
    GM_FIELD(Network, Name).Key().Means("Name."),
    GM_FIELD(Network, EarlyAudience).Counts("hundredths").Means("Audience of 6 to 8 pm."),
    GM_FIELD(Network, PrimeAudience).Counts("hundredths").Means("Audience of 8 to 10 pm."),
    GM_FIELD(Network, LateAudience).Counts("hundredths").Means("Audience of 10 pm to midnight."),
    GM_FIELD(Network, GraveAudience).Counts("hundredths").Means("Audience of midnight to 2 am."),
    GM_FIELD(Network, EarlyRisk).Counts("percent").Means("Highest risk tolerated from 6 to 8 pm."),
    GM_FIELD(Network, PrimeRisk).Counts("percent").Means("Highest risk tolerated from 8 to 10 pm."),
    GM_FIELD(Network, LateRisk)
        .Counts("percent")
        .Means("Highest risk tolerated from 10 pm to midnight."),
    GM_FIELD(Network, GraveRisk)
        .Counts("percent")
        .Means("Highest risk tolerated from midnight to 2 am."),
    GM_FIELD(Network, Production).Counts("percent").Means("Lowest production values accepted."),
    GM_FIELD(Network, Generic).Means("Has room for more than one show at a time."),
};

constexpr Field kSponsorFields[] = {
    GM_FIELD(Sponsor, Uid)
        .In(1, 32767)
        .Key()
        .Means("The number by which promotions know the sponsor."),
    GM_FIELD(Sponsor, Name).Key().Means("Name."),
    GM_FIELD(Sponsor, Slogan).Means("Slogan."),
    GM_FIELD(Sponsor, Promotion).LeadsTo(Refers::Promotion).Means("The promotion sponsored."),
    GM_FIELD(Sponsor, ContractMonths).Counts("months").Means("Months left."),
    GM_FIELD(Sponsor, Morality).Counts("percent").Means("High morality tolerates less risk."),
    GM_FIELD(Sponsor, Pay).Counts("thousand dollars a show").Means("Payment."),
};

constexpr Field kEventFields[] = {
    GM_FIELD(Event, Name).Means("Name of the event."),
    GM_FIELD(Event, Owner).LeadsTo(Refers::Promotion).Means("The promotion it belongs to."),
    GM_FIELD(Event, Month).In(1, 12).Means("Month it is held in."),
    GM_FIELD(Event, Type).In(1, 4).From(kEventTypes).Means("Pay-per-view or how large a show."),
};

}  // namespace

GM_LAYOUT(Show, "tv.dat", 1000, kShowFields)
GM_LAYOUT(Network, "network.dat", 1000, kNetworkFields)
GM_LAYOUT(Sponsor, "sponsor.dat", 1000, kSponsorFields)
GM_LAYOUT(Event, "event.dat", 10000, kEventFields)

}  // namespace grapplemont
