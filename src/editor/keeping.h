#pragma once

#include <string>
#include <vector>

#include "editor/recordkinds.h"
#include "records/checks/checkworld.h"

// What becomes of the default data when one record of them is added, changed or deleted: its own
// invariants, what it may not do, and whatever else knows it.

namespace grapplemont {

/// "Maximum 25,000 wrestlers per file!" once the file is full; else empty.
std::string WhyNoMore(const World& world, RecordKind kind);

/// A record as one begins, without a name and not in the file yet.
Bytes NewRecord(RecordKind kind);
/// The record under names that are free; what only one can have stays with the first.
Bytes CopyOfRecord(const World& world, RecordKind kind, int number);

struct Keeping {
  std::string WhyNot;             // a sentence, or
  std::vector<Fault> Wrong;       // the faults it would bring; both empty when it was done
  int Number = 0;                 // of the record
  std::vector<std::string> Also;  // what else it changed, a line each
  bool Done() const { return WhyNot.empty() && Wrong.empty(); }
};
/// Puts the bytes into record `number`, or behind the last one for 0 with a uid of their own. What
/// hangs on it follows: names that lead to it, offices and Titles that it cannot hold any more. A
/// fault that the data had before does not stand in the way; a new one does, and the World is then
/// to be rolled back.
Keeping KeepRecord(World& world, RecordKind kind, int number, Bytes record);

/// Removes the record, by compaction; whatever knew it forgets it. A promotion ends as in a game:
/// its people go free, its shows go, its Events, Titles and stables lose their owner. Gives what
/// else was changed, a line each.
std::vector<std::string> DeleteRecord(World& world, RecordKind kind, int number);

}  // namespace grapplemont
