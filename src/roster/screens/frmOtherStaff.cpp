#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "roster/screens/contractscreens.h"
#include "roster/screens/screenstaff.h"
#include "roster/stafffacts.h"
#include "roster/stafftalks.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

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
    lststaff.OpenWith(cmdcontract);
    lststaff.EmptyText = "There is nobody else who fits.";
    for (const StaffFilter& row : kByBond) cmbbond.Add(row.Label);
    for (const StaffFilter& row : kByTalent) cmbtalent.Add(row.Label);
    cmbpost.Add("All");
    for (const Term& post : kStaffPositions) cmbpost.Add(std::string(post.Says), post.Code);
    for (ui::ComboBox* filter : {&cmbbond, &cmbpost, &cmbtalent}) filter->Select(1);
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdcontract};
    page.Main = &cmdcontract;
    page.Cancel = &cmdback;
    page.Body = ui::Rows(
        {ui::Group("", {ui::Columns({ui::Field("Bond", cmbbond), ui::Field("Post", cmbpost),
                                     ui::Field("Talent", cmbtalent), ui::Spacer()})}),
         ui::Columns({ui::Group("", {ui::Grow(lststaff)}).Grow(3),
                      ui::Group("", {ui::Grow(txtpage)}).Grow(1)})
             .Grow(1)});
    return page;
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

  void cmdcontract_Click() { Negotiate(); }
  void cmdback_Click() { Leave(); }

  ui::ComboBox cmbbond{*this, "cmbbond", &frmOtherStaff::ShowList};
  ui::ComboBox cmbpost{*this, "cmbpost", &frmOtherStaff::ShowList};
  ui::ComboBox cmbtalent{*this, "cmbtalent", &frmOtherStaff::ShowList};
  ui::Button cmdback{*this, "cmdback", "Back", &frmOtherStaff::cmdback_Click};
  ui::Button cmdcontract{*this, "cmdcontract", "Hire", &frmOtherStaff::cmdcontract_Click};
};

}  // namespace

SCREEN(frmOtherStaff)

}  // namespace grapplemont
