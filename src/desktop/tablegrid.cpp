#include "desktop/tablegrid.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"

namespace grapplemont::desktop {

TableGrid::TableGrid(TableModel& model, QWidget* parent)
    : QTableView(parent),
      model_(model),
      cells_(new TableCells(model, this)),
      heading_(new TableHeading(model, this)) {
  setHorizontalHeader(heading_);
  // Before there are rows: each would be sized again by itself.
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(Px(RowHeight(model_.List())));
  setModel(&model);
  setItemDelegate(cells_);
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  viewport()->setAutoFillBackground(false);
  heading_->viewport()->setAutoFillBackground(false);
}

void TableGrid::SetEmptyText(const QString& text) {
  empty_ = text;
  viewport()->update();
}

void TableGrid::SetCurrentRow(int row) {
  setCurrentIndex(row < 0 ? QModelIndex() : model_.index(row, model_.Table().Columns().front()));
}

bool TableGrid::SeesCursor(int height) const {
  const int place = rowViewportPosition(CurrentRow());
  return currentIndex().isValid() && place >= 0 && place < WholeRows(height);
}

int TableGrid::WholeRows(int height) const {
  const int row = std::max(1, verticalHeader()->defaultSectionSize());
  return height < row ? height : height / row * row;
}

/// The toolkit ends a list that is scrolled down with its last row at the very foot, which cuts the
/// first.
void TableGrid::BeginWithWholeRow() {
  if (verticalScrollBar()->maximum() > 0)
    verticalHeader()->setOffsetToSectionPosition(verticalScrollBar()->value());
}

QSize TableGrid::sizeHint() const {
  const int rows = std::clamp(model_.rowCount(), 2, std::max(2, model_.List().Room));
  return {Px(240), heading_->sizeHint().height() + rows * Px(RowHeight(model_.List())) + 2};
}

/// Whatever is in it: a panel keeps its size when its rows change.
QSize TableGrid::minimumSizeHint() const {
  const int rows = std::min(std::max(model_.List().Room, 2), model_.List().Least);
  const int bar = across_ ? horizontalScrollBar()->sizeHint().height() : 0;
  return {Px(160), heading_->sizeHint().height() + rows * Px(RowHeight(model_.List())) + bar + 2};
}

void TableGrid::SetAcross(bool scrolls) {
  if (std::exchange(across_, scrolls) != scrolls) updateGeometry();
}

void TableGrid::SetPinned(int count) {
  model_.Pin.Count = count;
  UpdatePinned();
}

void TableGrid::UpdatePinned() {
  model_.Pin.Width = 0;
  if (horizontalScrollBar()->value() > 0) {
    model_.Pin.Width = 1;  // some, so that they are known as staying
    int width = 0;
    for (const int column : model_.PinnedColumns()) width += columnWidth(column);
    model_.Pin.Width = width;
  }
  viewport()->update();
  heading_->viewport()->update();
}

QModelIndex TableGrid::indexAt(const QPoint& at) const {
  if (at.y() >= WholeRows(viewport()->height())) return {};
  int right = 0;
  for (const int column : model_.PinnedColumns())
    if (right += columnWidth(column); at.x() < right && rowAt(at.y()) >= 0)
      return model_.index(rowAt(at.y()), column);
  return QTableView::indexAt(at);
}

QRect TableGrid::visualRect(const QModelIndex& index) const {
  QRect cell = QTableView::visualRect(index);
  int left = 0;
  for (const int column : model_.PinnedColumns()) {
    if (column == index.column()) cell.moveLeft(left);
    left += columnWidth(column);
  }
  return cell;
}

/// The cursor is a row's: it never turns the table sideways.
void TableGrid::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int across = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  horizontalScrollBar()->setValue(across);
}

/// Ctrl opens a name that is clicked; where it adds a row, Alt does.
bool TableGrid::FollowAt(const QMouseEvent& event) {
  const auto key = model_.List().Extends ? Qt::AltModifier : Qt::ControlModifier;
  if (event.button() != Qt::LeftButton || !event.modifiers().testFlag(key)) return false;
  const QModelIndex cell = indexAt(event.position().toPoint());
  const ui::Handler open = cell.isValid() ? LinkOf(cell) : ui::Handler();
  if (open) Followed(open);
  return static_cast<bool>(open);
}

void TableGrid::mousePressEvent(QMouseEvent* event) {
  if (FollowAt(*event)) return;
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  if (model_.List().OnMove) dragged_ = index.row();
  PickAs(index.row(), event->modifiers());
}

