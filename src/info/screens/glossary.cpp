#include "info/screens/glossary.h"

#include <algorithm>
#include <cctype>

#include "info/screens/glossaryfigures.h"
#include "info/search.h"
#include "records/fields/wording.h"
#include "records/world.h"
#include "ui/game.h"
#include "words/glossary.h"

namespace grapplemont {

namespace {

constexpr std::string_view kOfRules = "The trade", kOfTheWorld = "The world";

std::string Small(std::string_view text) {
  std::string small(text);
  for (char& letter : small)
    letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return small;
}

/// "Face, Heel or Tweener"; of a long list the first few.
std::string WordsOf(Vocabulary words) {
  constexpr std::size_t kShown = 8;
  std::string text;
  const std::size_t shown = std::min(words.size(), kShown);
  for (std::size_t i = 0; i < shown; ++i) {
    const bool isLast = i + 1 == words.size();
    text += (i == 0 ? "" : isLast ? " or " : ", ") + std::string(words[i].Says);
  }
  return words.size() > kShown ? text + " and so on" : text;
}

std::string NumbersOf(const Field& field) {
  const bool isOpen = field.Min <= -32768 || field.Max >= 2147483647LL;
  if (isOpen || field.To != Refers::Nothing) return {};
  std::string text = std::to_string(field.Min) + " to " + std::to_string(field.Max);
  if (!field.Unit.empty()) text += field.Unit == "percent" ? "%" : " " + std::string(field.Unit);
  return field.MayBeNone ? text + ", or -1 for none" : text;
}

std::string RangeOf(const Field& field) {
  if (!field.Words.empty()) return WordsOf(field.Words);
  switch (field.Kind) {
    case FieldKind::Flag:
      return "Yes or no";
    case FieldKind::Date:
      return "A day";
    case FieldKind::Text:
      return {};
    default:
      return NumbersOf(field);
  }
}

/// "StatusMonths" as "Status months", "Rank#" as "Rank".
std::string NameOf(const Field& field) {
  std::string_view name = field.Name;
  if (name.ends_with('#')) name.remove_suffix(1);
  return InWords(name);
}

const GlossaryRow* RowFor(const RecordLayout& layout, const Field& field) {
  const std::string full = std::string(layout.Name) + "." + std::string(field.Name);
  const auto row = std::ranges::find(kGlossaryRows, full, &GlossaryRow::Field);
  return row == std::end(kGlossaryRows) ? nullptr : row;
}

void Take(GlossaryTerm& term, const GlossaryRow& row) {
  term.Name = row.Term;
  if (!row.Range.empty()) term.Range = FillHoles(row.Range, GlossaryFigure);
  if (!row.Means.empty()) term.Means = FillHoles(row.Means, GlossaryFigure);
  term.Moves = FillHoles(row.Moves, GlossaryFigure);
  for (std::string_view left = row.Also; !left.empty();) {
    const auto end = left.find(", ");
    term.Also.emplace_back(left.substr(0, end));
    left.remove_prefix(end == left.npos ? left.size() : end + 2);
  }
}

/// A field without a row that says something by itself: of people, yes or no, a word, or percent.
/// Numbers that only the program reads stay out.
bool SpeaksForItself(const RecordLayout& layout, const Field& field) {
  const bool isOfPeople =
      layout.Name == LayoutOf<Worker>().Name || layout.Name == LayoutOf<Staff>().Name;
  const bool isPlain =
      field.Kind == FieldKind::Flag || !field.Words.empty() || field.Unit == "percent";
  return isOfPeople && isPlain && !field.Name.starts_with("Finisher");
}

void AddFields(std::vector<GlossaryTerm>& terms, const RecordLayout& layout) {
  for (const Field& field : layout.Fields) {
    const GlossaryRow* row = RowFor(layout, field);
    if (!row && !SpeaksForItself(layout, field)) continue;
    const bool isOfGame = layout.Name == LayoutOf<GameInfo>().Name;
    GlossaryTerm term{NameOf(field),
                      std::string(isOfGame ? kOfTheWorld : layout.Name),
                      RangeOf(field),
                      std::string(field.Help),
                      {},
                      {}};
    if (row) Take(term, *row);
    terms.push_back(std::move(term));
  }
}

std::vector<GlossaryTerm> MakeGlossary() {
  std::vector<GlossaryTerm> terms;
  for (const RecordLayout* layout :
       {&LayoutOf<Worker>(), &LayoutOf<Staff>(), &LayoutOf<Team>(), &LayoutOf<Stable>(),
        &LayoutOf<Title>(), &LayoutOf<Promotion>(), &LayoutOf<Show>(), &LayoutOf<Network>(),
        &LayoutOf<Sponsor>(), &LayoutOf<Event>(), &LayoutOf<Feud>(), &LayoutOf<GameInfo>()})
    AddFields(terms, *layout);
  for (const GlossaryRow& row : kGlossaryRows) {
    if (!row.Field.empty()) continue;
    terms.push_back({{}, std::string(kOfRules), {}, {}, {}, {}});
    Take(terms.back(), row);
  }
  std::ranges::stable_sort(terms, {}, [](const GlossaryTerm& term) { return Small(term.Name); });
  return terms;
}

bool Answers(const GlossaryTerm& term, const std::string& small) {
  return Small(term.Name) == small || std::ranges::any_of(term.Also, [&](const std::string& also) {
           return Small(also) == small;
         });
}

}  // namespace

std::string GlossaryTerm::Line() const {
  return Range.empty() ? Means : Means + " " + Range + ".";
}

const std::vector<GlossaryTerm>& Glossary() {
  static const std::vector<GlossaryTerm> kTerms = MakeGlossary();
  return kTerms;
}

const GlossaryTerm* FindTerm(std::string_view heading) {
  const std::string small = Small(heading);
  const GlossaryTerm* found = nullptr;
  for (const GlossaryTerm& term : Glossary()) {
    if (!Answers(term, small)) continue;
    if (term.Of == LayoutOf<Worker>().Name) return &term;
    if (!found) found = &term;
  }
  return found;
}

std::vector<TermFit> TermsLike(std::string_view typed, std::size_t most) {
  std::vector<TermFit> terms;
  for (const GlossaryTerm& term : Glossary())
    if (const int fit = FitOfName(term.Name, Joined(term.Also, " "), typed); fit >= 0)
      terms.push_back({&term, fit});
  std::ranges::stable_sort(terms, {}, &TermFit::Fit);
  if (terms.size() > most) terms.resize(most);
  return terms;
}

}  // namespace grapplemont
