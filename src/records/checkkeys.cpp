#include <string_view>
#include <unordered_map>

#include "records/checkrules.h"
#include "records/freeuids.h"

// What records are known by is there and stands once.

namespace grapplemont {

namespace {

template <class T>
void InspectUids(Inspection& inspection, Records<T>& records) {
  std::unordered_map<int, int> firstWith;
  FreeUids free(records);
  Removal<T> removal(records);
  for (T& record : records) {
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
  for (T& record : records) {
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

void NoRecordStandsTwice(Inspection& inspection) {
  ForEachFile(inspection, [&]<class T>(Records<T>& records) {
    if constexpr (!requires(T & record) { record.Uid; }) {
      std::unordered_map<std::string_view, int> firstLike;
      Removal<T> removal(records);
      for (T& record : records) {
        const std::string_view bytes(reinterpret_cast<const char*>(&record), sizeof(T));
        const auto [first, isFirst] = firstLike.try_emplace(bytes, records.NumberOf(record));
        if (!isFirst)
          inspection.Note(records, record, "",
                          "is the double of record " + std::to_string(first->second),
                          removal.Of(record));
      }
      removal.Apply();
    }
  });
}

void KeysAreUnique(Inspection& inspection) {
  ForEachFile(inspection, [&](auto& records) { InspectKeys(inspection, records); });
}

}  // namespace grapplemont
