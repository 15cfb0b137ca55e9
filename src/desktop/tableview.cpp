#include "desktop/tableview.h"

#include <QApplication>
#include <QClipboard>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/button.h"
#include "desktop/views.h"
#include "ui/acts.h"
#include "ui/filter.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWorthSearching = 8;  // rows that can be overseen without a search line
constexpr int kMeasuredRows = 200;  // rows that are measured one by one for a column's width

/// What the search line offers, in the table's own words.
QString SearchHint(const ui::ListBox& list) {
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    const ui::Column& column = list.Columns()[i];
    const bool number =
        column.Kind == ui::ColumnKind::Number || column.Kind == ui::ColumnKind::Percent;
    // A date is a number to the table, but nobody would look for one by its size.
    const bool plain =
        list.Count() == 0 || i >= list.Rows().front().Cells.size() ||
        list.Rows().front().Cells[i].Text.find_first_not_of("0123456789%") == std::string::npos;
    if (number && plain && !column.Title.empty())
      return "Filter: " + Shown(column.Title) + " >60\u2026";
  }
  return "Filter\u2026";
}

std::size_t Index(int number) {
  return static_cast<std::size_t>(number);
}

/// Hands out the room left over by shares.
void Spread(int room, const std::vector<double>& shares, std::vector<int>& widths) {
  double all = std::accumulate(shares.begin(), shares.end(), 0.0);
  for (std::size_t i = 0; room > 0 && all > 0 && i < widths.size(); ++i) {
    const int more = static_cast<int>(std::lround(room * shares[i] / all));
    widths[i] += more;
    room -= more;
    all -= shares[i];
  }
}

/// Takes what is missing bit by bit from what exceeds its least width most; gives what is missing
/// still.
int Squeeze(int missing, const std::vector<int>& least, std::vector<int>& widths) {
  while (missing > 0) {
    std::size_t widest = 0;
    for (std::size_t i = 1; i < widths.size(); ++i)
      if (widths[i] - least[i] > widths[widest] - least[widest]) widest = i;
    const int take = std::min({widths[widest] - least[widest], missing, Px(16)});
    if (take <= 0) break;
    widths[widest] -= take;
    missing -= take;
  }
  return missing;
}

}  // namespace

TableView::TableView(ui::ListBox& list, Stage& stage, QWidget* parent)
    : ViewOf(list, stage, parent),
      id_(list.Parent().Name() + "." + list.Name()),
      table_(list, stage.Kept().Table(id_)),
      model_(list, table_),
      grid_(new TableGrid(model_, this)) {
  auto* column = NewLayout<QVBoxLayout>(this, 8);
  BuildSearchRow();
  column->addWidget(searchRow_);
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
  count_ = new QLabel(searchRow_);
  columns_ = new PushButton(searchRow_, "Columns");
  auto* row = NewLayout<QHBoxLayout>(searchRow_, 12);
  search_->setMinimumWidth(Px(96));
  search_->setMaximumWidth(Px(240));
  search_->setClearButtonEnabled(true);
  search_->setPlaceholderText(SearchHint(control_));
  search_->setAccessibleName("Filter");
  search_->installEventFilter(this);
  columns_->setObjectName(name + "_columns");
  row->addWidget(count_);
  row->addStretch(1);
  row->addWidget(search_, 100);
  row->addWidget(columns_);
}

void TableView::Connect() {
  connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
    table_.SetSearch(Keep(text).Text);
    Rearrange();
  });
  connect(columns_, &QAbstractButton::clicked, this,
          [this] { OpenColumnsMenu(columns_->mapToGlobal(QPoint(0, columns_->height() + 4))); });
  TableHeading& heading = grid_->Heading();
  heading.Clicked = [this](int column, bool second) {
    table_.TurnSort(column, second);
    Rearrange();
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
  grid_->Picked = [this](int row) { Act(row, false); };
  grid_->Opened = [this](int row) { Act(row, true); };
  grid_->Copied = [this] { CopyCsv(); };
  grid_->Resized = [this] {
    if (table_.Follows()) FitColumns();
  };
  grid_->Moved = [this] { PlaceRowButtons(); };
  ConnectLinks();
  grid_->Typed = [this](const QString& letters) {
    if (searchRow_->isHidden()) return grid_->keyboardSearch(letters);
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->insert(letters);
  };
}

void TableView::Act(int shownRow, bool open) {
  currentKey_ = table_.RowAt(shownRow).Key;
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
  model_.Reset();
  ApplyColumns();
  FitColumns();
  // The cursor stays with its row; where that is gone it stays at its place.
  const int rows = model_.rowCount();
  int row = -1;
  for (int i = 0; currentKey_ != 0 && i < rows && row < 0; ++i)
    if (table_.RowAt(i).Key == currentKey_) row = i;
  if (row < 0 && before >= 0) row = std::min(before, rows - 1);
  grid_->SetCurrentRow(row);
  grid_->verticalScrollBar()->setValue(top);
  ShowSearchRow();
  grid_->SetEmptyText(control_.Count() > 0 ? "Nothing here fits the filter."
                                           : Shown(control_.EmptyText));
  grid_->updateGeometry();
}

