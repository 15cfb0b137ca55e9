#include "desktop/tablecells.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/dates.h"
#include "desktop/drawn/drawn.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

using ui::ColumnKind;

constexpr int kBarEnd = 8, kBarWidth = kBarRoom - kBarEnd, kBarHeight = 6;
constexpr int kTagHeight = 19, kTagSide = 6, kTagGap = 4;
constexpr int kSign = 14, kSignGap = 2;  // before its number
constexpr int kRowButton = 76;
constexpr int kTableRow = 33, kCardRow = 74;
constexpr int kDrawn = 24, kDrawnOnCard = 46;  // high
constexpr int kUnder = 36;                     // two lines of a sentence
constexpr int kStar = 18;                      // wide, with its gap

bool IsFigure(const std::string& text) {
  return !text.empty() && text.find_first_not_of("0123456789.%-") == text.npos &&
         text.find_first_of("0123456789") != text.npos;
}

/// A word in a bar's column that has a colour, such as an injury, is framed like a tag.
bool IsTag(const ui::Cell& cell, ColumnKind kind) {
  if (cell.Text.empty()) return false;
  return kind == ColumnKind::Tag ||
         (kind == ColumnKind::Percent && !IsFigure(cell.Text) && cell.Colour != ui::Tone::Plain);
}

bool IsBar(const ui::Cell& cell, ColumnKind kind) {
  return kind == ColumnKind::Percent && IsFigure(cell.Text);
}

QFont TagFont() {
  return TextFont(11);
}

void DrawTag(QPainter& painter, const QRect& room, const QString& word, ui::Tone tone,
             const Colours& c) {
  const QString words = WordsWithin(TagFont(), word, room.width() - 2 * Px(kTagSide));
  const int width = WordsWidth(TagFont(), words) + 2 * Px(kTagSide);
  const QRectF box(room.left(), room.center().y() - Px(kTagHeight) / 2.0 + 1, width,
                   Px(kTagHeight));
  DrawBox(painter, box, QColor(), EdgeColour(c, tone), Px(4));
  painter.setPen(tone == ui::Tone::Plain ? c.Soft : TextColour(c, tone));
  DrawWords(painter, box, Qt::AlignCenter, TagFont(), words);
}

int TagWidth(const QString& words) {
  return WordsWidth(TagFont(), words) + 2 * Px(kTagSide);
}

/// What a word is drawn as in this column, and the number behind it: "Feud 71".
struct SignedWord {
  ui::Sign As = ui::Sign::None;
  QString Number;
};

SignedWord SignedBy(const ui::Column& column, const QString& word) {
  SignedWord drawn;
  if (column.SignOf) drawn.As = column.SignOf(word.toStdString());
  const QString last = word.section(' ', -1);
  if (drawn.As != ui::Sign::None && !last.isEmpty() && last[0].isDigit()) drawn.Number = last;
  return drawn;
}

int WordWidth(const QString& word, const ui::Column& column) {
  const SignedWord drawn = SignedBy(column, word);
  if (drawn.As == ui::Sign::None) return TagWidth(word);
  const int number = WordsWidth(TagFont(), drawn.Number);
  return Px(kSign) + (number > 0 ? Px(kSignGap) + number : 0);
}

void DrawWord(QPainter& painter, const QRect& room, const QString& word, ui::Tone tone,
              const ui::Column& column, const Colours& c) {
  const SignedWord drawn = SignedBy(column, word);
  if (drawn.As == ui::Sign::None) return DrawTag(painter, room, word, tone, c);
  const QColor ink = tone == ui::Tone::Plain ? c.Soft : TextColour(c, tone);
  const QRect sign(room.left(), room.center().y() + 1 - Px(kSign) / 2, Px(kSign), Px(kSign));
  DrawSign(painter, sign, drawn.As, ink);
  painter.setPen(ink);
  DrawWords(painter, room.adjusted(Px(kSign) + Px(kSignGap), 0, 0, 0), Qt::AlignVCenter, TagFont(),
            drawn.Number);
}

/// One after the other; what has no room stands in the tip.
void DrawTags(QPainter& painter, QRect room, const ui::Cell& cell, const ui::Column& column,
              const Colours& c) {
  for (const QString& word : Shown(cell.Text).split(", ", Qt::SkipEmptyParts)) {
    const int width = WordWidth(word, column);
    if (room.width() < std::min(width, 3 * Px(kTagSide))) return;
    DrawWord(painter, room, word, column.ToneOf ? column.ToneOf(word.toStdString()) : cell.Colour,
             column, c);
    room.setLeft(room.left() + width + Px(kTagGap));
  }
}

