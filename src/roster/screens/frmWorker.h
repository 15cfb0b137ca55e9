#pragma once

#include <span>
#include <string>

#include "records/world.h"
#include "roster/workerfacts.h"
#include "ui/controls.h"
#include "ui/game.h"

namespace grapplemont {

/// A page of facts, the first group's heading as its title.
void WriteFacts(ui::Report& page, std::span<const FactGroup> facts);
/// Writes the page of a worker; for nullptr the words for nobody.
void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody);
/// The same on two sheets side by side, under a title that names him already: who he is, his work
/// and his skill at the left, everything else at the right.
void WriteWorkerPages(ui::Report& left, ui::Report& right, const World& world, const Worker* worker,
                      const std::string& nobody);

/// Gives the game its page of a worker, and makes every name of a worker or a promotion a link.
void ConnectRoster(Game& game);

/// The page of one worker, over whatever lies on the desk.
std::unique_ptr<ui::Screen> MakefrmWorker(Game& game, int workerUid);

/// Opens the worker's page, or goes back to it where it lies below others of its kind. Says so when
/// there is nobody of this uid any more.
void OpenWorkerPage(Game& game, int workerUid);

}  // namespace grapplemont
