#pragma once

#include "ui/game.h"

namespace grapplemont {

// One show of the player's, by its name. When it is gone by the time something is done with it, the
// screen says so and closes.
std::unique_ptr<ui::Screen> MakefrmTVContract(Game& game, std::string show);
std::unique_ptr<ui::Screen> MakefrmShowName(Game& game, std::string show);
std::unique_ptr<ui::Screen> MakefrmAnnouncer(Game& game, std::string show);
std::unique_ptr<ui::Screen> MakefrmColourMan(Game& game, std::string show);
std::unique_ptr<ui::Screen> MakefrmTVRivals(Game& game, std::string show);

}  // namespace grapplemont
