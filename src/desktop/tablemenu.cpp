#include <QWidgetAction>

#include "desktop/button.h"
#include "desktop/sharing.h"
#include "desktop/tableview.h"
#include "ui/acts.h"

// The names in a table's cells, which a click with a key opens, and its menus: what can be done to
// a row, sort, filter, columns, views.

namespace grapplemont::desktop {

void TableView::ConnectLinks() {
  model_.MeaningOf = [this](const std::string& title) { return OnStage().Desk().MeaningOf(title); };
  grid_->LinkOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    return links.empty() ? ui::Handler() : links.front().Open;
  };
  grid_->Followed = [this](const ui::Handler& open) { Follow(open); };
  grid_->Cells().HintOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    const QString how = control_.Extends ? "Alt+click opens " : "Ctrl+click opens ";
    return links.empty() ? QString() : how + links.front().Words;
  };
}

std::vector<TableView::NamedLink> TableView::LinksOf(int shownRow, int listColumn) const {
  std::vector<NamedLink> links;
  if (!table_.Follows()) return links;
  const std::string_view text = table_.At(shownRow, listColumn).Text;
  for (ui::Link& link : OnStage().Desk().LinksIn(text))
    links.push_back({Shown(text.substr(link.From, link.Length)), std::move(link.Open)});
  return links;
}

std::vector<TableView::NamedLink> TableView::LinksOfRow(const QModelIndex& cell) const {
  if (!cell.isValid()) return {};
  std::vector<NamedLink> links = LinksOf(cell.row(), cell.column());
  for (const int column : table_.Columns())
    for (NamedLink& link : LinksOf(cell.row(), column))
      if (std::ranges::none_of(links,
                               [&](const NamedLink& held) { return held.Words == link.Words; }))
        links.push_back(std::move(link));
  return links;
}

/// An entry that changes what is shown.
QAction* TableView::AddChange(QMenu& menu, const QString& words,
                              const std::function<void()>& change) {
  return menu.addAction(words, this, [this, change] {
    change();
    Refilter();
  });
}

void TableView::OpenHeadingMenu(const QPoint& at) {
  const int column = grid_->Heading().ColumnAt(at);
  if (column < 0) return OpenColumnsMenu(grid_->Heading().mapToGlobal(at));
  QMenu* menu = NewMenu(this, "headingmenu");
  AddFilterLine(*menu, column);
  menu->addSeparator();
  AddMeaning(*menu, column, "What it means");
  AddChange(*menu, "Sort", [this, column] { table_.TurnSort(column, false); });
  AddChange(*menu, "Sort as the second key\tShift click",
            [this, column] { table_.TurnSort(column, true); });
  menu->addSeparator();
  AddChange(*menu, "Move left", [this, column] { MoveColumn(column, -1); });
  AddChange(*menu, "Move right", [this, column] { MoveColumn(column, 1); });
  AddChange(*menu, "Hide this column", [this, column] {
    table_.Show(column, false);
  })->setEnabled(table_.Columns().size() > 1);
  menu->addSeparator();
  AddColumnChoices(*menu);
  AddTableActs(*menu);
  menu->popup(grid_->Heading().mapToGlobal(at));
}

void TableView::AddMeaning(QMenu& menu, int column, const QString& words) {
  const std::string title = model_.Column(column).Meant();
  if (!OnStage().Desk().MeaningOf(title).empty())
    menu.addAction(words, this, [this, title] {
      Follow([this, title] { OnStage().Desk().OpenGlossary(title); });
    });
}

/// What a heading does by mouse, for the keyboard.
void TableView::AddHeadings(QMenu& menu) {
  QMenu *const sort = menu.addMenu("Sort by"), *const filter = menu.addMenu("Filter"),
               *const means = menu.addMenu("What it means");
  for (const int column : table_.Columns()) {
    if (model_.Column(column).Kind == ui::ColumnKind::Button) continue;
    const QString words = Shown(ui::ColumnId(control_.Columns(), column));
    QAction* by = AddChange(*sort, words, [this, column] { table_.TurnSort(column, false); });
    by->setCheckable(true);
    by->setChecked(table_.SortPlace(column) > 0);
    // Once this menu has gone.
    connect(
        filter->addAction(words), &QAction::triggered, this, [this, column] { OpenFilter(column); },
        Qt::QueuedConnection);
    AddMeaning(*means, column, words);
  }
  means->menuAction()->setVisible(!means->isEmpty());
  menu.addSeparator();
}

