#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of feuds, teams, stables, managers and turns known to the desk by their names.
void RegisterStoryScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmFeuds(Game& game);
std::unique_ptr<ui::Screen> MakefrmFeudStart(Game& game);
/// The numbers of one feud, by its slot from 1. Requires a slot that is taken.
std::unique_ptr<ui::Screen> MakefrmFeudStat(Game& game, int slot);

std::unique_ptr<ui::Screen> MakefrmTagTeams(Game& game);
std::unique_ptr<ui::Screen> MakefrmStables(Game& game);
std::unique_ptr<ui::Screen> MakefrmBelts(Game& game);
/// Every reign of a Title; the first in the list where none is named.
std::unique_ptr<ui::Screen> MakefrmReigns(Game& game, std::string_view title = {}, int owner = 0);
std::unique_ptr<ui::Screen> MakefrmManagers(Game& game);
std::unique_ptr<ui::Screen> MakefrmTurn(Game& game);

/// Asks, and on Yes ends the feud off camera. True when it has ended.
bool EndFeudAfterAsking(Game& game, int slot);

}  // namespace grapplemont
