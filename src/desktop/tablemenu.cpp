#include <QLabel>
#include <QVBoxLayout>
#include <QWidgetAction>

#include "desktop/look.h"
#include "desktop/tableview.h"

// The menus of a table: sort, filter, columns, copy.

namespace grapplemont::desktop {

namespace {

QMenu* NewMenu(QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  return menu;
}

}  // namespace

void TableView::OpenHeadingMenu(const QPoint& at) {
  const int column = grid_->Heading().logicalIndexAt(at);
  if (column < 0) return OpenColumnsMenu(grid_->Heading().mapToGlobal(at));
  QMenu* menu = NewMenu(this);
  menu->setObjectName("headingmenu");
  AddFilterLine(*menu, column);
  menu->addSeparator();
  menu->addAction("Sort", this, [this, column] {
    table_.TurnSort(column, false);
    Rearrange();
  });
  menu->addAction("Sort as the second key\tShift click", this, [this, column] {
    table_.TurnSort(column, true);
    Rearrange();
  });
  menu->addSeparator();
  menu->addAction("Move left", this, [this, column] { MoveColumn(column, -1); });
  menu->addAction("Move right", this, [this, column] { MoveColumn(column, 1); });
  QAction* hide = menu->addAction("Hide this column", this, [this, column] {
    table_.Show(column, false);
    Rearrange();
  });
  hide->setEnabled(table_.Columns().size() > 1);
  menu->addSeparator();
  AddColumnChoices(*menu);
  menu->popup(grid_->Heading().mapToGlobal(at));
}

void TableView::OpenColumnsMenu(const QPoint& globally) {
  QMenu* menu = NewMenu(this);
  menu->setObjectName("columnsmenu");
  AddColumnChoices(*menu);
  menu->popup(globally);
}

/// The pages that the row's names lead to, then what the table always offers.
void TableView::OpenRowMenu(const QPoint& at) {
  QMenu* menu = NewMenu(this);
  menu->setObjectName("columnsmenu");
  for (const NamedLink& link : LinksOfRow(grid_->indexAt(at)))
    menu->addAction("Open " + link.Words, this, [this, open = link.Open] { Follow(open); });
  if (!menu->isEmpty()) menu->addSeparator();
  AddColumnChoices(*menu);
  menu->popup(grid_->viewport()->mapToGlobal(at));
}

void TableView::AddColumnChoices(QMenu& menu) {
  for (int column = 0; column < model_.columnCount() && model_.columnCount() > 1; ++column) {
    const auto id = ui::ColumnId(list_.Columns(), column);
    QAction* choice = menu.addAction(Shown(id), this, [this, column] {
      table_.Show(column, !table_.Shows(column));
      Rearrange();
    });
    choice->setCheckable(true);
    choice->setChecked(table_.Shows(column));
    choice->setEnabled(!table_.Shows(column) || table_.Columns().size() > 1);
  }
  menu.addSeparator();
  menu.addAction("All columns as they were", this, [this] {
    table_.ResetColumns();
    Rearrange();
  });
  QAction* clear = menu.addAction("Clear all filters", this, [this] {
    table_.ClearFilters();
    search_->clear();
    Rearrange();
  });
  clear->setEnabled(!table_.State().Filters.empty() || !table_.State().Search.empty());
  menu.addAction("Copy as CSV\tCtrl C", this, [this] { CopyCsv(); });
}

void TableView::AddFilterLine(QMenu& menu, int column) {
  auto* holder = new QWidget(&menu);
  auto* rows = new QVBoxLayout(holder);
  rows->setContentsMargins(Px(10), Px(6), Px(10), Px(8));
  rows->setSpacing(Px(6));
  auto* heading = new QLabel("Filter " + Shown(ui::ColumnId(list_.Columns(), column)), holder);
  auto* line = new QLineEdit(Shown(table_.FilterOf(column)), holder);
  line->setObjectName("columnfilter");
  line->setTextMargins(Px(8), 0, Px(8), 0);
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
  Rearrange();
}

}  // namespace grapplemont::desktop
