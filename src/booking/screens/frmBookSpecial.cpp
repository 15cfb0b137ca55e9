#include <algorithm>

#include "booking/screens/screenmatchstep.h"
#include "booking/screens/stepscreens.h"

namespace grapplemont {

namespace {

/// The field of a battle royal: the roster at the left, who has been entered at the right, in the
/// order of entry.
class frmBookSpecial : public MatchStepScreen {
 public:
  frmBookSpecial(Game& game, WizardHost& host, const std::string& name)
      : MatchStepScreen(game, host, name, "Select Participants") {
    lstroster.Multi = true;
    lstroster.EmptyText = "Nobody is left on the roster who could be entered.";
    lstenter.EmptyText = "Nobody has been entered. Choose from the roster.";
  }

 private:
  void Prepare() override { ShowLists(); }

  ui::Box Body() override {
    return ui::Columns({ui::Rows({lblroster, ui::Grow(lstroster), cmdadd}).Grow(),
                        ui::Rows({lblenter, ui::Grow(lstenter), cmdrem}).Grow()});
  }

  bool Store() override {
    Segment draft = buffer();
    for (std::size_t i = 0; i < entered_.size(); ++i) draft.Worker[i] = entered_[i];
    return Accept(draft, kPeopleStep);
  }

  std::size_t Needed() { return static_cast<std::size_t>(EntrantsOf(buffer())); }

  void ShowLists() {
    std::vector<const Worker*> left, in;
    for (const Worker* worker : EligibleRoster(world(), wizard().View))
      if (std::find(entered_.begin(), entered_.end(), worker->Uid) == entered_.end())
        left.push_back(worker);
    for (const int uid : entered_) in.push_back(world().FindWorker(uid));
    FillPeople(lstroster, left);
    FillPeople(lstenter, in);
    lblroster.Text = "Roster : " + std::to_string(left.size());
    lblenter.Text = "Entered : " + std::to_string(in.size());
    AllowDone(entered_.size() == Needed(), std::to_string(Needed()) +
                                               " workers must be entered; so far it is " +
                                               std::to_string(entered_.size()) + ".");
    ShowButtons();
  }

  void ShowButtons() {
    cmdadd.Enabled = lstroster.Key() != 0;
    cmdadd.Tip = cmdadd.Enabled ? "" : "Choose somebody on the roster.";
    cmdrem.Enabled = lstenter.Key() != 0;
    cmdrem.Tip = cmdrem.Enabled ? "" : "Choose somebody who has been entered.";
  }

  void cmdadd_Click() {
    for (const int uid : lstroster.Keys()) entered_.push_back(uid);
    ShowLists();
  }

  void cmdrem_Click() {
    std::erase(entered_, lstenter.Key());
    ShowLists();
  }

  std::vector<int> entered_;  // uids
  ui::Label lblroster{*this, "lblroster"};
  ui::ListBox lstroster{*this, "lstroster", PeopleColumns(), &frmBookSpecial::ShowButtons, cmdadd};
  ui::Button cmdadd{*this, "cmdadd", "Add", &frmBookSpecial::cmdadd_Click};
  ui::Label lblenter{*this, "lblenter"};
  ui::ListBox lstenter{*this, "lstenter", PeopleColumns(), &frmBookSpecial::ShowButtons, cmdrem};
  ui::Button cmdrem{*this, "cmdrem", "Remove", &frmBookSpecial::cmdrem_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakeSpecialStep(Game& game, WizardHost& host, const std::string& name) {
  return std::make_unique<frmBookSpecial>(game, host, name);
}

}  // namespace grapplemont
