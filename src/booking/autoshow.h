#pragma once

#include "records/world.h"
#include "show/holdshow.h"

namespace grapplemont {

/// Who would sit at an Event's table: the best announcer on the staff, and beside him the best of
/// the other announcers and of the workers who can announce.
CommentaryTeam BestTeam(const World& world);

/// Books the show of today. False when the roster cannot fill the minimum of its sheet.
bool BookAutoShow(World& world, bool isEvent);
/// Books the show of today and holds it from start to close, with prose where there is a memory.
/// False when the roster cannot fill the minimum of its sheet: then nothing has been held.
bool HoldAutoShow(World& world, bool isEvent, LineMemory* memory);

}  // namespace grapplemont
