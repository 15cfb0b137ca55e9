#include "desktop/look.h"

#include <QApplication>
#include <QFontInfo>
#include <QList>
#include <QStyleHints>
#include <algorithm>
#include <cmath>

#include "desktop/housestyle.h"
#include "records/fields/charset.h"

namespace grapplemont::desktop {

namespace {

QColor Hex(QRgb rgb) {
  return QColor::fromRgb(rgb);
}

Colours MakeDark() {
  Colours c{};
  c.Dark = true;
  c.Ground = Hex(0x14161A);
  c.Side = Hex(0x0E1013);
  c.Bar = Hex(0x16191E);
  c.Card = Hex(0x191C22);
  c.Line = Hex(0x262A31);
  c.RowLine = Hex(0x22262D);
  c.Edge = Hex(0x343A44);
  c.Button = Hex(0x23272F);
  c.Field = Hex(0x1D2128);
  c.Hover = Hex(0x2B303A);
  c.Chosen = Hex(0x232A36);
  c.Now = Hex(0x1D2128);
  c.Track = Hex(0x2A2F38);
  c.Text = Hex(0xE8E6E1);
  c.Soft = Hex(0xC9CCD1);
  c.Muted = Hex(0x8D939D);
  c.Faint = Hex(0x5E646E);
  c.Gold = Hex(0xF2C14E);
  c.Blue = Hex(0x6AA6FF);
  c.Green = Hex(0x5CB97B);
  c.Amber = Hex(0xE08A3C);
  c.Red = Hex(0xE8766F);
  c.GoldFill = Hex(0xF2C14E);
  c.OnGold = Hex(0x1B1508);
  c.DimGold = Hex(0x7A6430);
  c.BlueFill = Hex(0x3A5F96);
  c.GreenFill = Hex(0x5CB97B);
  c.AmberFill = Hex(0xE08A3C);
  c.RedFill = Hex(0xC8413B);
  c.YellowFill = Hex(0xF2C14E);
  c.BlueEdge = Hex(0x4D86D6);
  c.RedEdge = Hex(0xC8413B);
  c.Shade = QColor(6, 7, 9, 170);
  return c;
}

Colours MakeLight() {
  Colours c{};
  c.Dark = false;
  c.Ground = Hex(0xF3F4F6);
  c.Side = Hex(0xE9EBEF);
  c.Bar = Hex(0xF8F9FA);
  c.Card = Hex(0xFFFFFF);
  c.Line = Hex(0xD9DCE2);
  c.RowLine = Hex(0xE6E8EC);
  c.Edge = Hex(0xC3C8D1);
  c.Button = Hex(0xF1F2F5);
  c.Field = Hex(0xFAFBFC);
  c.Hover = Hex(0xE4E7EC);
  c.Chosen = Hex(0xE3EBF8);
  c.Now = Hex(0xFAFBFC);
  c.Track = Hex(0xE0E3E8);
  c.Text = Hex(0x1B1D22);
  c.Soft = Hex(0x33373F);
  c.Muted = Hex(0x5A616C);
  c.Faint = Hex(0x9AA0AA);
  c.Gold = Hex(0x7D5700);
  c.Blue = Hex(0x1B5CB8);
  c.Green = Hex(0x23713F);
  c.Amber = Hex(0x9A4C0B);
  c.Red = Hex(0xB3261E);
  c.GoldFill = Hex(0xF2C14E);
  c.OnGold = Hex(0x1B1508);
  c.DimGold = Hex(0xF3E2B4);
  c.BlueFill = Hex(0x7FA6DE);
  c.GreenFill = Hex(0x3FA162);
  c.AmberFill = Hex(0xE08A3C);
  c.RedFill = Hex(0xC8413B);
  c.YellowFill = Hex(0xE5B23A);
  c.BlueEdge = Hex(0x4D86D6);
  c.RedEdge = Hex(0xC8413B);
  c.Shade = QColor(27, 29, 34, 120);
  return c;
}

}  // namespace

const Colours& DarkColours() {
  static const Colours kColours = MakeDark();
  return kColours;
}

const Colours& LightColours() {
  static const Colours kColours = MakeLight();
  return kColours;
}

const Colours& ColoursOf(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightness() >= 128 ? DarkColours() : LightColours();
}

QPalette PaletteOf(const Colours& c) {
  QPalette palette;
  const std::pair<QPalette::ColorRole, QColor> roles[] = {
      {QPalette::Window, c.Ground},
      {QPalette::WindowText, c.Text},
      {QPalette::Base, c.Field},
      {QPalette::AlternateBase, c.Chosen},
      {QPalette::Text, c.Text},
      {QPalette::Button, c.Button},
      {QPalette::ButtonText, c.Text},
      {QPalette::BrightText, c.Red},
      {QPalette::Light, c.Hover},
      {QPalette::Midlight, c.Edge},
      {QPalette::Mid, c.Line},
      {QPalette::Dark, c.Line},
      {QPalette::Shadow, c.Side},
      {QPalette::Highlight, c.BlueFill},
      {QPalette::HighlightedText, c.Dark ? c.Text : c.OnGold},
      {QPalette::Link, c.Blue},
      {QPalette::LinkVisited, c.Blue},
      {QPalette::ToolTipBase, c.Button},
      {QPalette::ToolTipText, c.Text},
      {QPalette::PlaceholderText, c.Muted}};
  for (const auto& [role, colour] : roles) palette.setColor(QPalette::All, role, colour);
  for (const auto role : {QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, c.Faint);
  return palette;
}

QColor TextColour(const Colours& colours, ui::Tone tone) {
  switch (tone) {
    case ui::Tone::Muted:
      return colours.Muted;
    case ui::Tone::Gold:
      return colours.Gold;
    case ui::Tone::Blue:
      return colours.Blue;
    case ui::Tone::Red:
      return colours.Red;
    case ui::Tone::Green:
      return colours.Green;
    case ui::Tone::Amber:
      return colours.Amber;
    case ui::Tone::Plain:
      break;
  }
  return colours.Text;
}

QColor EdgeColour(const Colours& colours, ui::Tone tone) {
  if (tone == ui::Tone::Blue) return colours.BlueEdge;
  if (tone == ui::Tone::Red) return colours.RedEdge;
  return tone == ui::Tone::Plain || tone == ui::Tone::Muted ? colours.Edge
                                                            : TextColour(colours, tone);
}

QColor FillColour(const Colours& colours, ui::Tone tone) {
  switch (tone) {
    case ui::Tone::Gold:
      return colours.GoldFill;
    case ui::Tone::Blue:
      return colours.BlueFill;
    case ui::Tone::Red:
      return colours.RedFill;
    case ui::Tone::Green:
      return colours.GreenFill;
    case ui::Tone::Amber:
      return colours.AmberFill;
    case ui::Tone::Muted:
    case ui::Tone::Plain:
      break;
  }
  return colours.Muted;
}

QColor PercentColour(const Colours& colours, double percent) {
  if (percent >= 75) return colours.GreenFill;
  if (percent >= 50) return colours.YellowFill;
  return percent >= 30 ? colours.AmberFill : colours.RedFill;
}

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

QString Shown(std::string_view text) {
  return QString::fromStdString(ToUtf8(text));
}

Keepable Keep(const QString& typed) {
  // An accent typed after its letter becomes one letter with it; line ends of elsewhere become
  // ours.
  QString text = typed.normalized(QString::NormalizationForm_C);
  text.replace("\r\n", "\n").replace(QChar::ParagraphSeparator, '\n');
  Keepable kept;
  std::string utf8 = text.toStdString();
  for (;;) {
    const std::string foreign = FirstForeignLetter(utf8);
    if (foreign.empty()) break;
    kept.Refused += QString::fromStdString(foreign);
    for (std::size_t at = utf8.find(foreign); at != utf8.npos; at = utf8.find(foreign, at))
      utf8.erase(at, foreign.size());
  }
  kept.Text = FromUtf8(utf8).value_or("");
  return kept;
}

QString RefusalOf(const QString& letters) {
  QString quoted;
  const auto points = letters.toUcs4();
  for (const char32_t point : points)
    quoted += (quoted.isEmpty() ? "" : ", ") + ("\"" + QString::fromUcs4(&point, 1) + "\"");
  return points.size() == 1 ? "The letter " + quoted + " cannot be written in this game."
                            : "The letters " + quoted + " cannot be written in this game.";
}

}  // namespace grapplemont::desktop
