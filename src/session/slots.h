#pragma once

#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "records/store/disk.h"

namespace grapplemont {

inline constexpr int kSlots = 8;

/// What a slot's button and the label beside it say.
struct SlotSummary {
  std::string Caption = "<<<Empty Slot>>>";
  std::string Details = {};
  bool Empty = true;
  bool Playable = false;
};

/// What loading the slot would find in its gameinfo.dat; a slot in use is exactly one that has it.
SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder);

/// What to ask before a game begins in a slot without one whose folder holds something all the
/// same: what goes, what stays. Empty for an empty folder or none.
std::string QuestionOfLeavings(Disk& disk, const std::string& folder);

/// The files of the data set that `folder` lacks, in their fixed order.
std::vector<std::string> MissingDataFiles(Disk& disk, const std::string& folder);

}  // namespace grapplemont
