#pragma once

#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/checks/checkworld.h"
#include "records/store/datastep.h"
#include "records/world.h"

namespace grapplemont {

/// Another program edits the default data; nothing of it was touched.
class DataBusy : public std::runtime_error {
 public:
  DataBusy();
};

/// A file of the data that cannot be read as one: it is shown and left alone.
struct UnreadableFile {
  std::string File;  // "promos.dat"
  std::string Why;
};

/// The default data while it is edited: the ten files of the data folder as a World, locked against
/// other editors. Whatever rules do to the World goes to disk all or nothing with each Commit. What
/// the folder lacks comes from the one below it, which is never changed: the first commit makes all
/// ten files the player's own, so that no update puts strange files beside theirs.
class DataFolder {
 public:
  /// Opens the folder; a commit or restore that was cut short is brought to its end first. `below`
  /// holds what came with the program; without one nothing did. Throws DataBusy, DiskError, and
  /// WorldFault where there is not a folder.
  DataFolder(Disk& disk, std::string folder, std::string below = {});
  ~DataFolder();
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

  grapplemont::World& World() { return world_; }
  const grapplemont::World& World() const { return world_; }
  const std::string& Folder() const { return folder_; }
  /// Files that are too long or not plain files. Their records are missing in the World.
  const std::vector<UnreadableFile>& Unreadable() const { return unreadable_; }
  bool IsReadable(std::string_view file) const;

  /// Puts on disk what has changed in the World, for good when it returns. The first one of a
  /// session keeps a backup of the folder as it was before. Throws DiskError, whose text says what
  /// became of the change, and WorldFault when somebody else has changed the files meanwhile. The
  /// World then is to be rolled back: to what is on disk.
  void Commit();
  /// What the folder is before the next commit becomes the backup, as it does before the first.
  void KeepNext() { backedUp_ = false; }
  /// Takes back what has changed since the last commit.
  void Rollback() { world_.Rollback(); }

  bool HasBackup() const;
  /// The backup and the data change places: what the data were becomes the backup, so that another
  /// restore undoes this one. False when both are the same, and nothing was done. Requires a
  /// backup, and nothing uncommitted. Throws as Commit, and WorldFault for an invalid backup.
  bool Restore();

  /// Whether files of the player's own lie over the world that came with the program.
  bool Covers() const;
  /// The world that came with the program takes the place of the player's own, which becomes the
  /// backup. Requires Covers(), and nothing uncommitted. Throws as Commit.
  void Uncover();

 private:
  enum class Unfinished { Nothing, Drop, Apply };

  std::string BackupFolder() const { return folder_ + ".backup"; }
  std::string Lock() const { return folder_ + ".lock"; }
  /// The files as they are on disk, except those that cannot be read.
  std::map<std::string, Bytes> FilesNow() const;
  void Read();
  void RefuseUnreadable() const;
  /// A step that leaves all ten files in the folder.
  DataStep WithAllOwn(DataStep step) const;
  void KeepBackup(const std::map<std::string, Bytes>& files);
  void FinishBusiness();
  /// `made` runs once the step is on disk; what fails later does not undo it.
  void Take(const DataStep& step, const std::function<void()>& made);

  Disk& disk_;
  std::string folder_, below_;
  std::set<std::string> fromBelow_;  // files that the folder lacks
  grapplemont::World world_;
  std::vector<UnreadableFile> unreadable_;
  bool backedUp_ = false;
  Unfinished unfinished_ = Unfinished::Nothing;
};

/// A second world of the same records, to try things out on.
World TrialCopyOf(const World& world);

// The clean-up of the data, with a report before it changes anything.

/// What is wrong with the data, what a clean-up would do about it, and what it would leave.
struct Maintenance {
  FaultList Faults;
  FaultList Doings;
  FaultList Left;
};

/// Looks at the data without a change. Files named in `unreadable` are there but cannot be taken
/// for record files; the clean-up leaves them to the player.
Maintenance PlanMaintenance(const World& world, const std::vector<Fault>& unreadable = {});

/// Puts the data in order: a file that is missing begins empty, and all is mended that a new game
/// would mend in its copy. Gives what was done; nothing for data in order. Draws nothing.
FaultList Maintain(World& world, const std::vector<Fault>& unreadable = {});

}  // namespace grapplemont
