#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "records/store/changes.h"

// What the player has done in a game that was begun with a seed: the world as it began, and every
// command since, a line each. Both lie in the slot as files of it.

namespace grapplemont {

inline constexpr const char* kBeginningName = "beginning";
inline constexpr const char* kCommandsName = "commands";
/// A game of some hundred thousand clicks; who does more is recorded no further.
inline constexpr std::int64_t kMostCommands = 8 << 20;
/// The default world packs to a fortieth of it.
inline constexpr std::int64_t kMostBeginning = 8 << 20;
/// The last line where nothing more is recorded: the text is full, or the world was changed by
/// something that is not recorded ("outside DIGEST WHO").
inline constexpr std::string_view kCommandsFull = "full", kCommandsOutside = "outside";
/// Where a game is given another name while nobody plays it ("renamed NAME").
inline constexpr std::string_view kCommandRenamed = "renamed";
/// Behind the commands of a step that the disk would not take, and of one that was kept before the
/// disk failed: whoever plays them again meets the same.
inline constexpr std::string_view kDiskTookBack = "disk taken-back", kDiskKept = "disk kept";

/// The line that ends a record at a world of this digest.
std::string EndOfCommands(std::uint64_t digest, std::string_view who);

/// The commands of a slot, in memory, with what the commit that is being made adds.
class CommandLog {
 public:
  /// As it was stored; nothing for a game that records none.
  explicit CommandLog(std::optional<Bytes> file = std::nullopt);
  /// Of a game that begins.
  static Bytes Empty();

  bool Records() const { return exists_ && !HasEnded(); }
  /// Each change belongs to a commit: Reach when that stands, PutBack when it does not.
  void Add(std::string_view lines);
  std::optional<FileChange> Change() const;
  void Reach() { stored_ = file_.size(); }
  void PutBack() { file_.resize(stored_); }

 private:
  bool HasEnded() const;

  Bytes file_;
  std::size_t stored_ = 0;
  bool exists_ = false;
};

}  // namespace grapplemont
