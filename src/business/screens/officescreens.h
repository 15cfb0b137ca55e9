#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of the promotion's money known to the desk by their names.
void RegisterOfficeScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmFinance(Game& game);
std::unique_ptr<ui::Screen> MakefrmTicket(Game& game);
std::unique_ptr<ui::Screen> MakefrmCharity(Game& game);
std::unique_ptr<ui::Screen> MakefrmLoan(Game& game);
std::unique_ptr<ui::Screen> MakefrmWages(Game& game);
std::unique_ptr<ui::Screen> MakefrmFedProd(Game& game);
std::unique_ptr<ui::Screen> MakefrmFedSponsor(Game& game);

/// frmFedMerch under its two titles.
void OpenAdvertising(Game& game);
void OpenMerchandising(Game& game);

}  // namespace grapplemont
