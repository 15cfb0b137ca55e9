#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "records/slot.h"

// What lies in a slot's folder and beside it, and how a whole folder takes another's place.

namespace grapplemont {

inline constexpr const char* kJournalName = "journal";
inline constexpr const char* kWorldIdName = "world.id";
inline constexpr const char* kSealName = "world.seal";
/// Where a journal that is another world's is put.
inline constexpr const char* kOtherJournalName = "journal.other";
inline constexpr const char* kBesideSuffix = ".new";  // being made, to replace the name without it
inline constexpr const char* kRoomSuffix = ".room";   // room for a file that a commit will make

/// Holds a slot's lock. Throws SlotBusy when somebody else has it.
class SlotLock {
 public:
  SlotLock(Disk& disk, const std::string& folder);
  ~SlotLock() { disk_.Unlock(path_); }
  SlotLock(const SlotLock&) = delete;
  SlotLock& operator=(const SlotLock&) = delete;

 private:
  Disk& disk_;
  std::string path_;
};

/// The slot's files are no longer those that were opened: they were removed or replaced from
/// outside. Nothing further was done to either.
class SlotGone : public DiskError {
 public:
  explicit SlotGone(const std::string& path);
};

/// Makes a file that did not exist, on disk when this returns (its name is not).
void WriteNewFile(Disk& disk, const std::string& path, ByteSpan bytes);

/// The contents of world.id, and back; nothing where they are no id.
Bytes PackWorldId(std::uint64_t id);
std::optional<std::uint64_t> UnpackWorldId(ByteSpan bytes);
/// The id of the world in the folder; nothing where no file holds one.
std::optional<std::uint64_t> ReadWorldId(Disk& disk, const std::string& folder);

/// Whether a slot keeps a file of this name; whatever else lies in its folder is somebody's own.
bool IsOfSlot(std::string_view name);

/// Builds a whole slot beside `folder` and puts it in its place. The files of the slot that stood
/// there are gone then; whatever else lay there lies in the new one. Throws DiskError where
/// something but a plain file has the name of a slot's file. Requires the lock and FinishSwap.
void ReplaceSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                 std::uint64_t worldId, std::int64_t journalBytes, const JournalQuirks& quirks);

/// The same for a folder of record files that is no slot.
void ReplaceFolder(Disk& disk, const std::string& folder, const std::vector<NewFile>& files);

/// Brings a ReplaceSlot that was cut short to its end, or takes it back, and clears its leavings:
/// what is no slot's among them goes to `folder`. Requires the lock.
void FinishSwap(Disk& disk, const std::string& folder);

/// Where the slot's files are at this moment, FinishSwap or not; "" when nowhere.
std::string StandingFolder(Disk& disk, const std::string& folder);

/// A name beside the folder that is still free: "s1.damaged", "s1.damaged-2" and on.
std::string FreeCopyName(Disk& disk, const std::string& folder);
/// Copies the plain files of a folder to a new one beside it, whole or not at all. Requires the
/// lock and FinishSwap.
void CopyBeside(Disk& disk, const std::string& folder, const std::string& copy);

}  // namespace grapplemont
