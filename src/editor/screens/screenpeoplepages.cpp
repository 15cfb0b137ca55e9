#include "editor/pagewords.h"
#include "editor/screens/screenpages.h"

// Workers, owners, staff, teams and stables.

namespace grapplemont {

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
