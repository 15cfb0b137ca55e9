#include "booking/screens/screensheet.h"
#include "booking/sheet.h"
#include "records/segments.h"
#include "show/titlechange.h"

// How a row of a sheet stands in tables, and what is told of it.

namespace grapplemont {

CellColumns<SheetRow> SheetTable(const World& world, const CellColumn<SheetRow>& first) {
  using K = ui::ColumnKind;
  return {
      first,
      {{"Segment", K::Text, 1},
       [&](const SheetRow& row) {
         const bool empty = row.Segment.Kind == kEmptySegment;
         return ui::Cell(DescribeSegment(world, row.Segment),
                         empty ? ui::Tone::Muted : ui::Tone::Plain);
       }},
      {{"Kind", K::Tag}, [](const SheetRow& row) { return KindOfRow(row.Segment); }},
      {{"Title", K::Tag},
       [&](const SheetRow& row) {
         if (TitleTip(row.Segment).empty()) return ui::Cell("");
         return ui::Cell(NewChampions(world, row.Segment).empty() ? "Title" : "New champion",
                         ui::Tone::Gold);
       }},
      {{"Feud", K::Tag},
       [&](const SheetRow& row) {
         return ui::Cell(FeudOfRow(world, row.Segment), ui::Tone::Gold);
       }},
      {{"Forecast", K::Number, 0,
        "What its rating may come to. On a flat night, one in eight, matches lose a tenth."},
       [](const SheetRow& row) { return ui::Cell(0, ForecastOfRow(row.Forecast, row.Record)); }}};
}

std::vector<ui::Report::Paragraph> ToldOf(const World& world, const Segment& segment,
                                          bool isEvent) {
  using Style = ui::Report::Style;
  std::vector<ui::Report::Paragraph> told{{Style::Strong, DescribeSegment(world, segment)}};
  for (std::string& line : SummaryOfRow(world, segment, isEvent))
    told.push_back({Style::Line, std::move(line)});
  for (std::string& change : ChangesBy(world, segment))
    told.push_back({Style::Strong, std::move(change)});
  return told;
}

}  // namespace grapplemont
