#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "ui/game.h"

namespace grapplemont {

/// Writes the page of a worker or of a member of staff; for nullptr the words for nobody.
void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody);
void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody);

/// The same under a title that names them already.
void WriteUnderName(ui::Report& page, const World& world, const Worker& worker);
void WriteUnderName(ui::Report& page, const World& world, const Staff& staff);

/// Two sheets side by side, under a title that names them already: who they are, their work and
/// their skill at the left, everything else at the right.
void WriteWorkerPages(ui::Report& left, ui::Report& right, const World& world, const Worker* worker,
                      const std::string& nobody);

/// The contract, and what a new one would cost.
void WriteContract(ui::Report& page, const World& world, const Worker& worker);
/// What somebody thinks of the player, and why.
void WriteMood(ui::Report& page, const World& world, const Worker& worker);
/// The Titles that they hold, then those that they held.
void WriteTitles(ui::Report& page, const World& world, const Worker& worker);

/// Opens the worker's page, or goes back to it where it lies below others of its kind. Says so when
/// there is nobody of this uid any more.
void OpenWorkerPage(Game& game, int workerUid);

/// Two to four side by side, the first four of these from the beginning.
std::unique_ptr<ui::Screen> MakefrmCompare(Game& game, std::vector<int> uids);

/// Gives the game its page of a worker, and makes every name of a worker or a promotion a link.
void ConnectRoster(Game& game);

}  // namespace grapplemont
