#include "roster/screens/screenworkers.h"

#include <utility>
#include <vector>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "roster/staff.h"
#include "roster/workerfacts.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// A column and where it is shown.
template <class Person>
struct PersonColumn {
  const char* Title;
  K Kind;
  const char* Tip;
  bool OnOwn, OnMarket;
  ui::Cell (*Show)(const World& world, const Person& person);
  const char* Short = "";  // its heading, where the cells are shorter than the title

  bool IsIn(PeopleList list) const { return list == PeopleList::Own ? OnOwn : OnMarket; }
};

template <class Person, std::size_t N>
std::vector<ui::Column> ColumnsIn(PeopleList list, const PersonColumn<Person> (&table)[N]) {
  std::vector<ui::Column> columns;
  for (const PersonColumn<Person>& column : table)
    if (column.IsIn(list))
      columns.push_back(
          {.Title = column.Title, .Kind = column.Kind, .Tip = column.Tip, .Short = column.Short});
  return columns;
}

// How anybody stands in a column.

template <class Person>
ui::Cell Name(const World&, const Person& person) {
  return person.Name.View();
}
template <class Person>
ui::Cell Sex(const World&, const Person& person) {
  return person.Gender ? "M" : "F";
}
template <class Person>
ui::Cell Age(const World&, const Person& person) {
  return int(person.Age);
}
template <auto field, class Person>
ui::Cell Points(const World&, const Person& person) {
  return int(person.*field);
}
template <class Person>
ui::Cell Employer(const World& world, const Person& person) {
  if (person.Employer == 0) return {"Free", ui::Tone::Muted};
  return PromotionInitials(world, person.Employer);
}
ui::Cell WageCell(int thousands) {
  const long long dollars = 1000LL * thousands;
  return {static_cast<double>(dollars), Dollars(dollars)};
}
bool IsEndless(const Worker& worker) {
  return worker.Unsackable || worker.ContractMonths < 0;
}
/// What has no end sorts behind all that has one.
template <class Person>
ui::Cell Months(const World&, const Person& person) {
  constexpr double kNever = 100000;
  if (person.Employer == 0) return {0.0, ""};
  if (IsEndless(person)) return {kNever, "-"};
  return {int(person.ContractMonths),
          person.ContractMonths <= 3 ? ui::Tone::Amber : ui::Tone::Plain};
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
/// Whoever cannot work has that said in the place of their condition.
ui::Cell Condition(const World&, const Worker& worker) {
  if (worker.Status == "Nor") return int(worker.Condition);
  const std::string months = ", " + std::to_string(worker.StatusMonths) + " m";
  const std::string words = worker.Status == "Inj"   ? "Injured" + months
                            : worker.Status == "Sus" ? "Suspended" + months
                            : worker.Status == "Reh" ? "In rehab"
                                                     : "Sits out";
  return {-1.0, words, ui::Tone::Red};
}
ui::Cell Split(const World&, const Worker& worker) {
  return worker.Split == "None" ? ui::Cell("") : ui::Cell(worker.Split.View());
}
ui::Cell Contract(const World&, const Worker& worker) {
  if (worker.Employer == 0) return "";
  if (worker.Unsackable) return {"Unsackable", ui::Tone::Gold};
  return worker.ContractType == "Wri" ? "Written" : "Verbal";
}
ui::Cell Wage(const World&, const Worker& worker) {
  return WageCell(worker.Wage);
}
ui::Cell Weeks(const World& world, const Worker& worker) {
  const int days = DaysSinceTurn(world, worker);
  if (days < 0) return {0.0, ""};
  return {days / 7, worker.TurnPending ? ui::Tone::Gold : ui::Tone::Plain};
}

// A position goes by its number as a date does: from the first up, words at the left.
constexpr PersonColumn<Worker> kWorkers[] = {
    {"Name", K::Text, "", true, true, Name},
    {"Over", K::Number, "Popularity.", true, true, Points<&Worker::Over>},
    {kWorksFor, K::Tag, "Employer.", false, true, Employer},
    {"Position", K::Date, "", true, true, Position},
    {"Disposition", K::Tag, "Face, Heel or Tweener.", true, true, Disposition, "Disp."},
    {"Condition", K::Percent, "Or why they cannot work.", true, false, Condition},
    {"Morale", K::Percent, "", true, false, Points<&Worker::Morale>},
    {"Months", K::Number, "Months left of the contract.", true, true, Months},
    {"Wage", K::Number, "Dollars a month.", true, true, Wage},
    {"Age", K::Number, "", true, true, Age},
    {"Morale", K::Number, "", false, true, Points<&Worker::Morale>},
    {"Brawl", K::Number, "", true, true, Points<&Worker::Brawl>},
    {"Tech.", K::Number, "Technical skill.", true, true, Points<&Worker::Technical>},
    {"Speed", K::Number, "", true, true, Points<&Worker::Speed>},
    {"Char.", K::Number, "Charisma.", true, true, Points<&Worker::Charisma>},
    {"Contract", K::Tag, "", true, true, Contract},
    {"Split", K::Text, "Part of a split roster.", true, false, Split},
    {"Status", K::Text, "Empty for who is available.", false, true, Status},
    {"Sex", K::Text, "", true, true, Sex},
    {"Turned", K::Number, "Weeks since the last turn; gold where a turn is being prepared.", true,
     true, Weeks},
};

ui::Cell Post(const World&, const Staff& staff) {
  return {1.0 * staff.Position, std::string(PostText(staff.Position))};
}
ui::Cell StaffWage(const World&, const Staff& staff) {
  return staff.Position == kOwner ? ui::Cell(0.0, "") : WageCell(staff.Wage);
}
ui::Cell StaffContract(const World&, const Staff& staff) {
  if (staff.Employer == 0) return "";
  if (staff.Position == kOwner) return {"Owner", ui::Tone::Gold};
  if (IsEndless(staff)) return {"No end", ui::Tone::Gold};
  return ContractWord(staff.ContractType == "Wri");
}

// So does a post.
constexpr PersonColumn<Staff> kStaff[] = {
    {"Name", K::Text, "", true, true, Name},
    {"Post", K::Date, "", true, true, Post},
    {kWorksFor, K::Tag, "Employer.", false, true, Employer},
    {"Talent", K::Number, "", true, true, Points<&Staff::Talent>},
    {"Wage", K::Number, "Dollars a month.", true, true, StaffWage},
    {"Months", K::Number, "Months left of the contract.", true, true, Months},
    {"Contract", K::Tag, "", true, true, StaffContract},
    {"Morale", K::Number, "", true, true, Points<&Staff::Morale>},
    {"Loyalty", K::Number, "", true, true, Points<&Staff::Loyalty>},
    {"Age", K::Number, "", true, true, Age},
    {"Sex", K::Text, "", true, true, Sex},
};

}  // namespace

std::vector<ui::Column> WorkerColumns(PeopleList list) {
  return ColumnsIn(list, kWorkers);
}
ui::ListBox::CellMaker WorkerCells(const World& world, PeopleList list) {
  std::vector<const PersonColumn<Worker>*> shown;
  for (const PersonColumn<Worker>& column : kWorkers)
    if (column.IsIn(list)) shown.push_back(&column);
  return [&world, shown = std::move(shown)](int uid, int column) {
    const Worker* worker = world.FindWorker(uid);
    return worker ? shown[static_cast<std::size_t>(column)]->Show(world, *worker) : ui::Cell("");
  };
}
std::vector<ui::Column> StaffColumns(PeopleList list) {
  return ColumnsIn(list, kStaff);
}
ui::ListBox::Row StaffRow(const World& world, const Staff& staff, PeopleList list) {
  ui::ListBox::Row row{{}, staff.Uid};
  for (const PersonColumn<Staff>& column : kStaff)
    if (column.IsIn(list)) row.Cells.push_back(column.Show(world, staff));
  return row;
}

}  // namespace grapplemont
