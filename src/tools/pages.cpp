#include <algorithm>

#include "records/fields/fields.h"
#include "records/tables/fieldcells.h"
#include "records/tables/tablekinds.h"
#include "records/world.h"
#include "tools/commands.h"

// Pages of docs/ that are made from the field lists, so that they are always right.

namespace grapplemont::tools {

namespace {

std::string Words(Vocabulary words) {
  std::string list;
  for (const Term& term : words) list += (list.empty() ? "" : ", ") + std::string(term.Says);
  return list;
}

/// What a field that leads somewhere holds: in a table, in a file.
struct Reference {
  Refers To;
  std::string_view Cell, Record;
};
constexpr Reference kReferences[] = {
    {Refers::Nothing, "", ""},
    {Refers::Worker, "a worker's Name", "Worker"},
    {Refers::Promotion, "a promotion's Initials", "Promotion"},
    {Refers::Staff, "a staff member's Name", "Staff"},
    {Refers::Commentator, "a staff member's Name, or a worker's if ColourIsWorker is yes",
     "Staff, or Worker if ColourIsWorker"},
    {Refers::Network, "a network's Name", "Network"},
    {Refers::Sponsor, "a sponsor's Name", "Sponsor"},
    {Refers::Stable, "the Name of a stable of the employer, or None", "Stable, by name"},
    {Refers::Split, "one of the employer's Split1 to Split4, or None",
     "Split1 to Split4 of the employer, by name"},
    {Refers::Title, "", "Title, by name"}};

const Reference& ReferenceOf(const Field& field) {
  return *std::ranges::find(kReferences, field.To, &Reference::To);
}

/// "dollars, 0 to 1000"
std::string NumberInWords(const Field& field) {
  const bool any = field.Min == -32768 || field.Min == -2147483648LL;
  return (field.Unit.empty() ? "" : std::string(field.Unit) + ", ") +
         (any ? "any whole number"
              : std::to_string(field.Min) + " to " + std::to_string(field.Max));
}

std::string GoesIn(const Field& field) {
  std::string text(ReferenceOf(field).Cell);
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
  for (const TableKind& kind : TableKinds())
    if (!kind.OfGame) shell.Out << TableSection(kind);
  return 0;
}

constexpr std::string_view kFormatsIntroduction = R"(# File formats

This page is made by `grapplemont-world formats` from the lists of fields that the program itself works with.

## Folders

A world is a folder of record files. Two kinds of folder hold one, both in the *home* (the working directory if it has
`data`, else the user's data folder):

- `data` is the default world, which a new game copies. It holds the ten files of the data set: `belt.dat`,
  `event.dat`, `network.dat`, `promos.dat`, `sponsor.dat`, `stables.dat`, `staff.dat`, `teams.dat`, `tv.dat`,
  `wrestler.dat`.
- `s1` to `s8` are the save slots. Each is a complete running world: the ten files, and those that only a game has:
  `gameinfo.dat` (a slot is in use exactly when it has one), `news.dat`, `notes.dat`, `feudinfo.dat`, `match.dat` while
  a show is booked, `showrun.dat` while one is under way, `incident.tmp` when something happened backstage,
  `cards.dat` with the cards of the last shows and the drafts of those to come,
  `deeds.dat`, which keeps what the wrestling world did lately, `guide.dat`, how far the first week's guide has come,
  `worldkey.dat`, which sets this game's hidden gifts apart from another's, `board.dat` and `wishes.dat`, what the board
  has said and what owners have wished, `monthplan.dat`, what a small promotion has done with its month, `houserules.dat`
  with the rules of the house, `grudges.dat`, who is after whom at the rivals', and the past:
  `history.dat` (every show of the player's, and how each promotion stood at every month end), `bouts.dat` (the player's
  matches), `tallies.dat` (what each worker's matches add up to), `reigns.dat` (the reigns of every Title in the world),
  `reports.dat` (the words of the last twelve shows), `said.dat` (when each line of the reports was last said), `mornings.dat` (what these shows moved, step by step),
  `annals.dat` (what has happened in the wrestling world, an event a record, from which chronicles are written),
  `mailread.dat` (which mails have been read), `awards.dat` (the awards of the years), `yearend.dat` (how
  popular everybody was when the last year ended), `months.dat` (how everybody stood on the firsts of twelve months),
  `moods.dat` (what moved the morale of the player's people), `rivalcards.dat` (the matches of the rivals' last shows),
  `ringnames.dat` (names that people have given up), and what all of it adds up to since the game began:
  `careers.dat` and `tenures.dat` (what everybody has done, anywhere and with each promotion), `pairs.dat` (who teamed
  with whom), `feats.dat` (the best of each kind), `yearbook.dat` (the pages of the years), `hall.dat` (the hall of
  fame) and `totals.dat` (how far the counting has come).

None of the past is needed to play: where one of its files is missing or cut short, the game goes on without what stood
in it. A full file makes room by dropping its oldest records: a thousand of the history and of the reigns that have
ended, five hundred matches (what they add up to stays in the tallies), a year of awards, five hundred moves of morale,
five hundred matches of rivals' cards, a hundred names. The annals keep some fifty years; their first record says since
when, and in which version they are written.
What adds up is brought up to date on every first of a month and at the end of a year; what has happened since is
counted when it is looked at. Of those who have left the world the two thousand careers that were worth most are kept,
of pairs the two thousand with the most days as champions and matches, of feats fifteen of a kind and promotion (three
of one that has closed), of yearbooks 150 years.
The words of a show take the places of the oldest one's, a month those of the same month a year before.

## The journal

A slot also has a `journal`. Every click of the player is one commit: what it changed in any of the files is first
written to the journal as one checked record and brought to the disk, and only then copied into the files. A commit is
there whole or not at all, whatever becomes of the power. The files alone may therefore lag behind the journal; opening
the slot replays it. `world.id` tells which journal belongs to the world, `world.seal` how far the files are, and
`s1.lock` beside the slot keeps a second program out. [How saving works](saving.md) tells the rest. Copy a slot as a whole folder while no program has it open.

## Records

Except for `notes.dat`, which is plain text, a file is a row of records of one length, without a header. Records are
numbered from 1. What stands behind the last whole record is ignored, and overwritten by the next one.

| Type | Bytes | Holds |
| --- | --- | --- |
| text | as wide as the field | letters of Windows-1252, one byte each, filled up with blanks |
| 16-bit | 2 | a whole number, signed, little-endian; -1 (bytes FF FF) often stands for "none" or "no end" |
| percent | 2 | the same, from 0 to 100 |
| flag | 2 | the same: -1 is yes, 0 is no |
| 32-bit | 4 | a whole number, signed, little-endian |
| date | 8 | days since 30 December 1899, a little-endian floating-point number of double precision; its fraction is the time of day |

Records know each other by uid, a number in the first two bytes of a record that keeps for life; 0 is nobody. Workers
are led to Stables and to the parts of a split roster by name.
)";

/// By FieldKind.
constexpr std::string_view kTypeNames[] = {"16-bit", "percent", "32-bit", "flag", "date", "text"};

std::string NumberRange(const Field& field) {
  if (field.Min == -32768 && field.Max == 32767) return "any";
  if (field.Min == -2147483648LL) return "any";
  const std::string range = std::to_string(field.Min) + " to " + std::to_string(field.Max);
  return range + (field.MayBeNone ? ", or -1" : "");
}

std::string Stored(const Field& field, const Term& term) {
  if (field.Kind == FieldKind::Text) return "\"" + std::string(term.Stored) + "\"";
  return std::to_string(term.Code);
}

std::string Range(const Field& field) {
  std::string words;
  for (const Term& term : field.Words) {
    if (!words.empty()) words += ", ";
    words += Stored(field, term);
    if (term.Stored != term.Says) words += " " + std::string(term.Says);
  }
  if (!words.empty()) return words;
  switch (field.Kind) {
    case FieldKind::Text:
      return field.IsKey ? "unique" : "";
    case FieldKind::Date:
    case FieldKind::Flag:
      return "";
    default:
      return NumberRange(field) + (field.IsKey ? ", unique" : "");
  }
}

std::string NameOf(const Field& field) {
  const std::string first = "`" + FieldName(field, 0) + "`";
  return field.Count == 1 ? first : first + " to `" + FieldName(field, field.Count - 1) + "`";
}

std::string OffsetOf(const Field& field) {
  const std::string first = std::to_string(field.Offset);
  return field.Count == 1 ? first : first + ", every " + std::to_string(field.Stride);
}

std::string FileSection(const RecordLayout& layout) {
  std::string text = "\n## " + std::string(layout.File) + ": " + std::string(layout.Name) + "\n\n";
  text += layout.Limit == 1 ? "One record" : "At most " + std::to_string(layout.Limit) + " records";
  text += " of " + std::to_string(layout.Size) + " bytes.\n\n";
  text += "| Offset | Width | Type | Field | Values | Refers to | Unit | Meaning |\n";
  text += "| --- | --- | --- | --- | --- | --- | --- | --- |\n";
  for (const Field& field : layout.Fields) {
    const std::string cells[] = {OffsetOf(field),
                                 std::to_string(field.Width),
                                 std::string(kTypeNames[static_cast<std::size_t>(field.Kind)]),
                                 NameOf(field),
                                 Range(field),
                                 std::string(ReferenceOf(field).Record),
                                 std::string(field.Unit),
                                 std::string(field.Help)};
    for (const std::string& cell : cells) text += "| " + cell + (cell.empty() ? "" : " ");
    text += "|\n";
  }
  return text;
}

int Formats(const Arguments&, Shell& shell) {
  shell.Out << kFormatsIntroduction;
  for (const TableKind& kind : TableKinds()) shell.Out << FileSection(*kind.Layout);
  return 0;
}

}  // namespace

const Command kColumns{
    "columns", "", "Prints the part of docs/world-making.md that tells every column.", {}, Columns};
const Command kFormats{"formats", "", "Prints docs/file-formats.md.", {}, Formats};

}  // namespace grapplemont::tools