void DrawBar(QPainter& painter, const QRect& room, const QFont& font, const ui::Cell& cell,
             const Colours& c) {
  const double height = Px(kBarHeight);
  const QRectF track(room.left(), room.center().y() + 1 - height / 2, Px(kBarWidth), height);
  DrawBox(painter, track, c.Track, QColor(), height / 2);
  QRectF bar = track;
  bar.setWidth(std::max(height, track.width() * std::clamp(cell.Number, 0.0, 100.0) / 100));
  // What is gold or blue says whose it is, not how good it is.
  const bool isSomebodys = cell.Colour == ui::Tone::Gold || cell.Colour == ui::Tone::Blue;
  const QColor fill = isSomebodys ? FillColour(c, cell.Colour) : PercentColour(c, cell.Number);
  if (cell.Number > 0) DrawBox(painter, bar, fill, QColor(), height / 2);
  if (cell.Tick >= 0)
    painter.fillRect(QRectF(track.left() + track.width() * std::min(cell.Tick, 100) / 100 - 1,
                            track.center().y() - Px(6), 2, Px(12)),
                     c.Text);
  painter.setPen(TextColour(c, cell.Colour));
  const int from = static_cast<int>(track.right()) + Px(kBarEnd);
  DrawFigures(painter, QRectF(from, room.top(), room.right() + 1 - from, room.height()),
              Qt::AlignLeft, font, Shown(cell.Text));
}

