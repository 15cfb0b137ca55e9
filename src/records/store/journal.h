#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "records/store/changes.h"
#include "records/store/digest.h"

// The form of a journal: two blocks for its marker, then one record a commit, each padded to whole
// blocks, one behind the other; and of the seal beside it. All numbers are little-endian.
// docs/saving.md tells how they are used.

namespace grapplemont {

/// Where the first record stands.
inline constexpr std::int64_t kJournalStart = 2 * kJournalBlock;

constexpr std::int64_t RoundedToBlocks(std::int64_t size) {
  return (size + kJournalBlock - 1) / kJournalBlock * kJournalBlock;
}

/// Steps of the protocol left out on purpose, by tests that must notice it. All false is right.
struct JournalQuirks {
  bool EmptyBeforeFiles = false;  // the journal is emptied before the record files are synced
  bool NoChecksum = false;
  bool NoSequence = false;        // any record of the world is taken for the next one
  bool RetrySync = false;         // a failed sync is tried once more on the same handle
  bool TrustWhatIsRead = false;   // a chain is applied without a copy that is known to be on disk
  bool RemoveBeforeSwap = false;  // a creation clears the old folder before the swap is synced
  bool TrustTheChain = false;     // a chain without a gap is applied whatever the files hold
};

/// Which world the journal belongs to, and the sequence up to which the record files themselves
/// hold everything: the chain of records that counts begins with the next one.
struct JournalMarker {
  std::uint64_t World = 0;
  std::uint64_t Sequence = 0;
  std::uint64_t Digest = 0;   // of the world at that sequence (WorldDigest)
  std::int64_t Reserved = 0;  // how long the journal is at least; 0 where nobody wrote it down
  DigestForm Form = DigestForm::Blocks;
};

/// What the record files are being brought to: written before each commit's changes reach them.
/// They hold nothing later, and where their digests are the seal's, they hold just that.
struct WorldSeal {
  std::uint64_t World = 0;
  std::uint64_t Sequence = 0;
  WorldDigest Files;
};

/// What a commit does to one file.
struct FilePatch {
  std::string Name;
  bool Exists = false;
  std::int64_t Length = 0;
  std::vector<JournalRange> Ranges;
};

struct JournalRecord {
  std::uint64_t World = 0;
  std::uint64_t Sequence = 0;
  std::uint64_t Digest = 0;  // of the world after this commit
  std::vector<FilePatch> Files;
  DigestForm Form = DigestForm::Blocks;
};

/// A file that a slot may hold, and how long it may be.
struct KnownFile {
  std::string Name;
  std::int64_t MaxBytes;
  std::int64_t RecordBytes = 1;
  bool Fleeting = false;  // made again all the time: nobody misses what is wrong with it
  /// What a longer file is cut to: whole records.
  std::int64_t MostBytes() const { return MaxBytes / RecordBytes * RecordBytes; }
};

/// nullptr where none has the name.
const KnownFile* FindFile(const std::vector<KnownFile>& known, std::string_view name);

/// One block.
Bytes PackMarker(const JournalMarker& marker);
/// Nothing where the block is not a whole marker.
std::optional<JournalMarker> UnpackMarker(ByteSpan block);
/// Whether it is a whole marker of a version that this program does not know yet. Magic, version
/// and checksum stand where they do in all versions.
bool IsOfNewerVersion(ByteSpan block);

/// Whole blocks.
Bytes PackSeal(std::uint64_t world, std::uint64_t sequence, const WorldDigest& files);
/// Nothing where the bytes are not a whole seal.
std::optional<WorldSeal> UnpackSeal(ByteSpan bytes);

/// The record's bytes, padded to whole blocks.
Bytes PackRecord(const JournalRecord& record);

/// A record read at a place of the journal.
struct JournalEntry {
  JournalRecord Record;   // its ranges point into the journal's bytes
  std::int64_t Size = 0;  // padded
};
/// What a record says of itself before its files, however much of it is whole.
struct RecordHead {
  DigestForm Form;
  std::uint64_t Checksum, Sequence, World;
  std::int64_t Size;  // padded
  std::uint64_t Digest;
  std::uint32_t Files;
};
/// The head of the record that begins here; nothing where none does.
std::optional<RecordHead> HeadOfRecord(ByteSpan bytes);
/// The record that begins at `offset`. Nothing where none is whole, or where it would
/// touch anything but the known files within their limits.
std::optional<JournalEntry> UnpackRecord(ByteSpan journal, std::int64_t offset,
                                         const std::vector<KnownFile>& known,
                                         const JournalQuirks& quirks = {});

}  // namespace grapplemont
