#include "desktop/wordswidth.h"

#include <QFontMetricsF>
#include <QHash>
#include <cmath>
#include <utility>

namespace grapplemont::desktop {

namespace {

constexpr qsizetype kKnown = 16384;  // widths; then it begins from nothing

}  // namespace

int WordsWidth(const QFont& font, const QString& words) {
  static QHash<std::pair<QFont, QString>, int> known;
  const std::pair key(font, words);
  if (const auto found = known.constFind(key); found != known.constEnd()) return *found;
  if (known.size() >= kKnown) known.clear();
  const int width = static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(words)));
  known.insert(key, width);
  return width;
}

QString WordsWithin(const QFont& font, const QString& words, int width) {
  return WordsWidth(font, words) <= width
             ? words
             : QFontMetrics(font).elidedText(words, Qt::ElideRight, width);
}

}  // namespace grapplemont::desktop