/// Says "best" beside a colour.
void DrawStar(QPainter& painter, const QPointF& centre, const Colours& c) {
  constexpr int kCorners = 10;
  QPolygonF star;
  for (int corner = 0; corner < kCorners; ++corner) {
    const double angle = (2.0 * corner / kCorners - 0.5) * std::numbers::pi;
    const double radius = Px(6) * (corner % 2 == 0 ? 1 : 0.42);
    star << centre + QPointF(std::cos(angle), std::sin(angle)) * radius;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(c.Gold);
  painter.drawPolygon(star);
}

void DrawText(QPainter& painter, const QRect& room, const QFont& font, const ui::Cell& cell,
              ColumnKind kind) {
  // A row has room for one line, however many the text has.
  const QString line = CellText(cell, kind).replace('\n', ' ');
  const QString text = WordsWithin(font, line, room.width() + 1);
  if (kind == ColumnKind::Number || kind == ColumnKind::Date) {
    DrawFigures(painter, room, AlignsRight(kind) ? Qt::AlignRight : Qt::AlignLeft, font, text);
  } else {
    DrawWords(painter, room, Qt::AlignVCenter, font, text);
  }
}

/// What is drawn before a cell's text; gives how wide that is with its gap, 0 for nothing.
int DrawSmall(QPainter* painter, const QRect& room, const ui::Column& column, int key) {
  const ui::Drawing drawing = column.Draws ? column.Draws(key) : ui::Drawing();
  const double shape = ShapeOf(drawing);
  if (shape == 0) return 0;
  const int height = Px(column.Under ? kDrawnOnCard : kDrawn);
  const int width = static_cast<int>(height * shape);
  if (painter)
    Draw(*painter, QRectF(room.left(), room.center().y() - height / 2.0 + 1, width, height),
         drawing);
  return width + Px(8);
}

/// How many of the letters stand in a first line of this width: all, or whole words.
qsizetype FirstLine(const QString& text, const QFontMetrics& metrics, int width) {
  if (metrics.horizontalAdvance(text) <= width) return text.size();
  qsizetype end = 0;
  for (qsizetype blank = text.indexOf(' ');
       blank >= 0 && metrics.horizontalAdvance(text.left(blank)) <= width;
       blank = text.indexOf(' ', blank + 1))
    end = blank + 1;
  return end;
}

/// In two lines at the most; gives the room that is left above it.
QRect DrawUnder(QPainter& painter, QRect room, const std::string& sentence, const Colours& c) {
  room.adjust(0, Px(6), 0, -Px(6));
  QRect below = room;
  below.setTop(room.bottom() + 1 - Px(kUnder));
  painter.setFont(TextFont(12));
  painter.setPen(c.Muted);
  const QFontMetrics metrics = painter.fontMetrics();
  const QString text = Shown(sentence);
  const qsizetype first = FirstLine(text, metrics, below.width());
  painter.drawText(below, Qt::AlignLeft | Qt::AlignTop, text.left(first));
  painter.drawText(below.adjusted(0, first > 0 ? metrics.height() : 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignTop,
                   metrics.elidedText(text.mid(first), Qt::ElideRight, below.width()));
  room.setBottom(below.top() - 1);
  return room;
}

}  // namespace

int RowHeight(const ui::ListBox& list) {
  return std::ranges::any_of(
             list.Columns(),
             [](const ui::Column& column) { return static_cast<bool>(column.Under); })
             ? kCardRow
             : kTableRow;
}

int DrawnWidth(const ui::Column& column, int key) {
  return DrawSmall(nullptr, {}, column, key);
}

bool AlignsRight(ColumnKind kind) {
  return kind == ColumnKind::Number;
}

int CellWidth(const ui::Cell& cell, const ui::Column& column) {
  const ColumnKind kind = column.Kind;
  const int sides = 2 * Px(kCellSide) + (cell.Best ? Px(kStar) : 0);
  const QString text = CellText(cell, kind);
  if (kind == ColumnKind::Button) return Px(kRowButton) + sides;
  if (IsTag(cell, kind)) return WordWidth(text, column) + sides + 2;
  if (kind == ColumnKind::Tags) {
    int width = sides + 2;
    for (const QString& word : text.split(", ", Qt::SkipEmptyParts))
      width += WordWidth(word, column) + Px(kTagGap);
    return width;
  }
  if (IsBar(cell, kind)) return Px(kBarRoom) + FiguresWidth(TextFont(), text) + sides;
  if (kind == ColumnKind::Number || kind == ColumnKind::Date)
    return FiguresWidth(TextFont(), text) + sides;
  return WordsWidth(TextFont(), text) + sides + 1;
}

int BareWidth(const ui::Cell& cell, const ui::Column& column) {
  return CellWidth(cell, column) - (IsBar(cell, column.Kind) ? Px(kBarRoom) : 0);
}

/// What opens is shown as a link: the first words of its row. Rows that have a button are worked by
/// it.
bool TableCells::IsLink(const QModelIndex& index) const {
  const auto& columns = model_.List().Columns();
  const bool hasButtons = std::ranges::any_of(
      columns, [](const ui::Column& column) { return column.Kind == ColumnKind::Button; });
  if (!model_.List().OnOpen || hasButtons) return false;
  const int column = model_.Table().Columns()[static_cast<std::size_t>(model_.Table().NamePlace())];
  return column == index.column() && model_.Column(column).Kind == ColumnKind::Text;
}

bool TableCells::IsBare(int column) const {
  return std::ranges::find(model_.Bare, column) != model_.Bare.end();
}

/// One pass paints what scrolls, and nothing of it beneath what stays; another what stays.
void TableCells::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  const bool stays = model_.IsPinned(index.column());
  if (stays != paintsPinned_) return;
  painter->save();
  if (!stays && option.rect.left() < model_.Pin.Width)
    painter->setClipRect(option.rect.adjusted(model_.Pin.Width - option.rect.left(), 0, 0, 0),
                         Qt::IntersectClip);
  PaintRow(*painter, option, index.row());
  PaintCell(*painter, option, index);
  painter->restore();
}

/// What a cell shows of its row: that it is chosen or under the mouse, and the line below it.
void TableCells::PaintRow(QPainter& painter, const QStyleOptionViewItem& option, int row) const {
  const Colours& c = ColoursOf(option.palette);
  if (model_.Table().IsSelected(row)) {
    painter.fillRect(option.rect, c.Chosen);
  } else if (row == hover_ && option.state.testFlag(QStyle::State_Enabled)) {
    painter.fillRect(option.rect, c.Field);
  }
  painter.fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, c.RowLine);
}

