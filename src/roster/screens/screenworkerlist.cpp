#include "roster/screens/screenworkerlist.h"

#include <algorithm>

#include "roster/screens/screenworkerpage.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

std::size_t Index(int number) {
  return static_cast<std::size_t>(number - 1);
}

}  // namespace

WorkerListScreen::WorkerListScreen(Game& game, std::string name, std::string title, WorkerList list,
                                   std::span<const FilterFamily> filters)
    : Screen(game.Desk(), std::move(name), std::move(title)),
      game_(game),
      cmbfilters("", static_cast<int>(filters.size()),
                 [&](const std::string&, int i) {
                   const FilterFamily& family = filters[Index(i)];
                   auto combo = std::make_unique<ui::ComboBox>(*this, std::string(family.Control),
                                                               [this] { ShowList(); });
                   for (const WorkerFilter& row : family.Rows) combo->Add(std::string(row.Label));
                   combo->Select(1);
                   return combo;
                 }),
      lstwres(*this, "lstwres", WorkerColumns(list), ui::Handler([this] { ShowChoice(); })),
      list_(list),
      filters_(filters) {}

void WorkerListScreen::Load() {
  ShowList();
}

/// Where the chosen worker is listed no more, the next one takes his place.
void WorkerListScreen::Return() {
  const int key = lstwres.Key(), row = lstwres.Selected();
  ShowList();
  if (lstwres.Key() == key || row == 0) return;
  lstwres.Select(std::min(row, lstwres.Count()));
  ShowChoice();
}

bool WorkerListScreen::FitsFilters(const Worker& worker) {
  for (int i = 1; i <= cmbfilters.Count(); ++i) {
    const int row = cmbfilters(i).Selected();
    if (row > 1 && !filters_[Index(i)].Rows[Index(row)].Keeps(worker)) return false;
  }
  return Passes(worker);
}

/// The most popular come first.
void WorkerListScreen::ShowList() {
  std::vector<const Worker*> people;
  listed_ = 0;
  for (const Worker& worker : world().Workers()) {
    if (!Belongs(worker)) continue;
    ++listed_;
    if (FitsFilters(worker)) people.push_back(&worker);
  }
  SortByOver(people);
  std::vector<ui::ListBox::Row> rows;
  rows.reserve(people.size());
  for (const Worker* worker : people) rows.push_back(WorkerRow(world(), *worker, list_));
  lstwres.Fill(std::move(rows));
  if (lstwres.Selected() == 0) lstwres.Select(1);
  ShowFacts();
  ShowChoice();
}

void WorkerListScreen::ShowChoice() {
  const Worker* chosen = Chosen();
  WriteWorkerPage(txtpage, world(), chosen, "Choose somebody to read about.");
  ShowActions(chosen);
}

ui::Box WorkerListScreen::FilterBox(std::vector<ui::Box> more) {
  std::vector<ui::Box> fields;
  for (int i = 1; i <= cmbfilters.Count(); ++i)
    fields.push_back(ui::Field(std::string(filters_[Index(i)].Caption), cmbfilters(i)));
  for (ui::Box& box : more) fields.push_back(std::move(box));
  return ui::Columns(std::move(fields));
}

void WorkerListScreen::Leave() {
  Close();
  if (game_.RefreshMainScreen) game_.RefreshMainScreen();
}

}  // namespace grapplemont
