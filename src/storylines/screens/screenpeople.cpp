#include "storylines/screens/screenpeople.h"

#include "records/modWresCheck.h"

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

}  // namespace grapplemont
