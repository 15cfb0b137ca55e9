#include "records/world.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// The player's own notes. What is typed is on disk with the same stroke, so that no way of closing
/// the program loses it.
class frmNotepad : public GameScreen {
 public:
  explicit frmNotepad(Game& game) : GameScreen(game, "frmNotepad", "Notepad", {.Back = "Done"}) {
    txtnotes.MultiLine = true;
    txtnotes.Hint = "Plans, rumours, who owes whom a favour.";
    txtnotes.OnChange = [this] { txtnotes_Change(); };
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdrevert, &cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Group("", {ui::Grow(txtnotes)});
    return page;
  }

  void Load() override {
    txtnotes.Text = notes().Text();
    ShowState();
  }

  /// An event was taken back: the box keeps what was typed, for another try.
  void Return() override { ShowState(); }

 private:
  TextFile& notes() { return game_.World().Notes(); }

  void Store() { notes().Set(txtnotes.Text.Get()); }

  void ShowState() {
    const bool stored = txtnotes.Text.Get() == notes().Text();
    lblfacts.Text = stored ? "Saved as you type." : "The last change is not saved yet.";
    lblfacts.Colour = stored ? ui::Tone::Muted : ui::Tone::Red;
    cmdrevert.Visible = !stored;
  }

  void txtnotes_Change() {
    const auto most = static_cast<std::size_t>(notes().MaxBytes());
    if (txtnotes.Text->size() > most) {
      txtnotes.Text = notes().Text();
      desk().Say("Error!", "The notepad holds " + std::to_string(most) +
                               " letters at most. Your notes are as they were before.");
    }
    Store();
    ShowState();
  }

  void cmdrevert_Click() {
    txtnotes.Text = notes().Text();
    ShowState();
  }

  void cmdback_Click() override {
    Store();
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtnotes{*this, "txtnotes"};
  ui::Button cmdrevert{*this, "cmdrevert", "Back To What Is Saved", &frmNotepad::cmdrevert_Click};
};

}  // namespace

SCREEN(frmNotepad)

}  // namespace grapplemont
