#pragma once

#include "desktop/drawn/brush.h"
#include "desktop/drawn/likeness.h"

// The layers of a portrait, back to front. `small` leaves out what nobody sees at 34 pixels and
// under.

namespace grapplemont::desktop {

void PaintGround(Brush& brush, const Likeness& face, bool small);

/// Neck, shoulders and what is worn.
void PaintBody(Brush& brush, const Likeness& face);

/// The outline of skull, cheeks and chin.
QPainterPath HeadOf(const Likeness& face);
void PaintHairBehind(Brush& brush, const Likeness& face);
void PaintBraids(Brush& brush, const Likeness& face);
/// Ears, face, paint, beard, eyes, brows, mouth.
void PaintFace(Brush& brush, const Likeness& face, bool small);
void PaintMask(Brush& brush, const Likeness& face);
/// Hair in front, headwear, glasses.
void PaintOver(Brush& brush, const Likeness& face);

}  // namespace grapplemont::desktop
