#include "business/networks.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

/// What else is on when a show of ours is: at the same time, and before or after it.
class frmTVRivals : public ShowScreen {
 public:
  frmTVRivals(Game& game, std::string show)
      : ShowScreen(game, "frmTVRivals", "Television Rivals", std::move(show)) {
    lstdirect.EmptyText = "No Direct Rivals";
    lstindirect.EmptyText = "No Indirect Rivals";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body =
        ui::Rows({ui::Group("Direct rivals: in the same time slot", {ui::Grow(lstdirect)}).Grow(),
                  ui::Group("Indirect rivals: on the same day", {ui::Grow(lstindirect)}).Grow()});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    const Show* ours = FindShow();
    if (!ours) return;
    lblfacts.Text =
        ours->Name + ", " + ours->Day.Str() + ", " + std::string(SlotName(ours->Slot)) + ".";
    lstdirect.Clear();
    lstindirect.Clear();
    for (const Show& show : world().Shows()) {
      if (show.Owner == ours->Owner || !(show.Day == ours->Day)) continue;
      ui::ListBox& list = show.Slot == ours->Slot ? lstdirect : lstindirect;
      list.Add({show.Name.View(), PromotionInitials(world(), show.Owner), SlotName(show.Slot),
                NetworkName(world(), show.Network), RatingCell(show, show.Rating3)});
    }
  }

 private:
  void cmdback_Click() { Close(); }

  using K = ui::ColumnKind;
  static std::vector<ui::Column> RivalColumns() {
    return {{"Show", K::Text, 4},
            {"Promotion", K::Text, 2},
            {"Time", K::Text, 3},
            {"Network", K::Text, 4},
            {"Last", K::Number, 2, "Its last rating."}};
  }
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstdirect{*this, "lstdirect", RivalColumns()};
  ui::ListBox lstindirect{*this, "lstindirect", RivalColumns()};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTVRivals::cmdback_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmTVRivals(Game& game, std::string show) {
  return std::make_unique<frmTVRivals>(game, std::move(show));
}

}  // namespace grapplemont
