#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "records/store/commandlog.h"
#include "records/store/mornings.h"
#include "records/store/playedstep.h"
#include "records/store/slot.h"

namespace grapplemont {

/// Steps left out on purpose, by tests that must notice it. All false is right.
struct PlayedQuirks {
  bool Apart = false;  // the moments are kept by a commit of their own
};

/// A slot that is being played: each commit also keeps what it has changed, so that it can be taken
/// back, and mornings, so that they can be gone back to. Throws what Slot throws.
class PlayedSlot {
 public:
  PlayedSlot(Disk& disk, std::string folder, Damage damage = Damage::Refuse,
             const SlotOptions& options = {});
  /// For tests: the files that it knows beside the moments.
  PlayedSlot(Disk& disk, std::string folder, std::vector<KnownFile> known, Damage damage,
             const SlotOptions& options, const PlayedQuirks& quirks = {});

  /// Whether a file of the slot is none of the world's: what the slot keeps about it.
  static bool IsOwn(const std::string& name);
  /// The world's own files as they stood when the slot was opened. Forget frees them.
  const std::map<std::string, Bytes>& Files() const { return slot_.Files(); }
  void Forget() { slot_.Forget(); }
  const std::vector<std::string>& Remarks() const { return remarks_; }

  void Commit(const std::vector<FileChange>& changes, const PlayedStep& step = {});
  /// After a Commit that threw: whether its changes stand all the same.
  bool Committed() const { return committed_; }
  void Checkpoint() { slot_.Checkpoint(); }

  /// Gives the present a name that it can be gone back to by; a commit of its own.
  void Name(const std::string& name);
  /// Takes such a name off again; the moment is a named one.
  void ForgetName(std::size_t moment);

  /// Whether what the player does is recorded, and to keep what has changed nothing of the world.
  bool Records() const { return commands_.Records(); }
  void Record(const std::string& commands);
  /// The record ends here: from now on something else than the player's commands changes the world,
  /// `who` says what.
  void EndRecord(const std::string& who);

  const Mornings& Moments() const { return mornings_; }
  /// The day as of the last commit.
  Day Today() const { return today_; }
  /// The moment before the click that was made last, as long as its day lasts: what was named since
  /// does not stand in its way, a road that was left does. Nothing for none.
  std::optional<std::size_t> ClickToUndo() const;
  /// That click by its name; the one that was undone last. Empty for none.
  std::string WhatToUndo() const;
  std::string WhatToRedo() const;
  /// What the digest of the world's own files would be.
  std::uint64_t DigestAfter(const std::vector<FileChange>& changes);
  /// Takes `files`, which are those that the way names as they are now, back to the moment; false
  /// where that is not what the world was: files were changed from outside.
  bool Restore(const WayBack& way, std::uint64_t digest, std::map<std::string, Bytes>& files) const;
  /// The way to the click that was undone last, which leads forward.
  const WayBack& WayToRedo() const { return redo_.back().Way; }
  std::uint64_t DigestToRedo() const { return redo_.back().Digest; }
  /// The page that it was undone on.
  const std::string& PageToRedo() const { return redo_.back().Page; }

 private:
  struct Undone {
    std::string Name;
    WayBack Way;
    std::uint64_t Digest;
    std::string Page;
  };
  class Ahead;

  /// What a commit needs before it writes anything; a fault here leaves all as it was.
  std::optional<WayBack> Before(const std::vector<FileChange>& changes, const PlayedStep& step);
  std::optional<WayBack> WayBefore(const std::vector<FileChange>& changes);
  void Keep(const PlayedStep& step, const std::optional<WayBack>& way, Moment before, Day after,
            std::uint64_t digest);
  void Write(const std::vector<FileChange>& changes);
  void WriteWithMoments(std::vector<FileChange> changes);
  void WriteOwn(Ahead& ahead);

  Disk& disk_;
  std::string folder_;
  std::vector<KnownFile> known_;
  Slot slot_;
  std::vector<std::string> remarks_;
  Mornings mornings_;
  CommandLog commands_;
  WorldDigest digest_;
  Day today_{};
  std::vector<Undone> redo_, redoBefore_;
  PlayedQuirks quirks_;
  bool committed_ = true;
  bool unsure_ = false;  // the record files may not be what was committed last
};

/// The files of a slot that nobody has open, once one of them has these contents: the same as after
/// a Commit of a step without a name that leaves the day as it is. `commands` join the record.
std::map<std::string, Bytes> FilesAfter(std::map<std::string, Bytes> files, const std::string& name,
                                        Bytes contents, const std::string& commands);

}  // namespace grapplemont
