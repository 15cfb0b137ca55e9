#include "storylines/screens/screentitles.h"

#include "records/fields/fields.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// A reign that has lasted since before the game has no day.
constexpr const char* kFromTheStart = "From the start";

ui::Cell DateCell(Day day, const char* unknown) {
  if (day <= kNoTitleDate) return {unknown, ui::Tone::Muted};
  return {static_cast<double>((day - kDayZero).count()), PlainDate(day)};
}

ui::Cell ChampionCell(const World& world, const Title& title) {
  return {ChampionText(world, title), title.Holder == 0 ? ui::Tone::Muted : ui::Tone::Plain};
}

ui::Cell StandingCell(const World& world, const Title& title) {
  if (title.Suspended) return {"Suspended", ui::Tone::Red};
  const std::string why = WhyNoDefence(world, title);
  return {why.empty() ? why : "Holder " + why, ui::Tone::Amber};
}

}  // namespace

std::vector<ui::Column> TitleColumns() {
  using K = ui::ColumnKind;
  return {{"Title"},
          {"Kind", K::Tag},
          {"Holder"},
          {"Since", K::Date},
          {"Image", K::Percent, 0, "How much the fans make of it."},
          {"State", K::Tag, 0, "Suspended, or what keeps its holder from defending it."}};
}

ui::ListBox::Row TitleRow(const World& world, const Title& title) {
  return {{title.Name.View(), ui::Cell(KindText(title)), ChampionCell(world, title),
           title.Holder == 0 ? ui::Cell("") : DateCell(title.Reigns[0].Won, kFromTheStart),
           ui::Cell(title.Image), StandingCell(world, title)},
          world.Titles().NumberOf(title)};
}

std::vector<ui::Column> ReignColumns() {
  using K = ui::ColumnKind;
  return {{"Holder"}, {"Won", K::Date}, {"Lost", K::Date}};
}

std::vector<ui::ListBox::Row> ReignRows(const Title& title) {
  std::vector<ui::ListBox::Row> rows;
  for (const Reign& reign : title.Reigns)
    if (!(reign.Holder == "None"))
      rows.push_back(
          {{reign.Holder.View(), DateCell(reign.Won, kFromTheStart), DateCell(reign.Lost, "")},
           static_cast<int>(rows.size()) + 1});
  return rows;
}

}  // namespace grapplemont
