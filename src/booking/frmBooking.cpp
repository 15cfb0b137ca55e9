#include "booking/bookingscreens.h"
#include "records/dates.h"
#include "records/world.h"

namespace grapplemont {

namespace {

/// The sheet of a show day: television or Event. A show can only be called off yet.
class frmBooking : public ui::Screen {
 public:
  frmBooking(Game& game, bool isEvent)
      : Screen(game.Desk(), isEvent ? "frmPPVBooking" : "frmBooking", Heading(game, isEvent)),
        game_(game) {
    lblfacts.Text = LongDate(game.World().Today());
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdcancel, &cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Rows({ui::Group("", {lblnote}), ui::Spacer()});
    return page;
  }

 private:
  static std::string Heading(Game& game, bool isEvent) {
    const World& world = game.World();
    if (isEvent) {
      for (const Event& event : world.Events())
        if (event.Owner == world.PlayerUid() && event.Month == MonthOf(world.Today()))
          return "Event Booking Sheet For " + event.Name;
      return "Event Booking Sheet For ";
    }
    for (const Show& show : world.Shows())
      if (show.Owner == world.PlayerUid() && show.Day == DayName(world.Today()))
        return "Television Booking Sheet For " + show.Name;
    return "Television Booking Sheet For ";
  }

  void cmdback_Click() {
    if (desk().Ask("Confirm",
                   "Are you sure you wish to go back? It will erase any booking you have done so "
                   "far.",
                   ui::Default::No))
      Close();
  }

  void cmdcancel_Click() {
    if (!desk().Ask("Cancel?", "Are You Sure You Wish To Cancel The Show?", ui::Default::No))
      return;
    game_.AdvanceDay(true);
    Close();
  }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblnote{*this, "lblnote",
                    "A show is due today. Booking it comes with a later version: for now it can "
                    "only be cancelled."};
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel Show", &frmBooking::cmdcancel_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmBooking::cmdback_Click};
};

}  // namespace

void RegisterBookingScreens(Game& game) {
  game.Desk().Register("frmBooking", [&game] { return std::make_unique<frmBooking>(game, false); });
  game.Desk().Register("frmPPVBooking",
                       [&game] { return std::make_unique<frmBooking>(game, true); });
}

}  // namespace grapplemont
