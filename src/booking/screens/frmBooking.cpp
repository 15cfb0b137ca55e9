#include "booking/screens/bookingscreens.h"
#include "booking/screens/screensheet.h"
#include "booking/sheet.h"
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

}  // namespace grapplemont
