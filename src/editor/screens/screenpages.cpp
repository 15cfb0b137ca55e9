#include "editor/screens/screenpages.h"

#include "editor/choices.h"

namespace grapplemont {

// Promotions, and what they have: Titles, shows, Events; networks and sponsors.

namespace {

using K = ui::ColumnKind;

constexpr PageColumn kPromotionColumns[] = {
    {"Initials"}, {"Name"}, {"Size", "Size", kByCode}, {"Image"}, {"Money"}};
constexpr FormEntry kPromotionWho[] = {
    {"Name"},  {"Initials"},     {"Size"},
    {"Image"}, {"Commissioner"}, {"MeetingDay", "Meeting day", "cmbmeeting"}};
constexpr FormEntry kPromotionMoney[] = {{"Money", "Cash ($)"},
                                         {"Advertising"},
                                         {"Merchandising", "Merchandise"},
                                         {"Production"},
                                         {"Risk"}};
constexpr FormEntry kPromotionLoan[] = {{"LoanAmount", "Loan ($)", "txtloan"},
                                        {"LoanMonths", "Months"},
                                        {"LoanRepaid", "Repaid ($)"},
                                        {"LoanMissed", "Missed"}};
constexpr FormEntry kPromotionSplits[] = {
    {"Split1", "First"}, {"Split2", "Second"}, {"Split3", "Third"}, {"Split4", "Fourth"}};
constexpr FormEntry kPromotionSponsors[] = {
    {"Sponsor1", "Main"}, {"Sponsor2", "Second"}, {"Sponsor3", "Third"}, {"Sponsor4", "Fourth"}};
constexpr FormEntry kPromotionCamp[] = {{"CampName", "Training camp", "txtcamp"},
                                        {"CampFacilities", "Facilities", "cmbtrain"},
                                        {"HeadTrainer", "Head trainer"}};
constexpr FormEntry kPromotionTerritory[] = {{"DevName", "Territory", "txtterritory"},
                                             {"DevBooker", "Its booker"}};
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
                                        {"Holder"},
                                        {"Singles", "Kind", K::Text, kSinglesOrTag},
                                        {"Image"}};
constexpr FormEntry kTitleWhat[] = {{"Name"},
                                    {"Owner", "Promotion"},
                                    {"Singles", "Kind", "cmbsingles", kSinglesOrTag},
                                    {"Lightweight", "Lightweights only"},
                                    {"Woman", "Women only"},
                                    {"Image"},
                                    {"Suspended"}};
constexpr FormEntry kTitleWho[] = {{"Holder", "Champion"}, {"Partner", "Partner (tag)"}};
constexpr FormGroup kTitleGroups[] = {{"", 1, "Title", kTitleWhat}, {"", 1, "Champion", kTitleWho}};

constexpr PageColumn kShowColumns[] = {
    {"Name", "Show"}, {"Owner", "Promotion"},    {"Day", "Day", kByCode}, {"Slot"},
    {"Network"},      {"Rating3", "Last rating"}};
constexpr FormEntry kShowWhat[] = {
    {"Name"}, {"Owner", "Promotion"}, {"Network"}, {"Day"}, {"Slot"}};
constexpr FormEntry kShowDrawn[] = {{"ContractWeeks", "Weeks left", "txtweeks"}};
constexpr FormEntry kShowVoices[] = {{"Announcer"}, {"Colour"}};
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
constexpr FormEntry kEventEntries[] = {
    {"Name"}, {"Owner", "Promotion"}, {"Month", "Month", "cmbmonth", kMonths}, {"Type"}};
constexpr FormGroup kEventGroups[] = {{"", 1, "Event", kEventEntries}};

constexpr PageColumn kNetworkColumns[] = {{"Name", "Network"},
                                          {"PrimeAudience", "Prime Time"},
                                          {"PrimeRisk", "Risk"},
                                          {"Production"},
                                          {"Generic"}};
constexpr FormEntry kNetworkWhat[] = {
    {"Name"}, {"Production", "Least production"}, {"Generic", "Several shows at a time"}};
constexpr FormEntry kNetworkAudience[] = {{"EarlyAudience", "Early Evening, 6 to 8", "txtearly"},
                                          {"PrimeAudience", "Prime Time, 8 to 10", "txtprime"},
                                          {"LateAudience", "Late Night, 10 to 12", "txtlate"},
                                          {"GraveAudience", "Graveyard, 12 to 2", "txtgrave"}};
constexpr FormEntry kNetworkRisk[] = {{"EarlyRisk", "Early Evening"},
                                      {"PrimeRisk", "Prime Time"},
                                      {"LateRisk", "Late Night"},
                                      {"GraveRisk", "Graveyard"}};
constexpr FormGroup kNetworkGroups[] = {{"", 1, "Network", kNetworkWhat},
                                        {"", 1, "Audience (1/100 rating)", kNetworkAudience},
                                        {"", 2, "Most risk tolerated", kNetworkRisk}};

constexpr PageColumn kSponsorColumns[] = {
    {"Name", "Sponsor"}, {"Promotion", "Pays for"}, {"Pay"}, {"Morality"}};
constexpr FormEntry kSponsorEntries[] = {
    {"Name"}, {"Slogan"}, {"Pay", "Pay ($1,000 a show)"}, {"Morality"}};
constexpr FormEntry kSponsorDeal[] = {{"Promotion", "Pays for"},
                                      {"ContractMonths", "Months left", "txtmonths"}};
constexpr FormGroup kSponsorGroups[] = {{"", 1, "Sponsor", kSponsorEntries},
                                        {"", 1, "Deal, none when a game begins", kSponsorDeal}};

// Workers, owners, staff, teams and stables.

constexpr PageColumn kWorkerColumns[] = {
    {"Name"}, {"Employer"}, {"Position", "Position", kByCode}, {"Disposition"}, {"Age"}, {"Over"}};
constexpr FormEntry kWorkerWho[] = {{"Name"},
                                    {"ShortName", "Short name"},
                                    {"Gender", "Sex"},
                                    {"BirthMonth", "Birthday in", "cmbbirthmonth", kBirthMonths},
                                    {"Age"},
                                    {"Weight", "Weight class"},
                                    {"Disposition"},
                                    {"SuperstarLook", "Superstar look", "chksuperstar"},
                                    {"Diva", "Diva (women only)"}};
constexpr FormEntry kWorkerGifts[] = {{"Speaks", "Can speak"},
                                      {"HighSpots", "High-risk spots"},
                                      {"Trainer", "Can train others"},
                                      {"Announcer", "Can announce"},
                                      {"Booker", "Can book"}};
constexpr FormEntry kWorkerFinishers[] = {
    {"Finisher1", "First finisher"},
    {"Finisher1Submission", "done as", "cmbfinisher1", {}, 1},
    {"Finisher2", "Second finisher"},
    {"Finisher2Submission", "done as", "cmbfinisher2", {}, 2}};
constexpr FormEntry kWorkerRing[] = {
    {"Brawl", "Brawling"}, {"Technical"}, {"Speed"}, {"Stiff", "Stiffness"}, {"Sell", "Selling"}};
constexpr FormEntry kWorkerDraw[] = {
    {"Over", "Popularity"}, {"OverFloor", "Popularity floor"}, {"Charisma"}};
constexpr FormEntry kWorkerNature[] = {{"Attitude"}, {"Behaviour"}};
constexpr FormEntry kWorkerJob[] = {{"Employer", "Works for"},
                                    {"Position", "Place on the card"},
                                    {"Split"},
                                    {"Stable"},
                                    {"Manager"}};
constexpr FormEntry kWorkerContract[] = {{"ContractType", "Contract", "cmbcontract"},
                                         {"Wage", "Wage ($1000 a month)"},
                                         {"Unsackable"},
                                         {"CreativeControl", "Creative control", "chkcreative"}};
constexpr FormEntry kWorkerDrawn[] = {{"ContractMonths", "Months of contract", "txtmonths"},
                                      {"Condition"},
                                      {"Morale"},
                                      {"Loyalty"},
                                      {"Potential"}};
constexpr FormEntry kWorkerCleared[] = {{"Status"},
                                        {"StatusMonths", "for months"},
                                        {"InjuryName", "Injury", "txtinjury"},
                                        {"LastTurn", "Last turn"},
                                        {"TurnPending", "A turn is prepared", "chkturn"},
                                        {"Debuted", "Has debuted"},
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

constexpr PageColumn kOwnerColumns[] = {
    {"Name"}, {"Employer", "Promotion"}, {"Wage", "Style", K::Text, kOwnerStyles}, {"Age"}};
constexpr FormEntry kStaffWho[] = {
    {"Name"}, {"Gender", "Sex"}, {"BirthMonth", "Birthday in", "cmbbirthmonth", kMonths}, {"Age"}};
constexpr FormEntry kOwnerJob[] = {
    {"Employer", "Owns"}, {"Wage", "Style", "cmbstyle", kOwnerStyles}, {"Talent"}, {"Backstage"}};
constexpr FormGroup kOwnerGroups[] = {{"", 1, "Who", kStaffWho}, {"", 1, "Chair", kOwnerJob}};

constexpr PageColumn kStaffColumns[] = {
    {"Name"}, {"Position", "Post", kByCode}, {"Employer"}, {"Age"}, {"Talent"}};
constexpr FormEntry kStaffWork[] = {
    {"Position", "Post", "cmbposition", Vocabulary(kStaffPositions).last(7)},
    {"Talent"},
    {"Backstage"},
    {"Booker", "Can also book"}};
constexpr FormEntry kStaffJob[] = {{"Employer", "Works for"},
                                   {"ContractType", "Contract", "cmbcontract"},
                                   {"Wage", "Wage ($1000 a month)"},
                                   {"Unsackable"}};
constexpr FormEntry kStaffDrawn[] = {
    {"ContractMonths", "Months of contract", "txtmonths"}, {"Morale"}, {"Loyalty"}};
constexpr FormGroup kStaffGroups[] = {{"", 1, "Who", kStaffWho},
                                      {"", 1, "Work", kStaffWork},
                                      {"", 2, "Contract", kStaffJob},
                                      {"", 2, "Drawn when a game begins", kStaffDrawn}};

constexpr PageColumn kTeamColumns[] = {
    {"Name", "Team"}, {"Worker1", "First partner"}, {"Worker2", "Second partner"}, {"Experience"}};
constexpr FormEntry kTeamEntries[] = {{"Name"},
                                      {"Worker1", "First partner"},
                                      {"Worker2", "Second partner"},
                                      {"Finisher"},
                                      {"Experience"}};
constexpr FormGroup kTeamGroups[] = {{"", 1, "Tag Team", kTeamEntries}};

constexpr PageColumn kStableColumns[] = {{"Name", "Stable"}, {"Owner", "Promotion"}};
constexpr FormEntry kStableEntries[] = {{"Name"}, {"Owner", "Promotion"}};
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

std::span<const RecordPage> RecordPages() {
  static const RecordPage kPages[] = {
      {"frmEditWres", "cmdwres", "Workers", "worker", RecordKind::Worker, kWorkerColumns,
       kWorkerGroups},
      {"frmEditPromo", "cmdpromo", "Promotions", "promotion", RecordKind::Promotion,
       kPromotionColumns, kPromotionGroups},
      {"frmEditOwners", "cmdowners", "Owners", "owner", RecordKind::Staff, kOwnerColumns,
       kOwnerGroups, IsOwner, BeginOwner},
      {"frmEditStaff", "cmdstaff", "Staff", "member of staff", RecordKind::Staff, kStaffColumns,
       kStaffGroups, IsNoOwner},
      {"frmEditTeams", "cmdteams", "Tag Teams", "Tag Team", RecordKind::Team, kTeamColumns,
       kTeamGroups},
      {"frmEditStables", "cmdstables", "Stables", "stable", RecordKind::Stable, kStableColumns,
       kStableGroups},
      {"frmEditBelts", "cmdbelts", "Titles", "Title", RecordKind::Title, kTitleColumns,
       kTitleGroups},
      {"frmEditTv", "cmdtv", "Television", "show", RecordKind::Show, kShowColumns, kShowGroups},
      {"frmEditEvents", "cmdevents", "Events", "Event", RecordKind::Event, kEventColumns,
       kEventGroups},
      {"frmEditNetworks", "cmdnetworks", "Networks", "network", RecordKind::Network,
       kNetworkColumns, kNetworkGroups},
      {"frmEditSponsors", "cmdsponsors", "Sponsors", "sponsor", RecordKind::Sponsor,
       kSponsorColumns, kSponsorGroups}};
  return kPages;
}

std::string FaultWords(const Fault& fault) {
  if (fault.Field.empty()) return "It " + fault.What + ".";
  return LabelOf(fault.File, fault.Field) + " " + fault.What + ".";
}

}  // namespace grapplemont
