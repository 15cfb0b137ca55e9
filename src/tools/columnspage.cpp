#include <algorithm>
#include <ostream>

#include "records/fields/fields.h"
#include "records/tables/cells.h"
#include "tools/commands.h"
#include "tools/pages.h"

namespace grapplemont::tools {

namespace {

std::string Words(Vocabulary words) {
  std::string list;
  for (const Term& term : words) list += (list.empty() ? "" : ", ") + std::string(term.Says);
  return list;
}

std::string ReferenceInWords(Refers to) {
  switch (to) {
    case Refers::Worker:
      return "a worker's Name";
    case Refers::Promotion:
      return "a promotion's Initials";
    case Refers::Staff:
      return "a staff member's Name";
    case Refers::Commentator:
      return "a staff member's Name, or a worker's if ColourIsWorker is yes";
    case Refers::Network:
      return "a network's Name";
    case Refers::Sponsor:
      return "a sponsor's Name";
    case Refers::Stable:
      return "the Name of a stable of the employer, or None";
    case Refers::Split:
      return "one of the employer's Split1 to Split4, or None";
    default:
      return "";
  }
}

/// "dollars, 0 to 1000"
std::string NumberInWords(const Field& field) {
  const bool any = field.Min == -32768 || field.Min == -2147483648LL;
  return (field.Unit.empty() ? "" : std::string(field.Unit) + ", ") +
         (any ? "any whole number"
              : std::to_string(field.Min) + " to " + std::to_string(field.Max));
}

std::string GoesIn(const Field& field) {
  std::string text = ReferenceInWords(field.To);
  if (!text.empty()) return text + (field.MayBeNone ? ", or none" : "");
  if (!field.Words.empty()) return Words(field.Words);
  switch (field.Kind) {
    case FieldKind::Text:
      return "up to " + std::to_string(field.Width) + " letters" + (field.IsKey ? ", unique" : "");
    case FieldKind::Date:
      return "a date, like 2026-03-31";
    case FieldKind::Flag:
      return "yes or no";
    default:
      return NumberInWords(field) + (field.MayBeNone ? ", or none" : "") +
             (field.IsKey ? ", unique" : "");
  }
}

std::string LeftOut(const TableKind& kind, const Column& column) {
  if (IsUid(*column.Of)) return "the next free number";
  if (!HasDefault(kind, column)) return "must be there";
  const std::byte* record = kind.Default.data();
  if (column.Of->Kind == FieldKind::Date) {
    const std::string shown = FieldShown(*column.Of, record, column.Index);
    return shown == IsoDate(kDayZero) ? "no date" : shown;
  }
  if (column.Of->Kind != FieldKind::Text && column.Of->To != Refers::Nothing) return "nobody";
  const std::string cell = CellOf(kind, column, record);
  return cell.empty() ? "empty" : cell;
}

std::string ColumnName(const Field& field) {
  if (field.Count == 1) return FieldName(field, 0);
  return FieldName(field, 0) + " to " + FieldName(field, field.Count - 1);
}

std::string TableSection(const TableKind& kind) {
  std::string text = "\n### " + std::string(kind.Name) + "\n\nAt most " +
                     std::to_string(kind.Layout->Limit) + " records. Becomes `" +
                     std::string(kind.Layout->File) + "`.\n\n";
  text += "| Column | What goes in | Left out or empty | Meaning |\n| --- | --- | --- | --- |\n";
  for (const Field& field : kind.Layout->Fields)
    text += "| " + ColumnName(field) + " | " + GoesIn(field) + " | " + LeftOut(kind, {&field, 0}) +
            " | " + std::string(field.Help) + " |\n";
  return text;
}

int Columns(const Arguments&, Shell& shell) {
  shell.Out << ColumnsPage();
  return 0;
}

}  // namespace

std::string ColumnsPage() {
  std::string page;
  for (const TableKind& kind : TableKinds())
    if (!kind.OfGame) page += TableSection(kind);
  return page;
}

const Command kColumns{
    "columns", "", "Prints the part of docs/world-making.md that tells every column.",
    0,         {}, Columns};

}  // namespace grapplemont::tools
