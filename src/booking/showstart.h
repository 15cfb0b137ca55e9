#pragma once

#include <string_view>
#include <vector>

#include "records/world.h"
#include "show/holdshow.h"

// What an Event can have beside its card: extras for money.

namespace grapplemont {

/// An extra that promotions of one size can buy for an Event.
struct EventExtra {
  int Size;
  std::string_view Name;
  int Cost;   // dollars, as this row has it; see CostOfExtra
  int Bonus;  // the show's sum gains a draw of 1 to this; 0 for nothing
};
std::vector<const EventExtra*> ExtrasFor(const Promotion& promotion);
/// What an extra of this name costs, in dollars: the last of the price list's rows that has the
/// name, whatever size it stands for. 0 for an unknown name.
int CostOfExtra(std::string_view name);

/// Begins today's Event with the team that the session names: the show, then the money of the
/// extra, then what it brings. `extra` is nullptr for none. Draws once, and once more for an extra
/// with a bonus.
void StartEvent(World& world, const EventExtra* extra);

/// Who would sit at an Event's table: the best announcer on the staff, and beside them the best of
/// the other announcers and of the workers who can announce.
CommentaryTeam BestTeam(const World& world);

/// Books the show of today. False when the roster cannot fill the minimum of its sheet.
bool BookAutoShow(World& world, bool isEvent);
/// Books the show of today and holds it from start to close, with prose where there is a memory.
/// False when the roster cannot fill the minimum of its sheet: then nothing has been held.
bool HoldAutoShow(World& world, bool isEvent, LineMemory* memory);

}  // namespace grapplemont
