#include "editor/maintain.h"
#include "editor/screens/screenediting.h"
#include "editor/screens/screenfiles.h"
#include "records/fields/wording.h"
#include "records/tables/worldreport.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

std::vector<Fault> UnreadableFaults(const DataFolder& data) {
  std::vector<Fault> faults;
  for (const UnreadableFile& file : data.Unreadable())
    faults.push_back({file.File, 0, {}, {}, "cannot be read: " + file.Why});
  return faults;
}

/// What is wrong with the data and what a clean-up would do, before it does it.
class frmEditMaintain : public GameScreen {
 public:
  explicit frmEditMaintain(Game& game) : GameScreen(game, "frmEditMaintain", "Check And Clean-Up") {
    BackBefore(cmdclean);
    lstfaults.EmptyText = "Nothing is wrong with the data.";
    lstdoings.EmptyText = "There is nothing that a clean-up would do.";
    lstleft.EmptyText = "Nothing would be left to do by hand.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Tabs({ui::Group("What is wrong", {ui::Grow(lstfaults)}),
                            ui::Group("What the clean-up does", {ui::Grow(lstdoings)}),
                            ui::Group("What it leaves", {ui::Grow(lstleft)})})
                      .Grow(),
                  &lblfacts, {}, &cmdclean);
  }

  void Return() override { ShowPlan({}); }

 private:
  void ShowPlan(const std::string& before) {
    const DataFolder& data = EditedData(game_);
    const Maintenance plan = PlanMaintenance(data.World(), UnreadableFaults(data));
    doings_ = plan.Doings.Count;
    FillFaults(lstfaults, plan.Faults.First);
    FillFaults(lstdoings, plan.Doings.First);
    FillFaults(lstleft, plan.Left.First);
    cmdclean.Enabled = doings_ > 0;
    cmdclean.Tip = doings_ > 0 ? "" : "There is nothing that a clean-up would do.";
    lblfacts.Text = before + (plan.Faults.empty() ? "No faults: " + ContentsOf(data.World()) + "."
                                                  : Summary(plan));
  }

  static std::string Summary(const Maintenance& plan) {
    const std::size_t faults = plan.Faults.Count, left = plan.Left.Count;
    const std::string mends =
        plan.Doings.empty()
            ? "A clean-up can do nothing about " + std::string(faults == 1 ? "it" : "them") + "."
            : "The clean-up takes " + Counted(plan.Doings.Count, "step") +
                  (left == 0 ? " and leaves none."
                             : "; " + std::to_string(left) + (left == 1 ? " stays." : " stay."));
    return Counted(faults, "fault") + ShownOf(faults) + ". " + mends;
  }

  void cmdclean_Click() {
    if (!desk().Ask("Clean Up?", "Mend the data in " + Counted(doings_, "step") +
                                     "? What they are now is kept as a backup."))
      return;
    DataFolder& data = EditedData(game_);
    const std::size_t done = Maintain(data.World(), UnreadableFaults(data)).Count;
    ShowPlan("Cleaned up in " + Counted(done, "step") + ". ");
  }

  std::size_t doings_ = 0;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstfaults{*this, "lstfaults", FaultColumns("What is wrong")};
  ui::ListBox lstdoings{*this, "lstdoings", FaultColumns("What is wrong, and what is done")};
  ui::ListBox lstleft{*this, "lstleft", FaultColumns("What is wrong")};
  ui::Button cmdclean{*this, "cmdclean", "Clean Up", &frmEditMaintain::cmdclean_Click};
};

}  // namespace

SCREEN(frmEditMaintain)

}  // namespace grapplemont
