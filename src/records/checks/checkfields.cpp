#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/checks/checkrules.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/severing.h"
#include "records/store/table.h"

// Every field holds a value that its description allows.

namespace grapplemont {

std::string QuotedText(std::string_view text) {
  std::string quoted = "\"" + std::string(text) + "\"";
  std::replace_if(
      quoted.begin(), quoted.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; },
      ' ');
  return quoted;
}

namespace {

Remedy MakeNumber(const Field& field, const Place& place, int index, long long value) {
  return {"made " + std::to_string(value),
          [&field, &place, index, value] { SetFieldNumber(field, place.Record, index, value); }};
}

/// The code for one that nobody knows.
long long SensibleCode(const RecordLayout& layout, const Field& field, const std::byte* record,
                       long long code) {
  if (&layout == &LayoutOf<Worker>() && field.Name == "Position")
    return PositionFromOver(reinterpret_cast<const Worker*>(record)->Over);
  if (&layout == &LayoutOf<Staff>() && field.Name == "Position") return kAnnouncer;
  const long long nearest = std::clamp(code, field.Min, field.Max);
  return Says(field.Words, static_cast<int>(nearest)).empty() ? field.Words[0].Code : nearest;
}

void InspectFlag(Inspection& inspection, const Place& place, const Field& field, int index) {
  const long long value = FieldNumber(field, place.Record, index);
  if (value == 0 || value == -1) return;
  inspection.NoteField(place, FieldName(field, index),
                       "is " + std::to_string(value) + ", neither 0 nor -1",
                       MakeNumber(field, place, index, -1));
}

void InspectNumber(Inspection& inspection, const Place& place, const Field& field, int index) {
  const long long value = FieldNumber(field, place.Record, index);
  if (field.MayBeNone && value == kNoEnd) return;
  if (!field.Words.empty() && field.Kind != FieldKind::Text) {
    if (!Says(field.Words, static_cast<int>(value)).empty()) return;
    inspection.NoteField(
        place, FieldName(field, index), "is " + std::to_string(value) + ", no known code",
        MakeNumber(field, place, index, SensibleCode(place.Layout, field, place.Record, value)));
    return;
  }
  if (value >= field.Min && value <= field.Max) return;
  inspection.NoteField(place, FieldName(field, index),
                       "is " + std::to_string(value) + ", outside " + std::to_string(field.Min) +
                           " to " + std::to_string(field.Max),
                       MakeNumber(field, place, index, std::clamp(value, field.Min, field.Max)));
}

void InspectDate(Inspection& inspection, const Place& place, const Field& field, int index) {
  const double days = FieldDate(field, place.Record, index);
  Date asDay;
  asDay.SetRaw(days);
  const bool dayZero = days >= 0 && days < 1 && !std::signbit(days);
  if (dayZero || (std::isfinite(days) && !asDay.IsNone())) return;
  const bool ofTitle = &place.Layout == &LayoutOf<Title>();
  const Day none = ofTitle ? kNoTitleDate : kDayZero;
  inspection.NoteField(place, FieldName(field, index), "is not a date of the calendar",
                       {"made " + IsoDate(none), [&field, &place, index, none] {
                          SetFieldDate(field, place.Record, index,
                                       static_cast<double>((none - kDayZero).count()));
                        }});
}

void InspectText(Inspection& inspection, const Place& place, const Field& field, int index) {
  const std::string raw(
      reinterpret_cast<const char*>(place.Record) + field.Offset + index * field.Stride,
      static_cast<std::size_t>(field.Width));
  const auto isWrong = [&](char c) { return IsControl(c) && !(c == '\n' && field.MayBreak); };
  if (std::any_of(raw.begin(), raw.end(), isWrong)) {
    inspection.NoteField(place, FieldName(field, index), "has a control character in it",
                         {"made a blank", [&field, &place, index, raw] {
                            std::string clean = raw;
                            std::replace_if(clean.begin(), clean.end(), IsControl, ' ');
                            SetFieldText(field, place.Record, index, detail::Trimmed(clean));
                          }});
  }
  const std::string text(FieldText(field, place.Record, index));
  if (inspection.AsData() && !text.empty() && raw[0] == ' ') {
    inspection.NoteField(place, FieldName(field, index), "begins with a blank",
                         {"moved to the front", [&field, &place, index, text] {
                            SetFieldText(field, place.Record, index, text);
                          }});
  }
  if (field.Words.empty() || !Says(field.Words, text).empty()) return;
  const std::string code(field.Words[0].Stored);
  inspection.NoteField(place, FieldName(field, index), "is " + QuotedText(text) + ", no known code",
                       {"made " + QuotedText(code), [&field, &place, index, code] {
                          SetFieldText(field, place.Record, index, code);
                        }});
}

void InspectField(Inspection& inspection, const Place& place, const Field& field, int index) {
  switch (field.Kind) {
    case FieldKind::Flag:
      return InspectFlag(inspection, place, field, index);
    case FieldKind::Date:
      return InspectDate(inspection, place, field, index);
    case FieldKind::Text:
      return InspectText(inspection, place, field, index);
    default:
      // An invalid uid is reported where uids and what leads to them are checked.
      if (!field.IsKey) InspectNumber(inspection, place, field, index);
  }
}

template <class Look>
void ForEachField(Inspection& inspection, Look look) {
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    const RecordLayout& layout = LayoutOf<T>();
    for (T& record : records.Unwatched()) {
      const Place place{layout, records.NumberOf(record), reinterpret_cast<std::byte*>(&record)};
      for (const Field& field : layout.Fields)
        for (int index = 0; index < field.Count; ++index) look(place, field, index);
    }
  });
}

