#include "roster/screens/screenstaff.h"

#include <algorithm>
#include <tuple>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screenworkerpage.h"
#include "roster/stafffacts.h"
#include "roster/stafftalks.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

ui::Cell Name(const World&, const Staff& staff) {
  return staff.Name.View();
}
ui::Cell Post(const World&, const Staff& staff) {
  return {1.0 * staff.Position, std::string(PostText(staff.Position))};
}
ui::Cell Employer(const World& world, const Staff& staff) {
  if (staff.Employer == 0) return {"Free", ui::Tone::Muted};
  return PromotionInitials(world, staff.Employer);
}
ui::Cell Age(const World&, const Staff& staff) {
  return int(staff.Age);
}
ui::Cell Sex(const World&, const Staff& staff) {
  return staff.Gender ? "M" : "F";
}
template <Percent Staff::*field>
ui::Cell Points(const World&, const Staff& staff) {
  return int(staff.*field);
}
ui::Cell Wage(const World&, const Staff& staff) {
  if (staff.Position == kOwner) return {0.0, ""};
  const long long dollars = 1000LL * staff.Wage;
  return {static_cast<double>(dollars), Dollars(dollars)};
}
ui::Cell Contract(const World&, const Staff& staff) {
  if (staff.Employer == 0) return "";
  if (staff.Position == kOwner) return {"Owner", ui::Tone::Gold};
  if (IsEndless(staff)) return {"No end", ui::Tone::Gold};
  return ContractWord(staff.ContractType == "Wri");
}
/// What has no end sorts behind all that has one.
ui::Cell Months(const World&, const Staff& staff) {
  constexpr double kNever = 100000;
  if (staff.Employer == 0) return {0.0, ""};
  if (IsEndless(staff)) return {kNever, "-"};
  return {int(staff.ContractMonths), staff.ContractMonths <= 3 ? ui::Tone::Amber : ui::Tone::Plain};
}

struct StaffColumn {
  const char* Title;
  K Kind;
  const char* Tip;
  bool IsOwns;
  ui::Cell (*Show)(const World& world, const Staff& staff);
};
// A post goes by its number as a date does: from the first up, words at the left.
constexpr StaffColumn kColumns[] = {
    {"Name", K::Text, "", true, Name},
    {"Post", K::Date, "", true, Post},
    {"Emp.", K::Tag, "Employer.", false, Employer},
    {"Age", K::Number, "", true, Age},
    {"Sex", K::Text, "", true, Sex},
    {"Talent", K::Number, "", true, Points<&Staff::Talent>},
    {"Morale", K::Number, "", true, Points<&Staff::Morale>},
    {"Loyalty", K::Number, "", true, Points<&Staff::Loyalty>},
    {"Wage", K::Number, "Dollars a month.", true, Wage},
    {"Contract", K::Tag, "", true, Contract},
    {"Months", K::Number, "Months left of the contract.", true, Months},
};

std::vector<ui::Column> ColumnsOf(StaffList list) {
  std::vector<ui::Column> columns;
  for (const StaffColumn& column : kColumns)
    if (column.IsOwns || list == StaffList::Market)
      columns.push_back({column.Title, column.Kind, 0, column.Tip});
  return columns;
}

ui::ListBox::Row RowOf(const World& world, const Staff& staff, StaffList list) {
  ui::ListBox::Row row{{}, staff.Uid};
  for (const StaffColumn& column : kColumns)
    if (column.IsOwns || list == StaffList::Market) row.Cells.push_back(column.Show(world, staff));
  return row;
}

}  // namespace

void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody) {
  if (!staff) return page.Write({{ui::Report::Style::Muted, nobody}});
  WriteFacts(page, StaffFacts(world, *staff));
}

StaffListScreen::StaffListScreen(Game& game, std::string name, std::string title, StaffList list)
    : Screen(game.Desk(), std::move(name), std::move(title)),
      game_(game),
      lststaff(*this, "lststaff", ColumnsOf(list), ui::Handler([this] { ShowChoice(); })),
      list_(list) {}

/// By post, the ablest first; on the market those who are for hire.
void StaffListScreen::ShowList() {
  std::vector<const Staff*> people;
  for (const Staff& staff : world().AllStaff())
    if (Belongs(staff)) people.push_back(&staff);
  const auto rank = [this](const Staff& staff) {
    const bool isLast = staff.Position == kOwner && list_ == StaffList::Market;
    return std::tuple(isLast, int(staff.Position), -staff.Talent);
  };
  std::stable_sort(people.begin(), people.end(),
                   [&](const Staff* a, const Staff* b) { return rank(*a) < rank(*b); });
  std::vector<ui::ListBox::Row> rows;
  for (const Staff* staff : people) rows.push_back(RowOf(world(), *staff, list_));
  const int row = lststaff.Selected();
  lststaff.Fill(std::move(rows));
  if (lststaff.Selected() == 0) lststaff.Select(std::min(std::max(row, 1), lststaff.Count()));
  ShowChoice();
}

void StaffListScreen::ShowChoice() {
  const Staff* chosen = Chosen();
  WriteStaffPage(txtpage, world(), chosen, "Choose somebody to read about.");
  ShowActions(chosen);
}

std::string StaffListScreen::WhyNot(const Staff* chosen) {
  return chosen ? WhyNoStaffTalks(*chosen) : "Choose somebody first.";
}

void StaffListScreen::Negotiate() {
  if (const Staff* chosen = Chosen()) OpenStaffContract(game_, chosen->Uid);
}

void StaffListScreen::Leave() {
  Close();
  if (game_.RefreshMainScreen) game_.RefreshMainScreen();
}

}  // namespace grapplemont