void TableView::OpenFilter(int column) {
  QMenu* menu = NewMenu(this, "filtermenu");
  AddFilterLine(*menu, column);
  menu->popup(grid_->viewport()->mapToGlobal(QPoint(0, 0)));
}

void TableView::OpenColumnsMenu(const QPoint& globally) {
  QMenu* menu = NewMenu(this, "columnsmenu");
  AddViews(*menu);
  AddHeadings(*menu);
  // A wide table's menu would fill the window.
  constexpr int kMostInSight = 10;
  const bool isLong = model_.columnCount() > kMostInSight;
  AddColumnChoices(isLong ? *menu->addMenu("Columns") : *menu);
  AddTableActs(isLong ? *menu->addMenu("Copy and save") : *menu);
  menu->popup(globally);
}

/// What can be done to the row, the pages that its names lead to, then what the table always
/// offers. A row that is not among the chosen is chosen for it.
void TableView::OpenRowMenu(const QPoint& at) {
  const QModelIndex cell = grid_->indexAt(at);
  const bool canAct = cell.isValid() && !control_.Acts.empty();
  if (canAct && !table_.IsSelected(cell.row())) Act(cell.row(), false);
  QMenu* menu = NewMenu(this, "rowmenu");
  menu->setToolTipsVisible(true);
  if (canAct) AddActs(*menu);
  if (cell.isValid() && !canAct && control_.OnOpen)
    menu->addAction("Open\tDouble click", this, [this, row = cell.row()] { Act(row, true); });
  for (const NamedLink& link : LinksOfRow(grid_->indexAt(at)))
    menu->addAction("Open " + link.Words, this, [this, open = link.Open] { Follow(open); });
  if (!menu->isEmpty()) menu->addSeparator();
  AddHeadings(*menu);
  AddColumnChoices(*menu->addMenu("Columns"));
  AddTableActs(*menu);
  menu->popup(grid_->viewport()->mapToGlobal(at));
}

void TableView::AddActs(QMenu& menu) {
  for (const auto& [button, box] : control_.Acts) {
    if (!button->Visible) continue;
    const QString words = Shown(button->Text.Get());
    if (!box) {
      QAction* act =
          menu.addAction(words, this, [this, press = button] { PressAct(*press, nullptr, 0); });
      act->setEnabled(button->Enabled);
      act->setToolTip(Shown(button->Tip.Get()));
      continue;
    }
    QMenu* choices = menu.addMenu(words);
    for (int row = 1; row <= box->Count(); ++row)
      choices->addAction(Shown(box->Rows()[static_cast<std::size_t>(row - 1)]), this,
                         [this, press = button, with = box, row] { PressAct(*press, with, row); });
  }
  if (!menu.isEmpty()) menu.addSeparator();
}

/// Presses the button of the screen, after a choice in its box; says why it cannot be pressed.
void TableView::PressAct(ui::Button& button, ui::ComboBox* box, int row) {
  OnStage().Act([&]() -> std::string {
    ui::Desk& desk = OnStage().Desk();
    ui::Screen& screen = control_.Parent();
    if (box)
      if (std::string why = ui::Pick(desk, screen, box->Name(), row); !why.empty()) return why;
    if (!button.Enabled && !button.Tip->empty()) return button.Tip.Get();
    return ui::Click(desk, screen, button.Name());
  });
}

