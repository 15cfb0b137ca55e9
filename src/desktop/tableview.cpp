#include "desktop/tableview.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/button.h"
#include "desktop/dates.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"
#include "ui/acts.h"
#include "ui/filter.h"

namespace grapplemont::desktop {

namespace {

constexpr const char* kFilterHint = "Filter\u2026";

/// What the search line offers, in the table's own words.
QString SearchHint(const ui::ListBox& list) {
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    const ui::Column& column = list.Columns()[i];
    const bool number =
        column.Kind == ui::ColumnKind::Number || column.Kind == ui::ColumnKind::Percent;
    // A place or a date is a number to the table, but nobody would look for one by its size.
    const bool place = column.Title == "#" || column.Title == "Place";
    const bool plain = list.Count() == 0 ||
                       list.CellOf(1, static_cast<int>(i)).Text.find_first_not_of("0123456789%") ==
                           std::string::npos;
    if (number && plain && !place && !column.Title.empty())
      return "Filter: " + Shown(column.Title) + " >60\u2026";
  }
  return kFilterHint;
}

/// Whoever looks for a date types what is shown of it.
ui::CellReader CellsAreRead() {
  if (DatesAreTheGames()) return {};
  return [](const ui::Cell& cell, ui::ColumnKind kind) { return Keep(CellText(cell, kind)).Text; };
}

}  // namespace

TableView::TableView(ui::ListBox& list, Stage& stage, QWidget* parent)
    : ViewOf(list, stage, parent),
      place_(stage.Kept().PlaceOf(list)),
      table_(list, stage.Kept().Table(place_), CellsAreRead()),
      model_(list, table_),
      grid_(new TableGrid(model_, this)) {
  auto* column = NewLayout<QVBoxLayout>(this, 8);
  BuildSearchRow();
  BuildFilterRow();
  column->addWidget(searchRow_);
  column->addWidget(filterRow_);
  column->addWidget(grid_, 1);
  setFocusProxy(grid_);
  ApplyColumns();
  Connect();
  ConnectGrid();
  RestorePlace();
}

void TableView::BuildSearchRow() {
  const QString name = Shown(control_.Name());
  searchRow_ = new QWidget(this);
  search_ = NewLine(searchRow_, name + "_search", Shown(table_.State().Search));
  columns_ = new PushButton(searchRow_, "Columns");
  auto* row = NewLayout<QHBoxLayout>(searchRow_, 12);
  search_->setMinimumWidth(Px(96));
  search_->setMaximumWidth(Px(240));
  search_->setClearButtonEnabled(true);
  search_->setProperty(kKeepsEnter, true);
  search_->setPlaceholderText(SearchHint(control_));
  search_->setAccessibleName("Filter");
  search_->installEventFilter(this);
  columns_->setObjectName(name + "_columns");
  row->addStretch(1);
  row->addWidget(search_, 100);
  row->addWidget(columns_);
}

/// What hides rows, and the way to see all again.
void TableView::BuildFilterRow() {
  const QString name = Shown(control_.Name());
  filterRow_ = new QWidget(this);
  filtered_ = new WrappedLabel(filterRow_);
  clear_ = new PushButton(filterRow_, "Show All");
  filtered_->setObjectName(name + "_filtered");
  clear_->setObjectName(name + "_clear");
  clear_->setToolTip("Clears every filter of this table. Backspace does it, too.");
  auto* row = NewLayout<QHBoxLayout>(filterRow_, 12);
  row->addWidget(filtered_, 1);
  row->addWidget(clear_);
  SetInk(*filtered_, ColoursOf(this).Gold);
}

void TableView::Connect() {
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    table_.SetSearch(Keep(text).Text);
    Refilter();
  });
  connect(clear_, &QAbstractButton::clicked, this, [this] { ClearFilters(); });
  connect(columns_, &QAbstractButton::clicked, this,
          [this] { OpenColumnsMenu(columns_->mapToGlobal(QPoint(0, columns_->height() + 4))); });
  TableHeading& heading = grid_->Heading();
  heading.Clicked = [this](int column, bool second) {
    table_.TurnSort(column, second);
    Rearrange();
    grid_->scrollTo(grid_->currentIndex());
    if (!hasChosen_) BeginAtTop();
  };
  connect(&heading, &QHeaderView::sectionMoved, this, &TableView::TakeOrder);
  connect(&heading, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (arranging_) return;
    table_.SetWidth(column, width * kUsualText / std::max(1, Px(kUsualText)));
    PlaceRowButtons();
  });
  heading.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&heading, &QWidget::customContextMenuRequested, this, &TableView::OpenHeadingMenu);
}

