#include "desktop/wordswidth.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace grapplemont::desktop {

namespace {

/// What has been found out under a key; it begins from nothing before it grows too large.
template <class Key, class Value>
class Known {
 public:
  template <class Find>
  const Value& At(const Key& key, const Find& find) {
    if (const auto found = values_.constFind(key); found != values_.constEnd()) return *found;
    constexpr qsizetype kMost = 16384;
    if (values_.size() >= kMost) values_.clear();
    return *values_.insert(key, find());
  }

 private:
  QHash<Key, Value> values_;
};

using Key = std::pair<QFont, QString>;
using SizedKey = std::pair<Key, int>;

/// Letters in their places, from the left upper corner of what they take together.
struct Shaped {
  QList<QGlyphRun> Letters;
  double Width = 0, Height = 0;
  double Advance = 0;  // of the widest line
  double Base = 0;     // from the top to the line that the first letters stand on
};

constexpr int kOneLine = -1;

/// Lines lie as the painter's own would, whose sides are those of the room.
Shaped ShapeOf(const QFont& font, QString words, int width, Qt::Alignment align) {
  words.replace('\n', QChar::LineSeparator);
  QTextLayout layout(words, font);
  QTextOption option;
  option.setWrapMode(width == kOneLine ? QTextOption::ManualWrap : QTextOption::WordWrap);
  layout.setTextOption(option);
  constexpr double kEndless = 0x01000000;
  const double leading = QFontMetricsF(font).leading();
  Shaped shaped;
  shaped.Height = -leading;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width == kOneLine ? kEndless : width);
    shaped.Height = std::ceil(shaped.Height + leading);
    const double over = width == kOneLine ? 0 : width - line.horizontalAdvance();
    line.setPosition({align & Qt::AlignRight     ? over
                      : align & Qt::AlignHCenter ? over / 2
                                                 : 0,
                      shaped.Height});
    if (shaped.Base == 0) shaped.Base = line.ascent();
    shaped.Height += line.height();
    shaped.Width = std::max(shaped.Width, line.naturalTextWidth());
    shaped.Advance = std::max(shaped.Advance, line.horizontalAdvance());
  }
  layout.endLayout();
  shaped.Letters = layout.glyphRuns();
  return shaped;
}

const Shaped& OneLine(const QFont& font, const QString& words) {
  static Known<Key, Shaped> known;
  return known.At({font, words}, [&] { return ShapeOf(font, words, kOneLine, {}); });
}

void DrawLetters(QPainter& painter, const QPointF& at, const QList<QGlyphRun>& letters) {
  for (const QGlyphRun& run : letters) painter.drawGlyphRun(at, run);
}

/// What does not fit ends at the room's edges.
void DrawShaped(QPainter& painter, const QRectF& room, Qt::Alignment align, double left,
                const Shaped& shaped) {
  const double over = room.height() - shaped.Height;
  // The middle lies on a whole pixel: halves would be rounded now up, now down.
  const double top = align & Qt::AlignBottom    ? over
                     : align & Qt::AlignVCenter ? std::round(over / 2)
                                                : 0;
  const QPointF at(room.left() + left, room.top() + top);
  if (over >= 0 && shaped.Width <= room.width()) return DrawLetters(painter, at, shaped.Letters);
  painter.save();
  painter.setClipRect(room, Qt::IntersectClip);
  DrawLetters(painter, at, shaped.Letters);
  painter.restore();
}

}  // namespace

int WordsWidth(const QFont& font, const QString& words) {
  static Known<Key, int> known;
  return known.At({font, words}, [&] {
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(words)));
  });
}

int WordsAdvance(const QFont& font, const QString& words) {
  static Known<Key, int> known;
  return known.At({font, words}, [&] { return QFontMetrics(font).horizontalAdvance(words); });
}

int WordsHeight(const QFont& font, const QString& words, int width) {
  static Known<SizedKey, int> known;
  return known.At({{font, words}, width}, [&] {
    return static_cast<int>(std::ceil(ShapeOf(font, words, std::max(0, width), {}).Height));
  });
}

QString WordsWithin(const QFont& font, const QString& words, int width) {
  static Known<SizedKey, QString> known;
  if (WordsWidth(font, words) <= width) return words;
  return known.At({{font, words}, width},
                  [&] { return QFontMetrics(font).elidedText(words, Qt::ElideRight, width); });
}

void DrawWords(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
               const QString& words) {
  const Shaped& shaped = OneLine(font, words);
  const double over = room.width() - shaped.Advance;
  const double left = align & Qt::AlignRight ? over : align & Qt::AlignHCenter ? over / 2 : 0;
  DrawShaped(painter, room, align, left, shaped);
}

void DrawWrapped(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
                 const QString& words) {
  static Known<std::pair<SizedKey, int>, Shaped> known;
  const int width = std::max(0, static_cast<int>(room.width()));
  const Qt::Alignment across = align & Qt::AlignHorizontal_Mask;
  const Shaped& shaped = known.At({{{font, words}, width}, static_cast<int>(across.toInt())},
                                  [&] { return ShapeOf(font, words, width, across); });
  DrawShaped(painter, room, align, 0, shaped);
}

namespace {

/// The width that every figure is given.
double FigureWidth(const QFontMetricsF& metrics) {
  double widest = 0;
  for (char figure = '0'; figure <= '9'; ++figure)
    widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(figure)));
  return widest;
}

/// Adds letters from elsewhere.
void AddMoved(QList<QGlyphRun>& letters, const QList<QGlyphRun>& more, const QPointF& by) {
  for (QGlyphRun run : more) {
    QList<QPointF> places = run.positions();
    for (QPointF& place : places) place += by;
    if (letters.isEmpty() || letters.last().rawFont() != run.rawFont()) {
      run.setPositions(places);
      letters.append(run);
      continue;
    }
    letters.last().setGlyphIndexes(letters.last().glyphIndexes() + run.glyphIndexes());
    letters.last().setPositions(letters.last().positions() + places);
  }
}

/// They stand on a line of 0, and `Base` is how far below their middle that is.
const Shaped& Figures(const QFont& font, const QString& text) {
  static Known<Key, Shaped> known;
  return known.At({font, text}, [&] {
    const QFontMetricsF metrics(font);
    const double figure = FigureWidth(metrics);
    Shaped shaped;
    for (const QChar letter : text) {
      const double own = metrics.horizontalAdvance(letter);
      const double width = letter.isDigit() ? figure : own;
      const Shaped& one = OneLine(font, QString(letter));
      AddMoved(shaped.Letters, one.Letters, {shaped.Width + (width - own) / 2, -one.Base});
      shaped.Width += width;
    }
    shaped.Base = (metrics.ascent() - metrics.descent()) / 2;
    return shaped;
  });
}

}  // namespace

int FiguresWidth(const QFont& font, const QString& text) {
  return static_cast<int>(std::ceil(Figures(font, text).Width));
}

void DrawFigures(QPainter& painter, const QRectF& room, Qt::Alignment align, const QFont& font,
                 const QString& text) {
  const Shaped& shaped = Figures(font, text);
  const double width = std::ceil(shaped.Width);
  const double left = align & Qt::AlignRight     ? room.right() - width
                      : align & Qt::AlignHCenter ? room.center().x() - width / 2
                                                 : room.left();
  DrawLetters(painter, {left, room.center().y() + shaped.Base}, shaped.Letters);
}

}  // namespace grapplemont::desktop
