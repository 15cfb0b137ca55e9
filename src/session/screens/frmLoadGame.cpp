#include "session/screens/screensenter.h"
#include "session/screens/sessionscreens.h"
#include "session/slots.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

class frmLoadGame : public GameScreen {
 public:
  explicit frmLoadGame(Game& game)
      : GameScreen(game, "frmLoadGame", "Load Game", {.Is = ui::Role::Cover}) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    std::vector<ui::Box> rows;
    for (int slot = 1; slot <= kSlots; ++slot)
      rows.push_back(ui::Columns({ui::Grow(cmdload(slot), 2), ui::Grow(lbldetails(slot), 3)}));
    page.Body = ui::Rows({ui::Group("Saved games", std::move(rows)), ui::Spacer()});
    return page;
  }

  void Load() override {
    for (int slot = 1; slot <= kSlots; ++slot) {
      const SlotSummary summary = ReadSlotSummary(game_.Disk(), game_.SlotFolder(slot));
      cmdload(slot).Text = summary.Caption;
      cmdload(slot).Enabled = summary.Playable;
      cmdload(slot).Tip = summary.Empty      ? "No game is kept in this slot."
                          : summary.Playable ? ""
                                             : "This slot can't be loaded.";
      lbldetails(slot).Text = summary.Details;
    }
  }
  void Return() override { Load(); }

 private:
  void cmdload_Click(int slot) { EnterSlot(game_, slot); }

  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Array<ui::Button> cmdload{"cmdload", kSlots, [this](const std::string&, int slot) {
                                  return std::make_unique<ui::Button>(
                                      *this, "cmdload" + std::to_string(slot), "",
                                      [this, slot] { cmdload_Click(slot); });
                                }};
  ui::Array<ui::Label> lbldetails{"lbldetails", kSlots, [this](const std::string&, int slot) {
                                    return std::make_unique<ui::Label>(
                                        *this, "lbldetails" + std::to_string(slot));
                                  }};
};

}  // namespace

SCREEN(frmLoadGame)

}  // namespace grapplemont
