#include "desktop/tablegrid.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/palette.h"

namespace grapplemont::desktop {

TableGrid::TableGrid(TableModel& model, QWidget* parent)
    : QTableView(parent),
      model_(model),
      cells_(new TableCells(model, this)),
      heading_(new TableHeading(model, this)) {
  setHorizontalHeader(heading_);
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
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(Px(kRowHeight));
  heading_->viewport()->setAutoFillBackground(false);
}

void TableGrid::SetEmptyText(const QString& text) {
  empty_ = text;
  viewport()->update();
}

void TableGrid::SetCurrentRow(int row) {
  setCurrentIndex(row < 0 ? QModelIndex() : model_.index(row, model_.Table().Columns().front()));
}

QSize TableGrid::sizeHint() const {
  const int rows = std::clamp(model_.rowCount(), 2, std::max(2, model_.List().Room));
  return {Px(240), heading_->sizeHint().height() + rows * Px(kRowHeight) + 2};
}

QSize TableGrid::minimumSizeHint() const {
  const int rows = std::clamp(model_.rowCount(), 2, 4);
  return {Px(160), heading_->sizeHint().height() + rows * Px(kRowHeight) + 2};
}

bool TableGrid::FollowAt(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !event.modifiers().testFlag(Qt::ControlModifier))
    return false;
  const QModelIndex cell = indexAt(event.position().toPoint());
  const ui::Handler open = cell.isValid() && LinkOf ? LinkOf(cell) : ui::Handler();
  if (open) Followed(open);
  return static_cast<bool>(open);
}

void TableGrid::mousePressEvent(QMouseEvent* event) {
  if (FollowAt(*event)) return;
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index.isValid() && Picked) Picked(index.row());
}

void TableGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  if (model_.List().OnOpen) {
    if (Opened) Opened(index.row());
  } else if (model_.List().Multi && Picked) {
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
  const bool leads =
      event->modifiers().testFlag(Qt::ControlModifier) && cell.isValid() && LinkOf && LinkOf(cell);
  viewport()->setCursor(leads ? Qt::PointingHandCursor : Qt::ArrowCursor);
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
    QTableView::keyPressEvent(event);
  }
  event->accept();
  if (CurrentRow() != before && CurrentRow() >= 0 && !model_.List().Multi && Picked)
    Picked(CurrentRow());
}

void TableGrid::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copied ? Copied() : void();
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return Move(event);
    case Qt::Key_Home:
    case Qt::Key_End: {
      QKeyEvent whole(event->type(), event->key(), Qt::ControlModifier);  // of all rows
      return Move(&whole);
    }
    case Qt::Key_Left:
    case Qt::Key_Right: {
      QScrollBar* bar = horizontalScrollBar();
      return bar->setValue(bar->value() + (event->key() == Qt::Key_Left ? -1 : 1) * Px(40));
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!model_.List().OnOpen || CurrentRow() < 0 || event->isAutoRepeat())
        return event->ignore();
      return Opened ? Opened(CurrentRow()) : void();
    case Qt::Key_Space:
      if (CurrentRow() >= 0 && Picked) Picked(CurrentRow());
      return;
    default:
      break;
  }
  const QString letters = event->text();
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (plain && !letters.isEmpty() && letters.front().isPrint()) {
    Typed ? Typed(letters) : keyboardSearch(letters);
    return;
  }
  event->ignore();
}

void TableGrid::DrawCursor(QPainter& painter) {
  if (!hasFocus() || CurrentRow() < 0) return;
  const QRect row(0, rowViewportPosition(CurrentRow()), viewport()->width(),
                  rowHeight(CurrentRow()));
  // A selected row stands out already.
  if (model_.Table().RowAt(CurrentRow()).Selected)
    return painter.fillRect(QRect(0, row.top(), Px(2), row.height() - 1), ColoursOf(this).Blue);
  DrawFocus(painter, QRectF(row).adjusted(0, 0, 0, -1), Px(3), palette());
}

void TableGrid::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  painted_ = true;
  QPainter painter(viewport());
  DrawCursor(painter);
  if (model_.rowCount() > 0) return;
  painter.setFont(TextFont());
  painter.setPen(ColoursOf(this).Muted);
  const QRect room = viewport()->rect().adjusted(Px(kCellSide), Px(10), -Px(kCellSide), 0);
  painter.drawText(room, Qt::AlignTop | Qt::AlignLeft | Qt::TextWordWrap, empty_);
}

void TableGrid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (Resized) Resized();
  // Before it has been seen a table has no size to scroll by.
  if (!painted_ && currentIndex().isValid()) scrollTo(currentIndex(), PositionAtCenter);
}

/// The cursor's line reaches over all cells, so scrolled pieces do not fit together.
void TableGrid::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  viewport()->update();
  if (Moved) Moved();
}

void TableGrid::updateGeometries() {
  QTableView::updateGeometries();
  if (Moved) Moved();
}

}  // namespace grapplemont::desktop
