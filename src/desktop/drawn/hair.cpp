#include <algorithm>

#include "desktop/drawn/figure.h"

namespace grapplemont::desktop {

namespace {

const QColor kLens(0x23262C), kFrame(0x2A2D34), kFelt(0x5A4632);

/// What is left when the crown has gone.
constexpr std::string_view kSides = "M-1.05 47 C-1.14 40 -1.12 32 -.99 28 C-.9 33 -.93 40 -.92 47Z";

/// The edge of a mask's openings: the second colour, lighter where the mask itself is in it.
QColor TrimOf(const Likeness& face) {
  return Mixed(face.Second, QColor(0xFFFFFF), 0.25);
}

bool IsBald(const Likeness& face) {
  return !face.Style || face.Receding >= 1;
}

void PaintTemples(Brush& brush, const Likeness& face) {
  if (face.Receding <= 0) return;
  brush.Within(HeadOf(face), [&] {
    const double top = 31 - 8.5 * std::min(1.0, face.Receding), skull = face.Skull;
    QPainterPath temple(QPointF(kMiddle + skull * 0.16, 30));
    temple.cubicTo(kMiddle + skull * 0.3, top, kMiddle + skull * 0.76, top - 0.5,
                   kMiddle + skull * 0.97, 37);
    temple.lineTo(kMiddle + skull * 0.16, 33);
    temple.closeSubpath();
    brush.Fill(Mirrored(temple), face.Skin);
    brush.Fill(temple, Mixed(face.Skin, face.Shade, 0.35));
  });
}

void PaintHair(Brush& brush, const Likeness& face) {
  if (face.Masked) return;
  if (!face.Style) return;
  if (face.Receding >= 1) return brush.Fill(Both(kSides, face.Skull), face.Hair);
  const HairStyle& style = *face.Style;
  if (style.Fades)
    brush.Within(HeadOf(face), [&] {
      brush.Fill(Shape("M-1.1 41 L-1.1 10 L1.1 10 L1.1 41 L.93 41 C.93 33 .84 29.5 .58 28.2 C.3 27 "
                       "-.3 27 -.58 28.2 "
                       "C-.84 29.5 -.93 33 -.93 41Z",
                       face.Skull),
                 Mixed(face.Skin, face.Hair, 0.4));
    });
  brush.Fill(Shape(style.Front, face.Skull), face.Hair);
  brush.Within(Shape(style.Front, face.Skull), [&] {
    brush.Fill(Shape("M.5 0 C.86 16 .8 26 .9 60 L2 60 L2 0Z", face.Skull), face.Hair.darker(122));
  });
  PaintTemples(brush, face);
}

void PaintHeadwear(Brush& brush, const Likeness& face) {
  const double skull = face.Skull;
  switch (face.On) {
    case Headwear::None:
      return;
    case Headwear::Bandana:
      brush.Fill(Shape("M-1.08 34 C-1.12 19 -.7 13.8 0 13.8 C.7 13.8 1.12 19 1.08 34 C.6 29.5 -.6 "
                       "29.5 -1.08 34Z",
                       skull),
                 face.Second);
      return brush.Fill(
          Shape("E-.6 24 .07 1 E-.2 20 .07 1 E.2 24 .07 1 E.6 20 .07 1 E-.05 27.4 .07 1", skull),
          QColor(0xF1EDE4));
    case Headwear::Band:
      return brush.Fill(
          Shape("M-1.07 36 C-.6 31.4 .6 31.4 1.07 36 L1.07 31.6 C.6 27.4 -.6 27.4 -1.07 31.6Z",
                skull),
          face.Second);
    case Headwear::Brim: {
      const QColor felt = face.Person.Wears == ui::Dress::Manager ? kFrame : kFelt;
      brush.Fill(
          Shape("M-.98 29 C-1 16 -.72 9.6 -.3 10.6 C-.1 11.4 .1 11.4 .3 10.6 C.72 9.6 1 16 .98 29Z",
                skull),
          felt);
      brush.Fill(Shape("M-1 30 L-.99 25 C-.5 27 .5 27 .99 25 L1 30Z", skull), felt.darker(150));
      return brush.Fill(Shape("M-1.75 28.6 C-1 33.6 1 33.6 1.75 28.6 C1.1 31 .9 28 0 28.2 C-.9 28 "
                              "-1.1 31 -1.75 28.6Z",
                              skull),
                        felt.darker(118));
    }
    case Headwear::FlatCap:
      brush.Fill(Shape("M-1.1 31 C-1.24 18 -.76 13.4 0 13.4 C.76 13.4 1.24 18 1.1 31 C.6 28.6 -.6 "
                       "28.6 -1.1 31Z",
                       skull),
                 kFelt);
      return brush.Fill(Shape("M-1 31 C-.6 26.6 .6 26.6 1 31 C.6 32.6 -.6 32.6 -1 31Z", skull),
                        kFelt.darker(140));
    case Headwear::Patch:
      brush.Line(Shape("M-1 36.6 L1.02 48", skull), 1.2, kDark);
      return brush.Fill(Shape("M.14 40.8 C.3 39.6 .66 40 .76 42.4 C.78 47 .6 49.6 .44 49.6 C.24 "
                              "49.4 .12 45 .14 40.8Z",
                              skull),
                        kDark);
  }
}

void PaintGlasses(Brush& brush, const Likeness& face) {
  if (face.Sees == Glasses::None) return;
  const double at = face.Skull * 0.43;
  for (const double side : {-1.0, 1.0}) {
    QPainterPath lens;
    lens.addRoundedRect(QRectF(kMiddle + side * at - 4.9, 41, 9.8, 7.4), 2.8, 2.8);
    if (face.Sees == Glasses::Dark) brush.Fill(lens, kLens);
    brush.Line(lens, 0.95, kFrame);
  }
  brush.Line(Shape("M-1.8 43.4 C-.8 42.6 .8 42.6 1.8 43.4"), 0.95, kFrame);
  brush.Line(Both("M.75 43 L1 42.2", face.Skull), 0.95, kFrame);
}

}  // namespace

void PaintHairBehind(Brush& brush, const Likeness& face) {
  if (IsBald(face) || face.Style->Behind.empty()) return;
  if (face.Masked && !face.Person.Woman) return;
  brush.Fill(Shape(face.Style->Behind, face.Skull), face.Hair.darker(128));
}

void PaintBraids(Brush& brush, const Likeness& face) {
  if (IsBald(face) || face.Masked || face.Style->Braids.empty()) return;
  brush.Fill(Shape(face.Style->Braids, face.Skull), face.Hair);
}

void PaintMask(Brush& brush, const Likeness& face) {
  static constexpr std::string_view kCuts[] = {
      "M-.1 10 L.1 10 L.16 42 L.34 52 L0 56 L-.34 52 L-.16 42Z",
      "M-1.1 34 L-.3 40 L0 30 L.3 40 L1.1 34 L1.1 48 L.5 52 L0 47 L-.5 52 L-1.1 48Z",
      "M-1.1 10 L1.1 10 L1.1 30 L.6 34 L.3 28 L0 36 L-.3 28 L-.6 34 L-1.1 30Z M-1.1 70 L-.7 58 L0 "
      "64 L.7 58 L1.1 70Z",
      "E-.43 44.6 .42 7.4 E.43 44.6 .42 7.4 M-.06 12 L.06 12 L.06 34 L-.06 34Z E0 59.4 .5 5.6"};
  const QPainterPath head = HeadOf(face);
  const double skull = face.Skull, at = skull * 0.43;
  brush.Fill(head, face.First);
  brush.Within(head, [&] {
    brush.Fill(Shape(kCuts[face.MaskCut], skull), face.Second);
    brush.Fill(Shape("M.74 10 C.94 26 .84 40 .84 48 C.84 56 .6 62 .2 70 L2 70 L2 10Z", skull),
               QColor(0, 0, 0, 46));
  });
  for (const double side : {-1.0, 1.0}) {
    QPainterPath hole(QPointF(kMiddle + side * (at - 4.2), 46.2));
    hole.quadTo(kMiddle + side * (at - 1), 39.6, kMiddle + side * (at + 5), 41.8);
    hole.quadTo(kMiddle + side * (at + 3.4), 48.6, kMiddle + side * (at - 4.2), 46.2);
    brush.Fill(hole, face.Shade);
    brush.Line(hole, 1.5, TrimOf(face));
    QPainterPath white, iris;
    white.addEllipse(QPointF(kMiddle + side * at, 44.4), 2.7, 1.7);
    iris.addEllipse(QPointF(kMiddle + side * at, 44.4), 1.3, 1.5);
    brush.Fill(white, QColor(0xF6F3EC));
    brush.Fill(iris, kDark);
  }
  const QPainterPath mouth =
      Shape("M-5.6 58.4 C-3.4 55.4 3.4 55.4 5.6 58.4 C4 62.4 -4 62.4 -5.6 58.4Z");
  brush.Fill(mouth, face.Skin);
  brush.Line(mouth, 1.5, TrimOf(face));
  brush.Line(Shape(face.Person.Shows == ui::Mood::Heel ? "M-3.4 59.2 C-1.6 58 1.6 58 3.4 59.2"
                                                       : "M-3.4 58.4 C-1.6 59.6 1.6 59.6 3.4 58.4"),
             1, kDark);
}

void PaintOver(Brush& brush, const Likeness& face) {
  const bool hides =
      face.On == Headwear::Bandana || face.On == Headwear::Brim || face.On == Headwear::FlatCap;
  QPainterPath shown;
  shown.addRect(0, hides ? 25 : -20, 100, 120);
  brush.Within(shown, [&] { PaintHair(brush, face); });
  PaintHeadwear(brush, face);
  PaintGlasses(brush, face);
}

}  // namespace grapplemont::desktop
