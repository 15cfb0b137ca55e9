#include "business/networks.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

/// The networks, and what is on the one that is chosen.
class frmViewNetworks : public ui::Screen {
 public:
  explicit frmViewNetworks(Game& game)
      : Screen(game.Desk(), "frmViewNetworks", "Networks"), game_(game) {
    lstnetworks.EmptyText = "There is no network in this world.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Rows({ui::Group("", {ui::Grow(lstnetworks)}).Grow(3),
                          ui::Group("On the chosen network", {ui::Grow(lstshows)}).Grow(2)});
    return page;
  }

  void Load() override {
    FillNetworks(lstnetworks, world());
    if (lstnetworks.Selected() == 0) lstnetworks.Select(lstnetworks.Count() > 0 ? 1 : 0);
    lstnetworks_Click();
  }
  void Return() override { Load(); }

 private:
  World& world() { return game_.World(); }

  void lstnetworks_Click() {
    lstshows.Clear();
    const Network* network = world().FindNetwork(lstnetworks.Key());
    lstshows.EmptyText =
        network ? network->Name + " shows no wrestling." : "Choose a network to see its shows.";
    if (!network) return;
    for (const Show& show : world().Shows())
      if (show.Network == network->Uid)
        lstshows.Add({OwnedCell(world(), show, show.Name), PromotionInitials(world(), show.Owner),
                      DayCell(show), SlotName(show.Slot), RatingCell(show, show.Rating3)});
  }

  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  Game& game_;
  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(),
                          &frmViewNetworks::lstnetworks_Click};
  ui::ListBox lstshows{*this,
                       "lstshows",
                       {{"Show", K::Text, 5},
                        {"Promotion", K::Text, 2},
                        {"Day", K::Date, 3},
                        {"Time", K::Text, 3},
                        {"Last", K::Number, 2, "Last rating."}}};
  ui::Button cmdback{*this, "cmdback", "Back", &frmViewNetworks::cmdback_Click};
};

}  // namespace

SCREEN(frmViewNetworks)

}  // namespace grapplemont
