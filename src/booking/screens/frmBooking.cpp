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
  void Load() override {
    BeginSheet();
    EnableUnless(cmdauto, WhyNoAutoBooker(world()));
    ShowOpened();
  }

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

  std::function<void(World&)> Beginning() override {
    return [team = Team()](World& world) { StartShow(world, false, team); };
  }

 private:
  ui::Button cmdauto{*this, "cmdauto", "Auto Booker", Opens("frmAutoBook")};
};

/// The sheet of this month's Event, with its extras and its commentary.
class frmPPVBooking : public SheetScreen {
 public:
  explicit frmPPVBooking(Game& game) : SheetScreen(game, "frmPPVBooking", true) {}
  void Load() override {
    BeginSheet();
    FillBox(cmbannouncer, CommentaryStaff(world()));
    FillColour();
    FillExtras();
    if (game_.ComesUpAgain) ChooseAgain();
    ShowOpened();
  }
  void Return() override {
    SheetScreen::Return();
    KeepChoices();
  }

 protected:
  CommentaryTeam Team() override {
    return {cmbannouncer.Key(), cmbcolour.Key(), chkcolour.Checked};
  }
  CommentaryTeam FullTeam() override {
    const CommentaryTeam best = BestTeam(world());
    CommentaryTeam team = Team();
    const bool hasTheirSeat = !team.ColourIsWorker && team.Colour == best.Announcer;
    if (team.Announcer == 0 && !hasTheirSeat) team.Announcer = best.Announcer;
    if (team.Announcer == 0 && !best.ColourIsWorker) team.Announcer = best.Colour;
    if (team.Colour != 0) return team;
    // Nobody sits on both seats.
    const bool isTaken = !best.ColourIsWorker && best.Colour == team.Announcer;
    team.Colour = isTaken && best.Announcer != team.Announcer ? best.Announcer
                  : isTaken                                   ? 0
                                                              : best.Colour;
    team.ColourIsWorker = best.ColourIsWorker;
    return team;
  }
  void Seat(const CommentaryTeam& team) override {
    cmbannouncer.SelectKey(team.Announcer);
    if (chkcolour.Checked != team.ColourIsWorker) {
      chkcolour.Checked = team.ColourIsWorker;
      FillColour();
    }
    cmbcolour.SelectKey(team.Colour);
    KeepChoices();
  }
  std::string TopRow() override {
    const Show* show = ShowOfToday(world());
    return show ? show->Name + " Main Event Match Description" : "Pre-Show Match Description";
  }

  std::string Facts() override {
    const Event* event = EventOfToday(world());
    if (!event) return "No Event is due this month.";
    return std::string(Says(kEventTypes, event->Type)) + ", " + std::to_string(kEventRows) +
           " rows, the first of them before the doors open";
  }

  std::vector<ui::Box> BelowRows() override {
    return {ui::Group("", {ui::Columns({ui::Field("Announcer", cmbannouncer).Grow(),
                                        ui::Field("Colour man", cmbcolour).Grow(), chkcolour}),
                           ui::Columns({ui::Field("Extra", cmbspecial).Grow(), lblcost})})};
  }

  bool MayBegin() override {
    const CommentaryTeam team = Team();
    if ((team.Announcer == 0 || team.Colour == 0) &&
        !desk().Ask("Continue?",
                    "Are you sure you wish to continue without a full commentary team?"))
      return false;
    if (!team.ColourIsWorker && team.Announcer != 0 && team.Announcer == team.Colour) {
      desk().Say("Error!", "The same person cannot be announcer and colour commentator");
      return false;
    }
    return SheetScreen::MayBegin();
  }

  std::function<void(World&)> Beginning() override {
    return [team = Team(), extra = ChosenExtra()](World& world) {
      SeatIn(world, team);
      StartEvent(world, extra);
    };
  }

 private:
  static void SeatIn(World& world, const CommentaryTeam& team) {
    world.Session.EventAnnouncer = team.Announcer;
    world.Session.EventColour = team.Colour;
    world.Session.EventColourIsWorker = team.ColourIsWorker;
  }

  /// A sheet that comes up again is another screen than the one on which this was chosen.
  void KeepChoices() {
    SeatIn(world(), Team());
    world().Session.EventExtra = cmbspecial.Key();
  }

  /// Whoever is not there any more leaves their seat empty.
  void ChooseAgain() {
    const SessionWords chosen = world().Session;
    Seat({chosen.EventAnnouncer, chosen.EventColour, chosen.EventColourIsWorker});
    cmbspecial.SelectKey(chosen.EventExtra);
    for (ui::ComboBox* box : {&cmbannouncer, &cmbcolour, &cmbspecial})
      if (box->Selected() == 0) box->Select(1);
    cmbspecial_Click();
  }

  template <class People>
  static void FillBox(ui::ComboBox& box, const People& people) {
    box.Clear();
    box.Add("None");
    for (const auto* one : people) box.Add(one->Name.Str(), one->Uid);
    box.Select(1);
  }

  void FillColour() {
    if (chkcolour.Checked)
      FillBox(cmbcolour, CommentaryWorkers(world()));
    else
      FillBox(cmbcolour, CommentaryStaff(world()));
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
    SeatChosen();
  }

  void SeatChosen() {
    KeepChoices();
    ShowForecast();
  }

  ui::ComboBox cmbannouncer{*this, "cmbannouncer", &frmPPVBooking::SeatChosen};
  ui::ComboBox cmbcolour{*this, "cmbcolour", &frmPPVBooking::SeatChosen};
  ui::CheckBox chkcolour{*this, "chkcolour", "Use Wrestler?", false,
                         &frmPPVBooking::chkcolour_Click};
  ui::ComboBox cmbspecial{*this, "cmbspecial", [this] {
                            cmbspecial_Click();
                            KeepChoices();
                          }};
  ui::Label lblcost{*this, "lblcost", "Cost : $0"};
};

}  // namespace

SCREEN(frmBooking)
SCREEN(frmPPVBooking)

}  // namespace grapplemont