void TableView::ConnectGrid() {
  grid_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(grid_, &QWidget::customContextMenuRequested, this, &TableView::OpenRowMenu);
  grid_->Picked = [this](int row) {
    hasChosen_ = true;
    Act(row, false);
  };
  grid_->Opened = [this](int row) {
    hasChosen_ = true;
    Act(row, true);
  };
  grid_->Added = [this](int row) { AddRow(row); };
  grid_->Reached = [this](int row) { ReachRow(row); };
  grid_->AllPicked = [this] { PickAll(); };
  grid_->Dragged = [this](int row, int to) {
    currentKey_ = table_.KeyAt(to);
    const auto& rows = table_.Rows();
    Do<int, int>(ui::MoveRow, rows[Index(row)] + 1, rows[Index(to)] + 1);
  };
  grid_->Copied = [this] { CopyCsv(); };
  grid_->Resized = [this] {
    if (table_.Follows()) FitColumns();
  };
  grid_->Moved = [this] { PlaceRowButtons(); };
  ConnectLinks();
  grid_->Typed = [this](const QString& letters) {
    if (searchRow_->isHidden() || control_.Search) return grid_->keyboardSearch(letters);
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->insert(letters);
  };
}

void TableView::Act(int shownRow, bool open) {
  currentKey_ = anchorKey_ = table_.KeyAt(shownRow);
  const int row = table_.Rows()[Index(shownRow)] + 1;
  open ? Do<int>(ui::OpenRow, row) : Do<int>(ui::Pick, row);
}

void TableView::Show() {
  if (table_.Follow()) Rearrange();
  ShowSelection();
  grid_->viewport()->update();
}

void TableView::Rearrange() {
  const QScopedValueRollback<bool> arranging(arranging_, true);
  const int top = grid_->verticalScrollBar()->value(), before = grid_->CurrentRow();
  const int across = grid_->horizontalScrollBar()->value();
  const bool seen = grid_->SeesCursor(grid_->viewport()->height());
  if (!std::exchange(isNew_, false)) model_.Reset();
  ApplyColumns();
  natural_.clear();
  FitColumns();
  // The cursor stays with its row; where that is gone it stays at its place.
  const int rows = model_.rowCount();
  int row = -1;
  for (int i = 0; currentKey_ != 0 && i < rows && row < 0; ++i)
    if (table_.KeyAt(i) == currentKey_) row = i;
  if (row < 0 && before >= 0) row = std::min(before, rows - 1);
  grid_->SetCurrentRow(row);
  grid_->verticalScrollBar()->setValue(top);
  if (seen) grid_->scrollTo(grid_->currentIndex());
  grid_->horizontalScrollBar()->setValue(across);
  ShowSearchRow();
  ShowFilterRow();
  grid_->SetEmptyText(control_.Count() > 0
                          ? "Nothing here fits the filter. Backspace shows all rows again."
                          : Shown(control_.EmptyText));
  grid_->updateGeometry();
}

void TableView::Refilter() {
  Rearrange();
  DropUnseen();
}

bool TableView::ClearFilters() {
  if (table_.State().Search.empty() && table_.State().Filters.empty()) return false;
  table_.ClearFilters();
  search_->clear();
  Rearrange();
  return true;
}

void TableView::ShowSearchRow() {
  const bool filters = !table_.State().Search.empty() || !table_.State().Filters.empty();
  const bool records = control_.OnOpen && control_.Columns().size() > 1;
  const int overseen = records ? kRecordsWorthSearching : kWorthSearching;
  const bool wide = CanSearch() && control_.Count() > overseen && rowButtons_.empty();
  searchRow_->setVisible(wide || filters || !control_.Views.empty());
  search_->setVisible(!control_.Search);
  columns_->setVisible(control_.Columns().size() > 1 || !control_.Views.empty());
  const QString view = Shown(table_.State().View);
  const QString words = !view.isEmpty() ? view : ShowsAll() ? "All" : "Yours";
  columns_->setText(table_.Views().empty() ? "Columns" : "View: " + words);
  columns_->updateGeometry();
}

void TableView::ShowFilterRow() {
  const QString hiding = Shown(table_.HidingText());
  filterRow_->setVisible(!hiding.isEmpty());
  filtered_->setText(
      QString("%1 of %2: %3").arg(model_.rowCount()).arg(control_.Count()).arg(hiding));
}

/// The cursor follows where the screen selects.
void TableView::ShowSelection() {
  const int selected = control_.Selected() - 1;
  if (selected < 0 || control_.Multi) return;
  const int row = table_.ShownRow(selected), current = grid_->CurrentRow();
  if (row < 0) return;
  // Of several it may stand on any.
  if (control_.Extends && current >= 0 && control_.Keys().size() > 1) return;
  currentKey_ = control_.KeyOf(selected + 1);
  if (row == current) return;
  grid_->SetCurrentRow(row);
  grid_->scrollTo(grid_->currentIndex());
}

