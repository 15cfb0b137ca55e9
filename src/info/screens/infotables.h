#pragma once

#include "records/fields/fields.h"
#include "storylines/screens/screenpeople.h"

// How news and the past stand in tables.

namespace grapplemont {

/// The rows of records without a key of their own: they are numbered from 1.
template <class Record>
std::vector<ui::ListBox::Row> NumberedRows(const CellColumns<Record>& columns,
                                           const std::vector<Record>& records) {
  std::vector<ui::ListBox::Row> rows;
  for (const Record& record : records)
    rows.push_back(RowOf(columns, record, static_cast<int>(rows.size()) + 1));
  return rows;
}

/// "02/03/26", sorted by its date.
inline ui::Cell ShortDayCell(Day day, ui::Tone tone = ui::Tone::Plain) {
  return {static_cast<double>((day - kDayZero).count()), ShortDate(day), tone};
}

}  // namespace grapplemont
