#include "storylines/screens/screenpeople.h"

#include "records/dates.h"
#include "records/modWresCheck.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

ui::Tone ToneOf(const Worker& worker) {
  if (worker.Disposition == "F") return ui::Tone::Blue;
  return worker.Disposition == "H" ? ui::Tone::Red : ui::Tone::Muted;
}

}  // namespace

ui::Cell DispositionCell(const Worker& worker) {
  return {DispositionText(worker.Disposition), ToneOf(worker)};
}

ui::Cell StatusCell(const Worker& worker) {
  if (worker.Status == "Nor") return "";
  return {StatusLine(worker), ui::Tone::Red};
}

std::vector<ui::Column> ShortColumns() {
  using K = ui::ColumnKind;
  return {{"Name", K::Text, 4}, {"Disp.", K::Tag, 2}, {"Over", K::Number, 1, "Popularity."}};
}

std::vector<ui::Cell> ShortRow(const Worker& worker) {
  return {worker.Name.View(), DispositionCell(worker), ui::Cell(worker.Over)};
}

void FillShort(ui::ListBox& list, const std::vector<const Worker*>& people) {
  std::vector<ui::ListBox::Row> rows;
  for (const Worker* worker : people) rows.push_back({ShortRow(*worker), worker->Uid});
  list.Fill(std::move(rows));
}

void EnableUnless(ui::Control& control, const std::string& why) {
  control.Enabled = why.empty();
  control.Tip = why;
}

void EnableUnless(Controls controls, const std::string& why) {
  for (ui::Control& control : controls) EnableUnless(control, why);
}

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
