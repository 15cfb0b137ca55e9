#pragma once

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "records/checks/checkworld.h"
#include "records/world.h"

// The records of the default data, whatever their kind: by number, as bytes that the field lists
// describe.

namespace grapplemont {

enum class RecordKind {
  Worker,
  Promotion,
  Staff,
  Team,
  Stable,
  Title,
  Show,
  Network,
  Sponsor,
  Event
};
/// Their types, in the same order.
using RecordTypes =
    std::tuple<Worker, Promotion, Staff, Team, Stable, Title, Show, Network, Sponsor, Event>;

/// Calls `visit` with the Records of this kind.
template <std::size_t At = 0, class W, class Visit>
decltype(auto) WithRecords(W& world, RecordKind kind, Visit visit) {
  if constexpr (At + 1 < std::tuple_size_v<RecordTypes>)
    if (kind != static_cast<RecordKind>(At)) return WithRecords<At + 1>(world, kind, visit);
  return visit(world.template Of<std::tuple_element_t<At, RecordTypes>>());
}

const RecordLayout& LayoutOf(RecordKind kind);
int CountOf(const World& world, RecordKind kind);
/// The bytes of record `number`, from 1.
const std::byte* RecordAt(const World& world, RecordKind kind, int number);
std::byte* RecordAt(World& world, RecordKind kind, int number);
/// The record seen as its own type; requires that it is one.
template <class T>
T& As(std::byte* record) {
  return *reinterpret_cast<T*>(record);
}
template <class T>
const T& As(const std::byte* record) {
  return *reinterpret_cast<const T*>(record);
}

/// A field by the name that it has in its record, "Split3" for the third of the numbered ones;
/// throws std::out_of_range for none.
struct FieldPlace {
  const Field* Of;
  int Index;
};
FieldPlace FieldNamed(RecordKind kind, std::string_view name);

/// What the record is called: its name; a promotion with its initials.
std::string NameOf(RecordKind kind, const std::byte* record);

// What becomes of the default data when one record of them is added, changed or deleted: its own
// invariants, what it may not do, and whatever else knows it.

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
