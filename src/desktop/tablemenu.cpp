#include <QApplication>
#include <QClipboard>
#include <QWidgetAction>

#include "desktop/sharing.h"
#include "desktop/tableview.h"

// The names in a table's cells, which Ctrl and a click opens, and its menus: sort, filter, columns.

namespace grapplemont::desktop {

void TableView::ConnectLinks() {
  grid_->LinkOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    return links.empty() ? ui::Handler() : links.front().Open;
  };
  grid_->Followed = [this](const ui::Handler& open) { Follow(open); };
  grid_->Cells().HintOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    return links.empty() ? QString() : "Ctrl+click opens " + links.front().Words;
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
    Rearrange();
  });
}

void TableView::OpenHeadingMenu(const QPoint& at) {
  const int column = grid_->Heading().logicalIndexAt(at);
  if (column < 0) return OpenColumnsMenu(grid_->Heading().mapToGlobal(at));
  QMenu* menu = NewMenu(this, "headingmenu");
  AddFilterLine(*menu, column);
  menu->addSeparator();
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
  menu->popup(grid_->Heading().mapToGlobal(at));
}

void TableView::OpenColumnsMenu(const QPoint& globally) {
  QMenu* menu = NewMenu(this, "columnsmenu");
  AddColumnChoices(*menu);
  menu->popup(globally);
}

/// The pages that the row's names lead to, then what the table always offers.
void TableView::OpenRowMenu(const QPoint& at) {
  QMenu* menu = NewMenu(this, "columnsmenu");
  for (const NamedLink& link : LinksOfRow(grid_->indexAt(at)))
    menu->addAction("Open " + link.Words, this, [this, open = link.Open] { Follow(open); });
  if (!menu->isEmpty()) menu->addSeparator();
  AddColumnChoices(*menu);
  menu->popup(grid_->viewport()->mapToGlobal(at));
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
  QAction* clear = AddChange(menu, "Clear all filters", [this] {
    table_.ClearFilters();
    search_->clear();
  });
  clear->setEnabled(!table_.State().Filters.empty() || !table_.State().Search.empty());
  menu.addAction("Copy as CSV\tCtrl C", this, [this] { CopyCsv(); });
  AddSharing(menu, [this](ui::Form form) {
    if (table_.Follows()) QApplication::clipboard()->setText(Shown(ui::Shared(table_, form)));
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
    Rearrange();
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