void TableGrid::PickAs(int row, Qt::KeyboardModifiers held) {
  const bool extends = model_.List().Extends;
  if (extends && held.testFlag(Qt::ShiftModifier)) return Reached(row);
  if (extends && held.testFlag(Qt::ControlModifier)) return Added(row);
  Picked(row);
}

void TableGrid::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  DropAt(-1);
  const int from = std::exchange(dragged_, -1), to = indexAt(event->position().toPoint()).row();
  if (from >= 0 && to >= 0 && from != to) Dragged(from, to);
}

void TableGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  if (model_.List().OnOpen) {
    Opened(index.row());
  } else if (model_.List().Multi) {
    Picked(index.row());  // two quick clicks are two clicks
  }
}

void TableGrid::Hover(int row) {
  if (row == hover_) return;
  hover_ = row;
  cells_->SetHover(row);
  viewport()->update();
}

void TableGrid::mouseMoveEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  Hover(cell.row());
  DropAt(dragged_ >= 0 ? cell.row() : -1);
  const auto key = model_.List().Extends ? Qt::AltModifier : Qt::ControlModifier;
  const bool leads = event->modifiers().testFlag(key) && cell.isValid() && LinkOf(cell);
  viewport()->setCursor(leads ? Qt::PointingHandCursor
                        : dragged_ >= 0 && cell.isValid() && cell.row() != dragged_
                            ? Qt::ClosedHandCursor
                            : Qt::ArrowCursor);
  if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
}

void TableGrid::leaveEvent(QEvent* event) {
  Hover(-1);
  QTableView::leaveEvent(event);
}

/// The cursor goes with the key; in a list that takes one row, so does the selection.
void TableGrid::Move(QKeyEvent* event) {
  const int before = CurrentRow();
  if (before < 0 && model_.rowCount() > 0) {
    SetCurrentRow(0);
  } else {
    QKeyEvent plain(event->type(), event->key(), event->modifiers() & ~Qt::ShiftModifier);
    QTableView::keyPressEvent(&plain);
  }
  event->accept();
  if (CurrentRow() != before && CurrentRow() >= 0 && !model_.List().Multi)
    PickAs(CurrentRow(), event->modifiers() & Qt::ShiftModifier);
}

void TableGrid::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copied();
  if (event->matches(QKeySequence::SelectAll) && model_.List().Extends) return AllPicked();
  const int key = event->key();
  if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
    return Move(event);
  if (key == Qt::Key_Home || key == Qt::Key_End) {
    const auto held = event->modifiers() | Qt::ControlModifier;
    QKeyEvent whole(event->type(), key, held);  // of all rows
    return Move(&whole);
  }
  if (key == Qt::Key_Left || key == Qt::Key_Right) {
    QScrollBar* bar = horizontalScrollBar();
    return bar->setValue(bar->value() + (key == Qt::Key_Left ? -1 : 1) * Px(40));
  }
  const int row = CurrentRow();
  // Not every keyboard has the key of menus.
  if (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
    return emit customContextMenuRequested(visualRect(currentIndex()).center());
  if (IsEnter(key) && event->modifiers().testFlag(Qt::ControlModifier))
    return model_.List().OnOpen && row >= 0 && !event->isAutoRepeat() ? Opened(row) : void();
  if (key == Qt::Key_Space) return row >= 0 ? PickAs(row, event->modifiers()) : void();
  const QString letters = event->text();
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (plain && !letters.isEmpty() && letters.front().isPrint()) return Typed(letters);
  event->ignore();
}

void TableGrid::EachSeen(const std::function<void(int row, int top)>& draw) {
  const int foot = WholeRows(viewport()->height());
  for (int row = std::max(0, rowAt(0)); row < model_.rowCount(); ++row) {
    const int top = rowViewportPosition(row);
    if (top >= foot) return;
    draw(row, top);
  }
}

/// Over the others, which leave the place free.
void TableGrid::DrawPinned(QPainter& painter) {
  if (model_.Pin.Width == 0) return;
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  cells_->SetPaintsPinned(true);
  EachSeen([&](int row, int top) {
    int left = 0;
    for (const int column : model_.PinnedColumns()) {
      option.rect = QRect(left, top, columnWidth(column), rowHeight(row));
      cells_->paint(&painter, option, model_.index(row, column));
      left += columnWidth(column);
    }
  });
  cells_->SetPaintsPinned(false);
  painter.fillRect(model_.Pin.Width - 1, 0, 1, viewport()->height(), ColoursOf(this).Line);
}

