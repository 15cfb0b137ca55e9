#pragma once

#include <map>
#include <string>
#include <vector>

#include "records/store/disk.h"

// What came with the program is never changed: what the player or the editor makes of it lies in
// the player's own folder over it, so that an update shows wherever nobody has changed a thing.

namespace grapplemont {

/// Folders over each other, the player's own first: of two files of a name the upper one counts.
using Layers = std::vector<std::string>;

/// The path of a plain file in the uppermost folder that has one; empty where none has.
std::string FileIn(Disk& disk, const Layers& folders, const std::string& name);

/// The default data as the layers come to. Throws as ReadWorldFiles.
std::map<std::string, Bytes> ReadDefaultData(Disk& disk, const Layers& folders);

/// The files of the data set that no layer has, in their fixed order.
std::vector<std::string> MissingDataFiles(Disk& disk, const Layers& folders);

/// Removes from the player's folder what is there only as a copy of what came with the program, as
/// earlier versions made them: it would hide each update. A picture counts for itself, the data set
/// as a whole. What cannot be read or removed stays.
void RemoveCopies(Disk& disk, const std::string& own, const std::string& came);

}  // namespace grapplemont
