#include "info/meetingpoints.h"

#include "records/fields/vocabulary.h"

namespace grapplemont {

namespace {

using enum Topic;
using enum Urgency;
using P = Point;

constexpr int kMaeve = 0;
constexpr std::string_view kOnAir = "show network weeks rating audience needed risk limit strikes";

// In the order of Point: what it is about, how urgent it is, who makes it, the screen where it is
// done, what its lines in words/meeting.txt may name.
constexpr std::array<PointRow, static_cast<std::size_t>(P::kCount)> kPointRows = {{
    {P::RosterSmall, Roster, Soon, kRoadAgent, "frmOtherWres", "people n least most missing"},
    {P::RosterLarge, Roster, Watch, kRoadAgent, "frmRoster", "n most loss"},
    {P::PositionThin, Roster, Soon, kRoadAgent, "frmRoster", "place n remedy"},
    {P::HeldLow, Roster, Soon, kRoadAgent, "frmRoster", "n who over place fit"},
    {P::PushedHigh, Roster, Soon, kRoadAgent, "frmRoster", "n who place over fit"},
    {P::Undebuted, Roster, Watch, kRoadAgent, "frmRoster", "n names"},
    {P::OneSided, Roster, Watch, kRoadAgent, "frmTurn", "faces heels"},
    {P::WalkOut, Morale, Now, kRoadAgent, "frmRoster", "who them morale why"},
    {P::Boycott, Morale, Now, kRoadAgent, "frmRoster", "who them morale why"},
    {P::SittingOut, Morale, Watch, kMaeve, "frmRoster", "n names"},
    {P::Unhappy, Morale, Soon, kRoadAgent, "frmRoster", "who them morale why n"},
    {P::RoomLow, Morale, Soon, kRoadAgent, "frmRoster", "n"},
    {P::RoomHappy, Morale, Good, kRoadAgent, "", "n"},
    {P::ContractsEnd, Contracts, Now, kMaeve, "frmRoster", "n names who wage brief"},
    {P::ContractsSoon, Contracts, Soon, kMaeve, "frmRoster", "n names who wage brief"},
    {P::WillNotSign, Contracts, Now, kMaeve, "frmRoster", "n names who morale loyalty"},
    {P::MovingOn, Contracts, Soon, kMaeve, "frmRoster", "n names"},
    {P::StaffContracts, Contracts, Soon, kMaeve, "frmStaff", "n names"},
    {P::Retiring, Contracts, Soon, kMaeve, "frmRoster", "names"},
    {P::Injured, Health, Watch, kMedical, "frmRoster", "n names return"},
    {P::Suspended, Health, Watch, kMaeve, "frmRoster", "n names return"},
    {P::WornOut, Health, Now, kMedical, "frmRoster", "n names who condition"},
    {P::Tired, Health, Soon, kMedical, "frmRoster", "n names who condition"},
    {P::TerritoryIdle, Development, Soon, kTrainer, "frmFed", "n territory why"},
    {P::TerritoryOutgrown, Development, Soon, kTrainer, "frmRoster", "n names territory"},
    {P::CampIdle, Development, Soon, kTrainer, "frmFed", "n camp why"},
    {P::CampEmpty, Development, Watch, kTrainer, "frmRoster", "camp"},
    {P::CampLearned, Development, Soon, kTrainer, "frmRoster", "names skill"},
    {P::PostShort, Topic::Staff, Soon, kMaeve, "frmOtherStaff", "post n need remedy"},
    {P::PostEmpty, Topic::Staff, Watch, kMaeve, "frmOtherStaff", "posts"},
    {P::NearBankruptcy, Money, Now, kOwner, "frmFinance", "debt line left"},
    {P::Debt, Money, Soon, kOwner, "frmFinance", "debt line left"},
    {P::Runway, Money, Now, kOwner, "frmFinance", "loss money months"},
    {P::Profit, Money, Good, kOwner, "frmFinance", "gain"},
    {P::WageShare, Money, Soon, kOwner, "frmWages", "wages share"},
    {P::NoIncome, Money, Soon, kOwner, "frmFinance", "wages"},
    {P::Advertising, Money, Watch, kOwner, "frmFed", "cost"},
    {P::LoanShort, Money, Now, kOwner, "frmLoan", "payment wages need money missed gap rest fee"},
    {P::LoanMissed, Money, Soon, kOwner, "frmLoan", "payment wages need money missed gap rest fee"},
    {P::LoanRuns, Money, Watch, kOwner, "frmLoan", "payment wages need money missed gap rest fee"},
    {P::TicketFree, Money, Now, kOwner, "frmTicket", "price fair best"},
    {P::TicketNobody, Money, Now, kOwner, "frmTicket", "price fair best"},
    {P::TicketWrong, Money, Soon, kOwner, "frmTicket", "price fair best more"},
    {P::Merchandise, Money, Soon, kOwner, "frmFed", "level best now then"},
    {P::SponsorsFree, Money, Soon, kOwner, "frmFedSponsor", "n takers who pay"},
    {P::SponsorsRisk, Money, Watch, kOwner, "frmFed", "n risk who below"},
    {P::SponsorsEnd, Money, Soon, kOwner, "frmFedSponsor", "names"},
    {P::SponsorsOrder, Money, Soon, kOwner, "frmFedSponsor", "main who more"},
    {P::ImageFalling, Image, Now, kAnnouncer, "frmFed", "n image left lifts above below step"},
    {P::ImageSlips, Image, Soon, kAnnouncer, "frmFed", "n image left lifts above below step"},
    {P::ImageDanger, Image, Now, kAnnouncer, "frmProspect", "n image left lifts above below step"},
    {P::ImageNext, Image, Good, kAnnouncer, "frmProspect", "n image left lifts above below step"},
    {P::LastShow, Image, Soon, kAnnouncer, "frmFed", "show rating step needed"},
    {P::FeudsFew, Feuds, Soon, kWriter, "frmFeudStart", "n idea"},
    {P::FeudHurt, Feuds, Now, kWriter, "frmFeuds", "feud who heat wins days advice"},
    {P::FeudCold, Feuds, Soon, kWriter, "frmFeuds", "feud who heat wins days advice"},
    {P::FeudRipe, Feuds, Soon, kWriter, "frmFeuds", "feud who heat wins days advice"},
    {P::FeudHot, Feuds, Good, kWriter, "frmFeuds", "feud who heat wins days advice"},
    {P::TitleVacant, Titles, Soon, kWriter, "frmBelts", "title image"},
    {P::TitleAway, Titles, Now, kWriter, "frmBelts", "title who why image"},
    {P::TitleLeaving, Titles, Now, kWriter, "frmBelts", "title who why image"},
    {P::TitleOutshines, Titles, Soon, kWriter, "frmBelts",
     "title who themself image over needed days"},
    {P::TitleLong, Titles, Watch, kWriter, "frmBelts", "title who themself image over needed days"},
    {P::TitlesNone, Titles, Soon, kWriter, "frmBelts", ""},
    {P::TvWeeks, Television, Now, kAnnouncer, "frmTelevision",
     "show network weeks rating audience needed risk limit strikes talk remedy"},
    {P::TvTerrible, Television, Now, kAnnouncer, "frmTelevision", kOnAir},
    {P::TvLow, Television, Soon, kAnnouncer, "frmTelevision", kOnAir},
    {P::TvGreat, Television, Good, kAnnouncer, "frmTelevision", kOnAir},
    {P::TvStrikes, Television, Now, kAnnouncer, "frmTelevision", kOnAir},
    {P::TvRisk, Television, Now, kAnnouncer, "frmFed", kOnAir},
    {P::TvProduction, Television, Soon, kProduction, "frmFedProd", "have charge cost"},
    {P::TvEmptyChair, Television, Watch, kAnnouncer, "frmTelevision", "show chair wanted"},
    {P::TvWeakTable, Television, Soon, kAnnouncer, "frmTelevision",
     "show chair wanted who have charge remedy"},
    {P::TvSpeechless, Television, Soon, kAnnouncer, "frmTelevision",
     "show chair wanted who have charge remedy"},
    {P::TvSlot, Television, Good, kAnnouncer, "frmTelevision", "show network slot audience now"},
    {P::TvSlotDown, Television, Watch, kAnnouncer, "frmTelevision",
     "show network slot audience now"},
    {P::TvOffer, Television, Now, kAnnouncer, "frmTvOffer", "network"},
    {P::TvNone, Television, Soon, kAnnouncer, "frmPromoTape", "n network"},
    {P::EventNone, Events, Now, kWriter, "frmEvent", "day"},
    {P::EventCost, Events, Soon, kWriter, "frmEvent", "event cost money"},
    {P::EventNear, Events, Watch, kWriter, "frmEvent", "event days feuds are fit"},
}};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kPointRows.size(); ++i)
    if (kPointRows[i].Is != static_cast<Point>(i)) return false;
  return true;
}
static_assert(IsInOrder());

