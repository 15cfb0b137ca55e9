#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/store/changes.h"

// How the files of a world as they were are made of what they are now: a few bytes for each that a
// step has changed.

namespace grapplemont {

/// Older bytes, told by newer ones: stretches of the newer and bytes of their own, in turn.
class BytesBack {
 public:
  /// The next stretch of the older bytes is one of the newer.
  void Take(std::uint64_t from, std::uint64_t count);
  /// The next stretch is not.
  void Put(ByteSpan own);

  std::size_t OwnBytes() const { return own_.size(); }
  /// The older bytes; nothing where `newer` cannot be what they were told by, or where they are
  /// more than `most`.
  std::optional<Bytes> Of(ByteSpan newer, std::int64_t most) const;
  /// Told by what `nearer` tells this one's newer bytes by. Nothing where they do not fit.
  std::optional<BytesBack> Behind(const BytesBack& nearer) const;

  void PackInto(Bytes& out) const;
  /// Takes what PackInto has put off the front of `in`; nothing where it is spoiled.
  static std::optional<BytesBack> Unpack(ByteSpan& in);

 private:
  struct Piece {
    std::uint64_t From, Taken;  // of the newer bytes
    std::uint64_t Own;          // that follow
  };
  class Teller;
  std::vector<Piece> pieces_;
  Bytes own_;
};

/// A file as it was.
struct FileBack {
  std::string Name;
  bool Existed = false;
  BytesBack Contents;
};
/// All files that a step has changed, as they were before it.
using WayBack = std::vector<FileBack>;

/// Some bytes of a file as it is before a step; they hold until the next are asked for.
using ReadBefore = std::function<ByteSpan(std::int64_t offset, std::int64_t count)>;
/// What the change, which knows what was where, has changed.
FileBack BackFrom(const FileChange& change);
/// The same for one that does not. `recordBytes` is what records that have moved are found by.
FileBack BackFrom(const FileChange& change, std::int64_t recordBytes, const ReadBefore& read);

/// The way over both: `nearer` leads to where `farther` begins. Nothing where they do not fit.
std::optional<WayBack> Joined(const WayBack& nearer, WayBack farther);

/// Does the way to some files, which are all that it names; false where they cannot be those that
/// it begins at. Then they are spoiled.
bool GoBack(const WayBack& way, std::map<std::string, Bytes>& files,
            const std::function<std::int64_t(const std::string& name)>& mostBytes);

void PackInto(Bytes& out, const WayBack& way);
std::optional<WayBack> UnpackWay(ByteSpan in);

/// A number in as few bytes as it needs.
void PutNumber(Bytes& out, std::uint64_t number);
/// Takes one off the front; nothing where none is whole.
std::optional<std::uint64_t> TakeNumber(ByteSpan& in);

}  // namespace grapplemont
