#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/tablegrid.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

constexpr int kHeight = 32;
constexpr int kMark = 12;  // room for an arrow or the spot of a filter

QFont HeadingFont() {
  return TextFont(11, QFont::DemiBold);
}

QString WordsOf(const ui::Column& column) {
  return Shown(column.Short.empty() ? column.Title : column.Short);
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
  const QString words = WordsOf(model_.Column(column));
  return WordsWidth(HeadingFont(), words) + 2 * Px(kCellSide) + 2 + MarksWidth(column);
}

int TableHeading::ColumnAt(const QPoint& at) const {
  int right = 0;
  for (const int column : model_.PinnedColumns())
    if (right += sectionSize(column); at.x() < right) return column;
  return logicalIndexAt(at);
}

void TableHeading::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  QPainter painter(viewport());
  if (length() < width())
    painter.fillRect(length(), height() - 1, width() - length(), 1, ColoursOf(this).Line);
  int left = 0;
  for (const int column : model_.PinnedColumns()) {
    DrawHeading(painter, QRect(left, 0, sectionSize(column), height()), column);
    left += sectionSize(column);
  }
}

/// What lies beneath the columns that stay is not painted.
void TableHeading::paintSection(QPainter* painter, const QRect& rect, int column) const {
  if (model_.IsPinned(column)) return;
  painter->save();
  if (rect.left() < model_.Pin.Width)
    painter->setClipRect(rect.adjusted(model_.Pin.Width - rect.left(), 0, 0, 0), Qt::IntersectClip);
  DrawHeading(*painter, rect, column);
  painter->restore();
}

void TableHeading::DrawHeading(QPainter& painter, const QRect& rect, int column) const {
  const Colours& c = ColoursOf(this);
  const ui::Table& table = model_.Table();
  painter.save();
  painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, c.Line);
  const ui::Column& shown = model_.Column(column);
  const int place = table.SortPlace(column);
  const bool filtered = !table.FilterOf(column).empty();
  const int marks = MarksWidth(column);
  QRect room = rect.adjusted(Px(kCellSide), 0, -Px(kCellSide), -1);
  const int edge = viewport()->width() - 1;
  const bool sliver = room.right() > edge && edge - room.left() < Px(kSliver);
  room.setRight(std::min(room.right(), edge));
  const QString title =
      sliver ? QString() : WordsWithin(HeadingFont(), WordsOf(shown), room.width() - marks + 1);
  const int width = WordsWidth(HeadingFont(), title);
  int x = AlignsRight(shown.Kind) ? room.right() + 1 - width - marks : room.left();
  painter.setPen(place > 0 ? c.Text : c.Soft);
  DrawWords(painter, QRect(x, room.top(), width + 1, room.height()), Qt::AlignVCenter,
            HeadingFont(), title);
  x += width;
  if (place > 0) {
    DrawArrow(painter, QPointF(x + Px(7), rect.center().y() + 1), table.SortsDown(column),
              place == 1 ? c.Text : c.Muted);
    x += Px(kMark);
  }
  if (filtered)
    DrawBox(painter, QRectF(x + Px(4), rect.center().y() - Px(2), Px(6), Px(6)), c.Gold, QColor(),
            Px(3));
  painter.restore();
}

/// Columns that stay are sorted by, but neither dragged nor drawn wider while they cover others.
void TableHeading::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->position().toPoint();
  if (!OnPinned(pressed_)) QHeaderView::mousePressEvent(event);
}

void TableHeading::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() != Qt::NoButton || !OnPinned(event->position().toPoint()))
    return QHeaderView::mouseMoveEvent(event);
  unsetCursor();
}

void TableHeading::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  const bool edge = cursor().shape() == Qt::SplitHCursor;
  if (!OnPinned(pressed_)) QHeaderView::mouseReleaseEvent(event);
  const bool still = (at - pressed_).manhattanLength() < QApplication::startDragDistance();
  const int column = ColumnAt(at);
  if (event->button() == Qt::LeftButton && still && !edge && column >= 0)
    Clicked(column, event->modifiers().testFlag(Qt::ShiftModifier));
}

}  // namespace grapplemont::desktop
