#include "desktop/tablecells.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/drawn/drawn.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

using ui::ColumnKind;

constexpr int kBarWidth = 56, kBarHeight = 6;
constexpr int kTagHeight = 19, kTagSide = 6;
constexpr int kRowButton = 76;
constexpr int kDrawn = 24;  // high

bool IsFigure(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789.%-") == text.npos &&
         text.find_first_of("0123456789") != text.npos;
}

/// A word in a bar's column, such as an injury, is framed like a tag.
bool IsTag(const ui::Cell& cell, ColumnKind kind) {
  if (cell.Text.empty()) return false;
  return kind == ColumnKind::Tag || (kind == ColumnKind::Percent && !IsFigure(cell.Text));
}

QFont TagFont() {
  return TextFont(11);
}

void DrawTag(QPainter& painter, const QRect& room, const ui::Cell& cell, const Colours& c) {
  const QFontMetrics metrics(TagFont());
  const QString words =
      metrics.elidedText(Shown(cell.Text), Qt::ElideRight, room.width() - 2 * Px(kTagSide));
  const int width = metrics.horizontalAdvance(words) + 2 * Px(kTagSide);
  const QRectF box(room.left(), room.center().y() - Px(kTagHeight) / 2.0 + 1, width,
                   Px(kTagHeight));
  const ui::Tone tone = cell.Colour;
  DrawBox(painter, box, QColor(), EdgeColour(c, tone), Px(4));
  painter.setFont(TagFont());
  painter.setPen(tone == ui::Tone::Plain ? c.Soft : TextColour(c, tone));
  painter.drawText(box, Qt::AlignCenter, words);
}

void DrawBar(QPainter& painter, const QRect& room, const ui::Cell& cell, const Colours& c) {
  const double height = Px(kBarHeight);
  const QRectF track(room.left(), room.center().y() + 1 - height / 2, Px(kBarWidth), height);
  DrawBox(painter, track, c.Track, QColor(), height / 2);
  QRectF bar = track;
  bar.setWidth(std::max(height, track.width() * std::clamp(cell.Number, 0.0, 100.0) / 100));
  if (cell.Number > 0) DrawBox(painter, bar, PercentColour(c, cell.Number), QColor(), height / 2);
  painter.setPen(TextColour(c, cell.Colour));
  const int from = static_cast<int>(track.right()) + Px(8);
  DrawFigures(painter, QRectF(from, room.top(), room.right() + 1 - from, room.height()),
              Qt::AlignLeft, Shown(cell.Text));
}

void DrawText(QPainter& painter, const QRect& room, const ui::Cell& cell, ColumnKind kind) {
  // A row has room for one line, however many the text has.
  const QString line = Shown(cell.Text).replace('\n', ' ');
  const QString text = painter.fontMetrics().elidedText(line, Qt::ElideRight, room.width() + 1);
  if (kind == ColumnKind::Number || kind == ColumnKind::Date) {
    DrawFigures(painter, room, AlignsRight(kind) ? Qt::AlignRight : Qt::AlignLeft, text);
  } else {
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, text);
  }
}

/// What is drawn before a cell's text; gives how wide that is with its gap, 0 for nothing.
int DrawSmall(QPainter* painter, const QRect& room, const ui::Column& column, int key) {
  const ui::Drawing drawing = column.Draws ? column.Draws(key) : ui::Drawing();
  const double shape = ShapeOf(drawing);
  if (shape == 0) return 0;
  const int width = static_cast<int>(Px(kDrawn) * shape);
  if (painter)
    Draw(*painter, QRectF(room.left(), room.center().y() - Px(kDrawn) / 2.0 + 1, width, Px(kDrawn)),
         drawing);
  return width + Px(8);
}

}  // namespace

int DrawnWidth(const ui::Column& column, int key) {
  return DrawSmall(nullptr, {}, column, key);
}

bool AlignsRight(ColumnKind kind) {
  return kind == ColumnKind::Number;
}

