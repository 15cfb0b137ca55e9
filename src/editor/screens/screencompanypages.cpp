#include "editor/pagewords.h"
#include "editor/screens/screenpages.h"

// Promotions, and what they have: Titles, shows, Events; networks and sponsors.

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr PageColumn kPromotionColumns[] = {{"Initials", "Initials"},
                                            {"Name", "Name"},
                                            {"Size", "Size", kByCode},
                                            {"Image", "Image", K::Percent},
                                            {"Money", "Money", K::Number}};
constexpr FormEntry kPromotionWho[] = {{"Name", "Name", "txtname"},
                                       {"Initials", "Initials", "txtinitials"},
                                       {"Size", "Size", "cmbsize"},
                                       {"Image", "Image", "txtimage"},
                                       {"Commissioner", "Commissioner", "cmbcommissioner"},
                                       {"MeetingDay", "Meeting day", "cmbmeeting"}};
constexpr FormEntry kPromotionMoney[] = {{"Money", "Cash ($)", "txtmoney"},
                                         {"Advertising", "Advertising", "txtadvertising"},
                                         {"Merchandising", "Merchandise", "txtmerchandising"},
                                         {"Production", "Production", "txtproduction"},
                                         {"Risk", "Risk", "txtrisk"}};
constexpr FormEntry kPromotionLoan[] = {{"LoanAmount", "Loan ($)", "txtloan"},
                                        {"LoanMonths", "Months", "txtloanmonths"},
                                        {"LoanRepaid", "Repaid ($)", "txtloanrepaid"},
                                        {"LoanMissed", "Missed", "txtloanmissed"}};
constexpr FormEntry kPromotionSplits[] = {{"Split1", "First", "txtsplit1"},
                                          {"Split2", "Second", "txtsplit2"},
                                          {"Split3", "Third", "txtsplit3"},
                                          {"Split4", "Fourth", "txtsplit4"}};
constexpr FormEntry kPromotionSponsors[] = {{"Sponsor1", "Main", "cmbsponsor1"},
                                            {"Sponsor2", "Second", "cmbsponsor2"},
                                            {"Sponsor3", "Third", "cmbsponsor3"},
                                            {"Sponsor4", "Fourth", "cmbsponsor4"}};
constexpr FormEntry kPromotionCamp[] = {{"CampName", "Training camp", "txtcamp"},
                                        {"CampFacilities", "Facilities", "cmbtrain"},
                                        {"HeadTrainer", "Head trainer", "cmbheadtrainer"}};
constexpr FormEntry kPromotionTerritory[] = {{"DevName", "Territory", "txtterritory"},
                                             {"DevBooker", "Its booker", "cmbdevbooker"}};
constexpr FormEntry kPromotionTicket[] = {{"TicketPrice", "Ticket ($)", "txtticket"}};
constexpr FormGroup kPromotionGroups[] = {
    {"Promotion", 1, "Who", kPromotionWho},
    {"Promotion", 2, "Business", kPromotionMoney},
    {"Roster", 1, "Splits (or None)", kPromotionSplits},
    {"Roster", 2, "Training camp (or None)", kPromotionCamp},
    {"Roster", 2, "Territory (or None)", kPromotionTerritory},
    {"In a game", 1, "Sponsors, none when a game begins", kPromotionSponsors},
    {"In a game", 2, "Loan, none when a game begins", kPromotionLoan},
    {"In a game", 2, "By size when a game begins", kPromotionTicket}};

constexpr PageColumn kTitleColumns[] = {{"Name", "Title"},
                                        {"Owner", "Promotion"},
                                        {"Holder", "Holder"},
                                        {"Singles", "Kind", K::Text, kSinglesOrTag},
                                        {"Image", "Image", K::Percent}};
constexpr FormEntry kTitleWhat[] = {{"Name", "Name", "txtname"},
                                    {"Owner", "Promotion", "cmbowner"},
                                    {"Singles", "Kind", "cmbsingles", kSinglesOrTag},
                                    {"Lightweight", "Lightweights only", "chklightweight"},
                                    {"Woman", "Women only", "chkwoman"},
                                    {"Image", "Image", "txtimage"},
                                    {"Suspended", "Suspended", "chksuspended"}};
constexpr FormEntry kTitleWho[] = {{"Holder", "Champion", "cmbholder"},
                                   {"Partner", "Partner (tag)", "cmbpartner"}};
constexpr FormGroup kTitleGroups[] = {{"", 1, "Title", kTitleWhat}, {"", 1, "Champion", kTitleWho}};

constexpr PageColumn kShowColumns[] = {
    {"Name", "Show"}, {"Owner", "Promotion"}, {"Day", "Day", kByCode},
    {"Slot", "Slot"}, {"Network", "Network"}, {"Rating3", "Last rating", K::Number}};
constexpr FormEntry kShowWhat[] = {{"Name", "Name", "txtname"},
                                   {"Owner", "Promotion", "cmbowner"},
                                   {"Network", "Network", "cmbnetwork"},
                                   {"Day", "Day", "cmbday"},
                                   {"Slot", "Slot", "cmbslot"}};
