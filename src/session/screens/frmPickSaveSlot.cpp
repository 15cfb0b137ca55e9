#include "calendar/guide.h"
#include "records/modVar.h"
#include "records/store/slot.h"
#include "records/store/slotfolder.h"
#include "session/layers.h"
#include "session/newgame.h"
#include "session/screens/frmLoadGame.h"
#include "session/screens/slotscreen.h"
#include "session/slots.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

class frmPickSaveSlot : public SlotScreen {
 public:
  frmPickSaveSlot(Game& game, NewGameChoice choice)
      : SlotScreen(game, "frmPickSaveSlot", "Pick A Save Slot"), choice_(std::move(choice)) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Cancel = &cmdback;
    const auto free =
        choice_.Slot != 0 ? std::optional(choice_.Slot) : FreeSlot(game_.Disk(), game_.Home());
    if (free) page.Main = &ButtonOf(*free);
    page.Body = Cards();
    return page;
  }

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
    World world(game_.NewDraws(Game::kWorldMaking), game_.NewDraws(Game::kWorldProse),
                game_.NewDraws(Game::kWorldLife));
    world.Load(ReadDefaultData(game_.Disk(), game_.DataFolders()));
    desk().Say("Database creation",
               "The database for this game will now be created.\n"
               "This process can take up to 10 minutes depending on the speed of your machine.\n"
               "Do not press ctrl-alt-del while it is happening, as you will corrupt your data.");
    Waiting waiting(game_);
    const auto mended = NewGame(world, choice_, [&](std::string_view step) { waiting.Tell(step); });
    BeginGuide(world);
    Slot::Create(game_.Disk(), game_.SlotFolder(slot),
                 BeginningFiles(world, choice_.Recorded || game_.HasSeed(), !choice_.NoWayBack),
                 game_.NewWorldId());
    RemoveTree(game_.Disk(), game_.PageFile(slot));  // of the game that was there
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
  ui::Label lblfacts{*this, "lblfacts", "Where is the game to be kept?"};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmPickSaveSlot(Game& game, NewGameChoice choice) {
  return std::make_unique<frmPickSaveSlot>(game, std::move(choice));
}

}  // namespace grapplemont
