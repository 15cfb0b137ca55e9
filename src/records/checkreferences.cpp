#include <algorithm>
#include <array>
#include <vector>

#include "records/checkrules.h"

// Uids lead to records.

namespace grapplemont {

namespace {

/// What each kind of reference is called, and the uids that it may lead to.
struct Target {
  Refers To;
  std::string_view What;
  std::vector<bool> Uids;
};
using Targets = std::array<Target, 5>;

// Marked once: the world's own search takes longest for who is not there.
template <class T>
std::vector<bool> UidsOf(const Records<T>& records) {
  std::vector<bool> uids(32768);
  for (const T& record : records)
    if (const int uid = record.Uid; uid > 0) uids[static_cast<std::size_t>(uid)] = true;
  return uids;
}

Targets TargetsIn(const World& world) {
  return {{{Refers::Worker, "worker", UidsOf(world.Workers())},
           {Refers::Promotion, "promotion", UidsOf(world.Promotions())},
           {Refers::Staff, "member of staff", UidsOf(world.AllStaff())},
           {Refers::Network, "network", UidsOf(world.Networks())},
           {Refers::Sponsor, "sponsor", UidsOf(world.Sponsors())}}};
}

/// The sheet of the last show lies about until the next is booked.
bool MayBeStale(const RecordLayout& layout) {
  return &layout == &LayoutOf<Segment>();
}

const Target* TargetOf(const Targets& targets, const Place& place, const Field& field) {
  Refers to = field.To;
  if (to == Refers::Commentator)
    to = reinterpret_cast<const Show*>(place.Record)->ColourIsWorker ? Refers::Worker
                                                                     : Refers::Staff;
  const auto found = std::find_if(targets.begin(), targets.end(),
                                  [&](const Target& target) { return target.To == to; });
  return found == targets.end() ? nullptr : &*found;
}

void InspectReference(Inspection& inspection, const Targets& targets, const Place& place,
                      const Field& field, int index) {
  const Target* target = TargetOf(targets, place, field);
  const long long uid = target ? FieldNumber(field, place.Record, index) : 0;
  if (uid <= 0 || target->Uids[static_cast<std::size_t>(uid)]) return;
  const int none = field.MayBeNone ? kNoEnd : 0;
  inspection.NoteField(
      place, FieldName(field, index),
      "is " + std::to_string(uid) + ", but there is no such " + std::string(target->What),
      {"made " + std::to_string(none),
       [&field, &place, index, none] { SetFieldNumber(field, place.Record, index, none); }});
}

}  // namespace

void ReferencesLeadSomewhere(Inspection& inspection) {
  const Targets targets = TargetsIn(inspection.Of());
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    const RecordLayout& layout = LayoutOf<T>();
    for (const Field& field : layout.Fields) {
      if (field.To == Refers::Nothing || MayBeStale(layout)) continue;
      for (T& record : records) {
        const Place place{layout, records.NumberOf(record), reinterpret_cast<std::byte*>(&record)};
        for (int index = 0; index < field.Count; ++index)
          InspectReference(inspection, targets, place, field, index);
      }
    }
  });
}

}  // namespace grapplemont
