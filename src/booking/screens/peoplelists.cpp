#include "booking/screens/peoplelists.h"

#include <utility>

#include "records/fields/wording.h"
#include "records/segments.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// What a list is: the only one of its step, one of two abreast, one of more. The name's share of
/// the width tells.
enum Abreast { kAmongMany = 4, kOneOfTwo = 5, kAlone = 6 };

/// A number of the record, and what it is called.
struct Skill {
  const char* Title;
  const char* Short;  // its heading where the list before it names the rest
  const char* Tip;
  Percent Worker::*Is;
};
constexpr Skill kRingSkills[] = {{"Brawl", "Brawl", "Brawling.", &Worker::Brawl},
                                 {"Technical", "Tech.", "Technical skill.", &Worker::Technical},
                                 {"Speed", "Speed", "Speed.", &Worker::Speed}};
constexpr Skill kCharisma = {"Charisma", "Char.", "Charisma: what talk is made of.",
                             &Worker::Charisma};
constexpr Skill kCondition = {"Condition", "Cond.", "", &Worker::Condition};
constexpr Skill kMorale = {"Morale", "Morale", "", &Worker::Morale};

CellColumn<Worker> ColumnOf(const Skill& skill, Abreast room) {
  const bool narrow = room != kAlone;
  return {{.Title = skill.Title,
           .Kind = K::Number,
           .Width = narrow ? 1 : 2,
           .Tip = skill.Tip,
           .Short = skill.Short},
          [is = skill.Is](const Worker& worker) { return ui::Cell(int(worker.*is)); }};
}

CellColumn<Worker> MarksColumn(Abreast room, const RosterMarks* marks) {
  const bool narrow = room != kAlone;
  ui::Column heading{"Marks", K::Tags, narrow ? 3 : 5,
                     "Champion, feuds with their heat, Tag Team, rows of this card that they are "
                     "booked in; Hot: has won the last three matches; Tired: condition under 60; "
                     "Debut: not seen yet."};
  heading.ToneOf = MarkTone;
  if (narrow) heading.SignOf = MarkSign;
  return {std::move(heading), [marks](const Worker& worker) {
            return ui::Cell(marks ? Joined(marks->Of(worker), ", ") : std::string());
          }};
}

/// What the choice is made on comes first, marks beside the name: lists abreast have no room for
/// all.
CellColumns<Worker> TableOf(int kind, Abreast room, const RosterMarks* marks) {
  const bool narrow = room != kAlone;
  CellColumns<Worker> table = {
      {{"Name", K::Text, room}, [](const Worker& worker) { return worker.Name.View(); }},
      MarksColumn(room, marks),
      {{.Title = "Disposition",
        .Kind = K::Tag,
        .Width = narrow ? 1 : 3,
        .Tip = "Face, Heel or Tweener.",
        .SignOf = narrow ? DispositionSign : nullptr,
        .Short = "Disp."},
       [](const Worker& worker) { return DispositionCell(worker); }},
      ColumnOf({"Over", "Over", "Popularity.", &Worker::Over}, room)};
  // Talk stands or falls with one skill.
  if (kind != kMatch) table.push_back(ColumnOf(kCharisma, room));
  if (kind == kMatch && room != kAmongMany)
    for (const Skill& skill : kRingSkills) table.push_back(ColumnOf(skill, room));
  table.push_back(ColumnOf(kCondition, room));
  // Of two who meet it is their skills that count; what they would mind is told beside.
  if (kind != kMatch || room != kOneOfTwo) table.push_back(ColumnOf(kMorale, room));
  return table;
}

}  // namespace

namespace {

struct MarkLook {
  std::string_view Word;
  ui::Tone Colour;
  ui::Sign As;
};
constexpr MarkLook kMarkLooks[] = {
    {"Champion", ui::Tone::Gold, ui::Sign::Crown}, {"Feud", ui::Tone::Amber, ui::Sign::Flame},
    {"Team", ui::Tone::Plain, ui::Sign::Pair},     {"Row", ui::Tone::Plain, ui::Sign::Row},
    {"Hot", ui::Tone::Green, ui::Sign::Rise},      {"Tired", ui::Tone::Red, ui::Sign::Tired},
    {"Debut", ui::Tone::Green, ui::Sign::Star}};

const MarkLook* LookOf(std::string_view mark) {
  for (const MarkLook& look : kMarkLooks)
    if (mark.starts_with(look.Word)) return &look;
  return nullptr;
}

}  // namespace

ui::Tone MarkTone(std::string_view mark) {
  const MarkLook* const look = LookOf(mark);
  return look ? look->Colour : ui::Tone::Plain;
}

ui::Sign MarkSign(std::string_view mark) {
  const MarkLook* const look = LookOf(mark);
  return look ? look->As : ui::Sign::None;
}

std::vector<ui::Column> PeopleColumns(int kind, int listsAbreast) {
  return HeadingsOf(TableOf(kind,
                            listsAbreast > 2    ? kAmongMany
                            : listsAbreast == 2 ? kOneOfTwo
                                                : kAlone,
                            nullptr));
}

void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, int kind,
                const RosterMarks& marks, bool none) {
  const auto table = TableOf(kind, static_cast<Abreast>(list.Columns().front().Width), &marks);
  std::vector<ui::ListBox::Row> rows;
  if (none) rows.push_back({std::vector<ui::Cell>(table.size(), ui::Cell("")), 0});
  if (none) rows.back().Cells.front() = "None";
  for (const Worker* worker : people) rows.push_back(RowOf(table, *worker, worker->Uid));
  list.Fill(std::move(rows), false);
  if (none) list.Select(1);
}

}  // namespace grapplemont
