#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "records/fields/fields.h"

// One list of fields per record: all that must know a record's fields (the check, the tables, the
// editor, tool-tips, the file-format page) reads it, and nothing else does it by hand.

namespace grapplemont {

enum class FieldKind { Word, Percent, Long, Flag, Date, Text };

/// What a field's number or text leads to.
enum class Refers {
  Nothing,
  Worker,
  Promotion,
  Staff,
  Commentator,
  Network,
  Sponsor,
  Stable,
  Split,
  Title
};

/// One word of a vocabulary: the code as stored (a number, or a text for text fields) and what it
/// says.
struct Term {
  int Code = 0;
  std::string_view Stored;
  std::string_view Says;
};
using Vocabulary = std::span<const Term>;

/// The words of a code; empty for an unknown one.
std::string_view Says(Vocabulary words, int code);
std::string_view Says(Vocabulary words, std::string_view stored);

struct Field {
  std::string_view Name;  // '#' stands for the number of a numbered field: "Rank#"
  FieldKind Kind = FieldKind::Word;
  int Offset = 0;
  int Width = 0;
  int Count = 1;   // numbered fields: how many
  int Stride = 0;  // and how many bytes from one to the next
  long long Min = 0, Max = 0;
  bool MayBeNone = false;  // besides Min..Max, -1 stands for "none"
  bool IsKey = false;      // unique in its file
  bool MayBreak = false;   // a text of several lines
  bool IsCounted = false;  // rules count with it, and never leave Min..Max
  Refers To = Refers::Nothing;
  Vocabulary Words = {};
  std::string_view Unit = {};
  std::string_view Help = {};

 private:
  // Stands before its uses: constants are made by it, some compilers as soon as they read them.
  template <class T>
  constexpr Field With(T Field::*member, T value) const {
    Field field = *this;
    field.*member = value;
    return field;
  }

