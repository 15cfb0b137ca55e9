#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the booking sheets and the screens at their side known to the desk by their names.
void RegisterBookingScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmBooking(Game& game);
std::unique_ptr<ui::Screen> MakefrmPPVBooking(Game& game);
std::unique_ptr<ui::Screen> MakefrmAutoBook(Game& game);
std::unique_ptr<ui::Screen> MakefrmDebut(Game& game, bool isEvent = false);
std::unique_ptr<ui::Screen> MakefrmAltRoster(Game& game);
std::unique_ptr<ui::Screen> MakefrmAltBelts(Game& game);
/// The numbers of a worker, the player's most popular for uid 0.
std::unique_ptr<ui::Screen> MakefrmQuickStat(Game& game, int workerUid = 0);

/// The wizard that fills this record of match.dat.
std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int slot, bool isEvent);
/// The same on the desk, with its first step open over it.
void OpenWizardAtOnce(Game& game, int slot, bool isEvent);

}  // namespace grapplemont