void TableView::ShowSearchRow() {
  const bool filters = !table_.State().Search.empty() || !table_.State().Filters.empty();
  const bool wide = control_.Count() > kWorthSearching && rowButtons_.empty();
  searchRow_->setVisible(wide || filters);
  count_->setText(!table_.Filtered()
                      ? QString()
                      : QString("%1 of %2").arg(model_.rowCount()).arg(control_.Count()));
  SetInk(*count_, ColoursOf(this).Muted);
}

/// The cursor follows where the screen selects.
void TableView::ShowSelection() {
  const int selected = control_.Selected() - 1;
  if (selected < 0 || control_.Multi) return;
  const int row = table_.ShownRow(selected);
  if (row < 0 || row == grid_->CurrentRow()) return;
  currentKey_ = control_.Rows()[Index(selected)].Key;
  grid_->SetCurrentRow(row);
}

std::vector<int> TableView::NaturalWidths() const {
  std::vector<int> widths;
  for (const int column : table_.Columns()) {
    const TableHeading& heading = grid_->Heading();
    int width = std::max(heading.HeadingWidth(column), heading.minimumSectionSize());
    const auto kind = model_.Column(column).Kind;
    const ui::Cell* longest = nullptr;
    const int rows = model_.rowCount();
    for (int row = 0; row < rows; ++row) {
      const ui::Cell& cell = table_.At(row, column);
      if (row < kMeasuredRows) {
        width = std::max(width, CellWidth(cell, kind));
      } else if (!longest || cell.Text.size() > longest->Text.size()) {
        longest = &cell;
      }
    }
    if (longest) width = std::max(width, CellWidth(*longest, kind));
    if (rows > 0) width += DrawnWidth(model_.Column(column), table_.RowAt(0).Key);
    widths.push_back(width);
  }
  return widths;
}

/// The widths below which texts are not cut: at least these, and no heading is ever cut. What is
/// no text keeps its own.
std::vector<int> TableView::LeastWidths(const std::vector<int>& widths, int first,
                                        int other) const {
  std::vector<int> least;
  for (const int column : table_.Columns()) {
    const std::size_t place = least.size();
    least.push_back(
        model_.Column(column).Kind != ui::ColumnKind::Text
            ? widths[place]
            : std::max(grid_->Heading().HeadingWidth(column), Px(place == 0 ? first : other)));
  }
  return least;
}

/// Each column gets what its contents ask for; what is left over goes to those with a share, else
/// to the texts; what is missing is taken from the widest texts.
void TableView::FitColumns() {
  const auto& shown = table_.Columns();
  std::vector<int> widths = NaturalWidths();
  std::vector<double> shares;
  const bool anyShare =
      std::ranges::any_of(shown, [&](int column) { return model_.Column(column).Width > 0; });
  int room = grid_->viewport()->width();
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const ui::Column& column = model_.Column(shown[i]);
    const auto byHand = table_.State().Widths.find(ui::ColumnId(control_.Columns(), shown[i]));
    double share = anyShare                              ? column.Width
                   : column.Kind == ui::ColumnKind::Text ? widths[i]
                                                         : widths[i] * 0.3;
    if (byHand != table_.State().Widths.end()) {
      widths[i] = std::max(Px(28), Px(byHand->second));
      share = 0;
    }
    shares.push_back(share);
    room -= widths[i];
  }
  Spread(room, shares, widths);
  if (room < 0 && !widths.empty()) {
    const int whole = widths.front();
    int missing = Squeeze(-room, LeastWidths(widths, 110, 72), widths);
    missing = Squeeze(missing, LeastWidths(widths, 56, 56), widths);
    // Where the table has to be scrolled anyway, its first words are not cut for it.
    if (missing > 0) widths.front() = whole;
  }
  const QScopedValueRollback<bool> arranging(arranging_, true);
  for (std::size_t i = 0; i < shown.size(); ++i) grid_->setColumnWidth(shown[i], widths[i]);
  PlaceRowButtons();
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
  // The grid knows how far it can scroll once it has been laid out.
  QMetaObject::invokeMethod(
      this, [this, top] { grid_->verticalScrollBar()->setValue(top); }, Qt::QueuedConnection);
}

void TableView::Leave() {
  table_.SetPlace(grid_->verticalScrollBar()->value(), currentKey_);
  OnStage().Kept().SetTable(id_, table_.State());
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

bool TableView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != search_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Escape && !search_->text().isEmpty()) {
    search_->clear();
    return true;
  }
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

/// A button whose row is not shown stands out of sight.
void TableView::PlaceRowButtons() {
  if (rowButtons_.empty() || !table_.Follows()) return;
  for (ButtonView* button : rowButtons_) button->move(-Px(1000), 0);
  int column = -1;
  for (const int shown : table_.Columns())
    if (model_.Column(shown).Kind == ui::ColumnKind::Button) column = shown;
  if (column < 0) return;
  for (int row = 0; row < model_.rowCount(); ++row) {
    const int key = table_.RowAt(row).Key;
    if (key < 1 || key > static_cast<int>(rowButtons_.size())) continue;
    const QRect cell = grid_->visualRect(model_.index(row, column));
    const int side = Px(kCellSide), above = Px(4);
    rowButtons_[Index(key - 1)]->setGeometry(cell.adjusted(side, above, -side, -above - 1));
  }
}

void TableView::CopyCsv() const {
  QApplication::clipboard()->setText(Shown(table_.Csv()));
}

ControlView* NewView(ui::ListBox& list, Stage& stage, QWidget* parent) {
  return new TableView(list, stage, parent);
}

}  // namespace grapplemont::desktop
