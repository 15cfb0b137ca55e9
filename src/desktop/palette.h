#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

#include "ui/controls.h"

// The colours of the window, dark and light. A widget is painted in the set that its QPalette was
// made from, so that a part of the window may keep to the dark one.

namespace grapplemont::desktop {

struct Colours {
  bool Dark;
  QColor Ground, Side, Bar, Card;            // the page, the side bar, the top bar, a card
  QColor Line, RowLine, Edge;                // hairlines of cards, of rows, of buttons
  QColor Button, Field, Hover, Chosen, Now;  // Chosen: a selected row; Now: the present command
  QColor Track;                              // what a bar or a slider runs in
  QColor Text, Soft, Muted, Faint;           // Soft: the side bar's; Faint: what is disabled
  QColor Gold, Blue, Green, Amber, Red;      // as texts
  QColor GoldFill, OnGold, DimGold;          // the main button; DimGold: disabled
  QColor BlueFill, GreenFill, AmberFill, RedFill, YellowFill;  // bars and spots
  QColor BlueEdge, RedEdge;                                    // frames of tags
  QColor Shade;                                                // over what lies below a dialog
};

const Colours& DarkColours();
const Colours& LightColours();

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

}  // namespace grapplemont::desktop