void TableCells::PaintCell(QPainter& painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  const Colours& c = ColoursOf(option.palette);
  const ui::Cell& cell = model_.Table().At(index.row(), index.column());
  const ui::Column& column = model_.Column(index.column());
  QRect room = option.rect.adjusted(Px(kCellSide), 0, -Px(kCellSide), -1);
  // Where the table is cut, so that the words end there.
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  const int edge = view ? view->viewport()->width() - 1 : room.right();
  const bool cut = room.right() > edge;
  if (cut) room.setRight(edge);
  if (cut && room.width() < Px(kSliver)) return;
  room.setLeft(room.left() + DrawSmall(&painter, room, column, model_.Table().KeyAt(index.row())));
  if (column.Under)
    room = DrawUnder(painter, room, column.Under(model_.Table().KeyAt(index.row())), c);
  const QFont font = TextFont(kUsualText, column.Under ? QFont::DemiBold : QFont::Normal);
  const bool isNumber = column.Kind == ColumnKind::Number || column.Kind == ColumnKind::Date ||
                        IsBar(cell, column.Kind);
  // Half a number would be another number.
  if (cut && isNumber && FiguresWidth(font, CellText(cell, column.Kind)) > room.width()) return;
  if (cell.Best) {
    const int width = CellWidth(cell, column) - 2 * Px(kCellSide);
    const double x = std::min(room.left() + width, room.right()) - Px(kStar) / 3.0;
    DrawStar(painter, QPointF(x, room.center().y() + 1), c);
  }
  if (IsTag(cell, column.Kind)) {
    DrawWord(painter, room, CellText(cell, column.Kind), cell.Colour, column, c);
  } else if (column.Kind == ColumnKind::Tags) {
    DrawTags(painter, room, cell, column, c);
  } else if (IsBar(cell, column.Kind) && !cut && !IsBare(index.column())) {
    DrawBar(painter, room, font, cell, c);
  } else {
    const bool link = cell.Colour == ui::Tone::Plain && IsLink(index);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    painter.setPen(!enabled ? c.Faint : link ? c.Blue : TextColour(c, cell.Colour));
    DrawText(painter, room, font, cell, column.Kind);
  }
}

QSize TableCells::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
  const ui::Column& column = model_.Column(index.column());
  const int drawn = DrawnWidth(column, model_.Table().KeyAt(index.row()));
  return {CellWidth(model_.Table().At(index.row(), index.column()), column) + drawn,
          Px(RowHeight(model_.List()))};
}

/// The whole of a text that is cut or drawn as a sign; of a name also how its page is opened.
bool TableCells::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                           const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (!index.isValid() || event->type() != QEvent::ToolTip) return false;
  QStringList lines;
  const bool cut = sizeHint(option, index).width() > option.rect.width() + 2;
  if (cut || model_.Column(index.column()).SignOf)
    lines.append(
        CellText(model_.Table().At(index.row(), index.column()), model_.Column(index.column()).Kind)
            .toHtmlEscaped());
  if (const auto& under = model_.Column(index.column()).Under)
    lines.append(Shown(under(model_.Table().KeyAt(index.row()))).toHtmlEscaped());
  if (const QString hint = HintOf ? HintOf(index) : QString(); !hint.isEmpty())
    lines.append(hint.toHtmlEscaped());
  if (lines.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(event->globalPos(), "<p>" + lines.join("<br>") + "</p>", view);
  }
  return true;
}

std::span<const int> TableModel::PinnedColumns() const {
  const std::span<const int> shown = table_.Columns();
  const auto count = static_cast<std::size_t>(Pin.Width > 0 ? Pin.Count : 0);
  return shown.first(std::min(count, shown.size()));
}

bool TableModel::IsPinned(int column) const {
  const auto pinned = PinnedColumns();
  return std::find(pinned.begin(), pinned.end(), column) != pinned.end();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::AccessibleDescriptionRole)
    return table_.IsSelected(index.row()) ? QString("selected") : QString();
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  const ui::Cell& cell = table_.At(index.row(), index.column());
  const bool tells = role == Qt::AccessibleTextRole && cell.Best;
  QString text = CellText(cell, Column(index.column()).Kind);
  if (const auto& under = Column(index.column()).Under; under && role == Qt::AccessibleTextRole)
    text += ". " + Shown(under(table_.KeyAt(index.row())));
  return tells ? text + ", the best" : text;
}

/// What the heading says itself, then what the glossary says of it.
QVariant TableModel::TipOf(int section) const {
  const std::string meaning = MeaningOf ? MeaningOf(Column(section).Meant()) : std::string();
  QStringList lines;
  const std::string &title = Column(section).Title, &heading = Column(section).Short;
  const std::string whole = heading.empty() || heading == title ? std::string() : title;
  for (const std::string& line : {whole, Column(section).Tip, meaning})
    if (!line.empty()) lines.append(Shown(line).toHtmlEscaped());
  if (!meaning.empty()) lines.append("Right click, \"What it means\": the glossary.");
  return lines.isEmpty() ? QVariant() : QVariant("<p>" + lines.join("<br>") + "</p>");
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= columnCount()) return {};
  if (role == Qt::DisplayRole) return Shown(Column(section).Title);
  if (role == Qt::AccessibleTextRole) return Shown(ui::ColumnId(list_.Columns(), section));
  if (role == Qt::ToolTipRole) return TipOf(section);
  return {};
}

}  // namespace grapplemont::desktop
