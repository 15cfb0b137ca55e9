#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/fields/companies.h"
#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/store/disk.h"

namespace grapplemont {

/// The folder that holds data/, gfx/ and the slots: the working directory if it has data/, else the
/// user's data folder, filled from the installed files the first time.
std::string FindHome(Disk& disk);
/// A home that was named; throws std::runtime_error when it is not a folder.
std::string HomeAt(Disk& disk, const std::string& folder);

/// The pictures of a gallery that are there: set 0 is the program's own "VXM_load1.jpg" to
/// "VXM_load4.jpg", sets 1 to 4 are "VXM_Set1_01.jpg" to "VXM_Set1_10.jpg" and so on.
std::vector<std::string> WaitingPictures(Disk& disk, const std::string& pictureFolder, int set);
/// One of them at random; of set 0 when the set has none; empty when there is none at all.
std::string DrawWaitingPicture(Disk& disk, const std::string& pictureFolder, int set, Draws& draws);

inline constexpr int kSlots = 8;

/// What a slot's button and the labels beside it say. What stands behind Playable is of a playable
/// slot.
struct SlotSummary {
  std::string Caption = "<<<Empty Slot>>>";
  std::string Details = {};
  bool Empty = true;
  bool Playable = false;
  std::string Today = {}, Level = {}, LastShow = {};  // LastShow empty before the first
  std::string House = {};                             // the rules of the house; empty for none
  std::optional<Promotion> Own = {};                  // the player's
};

/// What loading the slot would find; a slot in use is exactly one that has a gameinfo.dat.
SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder);

/// What to ask before a game begins in a slot without one whose folder holds something all the
/// same: what goes, what stays. Empty for an empty folder or none.
std::string QuestionOfLeavings(Disk& disk, const std::string& folder);

/// The files of the data set that `folder` lacks, in their fixed order.
std::vector<std::string> MissingDataFiles(Disk& disk, const std::string& folder);

}  // namespace grapplemont
