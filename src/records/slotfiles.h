#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "records/journal.h"

namespace grapplemont {

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
    std::int64_t Room;
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
