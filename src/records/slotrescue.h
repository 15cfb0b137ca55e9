#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/slot.h"

namespace grapplemont {

/// What can still be had of a damaged slot.
struct RescuedWorld {
  std::vector<NewFile> Files;
  std::uint64_t World = 0;
  std::string Remark;  // what was lost, for the player
};

/// Takes the newest world that can be proven whole by its digest: the one behind the damage, where
/// the files or the records that are left hold all of it; else the one before it. Where neither can
/// be proven (later steps had reached the files, and what they were is lost), the files with all
/// records before the damage, and the remark says so.
RescuedWorld RescueWorld(const std::map<std::string, Bytes>& files, ByteSpan journal,
                         std::optional<std::uint64_t> id, const std::vector<KnownFile>& known);

/// The known files of a folder. Throws DiskError, also for one that is longer than it may be or no
/// plain file.
std::map<std::string, Bytes> ReadKnownFiles(Disk& disk, const std::string& folder,
                                            const std::vector<KnownFile>& known);

}  // namespace grapplemont
