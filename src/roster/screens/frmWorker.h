#pragma once

#include <string>

#include "records/world.h"
#include "ui/game.h"

namespace grapplemont {

/// Writes the page of a worker or of a member of staff; for nullptr the words for nobody.
void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody);
void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody);

/// Gives the game its page of a worker, and makes every name of a worker or a promotion a link.
void ConnectRoster(Game& game);

}  // namespace grapplemont
