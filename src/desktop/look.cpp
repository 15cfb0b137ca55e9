#include "desktop/look.h"

#include <QApplication>
#include <QFontInfo>
#include <QHash>
#include <QList>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/housestyle.h"
#include "records/fields/charset.h"

namespace grapplemont::desktop {

namespace {

/// What a colour is in each set.
struct Shades {
  QColor Colours::*Which;
  QRgb Dark, Light, Contrast;
};
constexpr Shades kShades[] = {
    {&Colours::Ground, 0x14161A, 0xF3F4F6, 0x000000},
    {&Colours::Side, 0x0E1013, 0xE9EBEF, 0x000000},
    {&Colours::Bar, 0x16191E, 0xF8F9FA, 0x000000},
    {&Colours::Card, 0x191C22, 0xFFFFFF, 0x000000},
    {&Colours::Line, 0x262A31, 0xD9DCE2, 0x8A8A8A},
    {&Colours::RowLine, 0x22262D, 0xE6E8EC, 0x5A5A5A},
    {&Colours::Edge, 0x343A44, 0xC3C8D1, 0xFFFFFF},
    {&Colours::Button, 0x23272F, 0xF1F2F5, 0x101010},
    {&Colours::Field, 0x1D2128, 0xFAFBFC, 0x000000},
    {&Colours::Hover, 0x2B303A, 0xE4E7EC, 0x2E2E2E},
    {&Colours::Chosen, 0x232A36, 0xE3EBF8, 0x00264A},
    {&Colours::Now, 0x1D2128, 0xFAFBFC, 0x1C1C1C},
    {&Colours::Track, 0x2A2F38, 0xE0E3E8, 0x444444},
    {&Colours::Text, 0xE8E6E1, 0x1B1D22, 0xFFFFFF},
    {&Colours::Soft, 0xC9CCD1, 0x33373F, 0xFFFFFF},
    {&Colours::Muted, 0x8D939D, 0x5A616C, 0xE0E0E0},
    {&Colours::Faint, 0x6C727D, 0x7A808A, 0xA8A8A8},
    {&Colours::Gold, 0xF2C14E, 0x7D5700, 0xFFD84A},
    {&Colours::Blue, 0x6AA6FF, 0x1B5CB8, 0x8FC7FF},
    {&Colours::Green, 0x5CB97B, 0x23713F, 0x7CF29A},
    {&Colours::Amber, 0xE08A3C, 0x9A4C0B, 0xFFB366},
    {&Colours::Red, 0xE8766F, 0xB3261E, 0xFFA8A2},
    {&Colours::GoldFill, 0xF2C14E, 0xF2C14E, 0xFFD84A},
    {&Colours::OnGold, 0x1B1508, 0x1B1508, 0x000000},
    {&Colours::DimGold, 0x7A6430, 0xF6ECD2, 0xA8933A},
    {&Colours::OnDimGold, 0x1B1508, 0x8F7D4C, 0x000000},
    {&Colours::BlueFill, 0x3A5F96, 0x7FA6DE, 0x2F6FD6},
    {&Colours::GreenFill, 0x5CB97B, 0x3FA162, 0x7CF29A},
    {&Colours::AmberFill, 0xE08A3C, 0xE08A3C, 0xFFB366},
    {&Colours::RedFill, 0xC8413B, 0xC8413B, 0xC8413B},
    {&Colours::YellowFill, 0xF2C14E, 0xE5B23A, 0xFFD84A},
    {&Colours::BlueEdge, 0x4D86D6, 0x4D86D6, 0x8FC7FF},
    {&Colours::RedEdge, 0xC8413B, 0xC8413B, 0xFFA8A2},
};

Colours MakeColours(QRgb Shades::*set) {
  Colours c{};
  c.Dark = set != &Shades::Light;
  for (const Shades& shades : kShades) c.*shades.Which = QColor::fromRgb(shades.*set);
  c.Shade = c.Dark ? QColor(6, 7, 9, 170) : QColor(27, 29, 34, 120);
  return c;
}

/// What a tone is as a text, as the frame of a tag and as a chart's bar.
struct ToneColours {
  QColor Colours::*Text, Colours::*Edge, Colours::*Fill;
};
/// In the order of Tone.
constexpr ToneColours kTones[] = {
    {&Colours::Text, &Colours::Edge, &Colours::Muted},
    {&Colours::Muted, &Colours::Edge, &Colours::Muted},
    {&Colours::Gold, &Colours::Gold, &Colours::GoldFill},
    {&Colours::Blue, &Colours::BlueEdge, &Colours::BlueFill},
    {&Colours::Red, &Colours::RedEdge, &Colours::RedFill},
    {&Colours::Green, &Colours::Green, &Colours::GreenFill},
    {&Colours::Amber, &Colours::Amber, &Colours::AmberFill},
};

const ToneColours& Of(ui::Tone tone) {
  return kTones[static_cast<std::size_t>(tone)];
}

}  // namespace

const Colours& DarkColours() {
  static const Colours kColours = MakeColours(&Shades::Dark);
  return kColours;
}

const Colours& LightColours() {
  static const Colours kColours = MakeColours(&Shades::Light);
  return kColours;
}

const Colours& ContrastColours() {
  static const Colours kColours = MakeColours(&Shades::Contrast);
  return kColours;
}

const Colours& ColoursOf(const QPalette& palette) {
  if (palette.color(QPalette::WindowText) == ContrastColours().Text) return ContrastColours();
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
  return colours.*Of(tone).Text;
}

QColor EdgeColour(const Colours& colours, ui::Tone tone) {
  return colours.*Of(tone).Edge;
}

QColor FillColour(const Colours& colours, ui::Tone tone) {
  return colours.*Of(tone).Fill;
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
  bool BeganDark = false;  // by colours of its own
};
Desktop desktop;

/// The letters that the look is drawn with, and what stands in for them. A font looks for its
/// letters in the system once: those that are asked for again are kept.
QFont SansFont(int pixels, QFont::Weight weight = QFont::Normal) {
  static const QStringList kFamilies = {"Inter", "Noto Sans", "Cantarell", "DejaVu Sans",
                                        "sans-serif"};
  static QHash<std::pair<int, int>, QFont> kept;
  const std::pair key(pixels, int(weight));
  if (const auto found = kept.constFind(key); found != kept.constEnd()) return *found;
  QFont font;
  font.setFamilies(kFamilies);
  font.setPixelSize(pixels);
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferNoHinting);
  return *kept.insert(key, font);
}