void TableView::AddViews(QMenu& menu) {
  if (model_.columnCount() < 2) return;
  const std::string shown = table_.State().View;
  if (!table_.Views().empty()) {
    QAction* all = AddChange(menu, "All", [this] { table_.ResetColumns(); });
    all->setCheckable(true);
    all->setChecked(shown.empty() && ShowsAll());
  }
  for (const std::string& name : table_.Views()) {
    QAction* view = AddChange(menu, Shown(name), [this, name] {
      table_.TakeView(name);
      search_->setText(Shown(table_.State().Search));
    });
    view->setCheckable(true);
    view->setChecked(name == shown);
  }
  QAction* save = menu.addAction("Save as a view\u2026");
  connect(save, &QAction::triggered, this, &TableView::SaveView, Qt::QueuedConnection);
  AddChange(menu, "Forget this view", [this, shown] {
    table_.ForgetView(shown);
  })->setEnabled(table_.IsOwnView(shown));
  menu.addSeparator();
}

void TableView::SaveView() {
  const std::string name = OnStage().Desk().Prompt(
      "Save A View",
      "A name for these columns, their order and what filters them:", table_.State().View);
  if (name.empty()) return;
  table_.KeepView(name);
  Rearrange();
}

void TableView::AddColumnChoices(QMenu& menu) {
  for (int column = 0; column < model_.columnCount() && model_.columnCount() > 1; ++column) {
    QAction* choice = AddChange(menu, Shown(ui::ColumnId(control_.Columns(), column)),
                                [this, column] { table_.Show(column, !table_.Shows(column)); });
    choice->setCheckable(true);
    choice->setChecked(table_.Shows(column));
    choice->setEnabled(!table_.Shows(column) || table_.Columns().size() > 1);
  }
  menu.addSeparator();
  AddChange(menu, "All columns as they were", [this] { table_.ResetColumns(); });
}

void TableView::AddTableActs(QMenu& menu) {
  menu.addAction("Clear all filters\tBackspace", this, [this] { ClearFilters(); })
      ->setEnabled(!table_.State().Filters.empty() || !table_.State().Search.empty());
  menu.addAction("Copy as CSV\tCtrl+C", this, [this] { CopyCsv(); });
  menu.addAction("Save as CSV\u2026", this, [this] { SaveCsv(); });
  const Shareable shared = WordsToShare([this](ui::Form form) {
    return table_.Follows() ? ui::Shared(table_, form, SeveralChosen()) : std::string();
  });
  AddSharing(menu, shared);
  menu.addAction("Save to a file\u2026", this, [this, shared] {
    const FileTold told = SaveShared(this, Shown(control_.Parent().Title.Get()), shared);
    if (!told.Words.isEmpty()) OnStage().Hint(*this, told.Words, told.As);
  });
}

void TableView::AddFilterLine(QMenu& menu, int column) {
  auto* holder = new QWidget(&menu);
  auto* rows = NewLayout<QVBoxLayout>(holder, 6, {10, 6, 10, 8});
  auto* heading = new QLabel("Filter " + Shown(ui::ColumnId(control_.Columns(), column)), holder);
  QLineEdit* line = NewLine(holder, "columnfilter", Shown(table_.FilterOf(column)));
  line->setMinimumWidth(Px(220));
  line->setPlaceholderText(">70, 20..40, Heel|Tweener, !Injured");
  rows->addWidget(heading);
  rows->addWidget(line);
  connect(line, &QLineEdit::textChanged, this, [this, column](const QString& text) {
    table_.SetFilter(column, Keep(text).Text);
    Refilter();
  });
  connect(line, &QLineEdit::returnPressed, &menu, &QMenu::close);
  auto* action = new QWidgetAction(&menu);
  action->setDefaultWidget(holder);
  menu.addAction(action);
  QMetaObject::invokeMethod(
      line, [line] { line->setFocus(); }, Qt::QueuedConnection);
}

void TableView::MoveColumn(int column, int by) {
  std::vector<int> order = table_.Columns();
  const auto place = std::find(order.begin(), order.end(), column) - order.begin();
  const auto to = place + by;
  if (to < 0 || to >= static_cast<std::ptrdiff_t>(order.size())) return;
  std::swap(order[static_cast<std::size_t>(place)], order[static_cast<std::size_t>(to)]);
  table_.SetOrder(order);
}

}  // namespace grapplemont::desktop
