#pragma once

#include <string>
#include <string_view>

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

/// Calls `visit` with the Records of this kind.
template <class W, class Visit>
decltype(auto) WithRecords(W& world, RecordKind kind, Visit visit) {
  switch (kind) {
    case RecordKind::Worker:
      return visit(world.Workers());
    case RecordKind::Promotion:
      return visit(world.Promotions());
    case RecordKind::Staff:
      return visit(world.AllStaff());
    case RecordKind::Team:
      return visit(world.Teams());
    case RecordKind::Stable:
      return visit(world.Stables());
    case RecordKind::Title:
      return visit(world.Titles());
    case RecordKind::Show:
      return visit(world.Shows());
    case RecordKind::Network:
      return visit(world.Networks());
    case RecordKind::Sponsor:
      return visit(world.Sponsors());
    case RecordKind::Event:
      break;
  }
  return visit(world.Events());
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

}  // namespace grapplemont