int CellWidth(const ui::Cell& cell, ColumnKind kind) {
  const int sides = 2 * Px(kCellSide);
  const QString text = Shown(cell.Text);
  if (kind == ColumnKind::Button) return Px(kRowButton) + sides;
  if (IsTag(cell, kind))
    return QFontMetrics(TagFont()).horizontalAdvance(text) + 2 * Px(kTagSide) + sides + 2;
  const QFontMetrics metrics(TextFont());
  if (kind == ColumnKind::Percent)
    return Px(kBarWidth) + Px(8) + FiguresWidth(metrics, text) + sides;
  if (kind == ColumnKind::Number || kind == ColumnKind::Date)
    return FiguresWidth(metrics, text) + sides;
  return metrics.horizontalAdvance(text) + sides + 1;
}

/// What opens is shown as a link: the first words of its row. Rows that have a button are worked by
/// it.
bool TableCells::IsLink(const QModelIndex& index) const {
  const auto& columns = model_.List().Columns();
  const bool hasButtons = std::ranges::any_of(
      columns, [](const ui::Column& column) { return column.Kind == ColumnKind::Button; });
  if (!model_.List().OnOpen || hasButtons) return false;
  for (const int column : model_.Table().Columns())
    if (model_.Column(column).Kind == ColumnKind::Text) return column == index.column();
  return false;
}

void TableCells::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  const Colours& c = ColoursOf(option.palette);
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const auto& row = model_.Table().RowAt(index.row());
  if (row.Selected) {
    painter->fillRect(option.rect, c.Chosen);
  } else if (index.row() == hover_ && enabled) {
    painter->fillRect(option.rect, c.Field);
  }
  painter->fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, c.RowLine);

  const ui::Cell& cell = model_.Table().At(index.row(), index.column());
  const ColumnKind kind = model_.Column(index.column()).Kind;
  QRect room = option.rect.adjusted(Px(kCellSide), 0, -Px(kCellSide), -1);
  painter->save();
  room.setLeft(room.left() + DrawSmall(painter, room, model_.Column(index.column()), row.Key));
  painter->setFont(TextFont());
  if (IsTag(cell, kind)) {
    DrawTag(*painter, room, cell, c);
  } else if (kind == ColumnKind::Percent && !cell.Text.empty()) {
    DrawBar(*painter, room, cell, c);
  } else {
    const bool link = cell.Colour == ui::Tone::Plain && IsLink(index);
    painter->setPen(!enabled ? c.Faint : link ? c.Blue : TextColour(c, cell.Colour));
    DrawText(*painter, room, cell, kind);
  }
  painter->restore();
}

QSize TableCells::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
  const ui::Column& column = model_.Column(index.column());
  const int drawn = DrawnWidth(column, model_.Table().RowAt(index.row()).Key);
  return {CellWidth(model_.Table().At(index.row(), index.column()), column.Kind) + drawn,
          Px(kRowHeight)};
}

/// The whole of a text that is cut; of a name also how its page is opened.
bool TableCells::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                           const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (!index.isValid() || event->type() != QEvent::ToolTip) return false;
  QStringList lines;
  if (sizeHint(option, index).width() > option.rect.width() + 2)
    lines.append(Shown(model_.Table().At(index.row(), index.column()).Text).toHtmlEscaped());
  if (const QString hint = HintOf ? HintOf(index) : QString(); !hint.isEmpty())
    lines.append(hint.toHtmlEscaped());
  if (lines.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(event->globalPos(), "<p>" + lines.join("<br>") + "</p>", view);
  }
  return true;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::AccessibleDescriptionRole)
    return table_.RowAt(index.row()).Selected ? QString("selected") : QString();
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  return Shown(table_.At(index.row(), index.column()).Text);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return Shown(Column(section).Title);
  if (role == Qt::AccessibleTextRole) return Shown(ui::ColumnId(list_.Columns(), section));
  if (role == Qt::ToolTipRole && !Column(section).Tip.empty()) return Shown(Column(section).Tip);
  return {};
}

}  // namespace grapplemont::desktop
