#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "records/world.h"
#include "ui/screen.h"

namespace grapplemont {

// How records stand in tables. A table's columns are declared together: each a heading, a tip and
// how a record stands in it.

template <class Record>
struct CellColumn {
  ui::Column Heading;
  std::function<ui::Cell(const Record&)> Show;
};
template <class Record>
using CellColumns = std::vector<CellColumn<Record>>;

template <class Record>
std::vector<ui::Column> HeadingsOf(const CellColumns<Record>& columns) {
  std::vector<ui::Column> headings;
  for (const CellColumn<Record>& column : columns) headings.push_back(column.Heading);
  return headings;
}
template <class Record>
ui::ListBox::Row RowOf(const CellColumns<Record>& columns, const Record& record, int key) {
  ui::ListBox::Row row{{}, key};
  row.Cells.reserve(columns.size());
  for (const CellColumn<Record>& column : columns) row.Cells.push_back(column.Show(record));
  return row;
}

template <class Record>
const Record& RecordOf(const Record& record) {
  return record;
}
template <class Record>
const Record& RecordOf(const Record* record) {
  return *record;
}
/// Fills a table with records, or with what pointers lead to, under the keys that `keyOf` gives;
/// what is selected stays so.
template <class Record, class All, class Key>
void FillTable(ui::ListBox& list, const CellColumns<Record>& columns, const All& records,
               Key keyOf) {
  std::vector<ui::ListBox::Row> rows;
  for (const auto& each : records) {
    const Record& record = RecordOf<Record>(each);
    rows.push_back(RowOf(columns, record, keyOf(record)));
  }
  list.Fill(std::move(rows));
}
/// The same under their uids.
template <class Record, class All>
void FillTable(ui::ListBox& list, const CellColumns<Record>& columns, const All& records) {
  FillTable(list, columns, records, [](const Record& record) { return int(record.Uid); });
}
/// The same under their places, from 1.
template <class Record, class All>
void FillPlaces(ui::ListBox& list, const CellColumns<Record>& columns, const All& records) {
  FillTable(list, columns, records, [place = 0](const Record&) mutable { return ++place; });
}

/// Blue for a Face, red for a Heel, grey for a Tweener.
ui::Tone DispositionTone(const Worker& worker);
/// "Face" in blue, "Heel" in red, "Tweener" in grey.
ui::Cell DispositionCell(const Worker& worker);
/// Nothing for somebody who is fit, else why they are not, in red.
ui::Cell StatusCell(const Worker& worker);

/// Name, Over and disposition; then `more`.
CellColumns<Worker> PeopleTable(CellColumns<Worker> more = {});
/// What stands for a disposition where its word has no room.
ui::Sign DispositionSign(std::string_view word);
/// The headings of a table of people in a narrow card.
std::vector<ui::Column> NarrowColumns(const CellColumns<Worker>& people);
/// The table of these three alone, for a narrow card.
std::vector<ui::Column> ShortColumns();
void FillShort(ui::ListBox& list, const std::vector<const Worker*>& people);
/// "09 Mar 2026".
std::string BriefDate(Day day);
/// What stands below a chart's days, in their order: "09 Mar", with the year where a day and a
/// month could come twice.
std::vector<std::string> DayCaptions(const std::vector<Day>& days);
/// A day, sorted by its date.
ui::Cell DayCell(Day day);
/// How many people, in figures that are grouped.
ui::Cell CountCell(int count);
/// The same of a Title's past, where a day may be unknown.
ui::Cell DateCell(Day day, const char* unknown);
/// Where a reign began that has lasted since before the game, and so has no day.
inline constexpr const char* kBeforeTheGame = "Before the game";

// Small pictures before a table's first words, by the keys of its rows. They hold on to the world.

ui::Drawing FaceOf(const World& world, int workerUid);
std::vector<ui::Column> WithFaces(const World& world, std::vector<ui::Column> columns);
std::vector<ui::Column> WithStaffFaces(const World& world, std::vector<ui::Column> columns);
std::vector<ui::Column> WithCrests(const World& world, std::vector<ui::Column> columns);
/// A Title's key is its record's number.
ui::Drawing PlateAt(const World& world, int number);

/// Enables a control, or disables it with the reason as its tip.
void EnableUnless(ui::Control& control, const std::string& why);
using Controls = std::initializer_list<std::reference_wrapper<ui::Control>>;
void EnableUnless(Controls controls, const std::string& why);

// How Titles stand in tables.

/// Name, holder, since when, image, kind, and whether it can be fought for. Holds on to the world.
CellColumns<Title> TitleTable(const World& world);

/// Who held a Title, from when to when.
std::vector<ui::Column> ReignColumns();
/// The lines that are used, the present one first.
std::vector<ui::ListBox::Row> ReignRows(const Title& title);

}  // namespace grapplemont
