#include "session/screens/frmLoadGame.h"

#include <algorithm>

#include "calendar/guide.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/store/slot.h"
#include "records/store/slotfolder.h"
#include "session/home.h"
#include "session/newgame.h"
#include "storylines/storynames.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// False when the player would rather leave a damaged slot alone.
bool Open(Game& game, int slot) {
  std::vector<std::string> remarks;
  try {
    remarks = game.OpenSlot(slot);
  } catch (const SlotDamaged& damage) {
    if (!game.Desk().Ask("Error Loading", std::string(damage.what()) + "\nLoad it so?",
                         ui::Default::No))
      return false;
    remarks = game.OpenSlot(slot, true);
  }
  for (std::string& line : NearlyFullFiles(game.World())) remarks.push_back(std::move(line));
  if (!remarks.empty()) game.Desk().Say("Loading", Joined(remarks, "\n"));
  return true;
}

/// The slots, a button each and beside it what is in them.
class SlotScreen : public GameScreen {
 public:
  SlotScreen(Game& game, std::string name, std::string title, std::string heading)
      : GameScreen(game, std::move(name), std::move(title), {.Is = ui::Role::Cover}),
        heading_(std::move(heading)) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    std::vector<ui::Box> rows;
    for (int slot = 1; slot <= kSlots; ++slot)
      rows.push_back(ui::Columns({ui::Grow(cmdload(slot), 2), ui::Grow(lbldetails(slot), 3)}));
    page.Body = ui::Rows({ui::Group(heading_, std::move(rows)), ui::Spacer()});
    return page;
  }

  void Return() override {
    for (int slot = 1; slot <= kSlots; ++slot) {
      const SlotSummary summary = ReadSlotSummary(game_.Disk(), game_.SlotFolder(slot));
      cmdload(slot).Text = summary.Caption;
      lbldetails(slot).Text = summary.Details;
      Offer(cmdload(slot), summary);
    }
  }

 private:
  virtual void Offer(ui::Button&, const SlotSummary&) {}
  virtual void cmdload_Click(int slot) = 0;

  std::string heading_;
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

class frmLoadGame : public SlotScreen {
 public:
  explicit frmLoadGame(Game& game) : SlotScreen(game, "frmLoadGame", "Load Game", "Saved games") {}

 private:
  void Offer(ui::Button& button, const SlotSummary& summary) override {
    button.Enabled = summary.Playable;
    button.Tip = summary.Empty      ? "No game is kept in this slot."
                 : summary.Playable ? ""
                                    : "This slot can't be loaded.";
  }
  void cmdload_Click(int slot) override { EnterSlot(game_, slot); }
};

class frmPickSaveSlot : public SlotScreen {
 public:
  frmPickSaveSlot(Game& game, NewGameChoice choice)
      : SlotScreen(game, "frmPickSaveSlot", "Pick A Save Slot", "Where is the game to be kept?"),
        choice_(std::move(choice)) {}

 private:
  void cmdload_Click(int slot) override {
    {
      const SlotLock free(game_.Disk(), game_.SlotFolder(slot));
    }  // before any question: it may be busy
    const bool empty = ReadSlotSummary(game_.Disk(), game_.SlotFolder(slot)).Empty;
    const std::string question = empty ? QuestionOfLeavings(game_.Disk(), game_.SlotFolder(slot))
                                       : "Are you sure you want to overwrite this slot?";
    if (!question.empty() && !desk().Ask("Are you sure?", question, ui::Default::No)) return;
    choice_.SaveName =
        desk().Prompt("User Entry", "Save Game Name:", "Save Game " + std::to_string(slot));
    if (detail::Trimmed(choice_.SaveName).empty()) return;
    if (desk().Objects(WhyNotPlain(choice_.SaveName))) return;
    World world(game_.NewDraws(Game::kWorldMaking), game_.NewDraws(Game::kWorldProse));
    world.Load(ReadWorldFiles(game_.Disk(), game_.DataFolder()));
    desk().Say("Database creation",
               "The database for this game will now be created.\n"
               "This process can take up to 10 minutes depending on the speed of your machine.\n"
               "Do not press ctrl-alt-del while it is happening, as you will corrupt your data.");
    Waiting waiting(game_);
    const auto mended = NewGame(world, choice_, [&](std::string_view step) { waiting.Tell(step); });
    BeginGuide(world);
    Slot::Create(game_.Disk(), game_.SlotFolder(slot), FilesOf(world), game_.NewWorldId());
    waiting.Done();
    TellOfMending(mended);
    EnterSlot(game_, slot);
  }

  /// What the clean-up of the data had to put right; a world in order is not worth a word.
  void TellOfMending(const FaultList& mended) {
    if (mended.empty()) return;
    constexpr std::size_t kShown = 12;
    std::string text = "The default data was not in order. For this game it was put right:";
    const std::size_t shown = std::min(mended.First.size(), kShown);
    for (std::size_t i = 0; i < shown; ++i) text += "\n" + mended.First[i].Line();
    if (mended.Count > shown) text += "\nand " + std::to_string(mended.Count - shown) + " more.";
    desk().Say("Database creation", text);
  }

  NewGameChoice choice_;
};

}  // namespace

void EnterSlot(Game& game, int slot) {
  if (!Open(game, slot)) return;
  try {
    game.Desk().CloseAll();
    game.Desk().Open("frmMainScreen");
  } catch (...) {
    // The start-up screens come back; a game left open behind them would keep its slot locked.
    game.CloseSlot();
    throw;
  }
}

SCREEN(frmLoadGame)

std::unique_ptr<ui::Screen> MakefrmPickSaveSlot(Game& game, NewGameChoice choice) {
  return std::make_unique<frmPickSaveSlot>(game, std::move(choice));
}

}  // namespace grapplemont
