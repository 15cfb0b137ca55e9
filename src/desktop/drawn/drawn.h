#pragma once

#include <QPainter>

#include "ui/drawings.h"

// The pictures that are drawn from facts alone, at any size. The same facts give the same picture.

namespace grapplemont::desktop {

/// A person in a card with round corners. At 34 drawn pixels and under only what tells people
/// apart.
void DrawPortrait(QPainter& painter, const QRectF& where, const ui::Portrait& person);
void DrawCrest(QPainter& painter, const QRectF& where, const ui::Crest& crest);
/// Twice as wide as high.
void DrawPlate(QPainter& painter, const QRectF& where, const ui::TitlePlate& plate);
/// In one colour, on a square.
void DrawSign(QPainter& painter, const QRectF& where, ui::Sign sign, const QColor& colour);
/// Whichever it is; nothing for none.
void Draw(QPainter& painter, const QRectF& where, const ui::Drawing& drawing);
/// Its width for a height of 1: 1, or 2 for a plate; 0 for nothing.
double ShapeOf(const ui::Drawing& drawing);

}  // namespace grapplemont::desktop
