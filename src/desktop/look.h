#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QString>
#include <QWidget>
#include <string>
#include <string_view>

#include "ui/controls.h"

// The colours of the window: dark, light and of high contrast. A widget is painted in the set that
// its QPalette was made from, so that a part of the window may keep to the dark one.

namespace grapplemont::desktop {

struct Colours {
  bool Dark;
  QColor Ground, Side, Bar, Card;            // the page, the side bar, the top bar, a card
  QColor Line, RowLine, Edge;                // hairlines of cards, of rows, of buttons
  QColor Button, Field, Hover, Chosen, Now;  // Chosen: a selected row; Now: the present command
  QColor Track;                              // what a bar or a slider runs in
  QColor Text, Soft, Muted, Faint;           // Soft: the side bar's; Faint: what is disabled
  QColor Gold, Blue, Green, Amber, Red;      // as texts
  QColor GoldFill, OnGold;                   // the main button
  QColor DimGold, OnDimGold;                 // the same while it is disabled
  QColor BlueFill, GreenFill, AmberFill, RedFill, YellowFill;  // bars and spots
  QColor BlueEdge, RedEdge;                                    // frames of tags
  QColor Shade;                                                // over what lies below a dialog
};

const Colours& DarkColours();
const Colours& LightColours();
const Colours& ContrastColours();  // dark, every text at least 7 : 1
/// What stands on a picture that fills the window, which is dark in every set.
const Colours& CoverColours();

/// The set that a widget or a palette belongs to.
const Colours& ColoursOf(const QPalette& palette);
inline const Colours& ColoursOf(const QWidget* widget) {
  return ColoursOf(widget->palette());
}
QPalette PaletteOf(const Colours& colours);

QColor TextColour(const Colours& colours, ui::Tone tone);
QColor EdgeColour(const Colours& colours, ui::Tone tone);  // of a tag's frame
QColor FillColour(const Colours& colours, ui::Tone tone);  // of a chart's bars and lines
/// Green from 75, yellow from 50, orange from 30, red below.
QColor PercentColour(const Colours& colours, double percent);

// Sizes and letters of the window. The look is drawn for text 13 pixels high; everything grows with
// the player's text.

enum class Scheme { System, Dark, Light, Contrast };

inline constexpr int kUsualText = 13;
inline constexpr int kSmallestText = 11, kLargestText = 28;

/// Remembers what the desktop says about colours and text. Requires the application, before the
/// first ApplyLook.
void ReadDesktop();
/// Whether its own colours were dark then; they were not where it said nothing.
bool BeganDark();
/// What the desktop says about colours meanwhile; false where that is nothing new.
bool HearDesktop(bool dark);
/// The text height that the desktop asks for, at least the usual one.
int DesktopText();
/// System: as the desktop has it, and dark where it says nothing.
bool IsDark(Scheme scheme);

/// Gives the application style, colours and letters.
void ApplyLook(Scheme scheme, int textHeight);

/// Pixels of the drawing at the present size of text.
int Px(double drawn);
/// A font of that many drawn pixels; the style's sans serif.
QFont TextFont(double drawn = kUsualText, QFont::Weight weight = QFont::Normal);
QFont ProseFont(double drawn = 15);

// The program's texts are Windows-1252; Qt's are Unicode.

QString Shown(std::string_view text);

/// What can be kept of a typed text, and the letters that cannot: each once, in order.
struct Keepable {
  std::string Text;
  QString Refused;
};
Keepable Keep(const QString& typed);

/// The sentence for letters that cannot be kept.
QString RefusalOf(const QString& letters);

}  // namespace grapplemont::desktop
