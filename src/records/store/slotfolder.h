#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "records/store/journal.h"
#include "records/store/slot.h"

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

/// The contents of world.id.
Bytes PackWorldId(std::uint64_t id);
/// The id of the world in the folder; nothing where no file holds one.
std::optional<std::uint64_t> ReadWorldId(Disk& disk, const std::string& folder);

/// Whether a slot keeps a file of this name; whatever else lies in its folder is somebody's own.
bool IsOfSlot(std::string_view name);

/// Builds a whole slot beside `folder` and puts it in its place. The files of the slot that stood
/// there are gone then; whatever else lay there lies in the new one. Throws DiskError where
/// something but a plain file has the name of a slot's file. Requires the lock and FinishSwap.
void ReplaceSlot(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                 std::uint64_t worldId, std::int64_t journalBytes, const JournalQuirks& quirks);

/// The same for a folder of record files that is not a slot.
void ReplaceFolder(Disk& disk, const std::string& folder, const std::vector<NewFile>& files);

/// Brings a ReplaceSlot that was cut short to its end, or takes it back, and clears its leavings:
/// what does not belong to a slot among them goes to `folder`. Requires the lock.
void FinishSwap(Disk& disk, const std::string& folder);

/// Where the slot's files are at this moment, FinishSwap or not; "" when nowhere.
std::string StandingFolder(Disk& disk, const std::string& folder);

/// A path that is still free: "s1.damaged", "s1.damaged-2" and on.
std::string FreeName(Disk& disk, const std::string& path);
/// Copies the plain files of a folder to a new one beside it, whole or not at all. Requires the
/// lock and FinishSwap.
void CopyBeside(Disk& disk, const std::string& folder, const std::string& copy);

/// The record files of a slot, open while they are worked on. Every call throws DiskError unless it
/// says otherwise.
class SlotFiles {
 public:
  SlotFiles(Disk& disk, std::string folder) : disk_(disk), folder_(std::move(folder)) {}
  ~SlotFiles() { Drop(); }
  SlotFiles(const SlotFiles&) = delete;
  SlotFiles& operator=(const SlotFiles&) = delete;

  /// Room for a file that is to become longer, before anything is promised.
  void Reserve(const std::string& name, std::int64_t size);
  /// Room for a file that is still to be made: in a file beside its place, which Apply takes.
  void ReserveNew(const std::string& name, std::int64_t size);
  /// The path of an open file that no longer leads to it; empty where all do.
  std::string Displaced();
  /// Whether a file is as long as what was done to it has left it.
  bool IsAsLeft(const std::string& name);
  /// The open ones that are not: somebody else has cut or lengthened them.
  std::vector<std::string> NotAsLeft();
  /// Takes back what ReserveNew made and nobody used; never throws.
  void GiveBack();
  /// Brings a file to what the patch says, without syncing; however much of it stands there
  /// already.
  void Apply(const FilePatch& patch);
  /// Counts the file as applied to, whatever was written to it before.
  void Touch(const std::string& name) { touched_.insert(name); }
  /// Syncs every file that was applied to since the last time, and the folder.
  void Sync();
  /// Closes all and forgets what is unsynced: for when it is to be done again from the journal.
  /// Never throws.
  void Drop();

 private:
  struct Opened {
    Disk::Handle Handle;
    std::int64_t Room, Length;
  };
  Opened& Open(const std::string& name);
  void Close(const std::string& name);
  std::string Path(const std::string& name) const { return folder_ + "/" + name; }

  Disk& disk_;
  std::string folder_;
  std::map<std::string, Opened> open_;      // by name
  std::map<std::string, Opened> reserved_;  // files to be, by the name they will have
  std::set<std::string> touched_;
};

}  // namespace grapplemont
