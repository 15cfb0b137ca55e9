#include "session/screens/screensenter.h"

#include "records/modVar.h"
#include "records/store/slot.h"

namespace grapplemont {

namespace {

std::string Lines(const std::vector<std::string>& remarks) {
  std::string text;
  for (const std::string& remark : remarks) text += (text.empty() ? "" : "\n") + remark;
  return text;
}

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
  if (!remarks.empty()) game.Desk().Say("Loading", Lines(remarks));
  return true;
}

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

}  // namespace grapplemont
