#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the other promotions and the ends of a game known to the desk, and gives the game its page
/// of a promotion.
void RegisterRivalScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmOtherFed(Game& game);
/// The page of one promotion, by its uid.
std::unique_ptr<ui::Screen> MakefrmPromotion(Game& game, int uid);
/// Which way to take a rival over, by its uid.
std::unique_ptr<ui::Screen> MakefrmTakeover(Game& game, int uid);
std::unique_ptr<ui::Screen> MakefrmTheEnd(Game& game);
std::unique_ptr<ui::Screen> MakefrmPinky(Game& game);

/// Brings the page of a promotion to the top, or says that it is gone.
void OpenPromotionPage(Game& game, int uid);

}  // namespace grapplemont
