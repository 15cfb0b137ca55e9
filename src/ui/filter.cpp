#include "ui/filter.h"

#include <algorithm>
#include <array>
#include <compare>

#include "records/fields/fields.h"
#include "ui/asnumber.h"

namespace grapplemont::ui {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char at) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto end = std::min(text.find(at), text.size());
    if (const auto part = Trim(text.substr(0, end)); !part.empty()) parts.push_back(part);
    if (end == text.size()) return parts;
    text.remove_prefix(end + 1);
  }
}

bool TakeFront(std::string_view& text, std::string_view start) {
  if (!text.starts_with(start)) return false;
  text = Trim(text.substr(start.size()));
  return true;
}

/// "09/03/2026" or "2026-03-09" as the day count of the records.
std::optional<double> ReadDate(std::string_view text) {
  const auto count = [](Day day) {
    constexpr Day kDayZero{std::chrono::year{1899} / 12 / 30};
    return static_cast<double>((day - kDayZero).count());
  };
  if (const auto iso = ParseIsoDate(text)) return count(*iso);
  const auto parts = Split(text, '/');
  if (parts.size() != 3) return std::nullopt;
  const auto day = AsNumber(parts[0]), month = AsNumber(parts[1]), year = AsNumber(parts[2]);
  if (!day || !month || !year || *day < 1 || *month < 1) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{*year < 100 ? *year + 2000 : *year},
                                         std::chrono::month{static_cast<unsigned>(*month)},
                                         std::chrono::day{static_cast<unsigned>(*day)}};
  return date.ok() ? std::optional(count(Day{date})) : std::nullopt;
}

/// "70", "70%", "-3.5", "$1,200", "250k", "1.5m" or a date.
std::optional<double> ReadNumber(std::string_view text) {
  if (const auto date = ReadDate(text)) return date;
  const bool negative = TakeFront(text, "-");
  TakeFront(text, "$");
  double unit = 1;
  constexpr std::array<std::pair<char, double>, 5> kUnits = {
      {{'%', 1}, {'k', 1e3}, {'K', 1e3}, {'m', 1e6}, {'M', 1e6}}};
  for (const auto& [letter, worth] : kUnits)
    if (text.ends_with(letter)) {
      text.remove_suffix(1);
      unit = worth;
      break;
    }
  std::string digits(text);
  std::erase(digits, ',');
  const auto number = AsNumber<double>(digits);
  return number ? std::optional((negative ? -*number : *number) * unit) : std::nullopt;
}

/// What the letters 0xC0 to 0xFF are without their accents.
constexpr std::string_view kBare =
    "aaaaaa\xe6"
    "ceeeeiiii\xf0"
    "nooooo\xd7"
    "ouuuuy\xfe\xdf"
    "aaaaaa\xe6"
    "ceeeeiiii\xf0"
    "nooooo\xf7"
    "ouuuuy\xfey";
static_assert(kBare.size() == 64);

char Fold(char letter) {
  const auto byte = static_cast<unsigned char>(letter);
  if (byte >= 'A' && byte <= 'Z') return static_cast<char>(byte + ('a' - 'A'));
  if (byte >= 0xC0) return kBare[byte - 0xC0u];
  switch (byte) {
    case 0x8A:
    case 0x9A:
      return 's';
    case 0x8E:
    case 0x9E:
      return 'z';
    case 0x9F:
      return 'y';
    case 0x8C:
      return '\x9c';
    default:
      return letter;
  }
}

}  // namespace

std::string Folded(std::string_view text) {
  std::string folded(text);
  std::transform(folded.begin(), folded.end(), folded.begin(), Fold);
  return folded;
}

bool IsNumeric(ColumnKind kind) {
  return kind == ColumnKind::Number || kind == ColumnKind::Percent || kind == ColumnKind::Date;
}

Filter::Filter(std::string_view expression) {
  expression = Trim(expression);
  if (expression.find('|') != expression.npos) not_ = TakeFront(expression, "!");
  for (const std::string_view alternative : Split(expression, '|')) {
    std::vector<Term> terms;
    for (const std::string_view part : Split(alternative, '&'))
      if (auto term = Read(part)) terms.push_back(std::move(*term));
    if (!terms.empty()) alternatives_.push_back(std::move(terms));
  }
}

