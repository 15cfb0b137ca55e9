#pragma once

#include <optional>
#include <vector>

#include "records/journal.h"

namespace grapplemont {

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
