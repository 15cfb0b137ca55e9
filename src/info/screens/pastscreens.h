#pragma once

#include <memory>

#include "ui/game.h"

// Screens about one show of the past.

namespace grapplemont {

/// The report column, open at the show.
std::unique_ptr<ui::Screen> ReportScreen(Game& game, Day on, int promotionUid);
/// The morning after the show.
std::unique_ptr<ui::Screen> MorningScreen(Game& game, Day on, int promotionUid);

}  // namespace grapplemont