std::optional<Filter::Term> Filter::Read(std::string_view text) {
  constexpr std::pair<std::string_view, bool (*)(std::partial_ordering)> kOperators[] = {
      {">=", std::is_gteq}, {"<=", std::is_lteq}, {"==", std::is_eq},
      {">", std::is_gt},    {"<", std::is_lt},    {"=", std::is_eq}};
  Term term;
  term.Not = TakeFront(text, "!");
  for (const auto& [sign, compares] : kOperators)
    if (TakeFront(text, sign)) {
      term.Compares = compares;
      break;
    }
  if (text.empty()) return std::nullopt;
  term.Text = Folded(text);
  if (const auto dots = text.find(".."); !term.Compares && dots != text.npos) {
    term.Low = ReadNumber(Trim(text.substr(0, dots)));
    if (term.Low) term.High = ReadNumber(Trim(text.substr(dots + 2)));
  } else {
    term.Low = ReadNumber(text);
  }
  return term;
}

bool Filter::Fits(const Term& term, const Cell& cell, ColumnKind kind) {
  const bool asNumber = IsNumeric(kind) && term.Low;
  if (asNumber && term.High) return cell.Number >= *term.Low && cell.Number <= *term.High;
  const std::string text = Folded(cell.Text);
  if (!term.Compares) return text.find(term.Text) != std::string::npos;
  return term.Compares(asNumber ? cell.Number <=> *term.Low
                                : std::partial_ordering(text <=> term.Text));
}

bool Filter::Fits(const Cell& cell, ColumnKind kind) const {
  if (Empty()) return true;
  return not_ != std::ranges::any_of(alternatives_, [&](const auto& terms) {
           return std::ranges::all_of(
               terms, [&](const Term& term) { return Fits(term, cell, kind) != term.Not; });
         });
}

namespace {

constexpr std::string_view kSigns = "<>=!:", kComparing = "<>=";

/// The column that a name means: its whole title, or the only one that begins so.
std::optional<std::size_t> ColumnNamed(std::string_view name, const std::vector<Column>& columns) {
  const std::string wanted = Folded(name);
  std::optional<std::size_t> begins;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::string title = Folded(columns[i].Title);
    if (title == wanted || title == wanted + ".") return i;
    if (!title.starts_with(wanted)) continue;
    if (begins) return std::nullopt;
    begins = i;
  }
  return begins;
}

}  // namespace

Search::Search(std::string_view line, const std::vector<Column>& columns) {
  for (std::string_view text : Split(line, ',')) {
    Term term;
    const auto sign = text.find_first_of(kSigns);
    if (sign != 0 && sign != text.npos)
      term.Column = ColumnNamed(Trim(text.substr(0, sign)), columns);
    if (term.Column) {
      text = text.substr(sign);
      TakeFront(text, ":");
    } else {
      term.Not = TakeFront(text, "!");
      term.NumbersAlone = text.find_first_of(kComparing) == 0;
    }
    term.Wanted = Filter(text);
    if (!term.Wanted.Empty()) terms_.push_back(std::move(term));
  }
}

bool Search::Fits(const std::vector<Cell>& cells, const std::vector<Column>& columns) const {
  const auto fits = [&](const Term& term, std::size_t i) {
    if (i >= cells.size()) return false;
    const ColumnKind kind = i < columns.size() ? columns[i].Kind : ColumnKind::Text;
    return (!term.NumbersAlone || IsNumeric(kind)) && term.Wanted.Fits(cells[i], kind);
  };
  return std::ranges::all_of(terms_, [&](const Term& term) {
    if (term.Column) return fits(term, *term.Column);
    bool found = false;
    for (std::size_t i = 0; i < cells.size() && !found; ++i) found = fits(term, i);
    return found != term.Not;
  });
}

}  // namespace grapplemont::ui
