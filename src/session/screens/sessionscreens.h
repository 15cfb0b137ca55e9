#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of start-up, menu, slots and waiting known to the desk by their names.
void RegisterSessionScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmTitleScreen(Game& game);
std::unique_ptr<ui::Screen> MakefrmDisclaimer(Game& game);
std::unique_ptr<ui::Screen> MakefrmGameMenu(Game& game);
std::unique_ptr<ui::Screen> MakefrmCredits(Game& game);
std::unique_ptr<ui::Screen> MakefrmCreditsXtra(Game& game);
std::unique_ptr<ui::Screen> MakefrmNewGame(Game& game);
std::unique_ptr<ui::Screen> MakefrmLoadGame(Game& game);
std::unique_ptr<ui::Screen> MakefrmWait(Game& game);
std::unique_ptr<ui::Screen> MakefrmLoadingScreens(Game& game);
/// The slot that a new game goes into: opened with what the player chose (all but the slot's name).
struct NewGameChoice;
std::unique_ptr<ui::Screen> MakefrmPickSaveSlot(Game& game, NewGameChoice choice);

}  // namespace grapplemont