constexpr FormEntry kShowDrawn[] = {{"ContractWeeks", "Weeks left", "txtweeks"}};
constexpr FormEntry kShowVoices[] = {{"Announcer", "Announcer", "cmbannouncer"},
                                     {"Colour", "Colour", "cmbcolour", {}, EntryAs::Commentator}};
constexpr FormEntry kShowRatings[] = {{"Rating1", "Best (1/100)", "txtbest"},
                                      {"Rating2", "Lowest (1/100)", "txtlowest"},
                                      {"Rating3", "Last (1/100)", "txtlast"},
                                      {"Rating4", "Strikes", "txtstrikes"}};
constexpr FormGroup kShowGroups[] = {{"", 1, "Show", kShowWhat},
                                     {"", 2, "Commentary", kShowVoices},
                                     {"", 2, "Ratings", kShowRatings},
                                     {"", 1, "Drawn when a game begins", kShowDrawn}};

constexpr PageColumn kEventColumns[] = {{"Name", "Event"},
                                        {"Owner", "Promotion"},
                                        {"Month", "Month", kByCode, kMonths},
                                        {"Type", "Type", kByCode}};
constexpr FormEntry kEventEntries[] = {{"Name", "Name", "txtname"},
                                       {"Owner", "Promotion", "cmbowner"},
                                       {"Month", "Month", "cmbmonth", kMonths},
                                       {"Type", "Type", "cmbtype"}};
constexpr FormGroup kEventGroups[] = {{"", 1, "Event", kEventEntries}};

constexpr PageColumn kNetworkColumns[] = {{"Name", "Network"},
                                          {"PrimeAudience", "Prime Time", K::Number},
                                          {"PrimeRisk", "Risk", K::Percent},
                                          {"Production", "Production", K::Percent},
                                          {"Generic", "Generic"}};
constexpr FormEntry kNetworkWhat[] = {{"Name", "Name", "txtname"},
                                      {"Production", "Least production", "txtproduction"},
                                      {"Generic", "Several shows at a time", "chkgeneric"}};
constexpr FormEntry kNetworkAudience[] = {{"EarlyAudience", "Early Evening, 6 to 8", "txtearly"},
                                          {"PrimeAudience", "Prime Time, 8 to 10", "txtprime"},
                                          {"LateAudience", "Late Night, 10 to 12", "txtlate"},
                                          {"GraveAudience", "Graveyard, 12 to 2", "txtgrave"}};
constexpr FormEntry kNetworkRisk[] = {{"EarlyRisk", "Early Evening", "txtearlyrisk"},
                                      {"PrimeRisk", "Prime Time", "txtprimerisk"},
                                      {"LateRisk", "Late Night", "txtlaterisk"},
                                      {"GraveRisk", "Graveyard", "txtgraverisk"}};
constexpr FormGroup kNetworkGroups[] = {{"", 1, "Network", kNetworkWhat},
                                        {"", 1, "Audience (1/100 rating)", kNetworkAudience},
                                        {"", 2, "Most risk tolerated", kNetworkRisk}};

constexpr PageColumn kSponsorColumns[] = {{"Name", "Sponsor"},
                                          {"Promotion", "Sponsors"},
                                          {"Pay", "Pay", K::Number},
                                          {"Morality", "Morality", K::Percent}};
constexpr FormEntry kSponsorEntries[] = {{"Name", "Name", "txtname"},
                                         {"Slogan", "Slogan", "txtslogan"},
                                         {"Pay", "Pay ($1000 a show)", "txtpay"},
                                         {"Morality", "Morality", "txtmorality"}};
constexpr FormEntry kSponsorDeal[] = {{"Promotion", "Sponsors", "cmbpromotion"},
                                      {"ContractMonths", "Months left", "txtmonths"}};
constexpr FormGroup kSponsorGroups[] = {{"", 1, "Sponsor", kSponsorEntries},
                                        {"", 1, "Deal, none when a game begins", kSponsorDeal}};

}  // namespace

const RecordPage kPromotionPage = {
    "frmEditPromo",        "cmdpromo",        "Promotions",    "promotion",
    RecordKind::Promotion, kPromotionColumns, kPromotionGroups};
const RecordPage kTitlePage = {"frmEditBelts",    "cmdbelts",    "Titles",    "Title",
                               RecordKind::Title, kTitleColumns, kTitleGroups};
const RecordPage kShowPage = {"frmEditTv",      "cmdtv",      "Television", "show",
                              RecordKind::Show, kShowColumns, kShowGroups};
const RecordPage kEventPage = {"frmEditEvents",   "cmdevents",   "Events",    "Event",
                               RecordKind::Event, kEventColumns, kEventGroups};
const RecordPage kNetworkPage = {"frmEditNetworks",   "cmdnetworks",   "Networks",    "network",
                                 RecordKind::Network, kNetworkColumns, kNetworkGroups};
const RecordPage kSponsorPage = {"frmEditSponsors",   "cmdsponsors",   "Sponsors",    "sponsor",
                                 RecordKind::Sponsor, kSponsorColumns, kSponsorGroups};

}  // namespace grapplemont
