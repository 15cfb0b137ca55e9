#include <algorithm>
#include <array>

#include "records/checkrules.h"

// Uids lead to records.

namespace grapplemont {

namespace {

/// What each kind of reference is called, and how one to nobody is found.
struct Target {
  Refers To;
  std::string_view What;
  bool (*Exists)(const World& world, int uid);
};
template <auto Find>
bool Has(const World& world, int uid) {
  return (world.*Find)(uid) != nullptr;
}
using FindsWorker = const Worker* (World::*)(int) const;
using FindsPromotion = const Promotion* (World::*)(int) const;
using FindsStaff = const Staff* (World::*)(int) const;
using FindsNetwork = const Network* (World::*)(int) const;
using FindsSponsor = const Sponsor* (World::*)(int) const;
constexpr std::array<Target, 5> kTargets = {
    {{Refers::Worker, "worker", Has<FindsWorker{&World::FindWorker}>},
     {Refers::Promotion, "promotion", Has<FindsPromotion{&World::FindPromotion}>},
     {Refers::Staff, "member of staff", Has<FindsStaff{&World::FindStaff}>},
     {Refers::Network, "network", Has<FindsNetwork{&World::FindNetwork}>},
     {Refers::Sponsor, "sponsor", Has<FindsSponsor{&World::FindSponsor}>}}};

/// The sheet of the last show lies about until the next is booked.
bool MayBeStale(const RecordLayout& layout) {
  return &layout == &LayoutOf<Segment>();
}

const Target* TargetOf(const Place& place, const Field& field) {
  Refers to = field.To;
  if (to == Refers::Commentator)
    to = reinterpret_cast<const Show*>(place.Record)->ColourIsWorker ? Refers::Worker
                                                                     : Refers::Staff;
  const auto found = std::find_if(kTargets.begin(), kTargets.end(),
                                  [&](const Target& target) { return target.To == to; });
  return found == kTargets.end() ? nullptr : &*found;
}

void InspectReference(Inspection& inspection, const Place& place, const Field& field, int index) {
  const Target* target = TargetOf(place, field);
  const long long uid = target ? FieldNumber(field, place.Record, index) : 0;
  if (uid <= 0 || target->Exists(inspection.Of(), static_cast<int>(uid))) return;
  const int none = field.MayBeNone ? kNoEnd : 0;
  inspection.NoteField(
      place, FieldName(field, index),
      "is " + std::to_string(uid) + ", but there is no such " + std::string(target->What),
      {"made " + std::to_string(none),
       [&field, &place, index, none] { SetFieldNumber(field, place.Record, index, none); }});
}

}  // namespace

void ReferencesLeadSomewhere(Inspection& inspection) {
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    const RecordLayout& layout = LayoutOf<T>();
    for (const Field& field : layout.Fields) {
      if (field.To == Refers::Nothing || MayBeStale(layout)) continue;
      for (T& record : records) {
        const Place place{layout, records.NumberOf(record), reinterpret_cast<std::byte*>(&record)};
        for (int index = 0; index < field.Count; ++index)
          InspectReference(inspection, place, field, index);
      }
    }
  });
}

}  // namespace grapplemont
