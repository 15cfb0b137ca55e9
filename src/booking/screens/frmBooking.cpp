#include "booking/screens/bookingscreens.h"
#include "booking/screens/screensheet.h"
#include "booking/sheet.h"
#include "booking/showstart.h"
#include "business/tvshows.h"
#include "records/fields/vocabulary.h"
#include "show/holdshow.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

std::string SlotText(const Show& show) {
  for (const Term& slot : kTimeSlots)
    if (show.Slot == slot.Stored) return std::string(slot.Says);
  return "No time slot";
}

/// The sheet of today's television show.
class frmBooking : public SheetScreen {
 public:
  explicit frmBooking(Game& game) : SheetScreen(game, "frmBooking", false) {}
  void Load() override { OpenTvSheet(); }

 protected:
  CommentaryTeam Team() override { return TvTeam(world()); }
  std::string TopRow() override { return "Opening Credits"; }
  std::vector<ui::Button*> FirstActions() override { return {&cmdauto}; }

  std::string Facts() override {
    const Show* show = ShowOfToday(world());
    if (!show) return "No television show is due today.";
    const Network* network = world().FindNetwork(show->Network);
    return (network ? network->Name + ", " : std::string()) + SlotText(*show) + ", " +
           std::to_string(TermsOf(world(), false).OpenRows) + " rows";
  }

  bool Begin() override {
    if (!desk().Ask("Sure?", "Are you sure you wish to start this show?")) return false;
    StartShow(world(), false, Team());
    return true;
  }

 private:
  void OpenTvSheet() {
    EmptySheet(world(), false);
    EnableUnless(cmdauto, HasAutoBooker(world())
                              ? ""
                              : "Nobody above the jobbers is fit, so there is nobody to book.");
    ShowOpened();
  }

  void cmdauto_Click() { desk().Open("frmAutoBook"); }
  ui::Button cmdauto{*this, "cmdauto", "Auto Booker", &frmBooking::cmdauto_Click};
};

}  // namespace

SCREEN(frmBooking)

namespace {

/// The sheet of this month's Event, with its extras and its commentary.
class frmPPVBooking : public SheetScreen {
 public:
  explicit frmPPVBooking(Game& game) : SheetScreen(game, "frmPPVBooking", true) {}
  void Load() override { OpenEventSheet(); }

 protected:
  CommentaryTeam Team() override {
    return {cmbannouncer.Key(), cmbcolour.Key(), chkcolour.Checked};
  }
  std::string TopRow() override { return DarkMatchHeading(world()); }

  std::string Facts() override {
    const Event* event = EventOfToday(world());
    if (!event) return "No Event is due this month.";
    return std::string(Says(kEventTypes, event->Type)) + ", " + std::to_string(kEventRows) +
           " rows, the first of them before the doors open";
  }

  std::vector<ui::Box> BelowRows() override {
    return {ui::Group("", {ui::Columns({ui::Field("Announcer", cmbannouncer).Grow(),
                                        ui::Field("Colour", cmbcolour).Grow(), chkcolour}),
                           ui::Columns({ui::Field("Extra", cmbspecial).Grow(), lblcost})})};
  }

  bool Begin() override {
    const CommentaryTeam team = Team();
    if ((team.Announcer == 0 || team.Colour == 0) &&
        !desk().Ask("Continue?",
                    "Are you sure you wish to continue without a full commentary team?"))
      return false;
    if (!team.ColourIsWorker && team.Announcer != 0 && team.Announcer == team.Colour) {
      desk().Say("Error!", "The same person cannot be announcer and colour commentator");
      return false;
    }
    if (!desk().Ask("Sure?", "Are you sure you wish to start this show?")) return false;
    world().Session.EventAnnouncer = team.Announcer;
    world().Session.EventColour = team.Colour;
    world().Session.EventColourIsWorker = team.ColourIsWorker;
    StartEvent(world(), ChosenExtra());
    return true;
  }

 private:
  void OpenEventSheet() {
    EmptySheet(world(), true);
    FillStaff(cmbannouncer);
    FillColour();
    FillExtras();
    ShowOpened();
  }

  void FillStaff(ui::ComboBox& box) {
    box.Clear();
    box.Add("None");
    for (const Staff* staff : CommentaryStaff(world())) box.Add(staff->Name.Str(), staff->Uid);
    box.Select(1);
  }

  void FillColour() {
    if (!chkcolour.Checked) return FillStaff(cmbcolour);
    cmbcolour.Clear();
    cmbcolour.Add("None");
    for (const Worker* worker : CommentaryWorkers(world()))
      cmbcolour.Add(worker->Name.Str(), worker->Uid);
    cmbcolour.Select(1);
  }

  void FillExtras() {
    cmbspecial.Clear();
    cmbspecial.Add("None");
    int key = 0;
    for (const EventExtra* extra : ExtrasFor(world().Player()))
      cmbspecial.Add(std::string(extra->Name), ++key);
    cmbspecial.Select(1);
    cmbspecial_Click();
  }

  /// nullptr for "None".
  const EventExtra* ChosenExtra() {
    const auto extras = ExtrasFor(world().Player());
    const auto key = static_cast<std::size_t>(cmbspecial.Key());
    return key >= 1 && key <= extras.size() ? extras[key - 1] : nullptr;
  }

  void cmbspecial_Click() {
    const EventExtra* extra = ChosenExtra();
    lblcost.Text = "Cost : $" + std::to_string(extra ? CostOfExtra(extra->Name) : 0);
  }

  void chkcolour_Click() {
    FillColour();
    ShowForecast();
  }

  void Table_Click() { ShowForecast(); }

  ui::ComboBox cmbannouncer{*this, "cmbannouncer", &frmPPVBooking::Table_Click};
  ui::ComboBox cmbcolour{*this, "cmbcolour", &frmPPVBooking::Table_Click};
  ui::CheckBox chkcolour{*this, "chkcolour", "Use Wrestler?", false,
                         &frmPPVBooking::chkcolour_Click};
  ui::ComboBox cmbspecial{*this, "cmbspecial", &frmPPVBooking::cmbspecial_Click};
  ui::Label lblcost{*this, "lblcost", "Cost : $0"};
};

}  // namespace

SCREEN(frmPPVBooking)

}  // namespace grapplemont
