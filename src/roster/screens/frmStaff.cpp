#include "roster/screens/frmStaff.h"

#include <algorithm>
#include <tuple>

#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screentalks.h"
#include "roster/staff.h"
#include "roster/talks.h"
#include "roster/workerfacts.h"
#include "storylines/screens/screenpeople.h"

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

std::vector<ui::Column> StaffColumns(StaffList list) {
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
    : GameScreen(game, std::move(name), std::move(title), {.Manages = true}),
      lststaff(*this, "lststaff", StaffColumns(list), ui::Handler([this] { ShowChoice(); })),
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
  std::ranges::stable_sort(people,
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

namespace {

/// The player's staff, and where hands are lacking.
class frmStaff : public StaffListScreen {
 public:
  explicit frmStaff(Game& game) : StaffListScreen(game, "frmStaff", "Staff", StaffList::Own) {
    BackBefore(cmdcontract);
    lststaff.OpenWith(cmdcontract);
    lststaff.EmptyText = "Nobody is on your staff yet. Look for people under Other Staff.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Group("", {lblposts, lbladvice}),
                            ui::Columns({ui::Group("", {ui::Grow(lststaff)}).Grow(3),
                                         ui::Group("", {ui::Grow(txtpage)}).Grow(1)})
                                .Grow(1)}),
                  &lblfacts, {&cmdfire}, &cmdcontract);
  }

 protected:
  bool Belongs(const Staff& staff) const override { return WorksForPlayer(world(), staff); }

  void ShowActions(const Staff* chosen) override {
    const std::string why = WhyNot(chosen);
    EnableUnless(cmdcontract, why);
    EnableUnless(cmdfire, why);
    const std::vector<PostCount> posts = PostCounts(world());
    lblposts.Text = PostLine(posts);
    lbladvice.Text = PostAdvice(posts);
    lblfacts.Text = std::to_string(lststaff.Count()) + " on the staff, " +
                    Dollars(WagesOf(world(), world().PlayerUid()).Staff) + " a month.";
  }

 private:
  void cmdfire_Click() {
    Staff* chosen = Chosen();
    if (!chosen || !Belongs(*chosen) || !WhyNot(chosen).empty()) return ShowList();
    if (!desk().Ask("Terminate Contract", FiringQuestion(world(), *chosen), ui::Default::No))
      return;
    FireStaff(world(), *chosen);
    ShowList();
  }

  ui::Label lblposts{*this, "lblposts"};
  ui::Label lbladvice{*this, "lbladvice"};
  ui::Button cmdfire{*this, "cmdfire", "Fire", &frmStaff::cmdfire_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", [this] { Negotiate(); }};
};

/// Rows to choose from, each with its test against the promotion that hires.
struct StaffFilter {
  const char* Label;
  bool (*Keeps)(const Staff& staff, const Promotion& own);
};
template <int talent>
bool From(const Staff& staff, const Promotion&) {
  return staff.Talent >= talent;
}
/// An agreement without end is of neither kind.
template <bool written>
bool Under(const Staff& staff, const Promotion&) {
  return staff.Employer != 0 && !IsEndless(staff) && staff.ContractType == ContractCodeOf(written);
}
constexpr StaffFilter kByBond[] = {
    {"All", [](const Staff&, const Promotion&) { return true; }},
    {"Free agents", [](const Staff& s, const Promotion&) { return s.Employer == 0; }},
    {"Verbal contracts", Under<false>},
    {"Written contracts", Under<true>},
    {"Expiring contracts",
     [](const Staff& s, const Promotion&) {
       return s.Employer != 0 && s.ContractMonths >= 0 && s.ContractMonths <= 3;
     }},
};
constexpr StaffFilter kByTalent[] = {
    {"All", From<0>},
    {"80 up", From<80>},
    {"60 up", From<60>},
    {"40 up", From<40>},
    {"20 up", From<20>},
    {"Not too good for us",
     [](const Staff& s, const Promotion& own) { return s.Talent <= TalentCeiling(own.Size); }},
};

/// Everybody who works in a business behind the scenes, but not for the player.
class frmOtherStaff : public StaffListScreen {
 public:
  explicit frmOtherStaff(Game& game)
      : StaffListScreen(game, "frmOtherStaff", "Other Staff", StaffList::Market) {
    BackBefore(cmdcontract);
    lststaff.OpenWith(cmdcontract);
    lststaff.EmptyText = "There is nobody else who fits.";
    for (const StaffFilter& row : kByBond) cmbbond.Add(row.Label);
    for (const StaffFilter& row : kByTalent) cmbtalent.Add(row.Label);
    cmbpost.Add("All");
    for (const Term& post : kStaffPositions) cmbpost.Add(std::string(post.Says), post.Code);
    for (ui::ComboBox* filter : {&cmbbond, &cmbpost, &cmbtalent}) filter->Select(1);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows(
            {ui::Group("", {ui::Columns({ui::Field("Bond", cmbbond), ui::Field("Post", cmbpost),
                                         ui::Field("Talent", cmbtalent), ui::Spacer()})}),
             ui::Columns({ui::Group("", {ui::Grow(lststaff)}).Grow(3),
                          ui::Group("", {ui::Grow(txtpage)}).Grow(1)})
                 .Grow(1)}),
        &lblfacts, {}, &cmdcontract);
  }

 protected:
  bool Belongs(const Staff& staff) const override {
    return !WorksForPlayer(world(), staff) && Keeps(kByBond, cmbbond, staff) &&
           Keeps(kByTalent, cmbtalent, staff) &&
           (cmbpost.Selected() <= 1 || staff.Position == cmbpost.Key());
  }

  void ShowActions(const Staff* chosen) override {
    EnableUnless(cmdcontract, WhyNot(chosen));
    const int count = lststaff.Count();
    lblfacts.Text = Counted(count, "person", "people") + " behind the scenes elsewhere.";
  }

 private:
  template <std::size_t N>
  bool Keeps(const StaffFilter (&filters)[N], const ui::ComboBox& combo, const Staff& staff) const {
    const int row = combo.Selected();
    return row <= 1 || filters[row - 1].Keeps(staff, world().Player());
  }

  ui::ComboBox cmbbond{*this, "cmbbond", &frmOtherStaff::ShowList};
  ui::ComboBox cmbpost{*this, "cmbpost", &frmOtherStaff::ShowList};
  ui::ComboBox cmbtalent{*this, "cmbtalent", &frmOtherStaff::ShowList};
  ui::Button cmdcontract{*this, "cmdcontract", "Hire", [this] { Negotiate(); }};
};

}  // namespace

SCREEN(frmStaff)
SCREEN(frmOtherStaff)

}  // namespace grapplemont
