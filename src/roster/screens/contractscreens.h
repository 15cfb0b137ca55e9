#pragma once

#include "records/world.h"
#include "ui/game.h"

// The talks: each opens its screen for one person. Whoever has left the world or changed sides
// since the list was drawn is told so instead.

namespace grapplemont {

/// frmWresContract, for a worker of the player's.
void OpenWresContract(Game& game, int workerUid);
/// frmOtherContract, for a worker of anybody else or of nobody.
void OpenOtherContract(Game& game, int workerUid);
/// frmStaffContract for a member of the player's staff, frmOtherStaffContract for any other.
void OpenStaffContract(Game& game, int staffUid);

// Each requires somebody who can be talked with.
std::unique_ptr<ui::Screen> MakefrmWresContract(Game& game, const Worker& worker);
std::unique_ptr<ui::Screen> MakefrmOtherContract(Game& game, const Worker& worker);
std::unique_ptr<ui::Screen> MakefrmStaffContract(Game& game, const Staff& staff);
std::unique_ptr<ui::Screen> MakefrmOtherStaffContract(Game& game, const Staff& staff);

}  // namespace grapplemont
