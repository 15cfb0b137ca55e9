#include "records/companies.h"

namespace grapplemont {

namespace {

#define FIELD(record, member) GM_FIELD(record, member)

constexpr Field kShowFields[] = {
    FIELD(Show, Name).Means("Name of the show."),
    FIELD(Show, Owner)
        .In(0, 32767)
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
    FIELD(Show, Day).From(kWeekDays).Means("Day of the week."),
    FIELD(Show, Slot).From(kTimeSlots).Means("Time of the evening."),
    FIELD(Show, Network).In(0, 32767).LeadsTo(Refers::Network).Means("The network that airs it."),
    FIELD(Show, ContractWeeks).Counts("weeks").Means("Weeks left of the deal."),
    FIELD(Show, Announcer).In(0, 32767).LeadsTo(Refers::Staff).Means("Primary announcer."),
    FIELD(Show, Colour).In(0, 32767).LeadsTo(Refers::Commentator).Means("Colour commentator."),
    FIELD(Show, ColourIsWorker).Means("The colour commentator is a worker, not staff."),
    FIELD(Show, Rating1).Counts("hundredths").Means("Highest rating; 0 before the first show."),
    FIELD(Show, Rating2).Counts("hundredths").Means("Lowest rating."),
    FIELD(Show, Rating3).Counts("hundredths").Means("Last rating."),
    FIELD(Show, Rating4).Means("Strikes against the show."),
};
constexpr RecordLayout kShowLayout{"Show", "tv.dat", sizeof(Show), 1000, kShowFields};

constexpr Field kNetworkFields[] = {
    FIELD(Network, Uid).In(1, 32767).Key().Means("The number by which shows know the network."),
    FIELD(Network, Name).Key().Means("Name."),
    FIELD(Network, EarlyAudience).Counts("hundredths").Means("Audience of 6 to 8 pm."),
    FIELD(Network, PrimeAudience)

        .Counts("hundredths")
        .Means("Audience of 8 to 10 pm."),
    FIELD(Network, LateAudience)

        .Counts("hundredths")
        .Means("Audience of 10 pm to midnight."),
    FIELD(Network, GraveAudience)

        .Counts("hundredths")
        .Means("Audience of midnight to 2 am."),
    FIELD(Network, EarlyRisk).Counts("percent").Means("Highest risk tolerated from 6 to 8 pm."),
    FIELD(Network, PrimeRisk).Counts("percent").Means("Highest risk tolerated from 8 to 10 pm."),
    FIELD(Network, LateRisk)
        .Counts("percent")
        .Means("Highest risk tolerated from 10 pm to midnight."),
    FIELD(Network, GraveRisk)
        .Counts("percent")
        .Means("Highest risk tolerated from midnight to 2 am."),
    FIELD(Network, Production).Counts("percent").Means("Lowest production values accepted."),
    FIELD(Network, Generic).Means("Has room for more than one show at a time."),
};
constexpr RecordLayout kNetworkLayout{"Network", "network.dat", sizeof(Network), 1000,
                                      kNetworkFields};

constexpr Field kSponsorFields[] = {
    FIELD(Sponsor, Uid)
        .In(1, 32767)
        .Key()
        .Means("The number by which promotions know the sponsor."),
    FIELD(Sponsor, Name).Key().Means("Name."),
    FIELD(Sponsor, Slogan).Means("Slogan."),
    FIELD(Sponsor, Promotion)
        .In(0, 32767)
        .LeadsTo(Refers::Promotion)
        .Means("The promotion sponsored."),
    FIELD(Sponsor, ContractMonths).Counts("months").Means("Months left."),
    FIELD(Sponsor, Morality).Counts("percent").Means("High morality tolerates less risk."),
    FIELD(Sponsor, Pay).Counts("thousand dollars a show").Means("Payment."),
};
constexpr RecordLayout kSponsorLayout{"Sponsor", "sponsor.dat", sizeof(Sponsor), 1000,
                                      kSponsorFields};

constexpr Field kEventFields[] = {
    FIELD(Event, Name).Means("Name of the event."),
    FIELD(Event, Owner)
        .In(0, 32767)
        .LeadsTo(Refers::Promotion)
        .Means("The promotion it belongs to."),
    FIELD(Event, Month).In(1, 12).Means("Month it is held in."),
    FIELD(Event, Type).In(1, 4).From(kEventTypes).Means("Pay-per-view or how large a show."),
};
constexpr RecordLayout kEventLayout{"Event", "event.dat", sizeof(Event), 10000, kEventFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<Show>() {
  return kShowLayout;
}
template <>
const RecordLayout& LayoutOf<Network>() {
  return kNetworkLayout;
}
template <>
const RecordLayout& LayoutOf<Sponsor>() {
  return kSponsorLayout;
}
template <>
const RecordLayout& LayoutOf<Event>() {
  return kEventLayout;
}

}  // namespace grapplemont
