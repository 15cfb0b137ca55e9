#pragma once

#include <string>

#include "records/world.h"

// People whom the program makes up: to fill a new world, and in the place of the retired.

namespace grapplemont {

enum class Generation { Filler, Rookie };  // a rookie is 19 to 22
/// Age, body, skills, finishers, place and Over. Requires Gender.
void NewWorkerAttributes(World& world, Worker& worker, Generation generation);
/// Another name, and a short one, for somebody of the same sex.
void InventName(World& world, Worker& worker);
void InventName(World& world, Staff& staff);
/// Appends a free worker with a new name and uid.
Worker& NewFillerWorker(World& world);
/// Appends a free member of staff for the post.
Staff& NewFillerStaff(World& world, int position);
/// A rookie takes the record of a worker who is gone: another name, another uid, nobody's employee.
void ReplaceByRookie(World& world, Worker& worker);
/// A rookie on the market whom nobody has replaced yet, drawn from the world's life; in no table.
Worker NewTalent(World& world);
/// Gives somebody invented, who bears their surname as short name, another one where that is
/// taken: the first name, an initial beside either. Where all are, it stays, and the answer is no.
bool TellApart(const World& world, Worker& worker);
/// Somebody new for the same post takes the record of a member of staff who is gone.
void ReplaceByNewcomer(World& world, Staff& staff);
/// Talent, wage and the other words of a new person in the post, who keeps name, uid, sex and post.
void NewStaffAttributes(World& world, Staff& staff);

/// The Over that can never be lost again, by the Over reached: 0 under 51.
int OverFloorFor(int over);
/// The Over a worker can grow to when a game begins. Draws once for an Over under 66.
int StartingPotential(World& world, int over);

}  // namespace grapplemont
