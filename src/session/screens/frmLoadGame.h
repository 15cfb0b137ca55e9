#pragma once

#include <string>

#include "ui/game.h"

namespace grapplemont {

/// A new game that is begun from an empty slot's card: that slot is offered first.
std::unique_ptr<ui::Screen> MakefrmNewGame(Game& game, int slot);
/// The slot that a new game goes into: opened with what the player chose (all but the slot's name).
struct NewGameChoice;
std::unique_ptr<ui::Screen> MakefrmPickSaveSlot(Game& game, NewGameChoice choice);

/// Opens the slot's game on the main screen in place of all start-up screens. A damaged journal is
/// asked about. Throws what Game::OpenSlot throws; then no game is open.
void EnterSlot(Game& game, int slot);

/// Asks whether the game that was exported to this file is to be put into the first empty slot and
/// played.
void OfferImport(Game& game, const std::string& path);

}  // namespace grapplemont
