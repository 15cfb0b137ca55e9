#include "records/tables/fieldcells.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <optional>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"

namespace grapplemont {

namespace {

// A backslash in front makes a cell literal: it keeps leading blanks, and a lone one is a text of
// no letters where an empty cell would be the default.
constexpr char kLiteral = '\\';
// A date that no calendar day with a fraction can express exactly is written as its bare day count.
constexpr char kDayCount = '@';

/// The field's letters without the blanks that fill it up; those in front belong to it.
std::string_view RawText(const Column& column, const std::byte* record) {
  const ByteSpan bytes = BytesAt(column, record);
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool SameWords(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

template <class Number>
std::optional<Number> Parse(std::string_view text) {
  Number number{};
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::string Shortest(double number) {
  std::array<char, 64> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return std::string(digits.data(), result.ptr);
}

double DaysOf(Day day) {
  return static_cast<double>((day - kDayZero).count());
}

/// "2026-03-31", "2026-03-31+0.25"; nothing for what is neither.
std::optional<double> DaysOfText(std::string_view text) {
  if (!text.empty() && text[0] == kDayCount) return Parse<double>(text.substr(1));
  const auto day = ParseIsoDate(text.substr(0, 10));
  if (!day) return std::nullopt;
  if (text.size() == 10) return DaysOf(*day);
  const auto fraction = text[10] == '+' ? Parse<double>(text.substr(11)) : std::nullopt;
  if (!fraction || !(*fraction >= 0 && *fraction < 1)) return std::nullopt;
  return DaysOf(*day) + *fraction;
}

std::string DateText(double days) {
  Date date;
  date.SetRaw(days);
  const Day day = date;
  std::string text = IsoDate(day);
  const double fraction = days - DaysOf(day);
  if (fraction > 0) text += '+' + Shortest(fraction);
  const auto again = DaysOfText(text);
  if (again && std::memcmp(&*again, &days, sizeof days) == 0) return text;
  return kDayCount + Shortest(days);
}

std::string Listed(Vocabulary words) {
  std::string list;
  for (const Term& term : words) list += (list.empty() ? "" : ", ") + std::string(term.Says);
  return list;
}

std::string NoSuchWord(std::string_view cell, Vocabulary words) {
  std::vector<std::string_view> all;
  for (const Term& term : words) all.push_back(term.Says);
  return "there is no " + QuotedCell(cell) + DidYouMean(cell, all);
}

const Term* TermOf(Vocabulary words, std::string_view cell) {
  for (const Term& term : words)
    if (SameWords(term.Says, cell)) return &term;
  return nullptr;
}

constexpr Term kYesNo[] = {{-1, "", "yes"}, {0, "", "no"}};

Vocabulary WordsOf(const Field& field) {
  return field.Kind == FieldKind::Flag && field.Words.empty() ? Vocabulary(kYesNo) : field.Words;
}

std::string RangeText(const Field& field) {
  return std::to_string(field.Min) + " to " + std::to_string(field.Max) +
         (field.MayBeNone ? " or " + std::string(kNoneCell) : "");
}

std::string TakeNumber(const Field& field, int index, std::string_view cell, std::byte* record) {
  if (field.MayBeNone && SameWords(cell, kNoneCell)) {
    SetFieldNumber(field, record, index, kNoEnd);
    return {};
  }
  if (const Vocabulary words = WordsOf(field); !words.empty()) {
    const Term* term = TermOf(words, cell);
    if (!term) return NoSuchWord(cell, words);
    SetFieldNumber(field, record, index, term->Code);
    return {};
  }
  const auto number = Parse<long long>(cell);
  if (!number) return QuotedCell(cell) + " is not a whole number from " + RangeText(field);
  if (*number < field.Min || *number > field.Max)
    return "is " + std::to_string(*number) + ", outside " + RangeText(field);
  SetFieldNumber(field, record, index, *number);
  return {};
}

std::string TakeDate(const Field& field, int index, std::string_view cell, std::byte* record) {
  const auto days = DaysOfText(cell);
  if (!days) return QuotedCell(cell) + " is not a date; a date is written like 2026-03-31";
  SetFieldDate(field, record, index, *days);
  return {};
}

std::string TakeText(const Field& field, int index, std::string_view cell, std::byte* record) {
  if (!field.Words.empty()) {
    const Term* term = TermOf(field.Words, cell);
    if (!term) return NoSuchWord(cell, field.Words);
    SetFieldText(field, record, index, term->Stored);
    return {};
  }
  if (cell.front() == kLiteral) cell.remove_prefix(1);
  const auto text = FromUtf8(cell);
  if (!text) {
    const std::string letter = FirstForeignLetter(cell);
    if (letter == "?") return "is not written in UTF-8; save the table as \"CSV UTF-8\"";
    return "has the letter " + letter +
           ", which the game cannot hold: it knows those of Windows-1252";
  }
  const auto isWrong = [&](char c) { return IsControl(c) && !(c == '\n' && field.MayBreak); };
  if (std::any_of(text->begin(), text->end(), isWrong))
    return "has a line break or another control character in it";
  if (text->size() > static_cast<std::size_t>(field.Width))
    return QuotedCell(cell) + " has " + std::to_string(text->size()) +
           " letters; there is room for " + std::to_string(field.Width);
  SetFieldText(field, record, index, *text);
  return {};
}

std::string NumberText(const Field& field, long long number) {
  if (field.MayBeNone && number == kNoEnd) return std::string(kNoneCell);
  const Vocabulary words = WordsOf(field);
  const std::string_view says =
      words.empty() ? std::string_view() : Says(words, static_cast<int>(number));
  return says.empty() ? std::to_string(number) : std::string(says);
}

}  // namespace

std::string ShortCell(std::string_view cell) {
  constexpr std::size_t kMost = 60;
  std::string shown(cell.substr(0, kMost));
  // Not in the middle of a letter.
  if (cell.size() > kMost) {
    while (!shown.empty() && (shown.back() & 0xC0) == 0x80) shown.pop_back();
    if (!shown.empty() && (shown.back() & 0x80) != 0) shown.pop_back();
    shown += "...";
  }
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return c >= 0 && c < 32; }, ' ');
  return shown;
}

std::string QuotedCell(std::string_view cell) {
  return '"' + ShortCell(cell) + '"';
}

std::string CellOf(const TableKind& kind, const Column& column, const std::byte* record) {
  const Field& field = *column.Of;
  const int index = column.Index;
  switch (field.Kind) {
    case FieldKind::Date: {
      const double days = FieldDate(field, record, index);
      const double none = FieldDate(field, kind.Default.data(), index);
      return std::memcmp(&days, &none, sizeof days) == 0 ? "" : DateText(days);
    }
    case FieldKind::Text: {
      const std::string_view text = RawText(column, record);
      if (const auto says = Says(field.Words, text); !says.empty()) return std::string(says);
      const bool isDefault = text == RawText(column, kind.Default.data());
      if (text.empty()) return isDefault ? "" : std::string(1, kLiteral);
      const bool literal = text.front() == ' ' || text.front() == kLiteral;
      return (literal ? std::string(1, kLiteral) : std::string()) + ToUtf8(text);
    }
    default:
      return NumberText(field, FieldNumber(field, record, index));
  }
}

std::string TakeCell(const TableKind& kind, const Column& column, std::string_view cell,
                     std::byte* record) {
  const Field& field = *column.Of;
  cell = detail::Trimmed(cell);
  if (cell.empty()) {
    const ByteSpan left = BytesAt(column, kind.Default.data());
    std::memcpy(record + (left.data() - kind.Default.data()), left.data(), left.size());
    if (HasDefault(kind, column)) return {};
    const Vocabulary words = WordsOf(field);
    return words.empty() ? "is empty" : "is empty; it needs one of " + Listed(words);
  }
  switch (field.Kind) {
    case FieldKind::Date:
      return TakeDate(field, column.Index, cell, record);
    case FieldKind::Text:
      return TakeText(field, column.Index, cell, record);
    default:
      return TakeNumber(field, column.Index, cell, record);
  }
}

}  // namespace grapplemont
