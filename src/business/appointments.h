#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The offices that the player fills: the Commissioner from the non-wrestlers, the camp's head
// trainer from the staff's trainers, the territory's booker from the staff who can book.

namespace grapplemont {

enum class Office { Commissioner, HeadTrainer, DevBooker };

/// "Commissioner" and so on.
const char* OfficeName(Office office);
/// Who holds it: a Worker's uid for the Commissioner, else a Staff's; 0 for nobody, also where the
/// record names somebody who is not there.
int HolderOf(const World& world, Office office);
/// "None" for nobody.
std::string HolderName(const World& world, Office office);

/// Somebody who could hold an office.
struct OfficeSeeker {
  int Uid;
  std::string Name;
  int Mark;           // Charisma of a worker, Talent of staff
  std::string Doing;  // what else there is to say: "Broken Leg, out for 3 months"
};
/// In the order of the file.
std::vector<OfficeSeeker> CandidatesFor(const World& world, Office office);
/// Why the office cannot go to him; empty when it can. Nobody (uid 0) always can.
std::string WhyNotAppoint(const World& world, Office office, int uid);
void Appoint(World& world, Office office, int uid);

}  // namespace grapplemont
