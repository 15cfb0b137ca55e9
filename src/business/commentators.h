#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/world.h"

// Who sits at the commentary table, who could, and what the public of a promotion expects of them.

namespace grapplemont {

/// The talent that commentators need at a promotion of this size.
int WantedTalent(int size);

/// The player's announcers.
std::vector<const Staff*> CommentaryStaff(const World& world);
/// The player's workers who could do the colour.
std::vector<const Worker*> CommentaryWorkers(const World& world);

/// Somebody for the table: a member of staff by his talent, or a worker by his charisma.
struct Commentator {
  std::string Name;
  int Uid = 0;
  bool IsWorker = false;
  int Skill = 0;
  bool Speaks = true;
};
std::vector<Commentator> AnnouncersToChoose(const World& world);
/// Staff first.
std::vector<Commentator> ColourMenToChoose(const World& world);

/// Who sits there now; nothing for an empty chair and for somebody who is no more.
std::optional<Commentator> AnnouncerOf(const World& world, const Show& show);
std::optional<Commentator> ColourManOf(const World& world, const Show& show);
/// His name; "None" for nobody.
std::string NameOf(const std::optional<Commentator>& commentator);

/// Why the two cannot share a table; empty when they can.
std::string WhyNoTable(int announcer, int colour, bool colourIsWorker);

}  // namespace grapplemont
