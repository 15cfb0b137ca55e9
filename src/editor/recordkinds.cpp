#include "editor/recordkinds.h"

#include <stdexcept>

namespace grapplemont {

const RecordLayout& LayoutOf(RecordKind kind) {
  static const World empty;
  return WithRecords(
      empty, kind, []<class T>(const Records<T>&) -> const RecordLayout& { return LayoutOf<T>(); });
}

int CountOf(const World& world, RecordKind kind) {
  return WithRecords(world, kind, [](const auto& records) { return records.Count(); });
}

const std::byte* RecordAt(const World& world, RecordKind kind, int number) {
  return WithRecords(world, kind, [number](const auto& records) {
    return reinterpret_cast<const std::byte*>(&records[number]);
  });
}

std::byte* RecordAt(World& world, RecordKind kind, int number) {
  return WithRecords(world, kind, [number](auto& records) {
    return reinterpret_cast<std::byte*>(&records[number]);
  });
}

FieldPlace FieldNamed(RecordKind kind, std::string_view name) {
  for (const Field& field : LayoutOf(kind).Fields)
    for (int index = 0; index < field.Count; ++index)
      if (FieldName(field, index) == name) return {&field, index};
  throw std::out_of_range(std::string(LayoutOf(kind).Name) + " has no field " + std::string(name));
}

std::string NameOf(RecordKind kind, const std::byte* record) {
  const FieldPlace name = FieldNamed(kind, "Name");
  std::string text(FieldText(*name.Of, record, name.Index));
  if (kind == RecordKind::Promotion) text += " (" + As<Promotion>(record).Initials.Str() + ")";
  return text;
}

}  // namespace grapplemont
