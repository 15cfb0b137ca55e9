#include "desktop/tableview.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/button.h"
#include "desktop/look.h"
#include "desktop/textviews.h"
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

}  // namespace

TableView::TableView(ui::ListBox& list, Stage& stage, QWidget* parent)
    : QWidget(parent),
      ControlView(list, stage),
      list_(list),
      id_(list.Parent().Name() + "." + list.Name()),
      table_(list, stage.Kept().Table(id_)),
      model_(list, table_),
      grid_(new TableGrid(model_, this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Px(8));
  BuildSearchRow();
  column->addWidget(searchRow_);
  column->addWidget(grid_, 1);
  setFocusProxy(grid_);
  ApplyColumns();
  Connect();
  RestorePlace();
}

void TableView::BuildSearchRow() {
  searchRow_ = new QWidget(this);
  search_ = new QLineEdit(searchRow_);
  count_ = new QLabel(searchRow_);
  columns_ = new PushButton(searchRow_, "Columns");
  auto* row = new QHBoxLayout(searchRow_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Px(12));
  search_->setObjectName(Name() + "_search");
  search_->setTextMargins(Px(8), 0, Px(8), 0);
  search_->setMinimumWidth(Px(96));
  search_->setMaximumWidth(Px(240));
  search_->setClearButtonEnabled(true);
  search_->setPlaceholderText(SearchHint(list_));
  search_->setText(Shown(table_.State().Search));
  search_->installEventFilter(this);
  columns_->setObjectName(Name() + "_columns");
  row->addWidget(count_);
  row->addStretch(1);
  row->addWidget(search_, 100);
  row->addWidget(columns_);
}

QString TableView::Name() const {
  return Shown(list_.Name());
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
  connect(&heading, &QHeaderView::sectionMoved, this, [this] { TakeOrder(); });
  connect(&heading, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (arranging_) return;
    table_.SetWidth(column, width * kUsualText / std::max(1, Px(kUsualText)));
    PlaceRowButtons();
  });
  heading.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&heading, &QWidget::customContextMenuRequested, this, &TableView::OpenHeadingMenu);
  grid_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(grid_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { OpenRowMenu(at); });
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
  using ByNumber = std::string (*)(ui::Desk&, ui::Screen&, std::string_view, int);
  currentKey_ = table_.RowAt(shownRow).Key;
  const int row = table_.Rows()[Index(shownRow)] + 1;
  open ? Do(static_cast<ByNumber>(ui::OpenRow), row) : Do(static_cast<ByNumber>(ui::Pick), row);
}

void TableView::Show() {
  if (table_.Follow()) Rearrange();
  ShowSelection();
  grid_->viewport()->update();
}

void TableView::Rearrange() {
  arranging_ = true;
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
  grid_->SetEmptyText(list_.Count() > 0 ? "Nothing here fits the filter." : Shown(list_.EmptyText));
  grid_->updateGeometry();
  arranging_ = false;
}

void TableView::ShowSearchRow() {
  const bool filters = !table_.State().Search.empty() || !table_.State().Filters.empty();
  const bool wide = list_.Count() > kWorthSearching && rowButtons_.empty();
  searchRow_->setVisible(wide || filters);
  auto* count = static_cast<QLabel*>(count_);
  count->setText(!table_.Filtered()
                     ? QString()
                     : QString("%1 of %2").arg(model_.rowCount()).arg(list_.Count()));
  SetInk(*count, ColoursOf(this).Muted);
}

/// The cursor follows where the screen selects.
void TableView::ShowSelection() {
  const int selected = list_.Selected() - 1;
  if (selected < 0 || list_.Multi) return;
  const int row = table_.ShownRow(selected);
  if (row < 0 || row == grid_->CurrentRow()) return;
  currentKey_ = list_.Rows()[Index(selected)].Key;
  grid_->SetCurrentRow(row);
}

std::vector<int> TableView::NaturalWidths() const {
  std::vector<int> widths;
  for (const int column : table_.Columns()) {
    const TableHeading& heading = grid_->Heading();
    int width = std::max(heading.HeadingWidth(column), heading.minimumSectionSize());
    const auto kind = list_.Columns()[Index(column)].Kind;
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
    widths.push_back(width);
  }
  return widths;
}

/// Each column gets what its contents ask for; what is left over goes to those with a share, else
/// to the texts; what is missing is taken from the widest texts, but no heading is ever cut.
void TableView::FitColumns() {
  const auto& shown = table_.Columns();
  std::vector<int> widths = NaturalWidths();
  std::vector<double> shares;
  bool anyShare = false;
  for (const int column : shown) anyShare = anyShare || list_.Columns()[Index(column)].Width > 0;
  int room = grid_->viewport()->width();
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const ui::Column& column = list_.Columns()[Index(shown[i])];
    const auto byHand = table_.State().Widths.find(ui::ColumnId(list_.Columns(), shown[i]));
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
  double all = std::accumulate(shares.begin(), shares.end(), 0.0);
  for (std::size_t i = 0; room > 0 && all > 0 && i < shown.size(); ++i) {
    const int more = static_cast<int>(std::lround(room * shares[i] / all));
    widths[i] += more;
    room -= more;
    all -= shares[i];
  }
  const int whole = widths.empty() ? 0 : widths.front();
  for (bool tight = false; room < 0;) {
    const auto excess = [&](std::size_t i) {
      const bool text = list_.Columns()[Index(shown[i])].Kind == ui::ColumnKind::Text;
      const int least = std::max(grid_->Heading().HeadingWidth(shown[i]), Px(tight    ? 56
                                                                             : i == 0 ? 110
                                                                                      : 72));
      return text && shares[i] >= 0 ? widths[i] - least : 0;
    };
    std::size_t widest = 0;
    for (std::size_t i = 1; i < shown.size(); ++i)
      if (excess(i) > excess(widest)) widest = i;
    const int take = shown.empty() ? 0 : std::min({excess(widest), -room, Px(16)});
    if (take <= 0 && tight) break;
    if (take <= 0) {
      tight = true;
      continue;
    }
    widths[widest] -= take;
    room += take;
  }
  // Where the table has to be scrolled anyway, its first words are not cut for it.
  if (room < 0 && !widths.empty()) widths.front() = whole;
  const bool was = arranging_;
  arranging_ = true;
  for (std::size_t i = 0; i < shown.size(); ++i) grid_->setColumnWidth(shown[i], widths[i]);
  arranging_ = was;
  PlaceRowButtons();
}

void TableView::ApplyColumns() {
  const bool was = arranging_;
  arranging_ = true;
  TableHeading& heading = grid_->Heading();
  for (int column = 0; column < model_.columnCount(); ++column)
    heading.setSectionHidden(column, !table_.Shows(column));
  for (std::size_t i = 0; i < table_.Columns().size(); ++i)
    heading.moveSection(heading.visualIndex(table_.Columns()[i]), static_cast<int>(i));
  arranging_ = was;
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

void TableView::Remember() {
  table_.SetPlace(grid_->verticalScrollBar()->value(), currentKey_);
  OnStage().Kept().SetTable(id_, table_.State());
}

void TableView::Leave() {
  Remember();
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
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (key == Qt::Key_Escape && !search_->text().isEmpty()) {
    search_->clear();
    return true;
  }
  if (key == Qt::Key_Down || enter || key == Qt::Key_Escape) {
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
    if (list_.Columns()[Index(shown)].Kind == ui::ColumnKind::Button) column = shown;
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

}  // namespace grapplemont::desktop
