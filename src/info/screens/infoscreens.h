#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its ways to the report of a show and to a mail.
void ConnectInfo(Game& game);

/// The mailbox open at the mail of this number.
std::unique_ptr<ui::Screen> MailScreen(Game& game, int number);

}  // namespace grapplemont
