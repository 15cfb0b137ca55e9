#include <algorithm>
#include <cmath>

#include "records/charset.h"
#include "records/checkrules.h"
#include "records/dates.h"
#include "records/severing.h"

// Every field holds a value that its description allows.

namespace grapplemont {

namespace {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"" + std::string(text) + "\"";
  std::replace_if(
      quoted.begin(), quoted.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; },
      ' ');
  return quoted;
}

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
  inspection.NoteField(place, FieldName(field, index), "is no date of the calendar",
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
  inspection.NoteField(place, FieldName(field, index), "is " + Quoted(text) + ", no known code",
                       {"made " + Quoted(code), [&field, &place, index, code] {
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
      // A uid that is none is told where uids and what leads to them are told.
      if (!field.IsKey) InspectNumber(inspection, place, field, index);
  }
}

template <class Look>
void ForEachField(Inspection& inspection, Look look) {
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    const RecordLayout& layout = LayoutOf<T>();
    for (T& record : records) {
      const Place place{layout, records.NumberOf(record), reinterpret_cast<std::byte*>(&record)};
      for (const Field& field : layout.Fields)
        for (int index = 0; index < field.Count; ++index) look(place, field, index);
    }
  });
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
        "ends in " + std::to_string(bytes.size() % size) + " bytes that are no whole record",
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

}  // namespace grapplemont
