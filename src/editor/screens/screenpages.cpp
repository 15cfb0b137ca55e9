#include "editor/screens/screenpages.h"

#include <array>

#include "editor/choices.h"

namespace grapplemont {

std::span<const RecordPage> RecordPages() {
  static const std::array<RecordPage, 11> kPages = {
      kWorkerPage, kPromotionPage, kOwnerPage, kStaffPage,   kTeamPage,   kStablePage,
      kTitlePage,  kShowPage,      kEventPage, kNetworkPage, kSponsorPage};
  return kPages;
}

namespace {

/// What the field is called on a page of its file; its own name where no page shows it.
std::string LabelOf(std::string_view file, const std::string& field) {
  for (const RecordPage& page : RecordPages()) {
    if (LayoutOf(page.Kind).File != file) continue;
    for (const FormGroup& group : page.Groups)
      for (const FormEntry& entry : group.Entries)
        if (entry.Field == field) return std::string(entry.Label);
  }
  return field;
}

}  // namespace

std::string FaultWords(const Fault& fault) {
  if (fault.Field.empty()) return "It " + fault.What + ".";
  return LabelOf(fault.File, fault.Field) + " " + fault.What + ".";
}

// Promotions, and what they have: Titles, shows, Events; networks and sponsors.

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

// Workers, owners, staff, teams and stables.

namespace {

using K = ui::ColumnKind;

constexpr PageColumn kWorkerColumns[] = {
    {"Name", "Name"},        {"Employer", "Employer"},  {"Position", "Position", kByCode},
    {"Disposition", "Side"}, {"Age", "Age", K::Number}, {"Over", "Over", K::Percent}};
constexpr FormEntry kWorkerWho[] = {{"Name", "Name", "txtname"},
                                    {"ShortName", "Short name", "txtshortname"},
                                    {"Gender", "Sex", "cmbgender"},
                                    {"BirthMonth", "Birthday in", "cmbbirthmonth", kBirthMonths},
                                    {"Age", "Age", "txtage"},
                                    {"Weight", "Weight class", "cmbweight"},
                                    {"Disposition", "Side", "cmbdisposition"},
                                    {"SuperstarLook", "Superstar look", "chksuperstar"},
                                    {"Diva", "Diva (women only)", "chkdiva"}};
constexpr FormEntry kWorkerGifts[] = {{"Speaks", "Can speak", "chkspeaks"},
                                      {"HighSpots", "High-risk spots", "chkhighspots"},
                                      {"Trainer", "Can train others", "chktrainer"},
                                      {"Announcer", "Can announce", "chkannouncer"},
                                      {"Booker", "Can book", "chkbooker"}};
constexpr FormEntry kWorkerFinishers[] = {
    {"Finisher1", "First finisher", "txtfinisher1"},
    {"Finisher1Submission", "done as", "cmbfinisher1", {}, EntryAs::Finisher1Type},
    {"Finisher2", "Second finisher", "txtfinisher2"},
    {"Finisher2Submission", "done as", "cmbfinisher2", {}, EntryAs::Finisher2Type}};
constexpr FormEntry kWorkerRing[] = {{"Brawl", "Brawling", "txtbrawl"},
                                     {"Technical", "Technical", "txttechnical"},
                                     {"Speed", "Speed", "txtspeed"},
                                     {"Stiff", "Stiffness", "txtstiff"},
                                     {"Sell", "Selling", "txtsell"}};
constexpr FormEntry kWorkerDraw[] = {{"Over", "Popularity", "txtover"},
                                     {"OverFloor", "Popularity floor", "txtoverfloor"},
                                     {"Charisma", "Charisma", "txtcharisma"}};
constexpr FormEntry kWorkerNature[] = {{"Attitude", "Attitude", "txtattitude"},
                                       {"Behaviour", "Behaviour", "txtbehaviour"}};
constexpr FormEntry kWorkerJob[] = {{"Employer", "Works for", "cmbemployer"},
                                    {"Position", "Place on the card", "cmbposition"},
                                    {"Split", "Split", "cmbsplit"},
                                    {"Stable", "Stable", "cmbstable"},
                                    {"Manager", "Manager", "cmbmanager"}};
constexpr FormEntry kWorkerContract[] = {{"ContractType", "Contract", "cmbcontract"},
                                         {"Wage", "Wage ($1000 a month)", "txtwage"},
                                         {"Unsackable", "Unsackable", "chkunsackable"},
                                         {"CreativeControl", "Creative control", "chkcreative"}};
constexpr FormEntry kWorkerDrawn[] = {{"ContractMonths", "Months of contract", "txtmonths"},
                                      {"Condition", "Condition", "txtcondition"},
                                      {"Morale", "Morale", "txtmorale"},
                                      {"Loyalty", "Loyalty", "txtloyalty"},
                                      {"Potential", "Potential", "txtpotential"}};
constexpr FormEntry kWorkerCleared[] = {{"Status", "Status", "cmbstatus"},
                                        {"StatusMonths", "for months", "txtstatusmonths"},
                                        {"InjuryName", "Injury", "txtinjury"},
                                        {"LastTurn", "Last turn", "txtlastturn"},
                                        {"TurnPending", "A turn is prepared", "chkturn"},
                                        {"Debuted", "Has debuted", "chkdebuted"},
                                        {"RetiringSoon", "Retires soon", "chkretiring"}};
constexpr FormGroup kWorkerGroups[] = {
    {"Person", 1, "Who", kWorkerWho},
    {"Person", 2, "Gifts", kWorkerGifts},
    {"Person", 2, "Finishers", kWorkerFinishers},
    {"Skills", 1, "In the ring", kWorkerRing},
    {"Skills", 2, "Before the crowd", kWorkerDraw},
    {"Skills", 2, "Behind the scenes", kWorkerNature},
    {"Job", 1, "Place", kWorkerJob},
    {"Job", 2, "Contract", kWorkerContract},
    {"In a game", 1, "Drawn when a game begins", kWorkerDrawn},
    {"In a game", 2, "Cleared when a game begins", kWorkerCleared}};

constexpr PageColumn kOwnerColumns[] = {{"Name", "Name"},
                                        {"Employer", "Promotion"},
                                        {"Wage", "Style", K::Text, kOwnerStyles},
                                        {"Age", "Age", K::Number}};
constexpr FormEntry kStaffWho[] = {{"Name", "Name", "txtname"},
                                   {"Gender", "Sex", "cmbgender"},
                                   {"BirthMonth", "Birthday in", "cmbbirthmonth", kMonths},
                                   {"Age", "Age", "txtage"}};
constexpr FormEntry kOwnerJob[] = {{"Employer", "Owns", "cmbemployer"},
                                   {"Wage", "Style", "cmbstyle", kOwnerStyles},
                                   {"Talent", "Talent", "txttalent"},
                                   {"Backstage", "Backstage", "txtbackstage"}};
constexpr FormGroup kOwnerGroups[] = {{"", 1, "Who", kStaffWho}, {"", 1, "Chair", kOwnerJob}};

constexpr PageColumn kStaffColumns[] = {{"Name", "Name"},
                                        {"Position", "Post", kByCode},
                                        {"Employer", "Employer"},
                                        {"Age", "Age", K::Number},
                                        {"Talent", "Talent", K::Percent}};
constexpr FormEntry kStaffWork[] = {
    {"Position", "Post", "cmbposition", Vocabulary(kStaffPositions).last(7)},
    {"Talent", "Talent", "txttalent"},
    {"Backstage", "Backstage", "txtbackstage"},
    {"Booker", "Can also book", "chkbooker"}};
constexpr FormEntry kStaffJob[] = {{"Employer", "Works for", "cmbemployer"},
                                   {"ContractType", "Contract", "cmbcontract"},
                                   {"Wage", "Wage ($1000 a month)", "txtwage"},
                                   {"Unsackable", "Unsackable", "chkunsackable"}};
constexpr FormEntry kStaffDrawn[] = {{"ContractMonths", "Months of contract", "txtmonths"},
                                     {"Morale", "Morale", "txtmorale"},
                                     {"Loyalty", "Loyalty", "txtloyalty"}};
constexpr FormGroup kStaffGroups[] = {{"", 1, "Who", kStaffWho},
                                      {"", 1, "Work", kStaffWork},
                                      {"", 2, "Contract", kStaffJob},
                                      {"", 2, "Drawn when a game begins", kStaffDrawn}};

constexpr PageColumn kTeamColumns[] = {{"Name", "Team"},
                                       {"Worker1", "One"},
                                       {"Worker2", "The other"},
                                       {"Experience", "Experience", K::Percent}};
constexpr FormEntry kTeamEntries[] = {{"Name", "Name", "txtname"},
                                      {"Worker1", "One partner", "cmbworker1"},
                                      {"Worker2", "The other partner", "cmbworker2"},
                                      {"Finisher", "Finisher", "txtfinisher"},
                                      {"Experience", "Experience", "txtexperience"}};
constexpr FormGroup kTeamGroups[] = {{"", 1, "Tag Team", kTeamEntries}};

constexpr PageColumn kStableColumns[] = {{"Name", "Stable"}, {"Owner", "Promotion"}};
constexpr FormEntry kStableEntries[] = {{"Name", "Name", "txtname"},
                                        {"Owner", "Promotion", "cmbowner"}};
constexpr FormGroup kStableGroups[] = {{"", 1, "Stable", kStableEntries}};

bool IsOwner(const std::byte* record) {
  return As<Staff>(record).Position == kOwner;
}
bool IsNoOwner(const std::byte* record) {
  return !IsOwner(record);
}
void BeginOwner(std::byte* record) {
  As<Staff>(record).Position = kOwner;
  As<Staff>(record).Wage = 3;
  As<Staff>(record).Age = 50;
}

}  // namespace

const RecordPage kWorkerPage = {"frmEditWres",      "cmdwres",      "Workers",    "worker",
                                RecordKind::Worker, kWorkerColumns, kWorkerGroups};
const RecordPage kOwnerPage = {"frmEditOwners", "cmdowners",       "Owners",
                               "owner",         RecordKind::Staff, kOwnerColumns,
                               kOwnerGroups,    IsOwner,           BeginOwner};
const RecordPage kStaffPage = {"frmEditStaff",    "cmdstaff",    "Staff",      "member of staff",
                               RecordKind::Staff, kStaffColumns, kStaffGroups, IsNoOwner};
const RecordPage kTeamPage = {"frmEditTeams",   "cmdteams",   "Tag Teams", "Tag Team",
                              RecordKind::Team, kTeamColumns, kTeamGroups};
const RecordPage kStablePage = {"frmEditStables",   "cmdstables",   "Stables",    "stable",
                                RecordKind::Stable, kStableColumns, kStableGroups};

}  // namespace grapplemont
