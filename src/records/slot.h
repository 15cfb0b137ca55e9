#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/disk.h"

namespace grapplemont {

/// One file of a world before and after an event.
struct FileChange {
  std::string Name;
  bool ExistsBefore = false, ExistsAfter = false;
  ByteSpan Before, After;  // whole contents; empty where it does not exist
};

/// One file of a world that is made whole.
struct NewFile {
  std::string Name;
  Bytes Contents;
};

/// A file of a slot that may not be there at all: which names a slot knows and how long each may be.
struct KnownFile {
  std::string Name;
  std::int64_t MaxBytes;
};

/// The folder of a running world and its journal. Every commit is all or nothing across all its files, whatever
/// becomes of the power, the disk or the process.
class Slot {
 public:
  /// Makes a slot with these files at `folder`, in place of what stands there: built beside it, swapped in by one
  /// step. Either the old folder or the new one stands there at any moment.
  static void Create(Disk& disk, const std::string& folder, const std::vector<NewFile>& files);

  /// Takes the slot's lock, replays its journal and reads all known files. Throws SlotBusy when another program has
  /// the slot, SlotDamaged when the journal holds more than it can vouch for, DiskError.
  Slot(Disk& disk, std::string folder, const std::vector<KnownFile>& known);
  ~Slot();  // no checkpoint: call Checkpoint for a clean exit
  Slot(const Slot&) = delete;
  Slot& operator=(const Slot&) = delete;

  /// The files as they stood when the slot was opened (after replay); absent ones are left out.
  const std::map<std::string, Bytes>& Files() const { return files_; }
  /// Frees what Files() holds once it has been taken over.
  void Forget() { files_.clear(); }
  /// What was met and left aside on opening (a journal of another world, unknown files, links), a line each.
  const std::vector<std::string>& Remarks() const { return remarks_; }

  /// Puts the changes on disk, all or nothing. On DiskError nothing of them stands on disk after the recovery that has
  /// then already run, unless `Committed()` says that they do.
  void Commit(const std::vector<FileChange>& changes);
  /// Brings the record files themselves up to date and empties the journal.
  void Checkpoint();

 private:
  // (the journal's insides)
  std::map<std::string, Bytes> files_;
  std::vector<std::string> remarks_;
};

}  // namespace grapplemont
