#pragma once

#include <string>
#include <vector>

#include "records/store/slot.h"

namespace grapplemont::tools {

/// How a recorded career came out when it was played again.
struct Replayed {
  int Commands = 0;        // that were done
  std::string Fault = {};  // a command that could not be done as it was recorded; empty for none
  std::string Difference = {};  // the first record and field that are not as they were kept
  std::string EndedBy = {};     // what changed the world after the last command; empty for nothing
};

/// Plays the commands that a slot has recorded from its beginning on, in the folder `home`, which
/// nothing is written out of, with the data of `share`. `files` are the slot's, as an exported game
/// has them. Throws WorldFault where nothing was recorded, and what the store throws.
Replayed Replay(Disk& disk, const std::vector<NewFile>& files, const std::string& home,
                const std::string& share);

}  // namespace grapplemont::tools
