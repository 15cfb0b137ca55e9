#include "desktop/tablegrid.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"

namespace grapplemont::desktop {

namespace {

constexpr int kHeight = 32;
constexpr int kMark = 12;  // room for an arrow or the spot of a filter

QFont HeadingFont() {
  return TextFont(11, QFont::DemiBold);
}

void DrawArrow(QPainter& painter, const QPointF& centre, bool down, const QColor& colour) {
  const double half = Px(4) * 0.9, height = Px(5);
  const double base = centre.y() + (down ? -height / 2 : height / 2);
  const double tip = centre.y() + (down ? height / 2 : -height / 2);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(
      QPolygonF{{centre.x() - half, base}, {centre.x() + half, base}, {centre.x(), tip}});
}

}  // namespace

TableHeading::TableHeading(const TableModel& model, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), model_(model) {
  setSectionsMovable(true);
  setSectionsClickable(true);
  setHighlightSections(false);
  setStretchLastSection(false);
  setMinimumSectionSize(Px(28));
  setFocusPolicy(Qt::NoFocus);
}

QSize TableHeading::sizeHint() const {
  return {QHeaderView::sizeHint().width(), Px(kHeight)};
}

int TableHeading::MarksWidth(int column) const {
  const ui::Table& table = model_.Table();
  return (table.SortPlace(column) > 0 ? Px(kMark) : 0) +
         (table.FilterOf(column).empty() ? 0 : Px(kMark));
}

int TableHeading::HeadingWidth(int column) const {
  const QString title = Shown(model_.Column(column).Title);
  return QFontMetrics(HeadingFont()).horizontalAdvance(title) + 2 * Px(kCellSide) + 2 +
         MarksWidth(column);
}

void TableHeading::paintSection(QPainter* painter, const QRect& rect, int column) const {
  const Colours& c = ColoursOf(this);
  const ui::Table& table = model_.Table();
  painter->save();
  painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, c.Line);
  const ui::Column& shown = model_.Column(column);
  const int place = table.SortPlace(column);
  const bool filtered = !table.FilterOf(column).empty();
  const int marks = MarksWidth(column);
  const QFontMetrics metrics(HeadingFont());
  const QRect room = rect.adjusted(Px(kCellSide), 0, -Px(kCellSide), -1);
  const QString title =
      metrics.elidedText(Shown(shown.Title), Qt::ElideRight, room.width() - marks + 1);
  const int width = metrics.horizontalAdvance(title);
  int x = AlignsRight(shown.Kind) ? room.right() + 1 - width - marks : room.left();
  painter->setFont(HeadingFont());
  painter->setPen(place > 0 ? c.Text : c.Soft);
  painter->drawText(QRect(x, room.top(), width + 1, room.height()), Qt::AlignVCenter, title);
  x += width;
  if (place > 0) {
    DrawArrow(*painter, QPointF(x + Px(7), rect.center().y() + 1), table.SortsDown(column),
              place == 1 ? c.Text : c.Muted);
    x += Px(kMark);
  }
  if (filtered)
    DrawBox(*painter, QRectF(x + Px(4), rect.center().y() - Px(2), Px(6), Px(6)), c.Gold, QColor(),
            Px(3));
  painter->restore();
}

void TableHeading::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->position().toPoint();
  QHeaderView::mousePressEvent(event);
}

void TableHeading::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  const bool edge = cursor().shape() == Qt::SplitHCursor;
  QHeaderView::mouseReleaseEvent(event);
  const bool still = (at - pressed_).manhattanLength() < QApplication::startDragDistance();
  const int column = logicalIndexAt(at);
  if (event->button() == Qt::LeftButton && still && !edge && column >= 0)
    Clicked(column, event->modifiers().testFlag(Qt::ShiftModifier));
}

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
  Picked(index.row());
}

void TableGrid::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
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
  const bool leads =
      event->modifiers().testFlag(Qt::ControlModifier) && cell.isValid() && LinkOf(cell);
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
    QTableView::keyPressEvent(event);
  }
  event->accept();
  if (CurrentRow() != before && CurrentRow() >= 0 && !model_.List().Multi) Picked(CurrentRow());
}

void TableGrid::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copied();
  const int key = event->key();
  if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
    return Move(event);
  if (key == Qt::Key_Home || key == Qt::Key_End) {
    QKeyEvent whole(event->type(), key, Qt::ControlModifier);  // of all rows
    return Move(&whole);
  }
  if (key == Qt::Key_Left || key == Qt::Key_Right) {
    QScrollBar* bar = horizontalScrollBar();
    return bar->setValue(bar->value() + (key == Qt::Key_Left ? -1 : 1) * Px(40));
  }
  const int row = CurrentRow();
  if (IsEnter(key))
    return model_.List().OnOpen && row >= 0 && !event->isAutoRepeat() ? Opened(row)
                                                                      : event->ignore();
  if (key == Qt::Key_Space) return row >= 0 ? Picked(row) : void();
  const QString letters = event->text();
  const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (plain && !letters.isEmpty() && letters.front().isPrint()) return Typed(letters);
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