template <class T>
void InspectUids(Inspection& inspection, Records<T>& records) {
  std::unordered_map<int, int> firstWith;
  FreeUids free(records);
  Removal<T> removal(records);
  for (T& record : records.Unwatched()) {
    const int number = records.NumberOf(record);
    const int uid = record.Uid;
    const auto renumber = [&] {
      const int fresh = free.Take();
      return Remedy{"made " + std::to_string(fresh), [&record, fresh] { record.Uid = fresh; }};
    };
    if (uid < 1) {
      inspection.Note(records, record, "Uid", "is " + std::to_string(uid) + ", no number from 1 up",
                      renumber());
      continue;
    }
    const auto [first, isFirst] = firstWith.try_emplace(uid, number);
    if (isFirst) continue;
    const T& other = records[first->second];
    const std::string where = "record " + std::to_string(first->second);
    if (other.Name == record.Name)
      inspection.Note(records, record, "", "is the double of " + where, removal.Of(record));
    else
      inspection.Note(records, record, "Uid",
                      "is " + std::to_string(uid) + ", which " + where + " has too", renumber());
  }
  removal.Apply();
}

/// "Bram Okafor 2" for the second of a name, cut to its field.
std::string Numbered(std::string_view name, int number, int width) {
  const std::string behind = (width > 6 && !name.empty() ? " " : "") + std::to_string(number);
  return std::string(
             detail::Trimmed(name.substr(0, static_cast<std::size_t>(width) - behind.size()))) +
         behind;
}

