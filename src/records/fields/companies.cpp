#include "records/fields/companies.h"

namespace grapplemont {

namespace {

#define PROMOTION(member) GM_FIELD(Promotion, member)
#define NUMBERED(member) GM_NUMBERED(Promotion, member)
#define BOOK(month, member, name, help)                                        \
  detail::MakeField<decltype(MonthBooks::member)>(                             \
      name #member, offsetof(Promotion, month) + offsetof(MonthBooks, member)) \
      .Counts("dollars")                                                       \
      .Means(help ".")
#define BOOKS(month, name, when)                                  \
  BOOK(month, TicketIncome, name, "Ticket sales " when),          \
      BOOK(month, MerchIncome, name, "Merchandise sales " when),  \
      BOOK(month, PpvIncome, name, "Pay-per-view revenue " when), \
      BOOK(month, SponsorIncome, name, "Sponsors' money " when),  \
      BOOK(month, WrestlerWages, name, "Workers' wages " when),   \
      BOOK(month, StaffWages, name, "Staff wages " when),         \
      BOOK(month, ProductionCost, name, "Production " when),      \
      BOOK(month, AdvertisingCost, name, "Advertising " when),    \
      BOOK(month, MerchCost, name, "Cost of merchandise " when)

constexpr Field kPromotionFields[] = {
    PROMOTION(Uid).In(1, 32767).Key().Means(
        "The number by which other records know the promotion."),
    PROMOTION(Active).Means("Set for every promotion that exists."),
    PROMOTION(Name).Key().Means("Full name."),
    PROMOTION(Initials).Key().Means("Initials, shown almost everywhere instead of the name."),
    PROMOTION(Size).In(1, 6).From(kSizes).Means("Size class."),
    PROMOTION(Money).Counts("dollars").Means("Cash; may be negative."),
    PROMOTION(TicketPrice).Counts("dollars").Means("Price of a ticket."),
    PROMOTION(Image).Counts("percent").Means(
        "For a promotion to go to the \"next size\", they have to "
        "reach 100% image during the game."),
    PROMOTION(Momentum).Means("The way the image is going."),
    PROMOTION(Commissioner).LeadsTo(Refers::Worker).Means("A non-wrestler who rules on screen."),
    PROMOTION(Production).Counts("percent").Means("Production values."),
    PROMOTION(Risk).Counts("percent").Means("Riskiness of the product."),
    PROMOTION(Advertising).Counts("levels of $10000 a month").Means("Advertising."),
    PROMOTION(Merchandising).Counts("levels of $20000 a month").Means("Merchandise."),
    PROMOTION(MeetingDay).From(kWeekDays).Means("Day of the weekly staff meeting."),
    NUMBERED(Rank).Means("Standing at past month ends, newest first."),
    detail::MakeNumbered<decltype(Promotion::MoneyBefore)>("Money#",
                                                           offsetof(Promotion, MoneyBefore))
        .Counts("dollars")
        .Means("Cash at past month ends, newest first; -1 for no data."),
    PROMOTION(LoanAmount).Counts("dollars").Means("Bank loan to repay; 0 for none."),
    PROMOTION(LoanMonths).Counts("months").Means("Length of the loan."),
    PROMOTION(LoanRepaid).Counts("dollars").Means("Repaid so far."),
    PROMOTION(LoanMissed).Means("Missed repayments."),
    BOOKS(ThisMonth, "", "this month"),
    BOOKS(LastMonth, "Last", "last month"),
    NUMBERED(Split).Means("Name of a part of the roster, or None."),
    NUMBERED(Sponsor).LeadsTo(Refers::Sponsor).Means("Sponsors; the first is the main one."),
    PROMOTION(CampName).Means("Training camp, or None."),
    PROMOTION(CampFacilities).In(0, 4).From(kCampFacilities).Means("Facilities of the camp."),
    PROMOTION(HeadTrainer).LeadsTo(Refers::Staff).Means("Head trainer of the camp."),
    PROMOTION(DevName).Means("Development territory, or None."),
    PROMOTION(DevBooker).LeadsTo(Refers::Staff).Means("Booker of the territory."),
};

}  // namespace

GM_LAYOUT(Promotion, "promos.dat", 35, kPromotionFields)

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

#define NETWORK(member) GM_FIELD(Network, member)
constexpr Field kNetworkFields[] = {
    NETWORK(Uid).In(1, 32767).Key().Means("The number by which shows know the network."),
    NETWORK(Name).Key().Means("Name."),
    NETWORK(EarlyAudience).Counts("hundredths").Means("Audience of 6 to 8 pm."),
    NETWORK(PrimeAudience).Counts("hundredths").Means("Audience of 8 to 10 pm."),
    NETWORK(LateAudience).Counts("hundredths").Means("Audience of 10 pm to midnight."),
    NETWORK(GraveAudience).Counts("hundredths").Means("Audience of midnight to 2 am."),
    NETWORK(EarlyRisk).Counts("percent").Means("Highest risk tolerated from 6 to 8 pm."),
    NETWORK(PrimeRisk).Counts("percent").Means("Highest risk tolerated from 8 to 10 pm."),
    NETWORK(LateRisk).Counts("percent").Means("Highest risk tolerated from 10 pm to midnight."),
    NETWORK(GraveRisk).Counts("percent").Means("Highest risk tolerated from midnight to 2 am."),
    NETWORK(Production).Counts("percent").Means("Lowest production values accepted."),
    NETWORK(Generic).Means("Has room for more than one show at a time."),
};

#define SPONSOR(member) GM_FIELD(Sponsor, member)
constexpr Field kSponsorFields[] = {
    SPONSOR(Uid).In(1, 32767).Key().Means("The number by which promotions know the sponsor."),
    SPONSOR(Name).Key().Means("Name."),
    SPONSOR(Slogan).Means("Slogan."),
    SPONSOR(Promotion).LeadsTo(Refers::Promotion).Means("The promotion sponsored."),
    SPONSOR(ContractMonths).Counts("months").Means("Months left."),
    SPONSOR(Morality).Counts("percent").Means("High morality tolerates less risk."),
    SPONSOR(Pay).Counts("thousand dollars a show").Means("Payment."),
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
