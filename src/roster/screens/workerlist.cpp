#include "roster/screens/workerlist.h"

#include <algorithm>

#include "records/modVar.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screenmany.h"
#include "roster/screens/screentalks.h"
#include "roster/workerform.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr int kLettersOfWide = 190;  // of a page that has room for face and skills, too

}  // namespace

WorkerListScreen::WorkerListScreen(Game& game, std::string name, std::string title, PeopleList list,
                                   std::span<const FilterFamily> filters)
    : GameScreen(game, std::move(name), std::move(title), {.Manages = true}),
      cmbfilters("", static_cast<int>(filters.size()),
                 [&](const std::string&, int i) {
                   const FilterFamily& family = filters[Index(i)];
                   auto combo = std::make_unique<ui::ComboBox>(*this, std::string(family.Control),
                                                               [this] { ShowList(); });
                   for (const WorkerFilter& row : family.Rows) combo->Add(std::string(row.Label));
                   combo->Select(1);
                   combo->Filters = true;
                   return combo;
                 }),
      lstwres(*this, "lstwres", WithFaces(game.World(), WorkerColumns(list)),
              ui::Handler([this] { ShowChoice(); })),
      lstskills(*this, "lstskills",
                {{"Skill", ui::ColumnKind::Text, 1}, {"Level", ui::ColumnKind::Percent, 1}}),
      list_(list),
      filters_(filters) {
  lblchosen.Fleeting = true;
  picworker.Height = 132;
  lstskills.Room = static_cast<int>(Abilities().size());
  lstwres.Extends = true;
  lstwres.Views = WorkerViews();
}

void WorkerListScreen::Load() {
  nobody_ = lstwres.EmptyText;
  ShowList();
}

void WorkerListScreen::Return() {
  const int key = lstwres.Key(), row = lstwres.Selected();
  ShowList();
  if (lstwres.Key() == key || row == 0) return;
  lstwres.Select(std::min(row, lstwres.Count()));
  ShowChoice();
}

std::vector<int> WorkerListScreen::AllChosen() {
  std::vector<int> uids = lstwres.Keys();
  std::erase_if(uids, [this](int uid) {
    const Worker* worker = world().FindWorker(uid);
    return !worker || !Belongs(*worker);
  });
  return uids;
}

void WorkerListScreen::ShowList() {
  std::vector<const Worker*> people;
  listed_ = 0;
  hidden_.assign(filters_.size() + 1, 0);
  for (const Worker& worker : world().Workers()) {
    if (!Belongs(worker)) continue;
    ++listed_;
    if (FitsFilters(worker)) people.push_back(&worker);
  }
  SortByOver(people);
  std::vector<int> uids;
  uids.reserve(people.size());
  for (const Worker* worker : people) uids.push_back(worker->Uid);
  lstwres.FillLate(uids, WorkerCells(world(), list_));
  if (lstwres.Selected() == 0) lstwres.Select(1);
  ShowFilters();
  ShowChoice();
}

void WorkerListScreen::ShowChoice() {
  const Worker* chosen = Chosen();
  ShowFacts();
  ShowSkills(chosen);
  WriteWorkerPage(txtpage, world(), chosen, "Choose somebody to read about.");
  EnableUnless({cmdpage, cmdcompare}, chosen ? "" : kNobodyChosen);
  ShowActions(chosen);
}

void WorkerListScreen::ShowFacts() {
  const std::size_t chosen = lstwres.Keys().size();
  lblfacts.Text = Facts(listed_);
  lblchosen.Text = chosen > 1 ? std::to_string(chosen) + " are chosen." : "";
  lblchosen.Visible = chosen > 1;
}

void WorkerListScreen::ShowSkills(const Worker* chosen) {
  picworker.Drawn = chosen ? FaceOf(world(), chosen->Uid) : ui::Drawing();
  std::vector<ui::ListBox::Row> rows;
  if (chosen)
    for (const Ability& ability : Abilities())
      rows.push_back({{ability.Name, int(chosen->*ability.Of)}, static_cast<int>(rows.size()) + 1});
  lstskills.Fill(std::move(rows), false);
}

ui::Box WorkerListScreen::PageBox() {
  return ui::Rows({ui::Group("Skills", {ui::Columns({ui::Rows({picworker, ui::Spacer()}),
                                                     ui::Grow(lstskills)})})
                       .From(kLettersOfWide),
                   ui::Group("", {ui::Grow(txtpage), lblchosen, cmdpage, cmdcompare}).Grow()});
}

void WorkerListScreen::Negotiate() {
  if (const Worker* chosen = Chosen()) OpenTalks(game_, *chosen);
}

ui::Box WorkerListScreen::FilterBox(std::vector<ui::Box> more) {
  std::vector<ui::Box> fields;
  for (int i = 1; i <= cmbfilters.Count(); ++i)
    fields.push_back(ui::Field(std::string(filters_[Index(i)].Caption), cmbfilters(i)));
  for (ui::Box& box : more) fields.push_back(std::move(box));
  return ui::Group("",
                   {ui::Columns(std::move(fields)), ui::Columns({ui::Grow(lblfilters), cmdclear})});
}

ui::Page WorkerListScreen::WithFilters(ui::Page page) {
  page.Clear = &cmdclear;
  return page;
}

/// Counts whom each filter hides by itself.
bool WorkerListScreen::FitsFilters(const Worker& worker) {
  bool fits = Passes(worker);
  if (!fits) ++hidden_.back();
  for (int i = 1; i <= cmbfilters.Count(); ++i) {
    const int row = cmbfilters(i).Selected();
    if (row <= 1 || filters_[Index(i)].Rows[Index(row)].Keeps(worker)) continue;
    ++hidden_[Index(i)];
    fits = false;
  }
  return fits;
}

/// Which filters are on, and how many rows each of them hides.
void WorkerListScreen::ShowFilters() {
  std::string words;
  const auto add = [&](std::string_view caption, const ui::ComboBox& combo, int hides) {
    if (combo.Selected() <= 1) return;
    words += (words.empty() ? "" : ", ") + std::string(caption) + " \"" + combo.Text.Get() +
             "\" hides " + std::to_string(hides);
  };
  for (int i = 1; i <= cmbfilters.Count(); ++i)
    add(filters_[Index(i)].Caption, cmbfilters(i), hidden_[Index(i)]);
  if (const ui::ComboBox* own = OwnFilter()) add(OwnCaption(), *own, hidden_.back());
  lblfilters.Text =
      std::to_string(lstwres.Count()) + " of " + std::to_string(listed_) + ": " + words;
  lblfilters.Visible = !words.empty();
  cmdclear.Visible = !words.empty();
  lstwres.EmptyText =
      words.empty() ? nobody_ : "Nobody fits the filters. Clear Filters shows all again.";
}

void WorkerListScreen::ClearFilters() {
  for (int i = 1; i <= cmbfilters.Count(); ++i) cmbfilters(i).Select(1);
  if (ui::ComboBox* own = OwnFilter()) own->Select(1);
  ShowList();
}

}  // namespace grapplemont