template <class T>
void InspectNames(Inspection& inspection, Records<T>& records, const Field& field) {
  std::unordered_map<std::string, int> firstWith, nextOf;
  for (const T& record : records) {
    const auto* bytes = reinterpret_cast<const std::byte*>(&record);
    firstWith.try_emplace(std::string(FieldText(field, bytes)), records.NumberOf(record));
  }
  for (T& record : records.Unwatched()) {
    const Place place{LayoutOf<T>(), records.NumberOf(record),
                      reinterpret_cast<std::byte*>(&record)};
    const std::string name(FieldText(field, place.Record));
    const int first = firstWith.at(name);
    if (name == kToBeDeleted || (!name.empty() && first == place.Number)) continue;
    const std::string stem = name.empty() ? std::string(LayoutOf<T>().Name) : name;
    int& next = nextOf.try_emplace(stem, name.empty() ? place.Number : 2).first->second;
    std::string fresh;
    while (fresh.empty() || firstWith.contains(fresh)) fresh = Numbered(stem, next++, field.Width);
    firstWith.emplace(fresh, place.Number);
    inspection.NoteField(
        place, field.Name,
        name.empty() ? "is empty" : "is \"" + name + "\" as in record " + std::to_string(first),
        {"made \"" + fresh + "\"", [&] { SetFieldText(field, place.Record, 0, fresh); }});
  }
}

template <class T>
void InspectKeys(Inspection& inspection, Records<T>& records) {
  if constexpr (requires(T & record) {
                  record.Uid;
                  record.Name;
                })
    InspectUids(inspection, records);
  for (const Field& field : LayoutOf<T>().Fields)
    if (field.IsKey && field.Kind == FieldKind::Text) InspectNames(inspection, records, field);
}

}  // namespace

void WholeRecords(Inspection& inspection) {
  for (Table* table : inspection.Of().Tables()) {
    const RecordLayout* layout = table->Layout();
    if (!layout || !inspection.Covers(*layout)) continue;
    const ByteSpan bytes = table->Contents();
    const auto size = static_cast<std::size_t>(layout->Size);
    const std::size_t count = bytes.size() / size;
    if (bytes.size() % size == 0) continue;
    inspection.NoteFile(
        layout->File,
        "ends in " + std::to_string(bytes.size() % size) + " bytes that are not a whole record",
        {"cut off", [&] {
           const Bytes whole(bytes.begin(),
                             bytes.begin() + static_cast<std::ptrdiff_t>(count * size));
           table->Load(whole);
         }});
  }
}

void FieldsHoldWhatTheyMay(Inspection& inspection) {
  ForEachField(inspection, [&](const Place& place, const Field& field, int index) {
    InspectField(inspection, place, field, index);
  });
}

void CountedNumbersLieInTheirRanges(Inspection& inspection) {
  ForEachField(inspection, [&](const Place& place, const Field& field, int index) {
    if (field.IsCounted) InspectNumber(inspection, place, field, index);
  });
}

// What records are known by is there and stands once.

void NoRecordStandsTwice(Inspection& inspection) {
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    if constexpr (!requires(T & record) { record.Uid; }) {
      std::unordered_map<std::string_view, int> firstLike;
      RemoveWrong(inspection, records, "", [&](const T& record) -> std::string {
        const std::string_view bytes(reinterpret_cast<const char*>(&record), sizeof(T));
        const auto [first, isFirst] = firstLike.try_emplace(bytes, records.NumberOf(record));
        return isFirst ? "" : "is the double of record " + std::to_string(first->second);
      });
    }
  });
}

void KeysAreUnique(Inspection& inspection) {
  ForEachFile(inspection, [&](auto& records) { InspectKeys(inspection, records); });
}

// Uids lead to records.

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
  return &layout == &LayoutOf<Segment>() || &layout == &LayoutOf<KeptRow>();
}

const Target* TargetOf(const Targets& targets, const Place& place, const Field& field) {
  Refers to = field.To;
  if (to == Refers::Commentator)
    to = reinterpret_cast<const Show*>(place.Record)->ColourIsWorker ? Refers::Worker
                                                                     : Refers::Staff;
  for (const Target& target : targets)
    if (target.To == to) return &target;
  return nullptr;
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
      for (T& record : records.Unwatched()) {
        const Place place{layout, records.NumberOf(record), reinterpret_cast<std::byte*>(&record)};
        for (int index = 0; index < field.Count; ++index)
          InspectReference(inspection, targets, place, field, index);
      }
    }
  });
}

}  // namespace grapplemont
