#include "roster/screens/screenworkers.h"

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

struct WorkerColumn {
  const char* Title;
  K Kind;
  const char* Tip;
  bool OnRoster, OnMarket;
  ui::Cell (*Show)(const World& world, const Worker& worker);
};

ui::Cell Muted(std::string_view text) {
  return {text, ui::Tone::Muted};
}

template <Percent Worker::*field>
ui::Cell Points(const World&, const Worker& worker) {
  return int(worker.*field);
}

ui::Cell Name(const World&, const Worker& worker) {
  return worker.Name.View();
}
ui::Cell Sex(const World&, const Worker& worker) {
  return worker.Gender ? "M" : "F";
}
ui::Cell Age(const World&, const Worker& worker) {
  return int(worker.Age);
}
ui::Cell Position(const World&, const Worker& worker) {
  return {1.0 * worker.Position, PlaceText(worker)};
}
ui::Cell Disposition(const World&, const Worker& worker) {
  return DispositionCell(worker);
}
ui::Cell Status(const World&, const Worker& worker) {
  return StatusCell(worker);
}
/// Whoever cannot work has that said in the place of his condition.
ui::Cell Condition(const World&, const Worker& worker) {
  if (worker.Status == "Nor") return int(worker.Condition);
  const std::string months = ", " + std::to_string(worker.StatusMonths) + " m";
  const std::string words = worker.Status == "Inj"   ? "Injured" + months
                            : worker.Status == "Sus" ? "Suspended" + months
                            : worker.Status == "Reh" ? "In rehab"
                                                     : "Sits out";
  return {-1.0, words, ui::Tone::Red};
}
ui::Cell Employer(const World& world, const Worker& worker) {
  if (worker.Employer == 0) return Muted("Free");
  return PromotionInitials(world, worker.Employer);
}
ui::Cell Split(const World&, const Worker& worker) {
  return worker.Split == "None" ? ui::Cell("") : ui::Cell(worker.Split.View());
}
ui::Cell Contract(const World&, const Worker& worker) {
  if (worker.Employer == 0) return "";
  if (worker.Unsackable) return {"Unsackable", ui::Tone::Gold};
  return worker.ContractType == "Wri" ? "Written" : "Verbal";
}
/// What has no end sorts behind all that has one.
ui::Cell Months(const World&, const Worker& worker) {
  constexpr double kNever = 100000;
  if (worker.Employer == 0) return {0.0, ""};
  if (worker.Unsackable || worker.ContractMonths < 0) return {kNever, "-"};
  const bool ending = worker.ContractMonths <= 3;
  return {int(worker.ContractMonths), ending ? ui::Tone::Amber : ui::Tone::Plain};
}
ui::Cell Wage(const World&, const Worker& worker) {
  const long long dollars = 1000LL * worker.Wage;
  return {static_cast<double>(dollars), Dollars(dollars)};
}
ui::Cell Weeks(const World& world, const Worker& worker) {
  const int days = DaysSinceTurn(world, worker);
  if (days < 0) return {0.0, ""};
  return {days / 7, worker.TurnPending ? ui::Tone::Gold : ui::Tone::Plain};
}

// A position goes by its number as a date does: from the first up, words at the left.
constexpr WorkerColumn kColumns[] = {
    {"Name", K::Text, "", true, true, Name},
    {"Emp.", K::Tag, "Employer.", false, true, Employer},
    {"Position", K::Date, "", true, true, Position},
    {"Disp.", K::Tag, "Disposition.", true, true, Disposition},
    {"Over", K::Number, "Popularity.", true, true, Points<&Worker::Over>},
    {"Condition", K::Percent, "Or why he cannot work.", true, false, Condition},
    {"Morale", K::Percent, "", true, false, Points<&Worker::Morale>},
    {"Months", K::Number, "Months left of the contract.", true, true, Months},
    {"Wage", K::Number, "Dollars a month.", true, true, Wage},
    {"Age", K::Number, "", true, true, Age},
    {"Morale", K::Number, "", false, true, Points<&Worker::Morale>},
    {"Status", K::Text, "Empty for who is available.", true, true, Status},
    {"Split", K::Text, "Part of a split roster.", true, false, Split},
    {"Brawl", K::Number, "", true, true, Points<&Worker::Brawl>},
    {"Tech.", K::Number, "Technical skill.", true, true, Points<&Worker::Technical>},
    {"Speed", K::Number, "", true, true, Points<&Worker::Speed>},
    {"Char.", K::Number, "Charisma.", true, true, Points<&Worker::Charisma>},
    {"Contract", K::Tag, "", true, true, Contract},
    {"Sex", K::Text, "", true, true, Sex},
    {"Turned", K::Number, "Weeks since the last turn; gold where a turn is being prepared.", true,
     true, Weeks},
};

bool IsIn(const WorkerColumn& column, WorkerList list) {
  return list == WorkerList::Roster ? column.OnRoster : column.OnMarket;
}

}  // namespace

std::vector<ui::Column> WorkerColumns(WorkerList list) {
  std::vector<ui::Column> columns;
  for (const WorkerColumn& column : kColumns)
    if (IsIn(column, list)) columns.push_back({column.Title, column.Kind, 0, column.Tip});
  return columns;
}

ui::ListBox::Row WorkerRow(const World& world, const Worker& worker, WorkerList list) {
  ui::ListBox::Row row{{}, worker.Uid};
  row.Cells.reserve(std::size(kColumns));
  for (const WorkerColumn& column : kColumns)
    if (IsIn(column, list)) row.Cells.push_back(column.Show(world, worker));
  return row;
}

}  // namespace grapplemont
