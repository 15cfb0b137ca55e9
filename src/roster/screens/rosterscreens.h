#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Makes the screens of the player's people and of the market known to the desk by their names, and
/// every name of a worker or a promotion a link.
void RegisterRosterScreens(Game& game);

std::unique_ptr<ui::Screen> MakefrmRoster(Game& game);
std::unique_ptr<ui::Screen> MakefrmOtherWres(Game& game);
std::unique_ptr<ui::Screen> MakefrmShortlist(Game& game);
/// The page of one worker, over whatever lies on the desk.
std::unique_ptr<ui::Screen> MakefrmWorker(Game& game, int workerUid);

/// Opens the worker's page, or goes back to it where it lies below others of its kind. Says so when
/// there is nobody of this uid any more.
void OpenWorkerPage(Game& game, int workerUid);

}  // namespace grapplemont