/// What Qt paints a window with where no desktop tells it anything.
constexpr QRgb kUntold = 0xFFEFEFEF;

}  // namespace

void ReadDesktop() {
  desktop.Text = std::clamp(QFontInfo(QApplication::font()).pixelSize(), kUsualText, kLargestText);
  const QColor window = QGuiApplication::palette().color(QPalette::Window);
  desktop.BeganDark = window.rgb() != kUntold && window.lightness() < 128;
  desktop.Dark = window.rgb() == kUntold || desktop.BeganDark;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  const auto scheme = QGuiApplication::styleHints()->colorScheme();
  if (scheme != Qt::ColorScheme::Unknown)
    desktop.Dark = desktop.BeganDark = scheme == Qt::ColorScheme::Dark;
#endif
}

bool BeganDark() {
  return desktop.BeganDark;
}

bool HearDesktop(bool dark) {
  return std::exchange(desktop.Dark, dark) != dark;
}

int DesktopText() {
  return desktop.Text;
}

const Colours& CoverColours() {
  const Colours& c = ColoursOf(QApplication::palette());
  return c.Dark ? c : DarkColours();
}

bool IsDark(Scheme scheme) {
  return scheme == Scheme::System ? desktop.Dark : scheme != Scheme::Light;
}

void ApplyLook(Scheme scheme, int textHeight) {
  if (!dynamic_cast<HouseStyle*>(QApplication::style())) QApplication::setStyle(new HouseStyle);
  QApplication::setFont(SansFont(std::clamp(textHeight, kSmallestText, kLargestText)));
  QApplication::setPalette(PaletteOf(scheme == Scheme::Contrast ? ContrastColours()
                                     : IsDark(scheme)           ? DarkColours()
                                                                : LightColours()));
}

int Px(double drawn) {
  const int text = QApplication::font().pixelSize();
  return static_cast<int>(std::lround(drawn * (text > 0 ? text : kUsualText) / kUsualText));
}

QFont TextFont(double drawn, QFont::Weight weight) {
  return SansFont(Px(drawn), weight);
}

QFont ProseFont(double drawn) {
  static const QStringList kFamilies = {"Noto Serif", "Source Serif 4", "DejaVu Serif", "serif"};
  QFont font;
  font.setFamilies(kFamilies);
  font.setPixelSize(Px(drawn));
  return font;
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
