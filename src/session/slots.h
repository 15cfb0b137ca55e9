#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "records/store/slot.h"

// What a player does to saved games without playing them. Everything throws what the store throws:
// SlotBusy while a game is being played, DiskError, WorldFault for a file that is not a game.

namespace grapplemont {

class World;

/// How many days a deleted game can be brought back.
inline constexpr int kDaysKept = 7;

/// The path, in UTF-8, of what a player typed: in the home unless it begins at the root; without
/// slashes at its end.
std::string PathInHome(const std::string& home, std::string_view typed);

/// Whether a slot has neither a game nor a folder.
bool IsFree(Disk& disk, const std::string& home, int slot);
/// The first such slot of a home; nothing when there is none.
std::optional<int> FreeSlot(Disk& disk, const std::string& home);

/// The slot that was entered last, 1 to kSlots; 0 when that is not known.
int LastPlayed(Disk& disk, const std::string& home);
/// The slot that "Continue" goes on with: the one entered last where it can be played, else the
/// first that can; 0 for none. `canGoOn` tells that of a slot, and is asked for none behind it.
int SlotToContinue(Disk& disk, const std::string& home,
                   const std::function<bool(int slot)>& canGoOn);
void RememberPlayed(Disk& disk, const std::string& home, int slot);

/// The files of a game that begins in a slot. With `records` what the player does is recorded from
/// here on; without `goesBack` the slot keeps no moment to go back to.
std::vector<NewFile> BeginningFiles(const World& world, bool records, bool goesBack = true);

/// Gives what was met and mended on the way, a line each.
std::vector<std::string> RenameSlot(Disk& disk, const std::string& folder, std::string_view name);
/// A second game that goes its own way from here. `worldId` is a number that no other world has.
void CopySlot(Disk& disk, const std::string& from, const std::string& to, std::string_view name,
              std::uint64_t worldId);
/// Whether the slot has moments to go back to that an export can take along.
bool HasHistory(Disk& disk, const std::string& folder);
/// Whether it has a record of what the player did.
bool IsRecorded(Disk& disk, const std::string& folder);
/// What an exported game may have beside its world.
struct TakenAlong {
  bool History = false;  // what it can go back to
  bool Record = false;   // how it began, and what the player did since
};
void ExportSlot(Disk& disk, const std::string& folder, const std::string& path,
                const TakenAlong& along);

/// An exported game that was read and found to be one.
struct Importable {
  std::vector<NewFile> Files;
  std::string Preview;  // what it is, in a few lines: the game, its day, its size, its faults
};
/// `scratch` is a world to try the files on: what no game can be opened from is refused.
Importable ReadExported(Disk& disk, const std::string& path, World& scratch);
void ImportSlot(Disk& disk, const Importable& game, const std::string& folder,
                std::uint64_t worldId);

/// A game that was deleted and can be brought back.
struct DeletedSlot {
  std::string Folder, Name;
  int Slot = 0;  // where it was
  Day Deleted{};
  int DaysLeft = 0;
};
void DeleteSlot(Disk& disk, const std::string& folder, Day today);
/// The latest first.
std::vector<DeletedSlot> DeletedSlots(Disk& disk, const std::string& home, Day today);
/// Removes those that were kept long enough; what the disk refuses is tried the next time.
void ClearDeleted(Disk& disk, const std::string& home, Day today);
/// To its own slot where that is free, else to the first that is; the slot it now is in.
int RestoreSlot(Disk& disk, const std::string& home, const DeletedSlot& deleted);

}  // namespace grapplemont
