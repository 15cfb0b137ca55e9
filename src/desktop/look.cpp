#include "desktop/look.h"

#include <QApplication>
#include <QFontInfo>
#include <QStyleHints>
#include <algorithm>
#include <cmath>

#include "desktop/housestyle.h"
#include "desktop/palette.h"

namespace grapplemont::desktop {

namespace {

struct Desktop {
  int Text = kUsualText;
  bool Dark = true;
};
Desktop desktop;

/// The letters that the look is drawn with, and what stands in for them.
const QStringList& SansFamilies() {
  static const QStringList kFamilies = {"Inter", "Noto Sans", "Cantarell", "DejaVu Sans",
                                        "sans-serif"};
  return kFamilies;
}

const QStringList& SerifFamilies() {
  static const QStringList kFamilies = {"Noto Serif", "Source Serif 4", "DejaVu Serif", "serif"};
  return kFamilies;
}

QFont FontOf(const QStringList& families, double drawn) {
  QFont font;
  font.setFamilies(families);
  font.setPixelSize(Px(drawn));
  return font;
}

/// What Qt paints a window with where no desktop tells it anything.
constexpr QRgb kUntold = 0xFFEFEFEF;

}  // namespace

void ReadDesktop() {
  desktop.Text = std::clamp(QFontInfo(QApplication::font()).pixelSize(), kUsualText, kLargestText);
  const QColor window = QGuiApplication::palette().color(QPalette::Window);
  desktop.Dark = window.rgb() == kUntold || window.lightness() < 128;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  const auto scheme = QGuiApplication::styleHints()->colorScheme();
  if (scheme != Qt::ColorScheme::Unknown) desktop.Dark = scheme == Qt::ColorScheme::Dark;
#endif
}

int DesktopText() {
  return desktop.Text;
}

bool IsDark(Scheme scheme) {
  return scheme == Scheme::System ? desktop.Dark : scheme == Scheme::Dark;
}

void ApplyLook(Scheme scheme, int textHeight) {
  if (!dynamic_cast<HouseStyle*>(QApplication::style())) QApplication::setStyle(new HouseStyle);
  QFont font;
  font.setFamilies(SansFamilies());
  font.setPixelSize(std::clamp(textHeight, kSmallestText, kLargestText));
  font.setHintingPreference(QFont::PreferNoHinting);
  QApplication::setFont(font);
  QApplication::setPalette(PaletteOf(IsDark(scheme) ? DarkColours() : LightColours()));
}

int Px(double drawn) {
  const int text = QApplication::font().pixelSize();
  return static_cast<int>(std::lround(drawn * (text > 0 ? text : kUsualText) / kUsualText));
}

QFont TextFont(double drawn, QFont::Weight weight) {
  QFont font = FontOf(SansFamilies(), drawn);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setWeight(weight);
  return font;
}

QFont ProseFont(double drawn) {
  return FontOf(SerifFamilies(), drawn);
}

namespace {

/// The width that every figure is given.
qreal FigureWidth(const QFontMetricsF& metrics) {
  qreal widest = 0;
  for (char figure = '0'; figure <= '9'; ++figure)
    widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(figure)));
  return widest;
}

}  // namespace

int FiguresWidth(const QFontMetricsF& metrics, const QString& text) {
  const qreal figure = FigureWidth(metrics);
  qreal width = 0;
  for (const QChar letter : text)
    width += letter.isDigit() ? figure : metrics.horizontalAdvance(letter);
  return static_cast<int>(std::ceil(width));
}

void DrawFigures(QPainter& painter, const QRectF& where, Qt::Alignment align, const QString& text) {
  const QFontMetricsF metrics(painter.font());
  const qreal figure = FigureWidth(metrics);
  qreal x = where.left();
  if (align & Qt::AlignRight) x = where.right() - FiguresWidth(metrics, text);
  if (align & Qt::AlignHCenter) x = where.center().x() - FiguresWidth(metrics, text) / 2.0;
  const qreal y = where.center().y() + (metrics.ascent() - metrics.descent()) / 2;
  for (const QChar letter : text) {
    const qreal own = metrics.horizontalAdvance(letter);
    const qreal width = letter.isDigit() ? figure : own;
    painter.drawText(QPointF(x + (width - own) / 2, y), QString(letter));
    x += width;
  }
}

}  // namespace grapplemont::desktop
