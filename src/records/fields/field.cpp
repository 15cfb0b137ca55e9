#include "records/fields/field.h"

#include <algorithm>
#include <cstring>

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

/// A view of one field's bytes as the type that the record holds there.
template <class T, class Byte>
auto* At(const Field& field, Byte* record, int index) {
  using Target = std::conditional_t<std::is_const_v<Byte>, const T, T>;
  return reinterpret_cast<Target*>(record + field.Offset + index * field.Stride);
}

}  // namespace

std::string_view Says(Vocabulary words, int code) {
  for (const Term& term : words)
    if (term.Code == code) return term.Says;
  return {};
}

std::string_view Says(Vocabulary words, std::string_view stored) {
  for (const Term& term : words)
    if (term.Stored == stored) return term.Says;
  return {};
}

std::string FieldName(const Field& field, int index) {
  std::string name(field.Name);
  if (const auto at = name.find('#'); at != std::string::npos)
    name.replace(at, 1, std::to_string(index + 1));
  return name;
}

long long FieldNumber(const Field& field, const std::byte* record, int index) {
  switch (field.Kind) {
    case FieldKind::Flag:
      return At<Flag>(field, record, index)->Raw();
    case FieldKind::Long:
      return int(*At<Long>(field, record, index));
    default:
      return int(*At<Word>(field, record, index));
  }
}

std::string_view FieldText(const Field& field, const std::byte* record, int index) {
  return detail::Trimmed({At<char>(field, record, index), static_cast<std::size_t>(field.Width)});
}

double FieldDate(const Field& field, const std::byte* record, int index) {
  return At<Date>(field, record, index)->Raw();
}

void SetFieldNumber(const Field& field, std::byte* record, int index, long long value) {
  if (field.Kind == FieldKind::Long) {
    *At<Long>(field, record, index) = value;
  } else {
    *At<Word>(field, record, index) = value;
  }
}

void SetFieldText(const Field& field, std::byte* record, int index, std::string_view text) {
  char* bytes = At<char>(field, record, index);
  const auto width = static_cast<std::size_t>(field.Width);
  const std::size_t length = std::min(text.size(), width);
  if (length > 0) std::memmove(bytes, text.data(), length);
  std::memset(bytes + length, ' ', width - length);
}

void SetFieldDate(const Field& field, std::byte* record, int index, double days) {
  At<Date>(field, record, index)->SetRaw(days);
}

std::string FieldShown(const Field& field, const std::byte* record, int index) {
  switch (field.Kind) {
    case FieldKind::Text: {
      const std::string_view text = FieldText(field, record, index);
      const std::string_view words = Says(field.Words, text);
      return std::string(words.empty() ? text : words);
    }
    case FieldKind::Date:
      return IsoDate(*At<Date>(field, record, index));
    case FieldKind::Flag: {
      const bool isSet = FieldNumber(field, record, index) != 0;
      const std::string_view words = Says(field.Words, isSet ? -1 : 0);
      return words.empty() ? (isSet ? "yes" : "no") : std::string(words);
    }
    default: {
      const auto number = FieldNumber(field, record, index);
      const std::string_view words =
          field.Words.empty() ? std::string_view() : Says(field.Words, static_cast<int>(number));
      return words.empty() ? std::to_string(number) : std::string(words);
    }
  }
}

}  // namespace grapplemont
