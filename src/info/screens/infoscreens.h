#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of mail, options and notes known to the desk by their names.
void RegisterInfoScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmNews(Game& game);
std::unique_ptr<ui::Screen> MakefrmNotepad(Game& game);
std::unique_ptr<ui::Screen> MakefrmUser(Game& game);
std::unique_ptr<ui::Screen> MakefrmOptions(Game& game);
std::unique_ptr<ui::Screen> MakefrmTalk(Game& game);
std::unique_ptr<ui::Screen> MakefrmInternet(Game& game);

}  // namespace grapplemont