void TableGrid::DrawCursor(QPainter& painter) {
  if (!hasFocus()) return;
  // Without a row the keyboard is still here. A frame round nothing would look like a field.
  if (model_.rowCount() == 0)
    return painter.fillRect(QRect(0, Px(10), Px(3), QFontMetrics(TextFont()).height()),
                            ColoursOf(this).Blue);
  if (CurrentRow() < 0)
    return DrawFocus(painter, QRectF(viewport()->rect()).adjusted(0, 0, -1, -1), Px(3), palette());
  const QRect row(0, rowViewportPosition(CurrentRow()), viewport()->width(),
                  rowHeight(CurrentRow()));
  // A selected row stands out already.
  if (model_.Table().IsSelected(CurrentRow()))
    return painter.fillRect(QRect(0, row.top(), Px(3), row.height() - 1), ColoursOf(this).Blue);
  DrawFocus(painter, QRectF(row).adjusted(0, 0, 0, -1), Px(3), palette());
}

/// Rows reach over the whole width where the columns keep closer together.
void TableGrid::DrawBeyond(QPainter& painter) {
  const int from = heading_->length(), wide = viewport()->width() - from;
  if (wide <= 0) return;
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  EachSeen([&](int row, int top) {
    option.rect = QRect(from, top, wide, rowHeight(row));
    cells_->PaintRow(painter, option, row);
  });
}

/// Where the row that is dragged comes to stand.
void TableGrid::DrawDrop(QPainter& painter) {
  if (drop_ < 0 || drop_ == dragged_) return;
  const int top = rowViewportPosition(drop_);
  const int edge = drop_ < dragged_ ? top : top + rowHeight(drop_);
  painter.fillRect(0, std::max(0, edge - Px(1)), viewport()->width(), Px(2), ColoursOf(this).Gold);
}

void TableGrid::DropAt(int row) {
  if (row == drop_) return;
  drop_ = row;
  viewport()->update();
}

/// Where only a stump of what is read first would stand at the edge, columns before it are scrolled
/// away, each as a whole.
void TableGrid::BeginAtName() {
  constexpr int kStump = 80;
  if (model_.Pin.Count > 0 || model_.rowCount() == 0) return;
  const auto& columns = model_.Table().Columns();
  const int name = columns[static_cast<std::size_t>(model_.Table().NamePlace())];
  const int left = columnViewportPosition(name);
  if (left + std::min(columnWidth(name), Px(kStump)) <= viewport()->width()) return;
  int edge = 0;
  for (const int column : columns) {
    const int at = columnViewportPosition(column);
    if (!isColumnHidden(column) && at <= std::min(left, horizontalScrollBar()->maximum()))
      edge = std::max(edge, at);
  }
  horizontalScrollBar()->setValue(edge);
}

void TableGrid::paintEvent(QPaintEvent* event) {
  // Only now is it certain what room there is.
  if (!std::exchange(painted_, true)) {
    if (currentIndex().isValid()) scrollTo(currentIndex());  // else it begins at its top
    BeginAtName();
  }
  const QRect rows(0, 0, viewport()->width(), WholeRows(viewport()->height()));
  QPaintEvent whole(event->region() & rows);
  QTableView::paintEvent(&whole);
  QPainter painter(viewport());
  DrawBeyond(painter);
  DrawPinned(painter);
  DrawCursor(painter);
  DrawDrop(painter);
  if (model_.rowCount() > 0) return;
  painter.setFont(TextFont());
  painter.setPen(ColoursOf(this).Muted);
  const QRect room = viewport()->rect().adjusted(Px(kCellSide), Px(10), -Px(kCellSide), 0);
  painter.drawText(room, Qt::AlignTop | Qt::AlignLeft | Qt::TextWordWrap, empty_);
}

void TableGrid::resizeEvent(QResizeEvent* event) {
  const bool seen = SeesCursor(event->oldSize().height());
  QTableView::resizeEvent(event);
  if (Resized && event->size().width() != event->oldSize().width()) Resized();
  if (seen && painted_) scrollTo(currentIndex());
}

/// The cursor's line reaches over all cells, so scrolled pieces do not fit together.
void TableGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  BeginWithWholeRow();
  UpdatePinned();
  if (Moved) Moved();
}

void TableGrid::updateGeometries() {
  QTableView::updateGeometries();
  BeginWithWholeRow();
  UpdatePinned();
  if (Moved) Moved();
}

}  // namespace grapplemont::desktop
