#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/fields/companies.h"
#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/store/disk.h"
#include "session/layers.h"

namespace grapplemont {

/// Where a game is kept, and what came with the program.
struct Home {
  std::string Folder;      // holds the slots, and data/ and gfx/ of the player's own
  std::string Share = {};  // data/ and gfx/ as they came; empty where there is nothing
};

/// What a program finds around it.
struct Surroundings {
  std::string Program = {};    // the program's own file
  std::string Installed = {};  // where the build was told to install what comes with it
  std::string Working = ".";
  // The user's folders for this game, by the rules of the desktop: data, settings, and what
  // happened. Empty where none is known.
  std::string UserData = {}, UserConfig = {}, UserState = {};
  /// The log of faults; empty where none is kept.
  std::string FaultFile() const;
};
Surroundings MachineSurroundings();

/// Makes the folder and those that it lies in.
void MakeFolders(Disk& disk, const std::string& folder);

/// For a program that lies where it was built, the working folder if it has a world's files and
/// pictures; else the user's data folder, made if it is not there. Throws std::runtime_error where
/// there is nothing to play with.
Home FindHome(Disk& disk, const Surroundings& around = MachineSurroundings());
/// A home that was named; throws std::runtime_error when it is not a folder.
Home HomeAt(Disk& disk, const std::string& folder,
            const Surroundings& around = MachineSurroundings());

/// Where a picture may lie, the uppermost first: the folders of pictures, then the home itself,
/// which has the page that each slot was left at.
Layers WithPages(Layers pictures, const std::string& home);

/// The pictures of a gallery that are there: set 0 is the program's own "VXM_load1.jpg" to
/// "VXM_load4.jpg", sets 1 to 4 are "VXM_Set1_01.jpg" to "VXM_Set1_10.jpg" and so on.
std::vector<std::string> WaitingPictures(Disk& disk, const Layers& folders, int set);
/// One of them at random; of set 0 when the set has none; empty when there is none at all.
std::string DrawWaitingPicture(Disk& disk, const Layers& folders, int set, Draws& draws);

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
  bool GoesBack = true;                               // unless a rule of the house is against it
};

/// The same of files that lie nowhere yet.
SlotSummary SummaryOf(const std::map<std::string, Bytes>& files);
/// What loading the slot would find; a slot in use is exactly one that has a gameinfo.dat.
SlotSummary ReadSlotSummary(Disk& disk, const std::string& folder);

/// What to ask before a game begins in a slot without one whose folder holds something all the
/// same: what goes, what stays. Empty for an empty folder or none.
std::string QuestionOfLeavings(Disk& disk, const std::string& folder);

}  // namespace grapplemont