constexpr std::array<std::string_view, 12> kTopics = {
    "Roster", "Morale", "Contracts", "Health", "Development", "Staff",
    "Money",  "Image",  "Feuds",     "Titles", "Television",  "Events"};
constexpr std::array<std::string_view, 4> kUrgencies = {"Now", "Soon", "Keep in mind", "Good news"};

struct StandIn {
  int Post;
  std::string_view Voice;
};
constexpr StandIn kStandIns[] = {{kOwner, "The Board"},
                                 {kAnnouncer, "The man with the megaphone"},
                                 {kReferee, "The timekeeper"},
                                 {kProduction, "The electrician"},
                                 {kMedical, "The driver, who has a first-aid box"},
                                 {kWriter, "The cleaner, who has read the scripts"},
                                 {kRoadAgent, "The man who locks up"},
                                 {kTrainer, "The caretaker of the gym"}};

}  // namespace

const PointRow& RowOf(Point point) {
  return kPointRows[static_cast<std::size_t>(point)];
}

std::span<const PointRow> PointRows() {
  return kPointRows;
}

std::string_view StandInFor(int post) {
  for (const StandIn& row : kStandIns)
    if (row.Post == post) return row.Voice;
  return "Maeve";
}

std::string_view TopicText(Topic topic) {
  return kTopics[static_cast<std::size_t>(topic)];
}

std::string_view UrgencyText(Urgency urgency) {
  return kUrgencies[static_cast<std::size_t>(urgency)];
}

}  // namespace grapplemont