void TableView::ApplyColumns() {
  const QScopedValueRollback<bool> arranging(arranging_, true);
  TableHeading& heading = grid_->Heading();
  for (int column = 0; column < model_.columnCount(); ++column)
    heading.setSectionHidden(column, !table_.Shows(column));
  for (std::size_t i = 0; i < table_.Columns().size(); ++i)
    heading.moveSection(heading.visualIndex(table_.Columns()[i]), static_cast<int>(i));
}

/// The player has dragged a heading.
void TableView::TakeOrder() {
  if (arranging_) return;
  std::vector<int> order;
  for (int place = 0; place < model_.columnCount(); ++place) {
    const int column = grid_->Heading().logicalIndex(place);
    if (table_.Shows(column)) order.push_back(column);
  }
  table_.SetOrder(order);
}

void TableView::RestorePlace() {
  currentKey_ = table_.State().CurrentKey;
  const int top = table_.State().TopRow;
  Rearrange();
  // The grid knows how far it can scroll once it has been laid out. What has been kept may hide
  // what the page has chosen.
  QMetaObject::invokeMethod(
      this,
      [this, top, kept = currentKey_] {
        grid_->verticalScrollBar()->setValue(top);
        grid_->scrollTo(grid_->currentIndex());
        if (!isVisible() || !table_.Follows()) return;
        DropUnseen();
        if (control_.Selected() == 1 && control_.Key() != kept) BeginAtTop();
      },
      Qt::QueuedConnection);
}

/// A page of people that has chosen the first of its own order begins with the first of the
/// player's.
void TableView::BeginAtTop() {
  if (control_.Views.empty() || table_.State().Sort.empty() || control_.Selected() == 0) return;
  if (table_.ShownRow(control_.Selected() - 1) > 0) Act(0, false);
}

void TableView::Leave() {
  table_.SetPlace(grid_->verticalScrollBar()->value(), currentKey_);
  OnStage().Kept().SetTable(place_, table_.State());
}

QWidget* TableView::TakeSearchRow() {
  layout()->removeWidget(searchRow_);
  return searchRow_;
}

bool TableView::FocusSearch() {
  if (searchRow_->isHidden()) return false;
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
  return true;
}

/// An example stands in the line where there is room for all of it.
void TableView::FitHint() {
  constexpr int kSides = 24;
  const QString hint = SearchHint(control_);
  const bool fits = WordsWidth(search_->font(), hint) + Px(kSides) <= search_->width();
  search_->setPlaceholderText(fits ? hint : QString(kFilterHint));
}

bool TableView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == search_ && event->type() == QEvent::Resize) FitHint();
  if (watched != search_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Escape && ClearFilters()) return true;
  if (key == Qt::Key_Down || IsEnter(key) || key == Qt::Key_Escape) {
    grid_->setFocus(Qt::TabFocusReason);
    return true;
  }
  return false;
}

void TableView::SetRowButtons(std::vector<ButtonView*> buttons) {
  rowButtons_ = std::move(buttons);
  ShowSearchRow();
  PlaceRowButtons();
}

/// A button whose row is not shown stands out of sight. Each is placed once, since each place is
/// painted.
void TableView::PlaceRowButtons() {
  if (rowButtons_.empty() || !table_.Follows()) return;
  std::vector<QRect> places(rowButtons_.size());
  int column = -1;
  for (const int shown : table_.Columns())
    if (model_.Column(shown).Kind == ui::ColumnKind::Button) column = shown;
  for (int row = 0; column >= 0 && row < model_.rowCount(); ++row) {
    const int key = table_.KeyAt(row);
    if (key < 1 || key > static_cast<int>(rowButtons_.size())) continue;
    const int side = Px(kCellSide), above = Px(4);
    if (grid_->rowViewportPosition(row) >= grid_->WholeRows(grid_->viewport()->height())) break;
    places[Index(key - 1)] =
        grid_->visualRect(model_.index(row, column)).adjusted(side, above, -side, -above - 1);
  }
  for (std::size_t i = 0; i < places.size(); ++i)
    places[i].isEmpty() ? rowButtons_[i]->move(-Px(1000), 0)
                        : rowButtons_[i]->setGeometry(places[i]);
}

ControlView* NewView(ui::ListBox& list, Stage& stage, QWidget* parent) {
  return new TableView(list, stage, parent);
}

}  // namespace grapplemont::desktop
