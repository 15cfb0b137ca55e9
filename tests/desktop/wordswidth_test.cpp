#include "desktop/wordswidth.h"

#include <gtest/gtest.h>
#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/look.h"

// Words are measured and shaped once and known from then on. Whatever changes about them must not
// be answered from before.

namespace grapplemont::test {
namespace {

using namespace desktop;

constexpr const char* kWords = "Wavering Alvin, 1178 points";

using Drawer = void (*)(QPainter& painter, const QFont& font);

QImage Drawn(const QFont& font, const QColor& ink, Drawer draw) {
  QImage image(400, 120, QImage::Format_RGB32);
  image.fill(Qt::gray);
  QPainter painter(&image);
  painter.setPen(ink);
  draw(painter, font);
  return image;
}

const Drawer kDrawers[] = {[](QPainter& painter, const QFont& font) {
                             DrawWords(painter, {10, 10, 380, 100}, Qt::AlignCenter, font, kWords);
                           },
                           [](QPainter& painter, const QFont& font) {
                             DrawWrapped(painter, {10, 10, 90, 100}, Qt::AlignRight, font, kWords);
                           },
                           [](QPainter& painter, const QFont& font) {
                             DrawWrapped(painter, {10, 10, 90, 100}, Qt::AlignLeft, font, kWords);
                           },
                           [](QPainter& painter, const QFont& font) {
                             DrawWrapped(painter, {10, 10, 140, 100}, Qt::AlignLeft, font, kWords);
                           },
                           [](QPainter& painter, const QFont& font) {
                             DrawFigures(painter, {10, 10, 380, 100}, Qt::AlignLeft, font, kWords);
                           }};

/// Against what is measured afresh.
void ExpectMeasures(const QFont& font) {
  const QFontMetricsF metrics(font);
  const int whole = static_cast<int>(std::ceil(metrics.horizontalAdvance(kWords)));
  EXPECT_EQ(WordsWidth(font, kWords), whole);
  EXPECT_EQ(WordsAdvance(font, kWords), QFontMetrics(font).horizontalAdvance(kWords));
  EXPECT_EQ(WordsWithin(font, kWords, whole), kWords);
  const QString cut = WordsWithin(font, kWords, whole / 2);
  EXPECT_EQ(cut, QFontMetrics(font).elidedText(kWords, Qt::ElideRight, whole / 2));
  const int line = WordsHeight(font, kWords, whole + 1),
            lines = WordsHeight(font, kWords, whole / 2);
  EXPECT_NEAR(line, metrics.height(), 1.5);
  EXPECT_GT(lines, line * 3 / 2);
  EXPECT_GE(FiguresWidth(font, "11"), static_cast<int>(metrics.horizontalAdvance("00")));
}

TEST(WordsThatAreKnown, AreNeverThoseOfAnotherFontSizeWidthOrColour) {
  std::vector<QImage> seen;
  for (const int text : {13, 26}) {
    ApplyLook(text == 13 ? Scheme::Dark : Scheme::Light, text);
    for (const QFont& font :
         {TextFont(), TextFont(11), TextFont(13, QFont::DemiBold), ProseFont()}) {
      SCOPED_TRACE(font.toString().toStdString() + ", text " + std::to_string(text));
      ExpectMeasures(font);
      ExpectMeasures(font);  // now all of it is known
      for (const Drawer draw : kDrawers)
        for (const QColor& ink : {QColor(Qt::white), QColor(Qt::black)}) {
          const QImage now = Drawn(font, ink, draw);
          EXPECT_EQ(Drawn(font, ink, draw), now);
          EXPECT_EQ(std::ranges::count(seen, now), 0);
          seen.push_back(now);
        }
    }
  }
  ApplyLook(Scheme::Dark, DesktopText());
}

TEST(WordsThatAreKnown, MayBeMoreThanAreKept) {
  const QFont font = TextFont();
  const QFontMetricsF metrics(font);
  for (int word = 0; word < 40000; ++word) {
    const QString words = QString::number(word * 7919);
    ASSERT_EQ(WordsWidth(font, words),
              static_cast<int>(std::ceil(metrics.horizontalAdvance(words))));
  }
  ExpectMeasures(font);
}

}  // namespace
}  // namespace grapplemont::test
