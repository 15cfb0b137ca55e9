#include <algorithm>

#include "desktop/drawn/figure.h"

namespace grapplemont::desktop {

namespace {

using ui::Mood;

constexpr double kEyeLine = 44.6;
const QColor kWhite(0xF6F3EC), kTeeth(0xF4F1EA);

/// How far from the middle the eyes stand.
double EyeAt(const Likeness& face) {
  return face.Skull * 0.43;
}

QPainterPath Line(double x1, double y1, double x2, double y2) {
  QPainterPath path(QPointF(kMiddle + x1, y1));
  path.lineTo(kMiddle + x2, y2);
  return path;
}

void PaintEars(Brush& brush, const Likeness& face, bool small) {
  const double at = face.Skull;
  for (const double side : {-1.0, 1.0}) {
    QPainterPath ear;
    ear.addEllipse(QPointF(kMiddle + side * (at + 0.4), 46), 2.7, 4.6);
    brush.Fill(ear, side < 0 ? face.Skin : face.Shade);
    if (!face.Rings || small) continue;
    QPainterPath ring;
    ring.addEllipse(QPointF(kMiddle + side * (at + 1.2), 52.6), 1.7, 2.2);
    brush.Line(ring, 0.9, QColor(0xD8B65A));
  }
}

QColor PaintColour(const Likeness& face) {
  static const QColor kPaints[] = {QColor(0xB93C38), QColor(0x3C6BAA), QColor(0x2F8A86),
                                   QColor(0x76539F), QColor(0x4B8A5B), QColor(0xC9648A)};
  return kPaints[static_cast<std::size_t>(Lot(face.Person.Uid, "paint colour") * 6)];
}

void PaintPaint(Brush& brush, const Likeness& face) {
  const double eye = EyeAt(face);
  const QColor colour = PaintColour(face);
  switch (face.Painted) {
    case Paint::None:
      return;
    case Paint::HalfFace:
      return brush.Fill(Shape("M0 10 L30 10 L30 70 L0 70 L2.5 58 L-1.5 48 L2 36 L-2 26Z"), colour);
    case Paint::Diamond:
      return brush.Fill(Shape("M0 30 L4.4 44.6 L0 59 L-4.4 44.6Z").translated(eye, 0), colour);
    case Paint::Band:
      return brush.Fill(Shape("M-30 40.5 L30 40.5 L30 49 L2 49 L0 47 L-2 49 L-30 49Z"), colour);
    case Paint::Cheeks:
      return brush.Line(Both("M5 52.5 L14 50.5 M5.6 56 L14 54.4"), 1.7, colour);
    case Paint::Streaks:
      return brush.Fill(
          Both("M5 42 L7.4 42 L7 62 L6 58Z M9 43 L11 43 L10 56Z M2.2 20 L4.4 20 L5.2 38 L4 37Z"),
          colour);
  }
}

void PaintLines(Brush& brush, const Likeness& face) {
  struct Crease {
    int From;
    const char* Shape;
  };
  static constexpr Crease kCreases[] = {
      {32, "M5 53.5 C6.6 55.4 7 57.4 6.8 59.4"},   {39, "M11 42.6 L13 41.6 M11.2 45 L13.2 45.4"},
      {41, "M.01 33.6 C3 32.8 6 33 8.4 34"},       {45, "M3.4 49.4 C5.4 50.8 7.6 50.6 9.4 49.2"},
      {48, "M.01 30.4 C3 29.6 5.4 29.8 7.4 30.6"}, {50, "M8.8 60 C9 62 8.2 63.6 7 64.8"}};
  for (const Crease& crease : kCreases) {
    const int years = face.Person.Age - crease.From;
    if (years < 0) continue;
    const double depth = std::clamp(0.25 + 0.045 * years, 0.0, 1.0);
    brush.Line(Both(crease.Shape), 0.75, Mixed(face.Skin, face.Shade.darker(112), depth));
  }
}

void PaintNose(Brush& brush, const Likeness& face, bool small) {
  static constexpr const char* kNoses[] = {
      "M.8 43 L2.2 51.2 C2.6 53.6 .6 54.2 -2 53.8 C-1 53 .2 52.6 .4 51Z",
      "M1 42 L3.2 51 C3.6 54 .8 54.6 -3 54 C-2 52.8 .2 53 .6 50.6Z",
      "M.8 46 L2 50.6 C2.6 53.2 .2 53.8 -1.8 53.2 C-.8 52.6 .2 52 .4 50.6Z",
      "M.6 41.6 C2.8 45 2.4 48 2.8 51.4 C2.6 54.4 0 54.8 -1.6 54.2 C-.6 53.2 .6 52.8 .6 51Z"};
  brush.Fill(Shape(kNoses[face.Nose]), face.Shade);
  if (!small)
    brush.Line(Shape("M-1.9 53.2 L-1.2 53.6 M1.7 53.2 L1.2 53.6"), 0.7, face.Shade.darker(135));
}

void PaintEye(Brush& brush, const Likeness& face, double side, bool small) {
  constexpr double kOpen[] = {1.75, 2.1, 1.45};
  const double open = kOpen[face.Eyes] * (face.Person.Woman ? 1.12 : 1);
  const double x = kMiddle + side * EyeAt(face);
  QPainterPath white, iris;
  if (small) {
    white.addEllipse(QPointF(x, kEyeLine), 3.6, 2.6);
    iris.addEllipse(QPointF(x, kEyeLine), 1.9, 1.9);
    brush.Fill(white, kWhite);
    return brush.Fill(iris, kDark);
  }
  white.moveTo(x - 3.3, kEyeLine + 0.4);
  white.quadTo(x, kEyeLine - open * 2, x + 3.3, kEyeLine + 0.4);
  white.quadTo(x, kEyeLine + open * 1.7, x - 3.3, kEyeLine + 0.4);
  brush.Fill(white, kWhite);
  brush.Within(white, [&] {
    iris.addEllipse(QPointF(x, kEyeLine - 0.1), 1.55, 1.7);
    brush.Fill(iris, face.Iris);
    QPainterPath pupil;
    pupil.addEllipse(QPointF(x, kEyeLine - 0.1), 0.8, 0.9);
    brush.Fill(pupil, kDark);
  });
  if (face.Person.Superstar) {
    QPainterPath light;
    light.addEllipse(QPointF(x + 0.6, kEyeLine - 0.8), 0.45, 0.45);
    brush.Fill(light, kWhite);
  }
  QPainterPath lid(QPointF(x - 3.4, kEyeLine + 0.4));
  lid.quadTo(x, kEyeLine - open * 2, x + 3.4, kEyeLine + 0.4);
  brush.Line(lid, face.Person.Woman ? 1.15 : 0.8, kDark);
  if (face.Person.Woman)
    brush.Line(
        Line(x - kMiddle + side * 3.3, kEyeLine + 0.3, x - kMiddle + side * 4.5, kEyeLine - 1),
        0.95, kDark);
}

void PaintBrows(Brush& brush, const Likeness& face, bool small) {
  const double at = EyeAt(face), wide = small ? 2.1 : face.Person.Woman ? 1.05 : 1.65;
  const Mood mood = face.Person.Shows;
  for (const double side : {-1.0, 1.0}) {
    const bool up = mood == Mood::Tweener && side < 0;
    const double inner = mood == Mood::Heel ? 41 : 39.3, outer = mood == Mood::Heel ? 38.2 : 39.6;
    const double lift = up ? -1.7 : 0;
    QPainterPath brow(QPointF(kMiddle + side * (at - 3.4), inner + lift));
    brow.quadTo(kMiddle + side * at, (inner + outer) / 2 - 1.5 + lift, kMiddle + side * (at + 4),
                outer + lift);
    brush.Line(brow, wide, face.Brows);
  }
}

void PaintMouth(Brush& brush, const Likeness& face, bool small) {
  const QColor line = Mixed(face.Shade, kDark, 0.55);
  const QColor lips = Mixed(face.Shade, QColor(0xA8404A), 0.55);
  const double wide = small ? 1.9 : 1.15;
  const bool second = face.Mouth == 1;
  if (face.Person.Woman && !small)
    brush.Fill(Shape("M-4.4 58.4 C-2.6 56.6 -1 56.9 0 57.5 C1 56.9 2.6 56.6 4.4 58.4 C2.4 61.4 "
                     "-2.4 61.4 -4.4 58.4Z"),
               lips);
  switch (face.Person.Shows) {
    case Mood::Face:
      if (second && !small) {
        brush.Fill(Shape("M-5 57.4 C-2 58.4 2 58.4 5 57.4 C3.4 61.8 -3.4 61.8 -5 57.4Z"), kTeeth);
        return brush.Line(Shape("M-5 57.4 C-2 58.4 2 58.4 5 57.4 C3.4 61.8 -3.4 61.8 -5 57.4"), 0.8,
                          line);
      }
      return brush.Line(Shape("M-5 57.8 C-2.4 60.2 2.4 60.2 5 57.4"), wide, line);
    case Mood::Heel:
      return brush.Line(Shape(second ? "M-4.6 59.2 C-1.6 58.8 2 58.8 5 56.8"
                                     : "M-4.8 59.6 C-2.4 57.6 2.4 57.6 4.8 59.6"),
                        wide, line);
    case Mood::Tweener:
      return brush.Line(Shape("M-4.6 58.6 L4.6 58.4"), wide, line);
    case Mood::None:
      return brush.Line(Shape("M-4.4 58.4 C-2 59.6 2 59.6 4.4 58.2"), wide, line);
  }
}

void PaintBeard(Brush& brush, const Likeness& face, const QPainterPath& head) {
  static constexpr const char* kMoustache =
      "M0 55.4 C1.6 54.6 4 55.2 5.8 58.6 C3.8 57.8 1.6 57.2 0 57.4Z";
  static constexpr const char* kJaw =
      "M-1.1 45 L-.9 46 C-.86 53 -.66 55.4 -.42 55.2 C-.2 54.6 .2 54.6 .42 55.2 C.66 55.4 .86 53 "
      ".9 46 L1.1 45 "
      "L1.1 72 L-1.1 72Z";
  const QColor colour = face.BeardColour;
  if (face.Grows == Beard::Stubble)
    return brush.Within(
        head, [&] { brush.Fill(Shape(kJaw, face.Skull), Mixed(face.Skin, colour, 0.26)); });
  if (face.Grows == Beard::Moustache) return brush.Fill(Both(kMoustache), colour);
  if (face.Grows == Beard::Goatee) {
    brush.Fill(Both(kMoustache), colour);
    return brush.Fill(
        Shape(
            "M-5 57.4 C-5.2 64 -3.4 68 0 68.6 C3.4 68 5.2 64 5 57.4 C3.6 61.6 -3.6 61.6 -5 57.4Z"),
        colour);
  }
  if (face.Grows == Beard::None) return;
  const bool cropped = face.Grows == Beard::Short;
  brush.Within(head, [&] {
    brush.Fill(Shape(kJaw, face.Skull), cropped ? Mixed(face.Skin, colour, 0.78) : colour);
  });
  if (!cropped) {
    const double low = face.Grows == Beard::Long ? 82 : 69.6, j = face.Jaw;
    QPainterPath hang(QPointF(kMiddle - j, 55));
    hang.cubicTo(kMiddle - j - 0.4, (55 + low) / 2, kMiddle - j * 0.6, low, kMiddle, low);
    hang.cubicTo(kMiddle + j * 0.6, low, kMiddle + j + 0.4, (55 + low) / 2, kMiddle + j, 55);
    hang.lineTo(kMiddle + j * 0.5, 62);
    hang.lineTo(kMiddle - j * 0.5, 62);
    hang.closeSubpath();
    brush.Fill(hang, colour);
  }
  brush.Fill(Shape("M-5.4 57 C-3 56.4 3 56.4 5.4 57 C4 62 -4 62 -5.4 57Z"),
             cropped ? face.Skin : Mixed(face.Skin, colour, 0.2));
}

}  // namespace

QPainterPath HeadOf(const Likeness& face) {
  const double skull = face.Skull, jaw = face.Jaw, chin = face.Chin;
  QPainterPath half;
  half.moveTo(kMiddle, 18);
  half.cubicTo(kMiddle + skull * 0.62, 18, kMiddle + skull, 25, kMiddle + skull, 38);
  half.cubicTo(kMiddle + skull, 46, kMiddle + jaw + 0.4, 50, kMiddle + jaw, 54.5);
  half.cubicTo(kMiddle + jaw - 0.6, 60, kMiddle + chin, 66.4, kMiddle, 66.4);
  half.closeSubpath();
  return half.united(Mirrored(half));
}

void PaintFace(Brush& brush, const Likeness& face, bool small) {
  const QPainterPath head = HeadOf(face);
  PaintEars(brush, face, small);
  brush.Fill(head, face.Skin);
  brush.Within(head, [&] {
    brush.Fill(Shape("M.7 10 C.92 26 .78 40 .8 48 C.8 56 .55 62 .2 70 L2 70 L2 10Z", face.Skull),
               face.Shade);
    PaintPaint(brush, face);
  });
  PaintBeard(brush, face, head);
  if (!small) PaintLines(brush, face);
  PaintNose(brush, face, small);
  for (const double side : {-1.0, 1.0}) PaintEye(brush, face, side, small);
  PaintBrows(brush, face, small);
  PaintMouth(brush, face, small);
  if (small) return;
  if (face.Scar)
    brush.Line(Shape("M-8.6 48.5 L-5.6 54 M-8.4 51.6 L-6.2 50.6"), 0.8, face.Shade.darker(118));
  if (face.Mole) brush.Fill(Shape("E7.2 56 .65 .65"), face.Shade.darker(150));
  if (face.Freckles)
    brush.Fill(Both("E5 51 .5 .5 E7.2 50.4 .5 .5 E9 51.6 .5 .5 E6.6 52.6 .5 .5"),
               Mixed(face.Skin, face.Shade, 0.9));
}

}  // namespace grapplemont::desktop
