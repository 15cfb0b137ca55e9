#include <algorithm>
#include <tuple>

#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkers.h"
#include "roster/staff.h"
#include "roster/talks.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// A table of staff, the page of the chosen one beside it.
class StaffListScreen : public GameScreen {
 public:
  StaffListScreen(Game& game, std::string name, std::string title, PeopleList list)
      : GameScreen(game, std::move(name), std::move(title), {.Manages = true}),
        lststaff(*this, "lststaff", WithStaffFaces(world(), StaffColumns(list)),
                 ui::Handler([this] { ShowChoice(); })),
        list_(list) {}

  void Return() override { ShowList(); }

 protected:
  /// Who is to be listed.
  virtual bool Belongs(const Staff& staff) const = 0;
  /// Brings facts and buttons to the chosen one; nullptr for nobody.
  virtual void ShowActions(const Staff* chosen) = 0;

  using GameScreen::world;
  const World& world() const { return game_.World(); }
  /// nullptr for nobody, or somebody who has left the world.
  Staff* Chosen() { return world().FindStaff(lststaff.Key()); }

  /// By post, the ablest first; on the market those who are for hire. The choice stays where it
  /// can, else the next row's is taken.
  void ShowList() {
    std::vector<const Staff*> people;
    for (const Staff& staff : world().AllStaff())
      if (Belongs(staff)) people.push_back(&staff);
    std::ranges::stable_sort(people, {}, [this](const Staff* staff) {
      const bool isLast = staff->Position == kOwner && list_ == PeopleList::Market;
      return std::tuple(isLast, int(staff->Position), -staff->Talent);
    });
    std::vector<ui::ListBox::Row> rows;
    for (const Staff* staff : people) rows.push_back(StaffRow(world(), *staff, list_));
    const int row = lststaff.Selected();
    lststaff.Fill(std::move(rows));
    if (lststaff.Selected() == 0) lststaff.Select(std::min(std::max(row, 1), lststaff.Count()));
    ShowChoice();
  }

  void ShowChoice() {
    const Staff* chosen = Chosen();
    WriteStaffPage(txtpage, world(), chosen, "Choose somebody to read about.");
    ShowActions(chosen);
  }

  /// Why there can be no talks with them at this moment; empty when there can.
  static std::string WhyNot(const Staff* chosen) {
    return chosen ? WhyNoStaffTalks(*chosen) : "Choose somebody first.";
  }
  void Negotiate() {
    if (const Staff* chosen = Chosen()) OpenTalks(game_, *chosen);
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lststaff;
  ui::Report txtpage{*this, "txtpage"};

 private:
  PeopleList list_;
};

/// The player's staff, and where hands are lacking.
class frmStaff : public StaffListScreen {
 public:
  explicit frmStaff(Game& game) : StaffListScreen(game, "frmStaff", "Staff", PeopleList::Own) {
    BackBefore(cmdcontract);
    lststaff.OpenWith(cmdcontract);
    lststaff.Acts = {{&cmdcontract}, {&cmdfire}};
    lststaff.EmptyText = "Nobody is on your staff yet. Look for people under Other Staff.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lststaff)}).Grow(5),
                               ui::Rows({ui::Group("Posts", {lblposts, lbladvice}),
                                         ui::Group("", {ui::Grow(txtpage)}).Grow(1)})
                                   .Grow(2)}),
                  &lblfacts, {&cmdfire}, &cmdcontract);
  }

 protected:
  bool Belongs(const Staff& staff) const override { return WorksForPlayer(world(), staff); }

  void ShowActions(const Staff* chosen) override {
    const std::string why = WhyNot(chosen);
    EnableUnless(cmdcontract, why);
    EnableUnless(cmdfire, why);
    const std::vector<PostCount> posts = PostCounts(world());
    lblposts.Text = PostLines(posts);
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
      : StaffListScreen(game, "frmOtherStaff", "Other Staff", PeopleList::Market) {
    BackBefore(cmdcontract);
    lststaff.OpenWith(cmdcontract);
    lststaff.Acts = {{&cmdcontract}};
    lststaff.EmptyText = "There is nobody else who fits.";
    for (const StaffFilter& row : kByBond) cmbbond.Add(row.Label);
    for (const StaffFilter& row : kByTalent) cmbtalent.Add(row.Label);
    cmbpost.Add("All");
    for (const Term& post : kStaffPositions) cmbpost.Add(std::string(post.Says), post.Code);
    for (ui::ComboBox* filter : {&cmbbond, &cmbpost, &cmbtalent}) {
      filter->Select(1);
      filter->Filters = true;
    }
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Rows(
            {ui::Group("", {ui::Columns({ui::Field("Contract", cmbbond), ui::Field("Post", cmbpost),
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
