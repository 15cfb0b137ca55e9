#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "records/store/disk.h"

// What a step has changed in the files of a world, found once and used for all: the journal, the
// files, the digests and the image that the next step is compared with.

namespace grapplemont {

/// Changes are written in whole blocks of this many bytes.
inline constexpr std::int64_t kJournalBlock = 4096;

/// A stretch of a file's new contents; begins on a block and ends on one, or with the file.
struct JournalRange {
  std::int64_t Offset = 0;
  ByteSpan Contents;
};

/// Gathers the blocks of a file's new contents that are to be written, joined where they touch.
class ChangedBlocks {
 public:
  /// `step` is the size of a block.
  explicit ChangedBlocks(ByteSpan after, std::size_t step = kJournalBlock)
      : after_(after), step_(step) {}
  /// The bytes from `from` to `to` (behind the last) are not what they were. `from` is in no block
  /// before the last one that was added.
  void Add(std::size_t from, std::size_t to);
  std::vector<JournalRange> Take() && { return std::move(ranges_); }

 private:
  ByteSpan after_;
  std::size_t step_;
  std::vector<JournalRange> ranges_;
};

/// The blocks of `after` that differ from `before`. A last block that was longer or shorter before
/// differs too: the system writes it. `bare`: bytes in place of blocks, for tests that must notice.
std::vector<JournalRange> ChangedRanges(ByteSpan before, ByteSpan after, bool bare = false);

/// One file of a world before and after a step. Its spans point into the world.
struct FileChange {
  std::string Name;
  bool ExistsBefore = false, ExistsAfter = false;
  std::int64_t LengthBefore = 0;
  ByteSpan After;                    // the whole contents; empty where it does not exist
  std::vector<JournalRange> Ranges;  // of After: all that is not what it was
  ByteSpan Before = {};  // the whole contents until now; empty where only the disk has them
  /// Where the contents until now are those of After but for some stretches of the same length and
  /// what was added: these, in their order, as they were.
  std::optional<std::vector<JournalRange>> Were = {};
};

/// Nothing where both are the same. nullptr stands for no file.
std::optional<FileChange> ChangeBetween(const std::string& name, const Bytes* before,
                                        const Bytes* after, bool bare = false);

}  // namespace grapplemont
