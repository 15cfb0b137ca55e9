#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its page of a promotion.
void ConnectRivals(Game& game);

/// The page of one promotion, by its uid.
std::unique_ptr<ui::Screen> MakefrmPromotion(Game& game, int uid);
/// The last shows of a rival, by its uid.
std::unique_ptr<ui::Screen> MakefrmCards(Game& game, int promotionUid);
/// Which way to take a rival over, by its uid.
std::unique_ptr<ui::Screen> MakefrmTakeover(Game& game, int uid);

/// Brings the page of a promotion to the top, or says that it is gone.
void OpenPromotionPage(Game& game, int uid);

}  // namespace grapplemont
