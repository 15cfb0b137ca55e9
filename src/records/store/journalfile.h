#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/store/journal.h"

namespace grapplemont {

/// The open journal of a slot: where it ends, how large it is. Every call throws DiskError.
class JournalFile {
 public:
  JournalFile(Disk& disk, std::string folder, std::int64_t bytes, const JournalQuirks& quirks);
  ~JournalFile() { Drop(); }
  JournalFile(const JournalFile&) = delete;
  JournalFile& operator=(const JournalFile&) = delete;

  /// The file up to its last record that may count, but not more than a journal can ever need;
  /// empty where there is none.
  Bytes Read(std::int64_t limit);
  /// How long the file is, once it has been read.
  std::int64_t Size() const { return size_; }
  /// Tells where the chain that was read ends and which block its marker stands in.
  void Continue(std::int64_t end, int markerBlock);
  /// Replaces the file by a fresh one with this marker and these records, in one step, all of it on
  /// disk when this returns. On a full disk it is no longer than they are.
  void Replace(const JournalMarker& marker, ByteSpan records);
  /// False once its path leads to another file, or to none.
  bool IsInPlace();
  bool Fits(ByteSpan record) const { return end_ + std::ssize(record) <= size_; }
  /// Room for the record behind the last one. A journal that must become longer becomes as long as
  /// usual where the disk has the room, else as long as it must.
  void MakeRoom(ByteSpan record);
  /// Writes the record behind the last one; it is on disk when this returns.
  void Append(ByteSpan record);
  bool IsEmpty() const { return end_ == kJournalStart; }
  /// The files hold everything: the marker says so, and no record counts any more.
  void Empty(JournalMarker marker);
  void Drop();

 private:
  Disk::Handle Handle();
  std::int64_t UsedOf(Disk::Handle file, std::int64_t size);
  void Grow(std::int64_t size);
  void Sync();

  Disk& disk_;
  std::string folder_, path_;
  std::int64_t bytes_;  // its usual size
  const JournalQuirks& quirks_;
  std::optional<Disk::Handle> handle_;
  std::int64_t size_ = 0, end_ = kJournalStart;
  int markerBlock_ = 1;
};

/// Makes a journal's file, of `size` bytes if the disk has the room for them, else of `least`, but
/// always as long as marker and records. It is on disk when this returns, its name is not.
void WriteJournal(Disk& disk, const std::string& path, JournalMarker marker, ByteSpan records,
                  std::int64_t size, std::int64_t least);

/// What a journal says about its world.
struct JournalChain {
  enum class State {
    Sound,       // Records is all there is; behind them nothing or a record that was never finished
    Damaged,     // whole records stand behind one that is not: something that was finished is lost
    Foreign,     // another world's journal
    Unreadable,  // no journal at all
  };
  State Found = State::Unreadable;
  JournalMarker Marker;     // what the files themselves hold
  bool MarkerRead = false;  // false: the marker was lost, Marker is what the chain implies
  int MarkerBlock = 1;      // where it stands, 0 or 1; the next one goes to the other
  std::vector<JournalRecord> Records;  // to be applied, in order; they point into the journal
  std::int64_t End = kJournalStart;    // behind the last of Records
  std::vector<JournalRecord> Behind;   // when damaged: the whole records behind the gap, in order

  /// The sequence and the digest of the world that marker and records lead to.
  std::uint64_t Last() const { return Records.empty() ? Marker.Sequence : Records.back().Sequence; }
  std::uint64_t Digest() const { return Records.empty() ? Marker.Digest : Records.back().Digest; }
  DigestForm Form() const { return Records.empty() ? Marker.Form : Records.back().Form; }
  /// Whether Digest() says anything.
  bool Vouches() const { return MarkerRead || !Records.empty(); }
};

/// The chain for `world`; without one, for the world that the journal itself names. Records with a
/// sequence above `upTo` do not count.
JournalChain ReadChain(ByteSpan journal, std::optional<std::uint64_t> world,
                       const std::vector<KnownFile>& known, std::uint64_t upTo = ~std::uint64_t{0},
                       const JournalQuirks& quirks = {});

/// Does to a file's bytes what the patch says; nothing stands for no file.
void ApplyTo(std::optional<Bytes>& file, const FilePatch& patch);

}  // namespace grapplemont
