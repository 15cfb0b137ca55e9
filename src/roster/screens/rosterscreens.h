#pragma once

#include "ui/game.h"

namespace grapplemont {

/// Gives the game its page of a worker, and makes every name of a worker or a promotion a link.
void ConnectRoster(Game& game);

/// The page of one worker, over whatever lies on the desk.
std::unique_ptr<ui::Screen> MakefrmWorker(Game& game, int workerUid);

/// Opens the worker's page, or goes back to it where it lies below others of its kind. Says so when
/// there is nobody of this uid any more.
void OpenWorkerPage(Game& game, int workerUid);

}  // namespace grapplemont
