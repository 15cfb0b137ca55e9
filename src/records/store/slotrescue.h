#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/store/journalfile.h"
#include "records/store/slot.h"

// What lies in a slot, and which world that comes to.

namespace grapplemont {

/// What lies in a slot's folder, read and not judged.
struct StoredSlot {
  std::map<std::string, Bytes> Files;           // a file that is too long without what is too much
  std::map<std::string, std::int64_t> TooLong;  // the lengths of those
  bool HasId = false;               // or seal and journal agree on one; else no slot yet
  std::optional<std::uint64_t> Id;  // nothing where the id is missing or spoiled
  std::optional<WorldSeal> Seal;    // of this world
  Bytes Journal;                    // up to what counts in it
  std::int64_t JournalSize = 0;     // of the file
};

/// `journal` is what stands in its place, in a file of `journalSize` bytes; of a folder without an
/// id it does not count. Throws DiskError.
StoredSlot ReadStoredSlot(Disk& disk, const std::string& folder,
                          const std::vector<KnownFile>& known, Bytes journal,
                          std::int64_t journalSize);

/// The world that a slot comes to.
struct SlotFinding {
  std::map<std::string, Bytes> Files;
  WorldDigest Digest;  // of Files
  std::uint64_t World = 0;
  JournalChain Chain;  // points into the stored journal
  /// What is damaged and what becomes of it, in sentences for the player; empty for a slot in
  /// order: then Files are the stored ones with the chain applied.
  std::string Damage;
  bool GivesUp = false;      // something that may have been kept is not in Files
  std::uint64_t Newest = 0;  // the highest sequence that left any trace
};

/// Where journal and files do not go together, the newest world that can be proven whole: the files
/// as they are by their seal, or the files with the records before a gap or behind one by the
/// digest of the last. Where none can be proven, the files as they are: whatever is applied to
/// files that are not known mixes days. Where the stored files are found in order as they are, the
/// finding takes them over.
SlotFinding Examine(StoredSlot& stored, const std::vector<KnownFile>& known,
                    const SlotOptions& options);

/// More than the longest record of these files and a usual journal before it.
std::int64_t LongestJournal(const std::vector<KnownFile>& known, std::int64_t usual);
/// The world of the slot in this folder as it stands, without its chain. Changes nothing. Throws
/// DiskError.
SlotFinding ExamineSlot(Disk& disk, const std::string& folder, const std::vector<KnownFile>& known);

/// What a commit does to one file.
FilePatch PatchOf(const FileChange& change);
/// What makes the finding's world of the stored files, those that are too long made shorter.
std::vector<FilePatch> PatchesTo(const SlotFinding& finding, const StoredSlot& stored);

}  // namespace grapplemont
