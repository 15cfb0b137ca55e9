#include <algorithm>
#include <cmath>

#include "desktop/drawn/figure.h"

namespace grapplemont::desktop {

namespace {

const QColor kShirt(0xEDEAE2), kDarkCloth(0x2B2F37), kGreyCloth(0x4B515B), kMetal(0xC6CBD3);

QPainterPath Polygon(std::initializer_list<QPointF> points) {
  QPainterPath path;
  path.moveTo(*points.begin());
  for (const QPointF& point : points) path.lineTo(point);
  path.closeSubpath();
  return path;
}

QPainterPath BodyOf(const Likeness& face) {
  const double neck = face.Neck, wide = face.Shoulders;
  QPainterPath half;
  half.moveTo(kMiddle, 56);
  half.lineTo(kMiddle + neck, 56);
  half.lineTo(kMiddle + neck, 70);
  half.cubicTo(kMiddle + neck, 77, kMiddle + neck + 5, 78.5, kMiddle + wide * 0.62, 80.5);
  half.cubicTo(kMiddle + wide * 0.9, 82, kMiddle + wide, 87, kMiddle + wide + 1.5, 104);
  half.lineTo(kMiddle, 104);
  half.closeSubpath();
  return half.united(Mirrored(half));
}

/// A front whose neckline lies between the straps: `inner` and `outer` from the middle at the
/// shoulder, `low` where the neckline ends.
QPainterPath Front(double inner, double outer, double low) {
  QPainterPath path;
  path.moveTo(kMiddle - outer, 70);
  path.lineTo(kMiddle - inner, 70);
  path.cubicTo(kMiddle - inner, low, kMiddle + inner, low, kMiddle + inner, 70);
  path.lineTo(kMiddle + outer, 70);
  path.cubicTo(kMiddle + outer, 90, kMiddle + outer + 4, 96, kMiddle + outer + 6, 106);
  path.lineTo(kMiddle - outer - 6, 106);
  path.cubicTo(kMiddle - outer - 4, 96, kMiddle - outer, 90, kMiddle - outer, 70);
  return path;
}

/// Everything, except a neckline in the form of a V that ends at `low`.
QPainterPath Collar(double neck, double low) {
  return Polygon({{0, 60},
                  {kMiddle - neck - 3, 60},
                  {kMiddle - neck - 1, 77},
                  {kMiddle, low},
                  {kMiddle + neck + 1, 77},
                  {kMiddle + neck + 3, 60},
                  {100, 60},
                  {100, 106},
                  {0, 106}});
}

void PaintJacket(Brush& brush, const Likeness& face, const QColor& cloth, const QColor& shirt) {
  const double neck = face.Neck;
  brush.Fill(Collar(neck, 79), shirt);
  brush.Fill(Collar(neck + 0.5, 104), cloth);
  for (const bool left : {true, false}) {
    const QPainterPath lapel = Polygon({{kMiddle - neck - 1.5, 75},
                                        {kMiddle - neck - 5, 79},
                                        {kMiddle - neck - 3.5, 87},
                                        {kMiddle - 0.5, 103}});
    brush.Fill(left ? lapel : Mirrored(lapel), cloth.darker(left ? 118 : 132));
  }
}

void PaintTie(Brush& brush, const QColor& colour) {
  brush.Fill(Shape("M-2.4 79.5 L2.4 79.5 L1.3 83 L-1.3 83Z"), colour.darker(115));
  brush.Fill(Shape("M-1.3 83 L1.3 83 L3 104 L-3 104Z"), colour);
}

QColor SuitOf(const Likeness& face) {
  if (face.Person.Shows == ui::Mood::Heel) return kDarkCloth;
  static const QColor kSuits[] = {kDarkCloth, kGreyCloth, QColor(0x2F3F57), QColor(0x4A3B36),
                                  QColor(0x3B4A44)};
  return kSuits[static_cast<std::size_t>(Lot(face.Person.Uid, "suit") * 5)];
}

void PaintVest(Brush& brush, const Likeness& face) {
  const QColor cloth = face.First;
  const QPainterPath side =
      Polygon({{kMiddle - face.Neck - 2, 74}, {kMiddle - 7, 106}, {0, 106}, {0, 70}});
  brush.Fill(side, cloth);
  brush.Fill(Mirrored(side), cloth.darker(118));
  brush.Line(Shape("M-14 91 L-10.5 94.5 M-10.5 91 L-14 94.5"), 1.1, face.Second);
}

void PaintTee(Brush& brush, const Likeness& face) {
  const double neck = face.Neck;
  brush.Fill(Front(neck + 2, face.Shoulders * 0.78, 86), face.First);
  brush.Fill(Polygon({{kMiddle + face.Shoulders * 0.5, 79},
                      {kMiddle + face.Shoulders * 0.62, 88},
                      {kMiddle + face.Shoulders * 0.72, 84},
                      {kMiddle + face.Shoulders * 0.82, 93},
                      {kMiddle + face.Shoulders * 0.95, 80}}),
             face.Skin);
  brush.Line(Shape("M-9 92 L9 92"), 2, face.Second);
}

void PaintStraps(Brush& brush, const Likeness& face) {
  const bool woman = face.Person.Woman;
  brush.Fill(Front(face.Neck + 4, face.Neck + (woman ? 8 : 7.5), woman ? 95 : 104), face.First);
  brush.Line(Shape(woman ? "M-13 97 C-6 103 6 103 13 97" : "M-12 101 C-6 106 6 106 12 101"), 1.6,
             face.Second);
}

void PaintSinglet(Brush& brush, const Likeness& face) {
  const double outer = face.Neck + (face.Person.Woman ? 9.5 : 11);
  brush.Fill(Front(face.Neck + 3, outer, face.Person.Woman ? 93 : 98), face.First);
  brush.Line(Front(face.Neck + 3.4, outer + 12, face.Person.Woman ? 93.5 : 98.5), 1.3, face.Second);
}

void PaintRobe(Brush& brush, const Likeness& face) {
  brush.Fill(Collar(face.Neck + 2, 104), face.First);
  for (const bool left : {true, false}) {
    const QPainterPath lapel =
        Shape("M-11 69 C-15 74 -16 79 -14 84 L0 106 L5 106 C-2 96 -8 84 -8.4 72Z");
    brush.Fill(left ? lapel : Mirrored(lapel), left ? face.Second : face.Second.darker(115));
  }
}

void PaintVTop(Brush& brush, const Likeness& face) {
  brush.Fill(Front(face.Neck + 1.5, face.Shoulders * 0.8, 85), face.First);
  brush.Fill(Polygon({{kMiddle - face.Shoulders * 0.8, 78},
                      {kMiddle - face.Shoulders * 0.45, 78},
                      {kMiddle, 96},
                      {kMiddle + face.Shoulders * 0.45, 78},
                      {kMiddle + face.Shoulders * 0.8, 78},
                      {kMiddle, 108}}),
             face.Second);
}

void PaintPolo(Brush& brush, const Likeness& face) {
  brush.Fill(Collar(face.Neck, 88), face.First);
  for (const bool left : {true, false}) {
    const QPainterPath flap = Polygon(
        {{kMiddle - face.Neck - 2, 74}, {kMiddle - face.Neck - 5, 81}, {kMiddle - 1, 89.5}});
    brush.Fill(left ? flap : Mirrored(flap), face.First.darker(122));
  }
}

void PaintRollNeck(Brush& brush, const Likeness& face, const QColor& cloth) {
  const double neck = face.Neck + 1.6;
  brush.Fill(Collar(0, 74), cloth);
  QPainterPath roll;
  roll.addRoundedRect(QRectF(kMiddle - neck, 69, 2 * neck, 9.5), 3, 3);
  brush.Fill(roll, cloth.darker(116));
}

void PaintClothes(Brush& brush, const Likeness& face) {
  const bool heel = face.Person.Shows == ui::Mood::Heel;
  switch (face.Wears) {
    case Clothes::Vest:
      if (face.Person.Woman) brush.Fill(Front(face.Neck + 4, face.Shoulders, 94), face.Second);
      return PaintVest(brush, face);
    case Clothes::Straps:
      return PaintStraps(brush, face);
    case Clothes::TornTee:
      return PaintTee(brush, face);
    case Clothes::Bare:
      return brush.Line(Both("M1.5 95 C7 99 13 98 18 93"), 1, face.Shade);
    case Clothes::Singlet:
      return PaintSinglet(brush, face);
    case Clothes::Robe:
      if (face.Person.Woman)
        brush.Fill(Front(face.Neck + 4, face.Shoulders, 94), face.Second.darker(130));
      return PaintRobe(brush, face);
    case Clothes::VTop:
    case Clothes::SpikedTop:
      return PaintVTop(brush, face);
    case Clothes::Suit:
      PaintJacket(brush, face, SuitOf(face), heel ? QColor(0x1F2228) : kShirt);
      return face.Person.Woman ? void() : PaintTie(brush, face.First);
    case Clothes::BowTie:
      PaintJacket(brush, face, SuitOf(face), kShirt);
      return brush.Fill(Both("M0 82.5 L6 79.6 L6 86 Z"), face.First);
    case Clothes::RollNeck:
      return PaintRollNeck(brush, face, heel ? kDarkCloth : face.First);
    case Clothes::Blazer:
      return PaintJacket(brush, face, face.First.darker(135), kShirt);
    case Clothes::Polo:
      return PaintPolo(brush, face);
  }
}

QColor GroundOf(ui::Mood mood, bool inner) {
  switch (mood) {
    case ui::Mood::Face:
      return QColor(inner ? 0x3B5683 : 0x2E4366);
    case ui::Mood::Heel:
      return QColor(inner ? 0x71383F : 0x552A31);
    case ui::Mood::Tweener:
      return QColor(inner ? 0x56556A : 0x43424F);
    case ui::Mood::None:
      break;
  }
  return QColor(inner ? 0x424B50 : 0x343B40);
}

}  // namespace

void PaintGround(Brush& brush, const Likeness& face, bool small) {
  const bool wrestles = Wrestles(face.Person);
  const ui::Mood mood = wrestles ? face.Person.Shows : ui::Mood::None;
  const QColor outer = GroundOf(mood, false), inner = GroundOf(mood, true);
  QPainterPath all;
  all.addRect(0, 0, 100, 100);
  brush.Fill(all, small ? inner : outer);
  if (small) return;
  if (!face.Person.Superstar || !wrestles) return brush.Fill(Shape("E0 50 38 38"), inner);
  for (int beam = 0; beam < 8; ++beam) {
    const double from = beam * M_PI / 4 + M_PI / 16, to = from + M_PI / 8;
    brush.Fill(Polygon({{kMiddle, 52},
                        {kMiddle + 90 * std::cos(from), 52 + 90 * std::sin(from)},
                        {kMiddle + 90 * std::cos(to), 52 + 90 * std::sin(to)}}),
               inner);
  }
}

void PaintBody(Brush& brush, const Likeness& face) {
  const QPainterPath body = BodyOf(face);
  if (face.Spiked)
    brush.Fill(Both("M20 82 L24 72 L27 82.6 L31 74.5 L32.5 85 L36.5 78.5 L37 90Z"), kMetal);
  brush.Fill(body, face.Skin);
  brush.Within(body, [&] {
    brush.Fill(HeadOf(face).translated(0.8, 6), face.Shade);
    brush.Fill(Shape("M26 104 C24 92 27 84 33 79 L60 79 L60 104Z"), face.Shade);
    PaintClothes(brush, face);
    if (face.Chain) brush.Line(Shape("M-11 76 C-8 90 8 90 11 76"), 1.5, QColor(0xD8B65A));
  });
}

}  // namespace grapplemont::desktop
