#pragma once

#include "ui/game.h"

namespace grapplemont {

/// A page on which Enter does nothing, for lists to look things up in.
inline ui::Page WithoutMain(ui::Page page) {
  page.Main = nullptr;
  return page;
}

std::unique_ptr<ui::Screen> MakefrmDebut(Game& game, bool isEvent);
/// The numbers of a worker, the player's most popular for uid 0.
std::unique_ptr<ui::Screen> MakefrmQuickStat(Game& game, int workerUid);

/// The wizard that fills this record of match.dat.
std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int slot, bool isEvent);
/// The wizard filled with what is booked in the record.
std::unique_ptr<ui::Screen> MakeEditSheet(Game& game, int slot, bool isEvent);
/// A wizard for an empty record on the desk, with its first step open over it.
void OpenWizardAtOnce(Game& game, int slot, bool isEvent);

}  // namespace grapplemont