 public:
  constexpr Field In(long long min, long long max) const {
    return With(&Field::Min, min).With(&Field::Max, max);
  }
  constexpr Field OrNone() const { return With(&Field::MayBeNone, true); }
  constexpr Field Key() const { return With(&Field::IsKey, true); }
  constexpr Field InLines() const { return With(&Field::MayBreak, true); }
  /// A number that leads to a record is its uid, or 0 for none.
  constexpr Field LeadsTo(Refers to) const {
    return (Kind == FieldKind::Word ? In(0, 32767) : *this).With(&Field::To, to);
  }
  constexpr Field From(Vocabulary words) const { return With(&Field::Words, words); }
  constexpr Field Counts(std::string_view unit) const { return With(&Field::Unit, unit); }
  constexpr Field Means(std::string_view help) const { return With(&Field::Help, help); }
};

/// A record's layout: what a file of it is called, how long a record is, how many may be in it.
struct RecordLayout {
  std::string_view Name;  // "Worker"
  std::string_view File;  // "wrestler.dat"
  int Size = 0;           // bytes a record
  int Limit = 0;          // records a file
  std::span<const Field> Fields;
};

/// The layout of a record type; GM_RECORD declares it beside the record, GM_LAYOUT defines it.
template <class T>
const RecordLayout& LayoutOf();

/// "Rank3" for the third of "Rank#".
std::string FieldName(const Field& field, int index);

// Access to a field of a record's bytes by its description; `index` counts from 0 within a numbered
// field.
long long FieldNumber(const Field& field, const std::byte* record,
                      int index = 0);  // no Text, no Date
std::string_view FieldText(const Field& field, const std::byte* record, int index = 0);
double FieldDate(const Field& field, const std::byte* record, int index = 0);
/// Throws FieldOverflow when the number does not fit; percentages are not saturated here.
void SetFieldNumber(const Field& field, std::byte* record, int index, long long value);
void SetFieldText(const Field& field, std::byte* record, int index, std::string_view text);
void SetFieldDate(const Field& field, std::byte* record, int index, double days);
/// The value for a person to read: a code by its words, a date as yyyy-mm-dd, a flag as yes or no.
std::string FieldShown(const Field& field, const std::byte* record, int index = 0);

namespace detail {

template <FieldKind Kind, long long Min = 0, long long Max = 0>
struct TypeOf {
  static constexpr FieldKind kKind = Kind;
  static constexpr long long kMin = Min, kMax = Max;
};
template <FieldKind Kind, long long Min, long long Max, bool OrNone>
struct CountedTypeOf : TypeOf<Kind, Min, Max> {
  static constexpr bool kOrNone = OrNone;
};

template <class T>
struct FieldType;
template <>
struct FieldType<Word> : TypeOf<FieldKind::Word, -32768, 32767> {};
template <>
struct FieldType<Percent> : CountedTypeOf<FieldKind::Percent, 0, 100, false> {};
template <>
struct FieldType<Long> : TypeOf<FieldKind::Long, -2147483648LL, 2147483647LL> {};
template <int Bytes, int Least, int Most, bool OrNone>
struct FieldType<Ranged<Bytes, Least, Most, OrNone>>
    : CountedTypeOf<Bytes == 2 ? FieldKind::Word : FieldKind::Long, Least, Most, OrNone> {};
template <>
struct FieldType<Flag> : TypeOf<FieldKind::Flag, -1, 0> {};
template <>
struct FieldType<Date> : TypeOf<FieldKind::Date> {};
template <int N>
struct FieldType<Text<N>> : TypeOf<FieldKind::Text> {};

template <class T>
constexpr Field MakeField(std::string_view name, std::size_t offset, int count = 1,
                          std::size_t stride = 0) {
  Field f;
  f.Name = name;
  f.Kind = FieldType<T>::kKind;
  f.Offset = static_cast<int>(offset);
  f.Width = static_cast<int>(sizeof(T));
  f.Count = count;
  f.Stride = static_cast<int>(stride);
  f.Min = FieldType<T>::kMin;
  f.Max = FieldType<T>::kMax;
  if constexpr (requires { FieldType<T>::kOrNone; }) {
    f.IsCounted = true;
    f.MayBeNone = FieldType<T>::kOrNone;
  }
  return f;
}

template <class Array>
constexpr Field MakeNumbered(std::string_view name, std::size_t offset) {
  using Element = typename Array::value_type;
  return MakeField<Element>(name, offset, static_cast<int>(std::tuple_size_v<Array>),
                            sizeof(Element));
}

}  // namespace detail

/// Files that mostly grow at their end and become long: whoever changes a record of theirs says so
/// (Records::Change), and nobody has to look for changes in all of it. GM_GROWS marks them.
template <class Record>
inline constexpr bool kGrows = false;
#define GM_GROWS(Record) \
  template <>            \
  inline constexpr bool kGrows<Record> = true

// A record of that many bytes in its file; docs/file-formats.md has where each field stands.
#define GM_RECORD(Record, Bytes)                                    \
  static_assert(sizeof(Record) == (Bytes) && alignof(Record) == 1); \
  template <>                                                       \
  const RecordLayout& LayoutOf<Record>()
#define GM_LAYOUT(Record, File, Limit, Fields)                                           \
  template <>                                                                            \
  const RecordLayout& LayoutOf<Record>() {                                               \
    static constexpr RecordLayout kLayout{#Record, File, sizeof(Record), Limit, Fields}; \
    return kLayout;                                                                      \
  }

// A member, a numbered array of fields, and a member of each element of an array of parts.
#define GM_FIELD(Record, Member) \
  ::grapplemont::detail::MakeField<decltype(Record::Member)>(#Member, offsetof(Record, Member))
#define GM_NUMBERED(Record, Member)                                          \
  ::grapplemont::detail::MakeNumbered<decltype(Record::Member)>(#Member "#", \
                                                                offsetof(Record, Member))
#define GM_PART(Record, Array, Part, Member, Name)            \
  ::grapplemont::detail::MakeField<decltype(Part::Member)>(   \
      Name, offsetof(Record, Array) + offsetof(Part, Member), \
      static_cast<int>(std::tuple_size_v<decltype(Record::Array)>), sizeof(Part))

}  // namespace grapplemont
