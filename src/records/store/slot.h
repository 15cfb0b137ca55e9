#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "records/store/disk.h"
#include "records/store/journal.h"

namespace grapplemont {

/// One file of a world that is made whole.
struct NewFile {
  std::string Name;
  Bytes Contents;
};

/// Another program has the slot open; nothing of it was touched.
class SlotBusy : public std::runtime_error {
 public:
  explicit SlotBusy(const std::string& folder);
};

/// The slot's journal and files do not go together, and something that may have been kept must be
/// given up. Nothing was touched. The text says what is known and what would be left. Opening with
/// `Damage::Drop` first keeps the folder as it is at CopyFolder() and then goes on so.
class SlotDamaged : public std::runtime_error {
 public:
  SlotDamaged(const std::string& folder, const std::string& damage, std::string copy);
  const std::string& CopyFolder() const { return copy_; }

 private:
  std::string copy_;
};

enum class Damage { Refuse, Drop };

struct SlotOptions {
  std::int64_t JournalBytes = 4 << 20;
  JournalQuirks Quirks = {};
  /// A file's bytes as of the last commit, nothing where nobody knows them: a file that somebody
  /// else has cut short while the slot was open is written from them.
  std::function<std::optional<Bytes>(const std::string& file)> Contents = {};
};

/// What becomes of the player's step where nothing of it was written.
inline constexpr const char* kTakenBack = "Your last step was taken back.";

/// The folder of a running world and its journal. Every commit is all or nothing across all its
/// files, whatever becomes of the power, the disk or the process.
class Slot {
 public:
  /// Makes a slot with these files at `folder`, in place of what stands there: built beside it,
  /// swapped in by one step, so that either the old folder or the new one stands there at any
  /// moment. `worldId` is a number that no other world has. Throws SlotBusy, also while this
  /// program has the slot open; DiskError.
  static void Create(Disk& disk, const std::string& folder, const std::vector<NewFile>& files,
                     std::uint64_t worldId, const SlotOptions& options = {});

  /// One file as the slot would hold it if it were opened now; nothing where there is none. Changes
  /// nothing, takes no lock, and does not mind damage. Throws DiskError.
  static std::optional<Bytes> Peek(Disk& disk, const std::string& folder,
                                   const std::vector<KnownFile>& known, const std::string& name);

  /// Takes the slot's lock, reads all known files and replays its journal. Damage that costs
  /// nothing is mended after a copy of the folder, and remarked on. Throws SlotBusy, SlotDamaged,
  /// DiskError; then the world on disk is as it was.
  Slot(Disk& disk, std::string folder, std::vector<KnownFile> known, Damage damage = Damage::Refuse,
       const SlotOptions& options = {});
  ~Slot();  // no checkpoint: call Checkpoint for a clean exit
  Slot(const Slot&) = delete;
  Slot& operator=(const Slot&) = delete;

  /// The files as they stood when the slot was opened (after replay); absent ones are left out.
  const std::map<std::string, Bytes>& Files() const;
  /// The digest of the files as of the last commit.
  const WorldDigest& Digest() const;
  /// Frees what Files() holds once it has been taken over.
  void Forget();
  /// What was met on opening and left aside or mended (a journal of another world, unknown files,
  /// damage), a line each for the player.
  const std::vector<std::string>& Remarks() const;

  /// Puts the changes on disk, all or nothing; they are there, for good, when it returns. They are
  /// changes of what the last commit left. Throws DiskError, whose text says what became of the
  /// step; Committed() then tells whether the changes stand all the same (what failed came after
  /// the commit itself). The slot has recovered by then, or does so before the next commit. Throws
  /// std::invalid_argument for a file that the slot does not know or that is too long. Refuses the
  /// step once the slot's files have been removed or replaced from outside.
  void Commit(const std::vector<FileChange>& changes);
  bool Committed() const;
  /// Throws SlotGone once the slot's files have been removed or replaced from outside.
  void RequireInPlace() const;
  /// Brings the record files themselves up to date and empties the journal. Throws DiskError; no
  /// commit is lost then. One is a file that was cut short from outside and cannot be written
  /// again: the journal stays, and the next opening asks.
  void Checkpoint();

 private:
  struct Insides;
  std::unique_ptr<Insides> insides_;
};

}  // namespace grapplemont
