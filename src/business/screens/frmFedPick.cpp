#include "business/screens/fedscreens.h"
#include "records/world.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The people who could hold an office, and nobody.
class frmFedPick : public ui::Screen {
 public:
  frmFedPick(Game& game, Office office)
      : Screen(game.Desk(), "frmFedPick", OfficeName(office), ui::Role::Dialog),
        game_(game),
        office_(office) {
    lstpeople.EmptyText = office == Office::Commissioner
                              ? "You have no non-wrestler. Sign one, or make somebody one."
                          : office == Office::HeadTrainer
                              ? "You have no trainer on the staff. Hire one first."
                              : "Nobody on your staff can book. Hire somebody who can first.";
    lstpeople.SetColumns({{"Name", K::Text, 4},
                          {office == Office::Commissioner ? "Charisma" : "Talent", K::Percent, 2},
                          {office == Office::Commissioner ? "Status" : "Works as", K::Text, 3}});
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblnow;
    page.Actions = {&cmdcancel, &cmdnobody, &cmddoit};
    page.Main = &cmddoit;
    page.Cancel = &cmdcancel;
    page.Body = ui::Group("", {ui::Grow(lstpeople)});
    return page;
  }

  void Load() override {
    Return();
    lstpeople.SelectKey(HolderOf(world(), office_));
    ShowButtons();
  }

  void Return() override {
    std::vector<ui::ListBox::Row> rows;
    for (const OfficeSeeker& candidate : CandidatesFor(world(), office_))
      rows.push_back({{candidate.Name, ui::Cell(candidate.Mark), candidate.Doing}, candidate.Uid});
    lstpeople.Fill(std::move(rows));
    lblnow.Text = std::string("In office: ") + HolderName(world(), office_);
    ShowButtons();
  }

 private:
  World& world() { return game_.World(); }

  void ShowButtons() {
    const int holder = HolderOf(world(), office_), chosen = lstpeople.Key();
    EnableUnless(cmddoit, chosen == 0        ? "Choose somebody first."
                          : chosen == holder ? "That is who holds the office now."
                                             : "");
    EnableUnless(cmdnobody, holder == 0 ? "Nobody holds the office now." : "");
  }

  void Give(int uid) {
    if (const std::string why = WhyNotAppoint(world(), office_, uid); !why.empty()) {
      desk().Say("Error!", why);
      return Return();
    }
    Appoint(world(), office_, uid);
    Close();
  }

  void cmddoit_Click() { Give(lstpeople.Key()); }
  void cmdnobody_Click() { Give(0); }
  void cmdcancel_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  Office office_;
  ui::Label lblnow{*this, "lblnow"};
  ui::ListBox lstpeople{*this, "lstpeople", {{}}, &frmFedPick::ShowButtons, cmddoit};
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel", &frmFedPick::cmdcancel_Click};
  ui::Button cmdnobody{*this, "cmdnobody", "Nobody", &frmFedPick::cmdnobody_Click};
  ui::Button cmddoit{*this, "cmddoit", "Appoint", &frmFedPick::cmddoit_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office) {
  return std::make_unique<frmFedPick>(game, office);
}

}  // namespace grapplemont
