#include "editor/screens/screencells.h"

#include "editor/choices.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

ui::Tone ToneOf(const Field& field, std::string_view words) {
  if (field.Name != "Disposition") return ui::Tone::Plain;
  if (words == "Face") return ui::Tone::Blue;
  return words == "Heel" ? ui::Tone::Red : ui::Tone::Muted;
}

int CodeIn(const Field& field, const FieldPlace& place, const std::byte* record) {
  if (field.Kind != FieldKind::Text)
    return static_cast<int>(FieldNumber(field, record, place.Index));
  for (const Term& term : field.Words)
    if (term.Stored == FieldText(field, record, place.Index)) return term.Code;
  return 0;
}

std::string WordsOf(const PageColumn& column, const FieldPlace& place, const std::byte* record) {
  if (column.Words.empty()) return FieldShown(*place.Of, record, place.Index);
  const int code = static_cast<int>(FieldNumber(*place.Of, record, place.Index));
  const auto words = Says(column.Words, code);
  return words.empty() ? std::to_string(code) : std::string(words);
}

}  // namespace

ui::Cell CellOf(const World& world, const PageColumn& column, const FieldPlace& place,
                const std::byte* record) {
  const Field& field = *place.Of;
  if (field.To != Refers::Nothing && field.Kind == FieldKind::Word)
    return NameOfUid(world, field.To, static_cast<int>(FieldNumber(field, record, place.Index)));
  if (column.Kind == ui::ColumnKind::Number || column.Kind == ui::ColumnKind::Percent) {
    const long long number = FieldNumber(field, record, place.Index);
    if (field.Unit == "dollars") return {static_cast<double>(number), Dollars(number)};
    if (field.Unit == "hundredths")
      return {static_cast<double>(number), RatingText(static_cast<int>(number))};
    return ui::Cell(static_cast<int>(number));
  }
  const std::string words = WordsOf(column, place, record);
  if (column.Kind == kByCode) return {static_cast<double>(CodeIn(field, place, record)), words};
  return {words, ToneOf(field, words)};
}

}  // namespace grapplemont
