#include <QFont>
#include <algorithm>
#include <cmath>

#include "chronicle/signforms.h"
#include "desktop/drawn/brush.h"
#include "desktop/drawn/drawn.h"

namespace grapplemont::desktop {

namespace {

constexpr double kSmallSign = 30;

QPainterPath Star(double x, double y, double radius) {
  QPainterPath star;
  for (int point = 0; point < 10; ++point) {
    const double away = point % 2 == 0 ? radius : radius * 0.42, turn = point * M_PI / 5 - M_PI / 2;
    const QPointF at(50 + x + away * std::cos(turn), y + away * std::sin(turn));
    point == 0 ? star.moveTo(at) : star.lineTo(at);
  }
  star.closeSubpath();
  return star;
}

/// Letters as large as fit into `room`, no higher than half as wide again as they are.
void PaintLetters(Brush& brush, const QString& letters, const QRectF& room, const QColor& colour) {
  QFont font("Inter");
  font.setStyleHint(QFont::SansSerif);
  font.setWeight(QFont::ExtraBold);
  font.setPixelSize(40);
  QPainterPath path;
  path.addText(0, 0, font, letters);
  const QRectF taken = path.boundingRect();
  if (taken.isEmpty()) return;
  const double scale = std::min(room.width() / taken.width(), room.height() / taken.height());
  QTransform place;
  place.translate(room.center().x(), room.center().y());
  place.scale(scale, scale);
  place.translate(-taken.center().x(), -taken.center().y());
  brush.Fill(place.map(path), colour);
}

struct Metal {
  QColor Plate, Light, Dark;
};
Metal MetalOf(const ui::TitlePlate& plate) {
  const PlateMetal metal = PlateMetalOf(plate.Image, plate.Vacant);
  return {QColor(metal.Plate), QColor(metal.Light), QColor(metal.Dark)};
}

/// One short word of a Title's name: the longest that a band holds and that says more than "Title".
QString WordOf(const std::string& name) {
  constexpr std::string_view kCommon[] = {"Title", "Titles", "Championship", "Champion",
                                          "Tag",   "Team",   "World",        "The",
                                          "Of",    "of",     "Belt"};
  QString best;
  for (const QString& word : QString::fromLatin1(name.c_str()).split(' ', Qt::SkipEmptyParts)) {
    const bool common =
        std::any_of(std::begin(kCommon), std::end(kCommon), [&](std::string_view one) {
          return word == QLatin1String(one.data(), static_cast<qsizetype>(one.size()));
        });
    if (!common && word.size() <= 9 && (best.isEmpty() || best.size() < 3)) best = word;
  }
  return (best.isEmpty() ? QString("Title") : best).toUpper();
}

void PaintPlateAt(Brush& brush, const ui::TitlePlate& plate, double x, double size,
                  const Metal& metal) {
  const std::string_view form = PlateForm(plate.Number);
  const auto place = [&](const QPainterPath& path, double by = 1) {
    return QTransform()
        .translate(x, 50)
        .scale(size / 100 * by, size / 100 * by)
        .translate(-50, -50)
        .map(path);
  };
  brush.Fill(place(Shape(form)), metal.Dark);
  brush.Fill(place(Shape(form), 0.93), metal.Light);
  brush.Fill(place(Shape(form), 0.84), metal.Plate);
  static constexpr QRgb kStones[] = {0x2F8A86, 0xB93C38, 0x3C6BAA, 0x76539F, 0x4B8A5B};
  const int lot = plate.Number;
  if (!plate.Vacant)
    brush.Fill(place(Shape("E0 25 8 7")),
               QColor(kStones[static_cast<std::size_t>(Lot(lot, "stone") * 5)]));
  brush.Fill(place(Shape("M-41 40 L41 40 L41 62 L-41 62Z")),
             plate.Vacant ? QColor(0x2A2D33) : QColor(0x1E1A17));
  PaintLetters(brush, WordOf(plate.Name),
               place(Shape("M-35 44 L35 44 L35 58 L-35 58Z")).boundingRect(),
               plate.Vacant ? QColor(0x8D939D) : metal.Light);
  if (!plate.Vacant) brush.Fill(place(Star(0, 76, 7)), metal.Dark);
}

template <class Paint>
void OnCanvas(QPainter& painter, const QRectF& where, double wide, Paint paint) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(where.topLeft());
  painter.scale(where.width() / wide, where.height() / 100);
  Brush brush(painter);
  paint(brush);
  painter.restore();
}

}  // namespace

void DrawCrest(QPainter& painter, const QRectF& where, const ui::Crest& crest) {
  const bool small = where.width() <= kSmallSign;
  const CrestForm form = CrestFormOf(crest.Uid, crest.Size);
  const QColor cloth(CrestCloth(crest.Uid)), edge(CrestEdge(crest.Uid));
  OnCanvas(painter, where, 100, [&](Brush& brush) {
    if (form.Askew) {
      brush.Painter().translate(50, 50);
      brush.Painter().rotate(-5 + 3 * Lot(crest.Uid, "crest hang"));
      brush.Painter().translate(-50, -50);
    }
    const QPainterPath outline = Shape(form.Outline);
    brush.Fill(outline, cloth);
    brush.Within(outline,
                 [&] { brush.Fill(Shape("M0 0 L50 0 L50 100 L0 100Z"), cloth.darker(125)); });
    brush.Line(outline, small ? 9 : 5, edge);
    if (form.Rope && !small) {
      QPen rope(cloth.darker(150), 2.4, Qt::DotLine, Qt::FlatCap);
      brush.Painter().setPen(rope);
      brush.Painter().setBrush(Qt::NoBrush);
      brush.Painter().drawPath(outline);
    }
    const bool globe = crest.Size <= 1 && !small;
    if (globe)
      brush.Line(Shape("M-40 50 L40 50 M0 10 C-24 30 -24 70 0 90 M0 10 C24 30 24 70 0 90"), 1,
                 Mixed(cloth, edge, 0.3));
    if (form.Stars == 2 && !small) brush.Fill(Shape("M-36 10 L36 10 L36 27 L-36 27Z"), edge);
    for (int star = 0; star < form.Stars && !small; ++star)
      brush.Fill(Star((star - (form.Stars - 1) / 2.0) * 14,
                      form.Stars == 2   ? 18.5
                      : crest.Size <= 1 ? 74
                                        : 25,
                      5.4),
                 form.Stars == 2 ? cloth : edge);
    const double half = IsNarrow(form) ? 27 : 30, high = small ? 34 : 26;
    PaintLetters(brush, QString::fromLatin1(crest.Initials.c_str()),
                 {50 - half, (form.Stars == 2 && !small ? 55 : 50) - high / 2, 2 * half, high},
                 Qt::white);
  });
}

void DrawPlate(QPainter& painter, const QRectF& where, const ui::TitlePlate& plate) {
  const Metal metal = MetalOf(plate);
  static constexpr QRgb kStraps[] = {0x3B2127, 0x21314A, 0x3A2A1C, 0x2A2D33, 0x24382E};
  const QColor strap =
      plate.Vacant ? QColor(0x2A2D33)
                   : QColor(kStraps[static_cast<std::size_t>(Lot(plate.Number, "strap") * 5)]);
  OnCanvas(painter, where, 200, [&](Brush& brush) {
    QPainterPath leather;
    leather.addRoundedRect(QRectF(2, 30, 196, 40), 8, 8);
    brush.Fill(leather, strap);
    const bool gold = plate.Image >= 70 && !plate.Vacant && !plate.Team;
    for (const double away : {58.0, 84.0}) {
      if (away > 60 && !gold) continue;
      for (const double side : {-1.0, 1.0}) {
        QPainterPath piece, stone;
        piece.addRoundedRect(QRectF(100 + side * (away + (plate.Team ? 22 : 4)) - 9, 33, 18, 34), 5,
                             5);
        brush.Fill(piece, metal.Plate);
        stone.addEllipse(piece.boundingRect().center(), 4.5, 4.5);
        brush.Fill(stone, plate.Vacant ? metal.Dark : metal.Light);
      }
    }
    if (plate.Team) {
      PaintPlateAt(brush, plate, 64, 78, metal);
      PaintPlateAt(brush, plate, 136, 78, metal);
    } else {
      PaintPlateAt(brush, plate, 100, 100, metal);
    }
  });
}

void Draw(QPainter& painter, const QRectF& where, const ui::Drawing& drawing) {
  if (const auto* person = std::get_if<ui::Portrait>(&drawing))
    DrawPortrait(painter, where, *person);
  if (const auto* crest = std::get_if<ui::Crest>(&drawing)) DrawCrest(painter, where, *crest);
  if (const auto* plate = std::get_if<ui::TitlePlate>(&drawing)) DrawPlate(painter, where, *plate);
}

double ShapeOf(const ui::Drawing& drawing) {
  if (std::holds_alternative<std::monostate>(drawing)) return 0;
  return std::holds_alternative<ui::TitlePlate>(drawing) ? 2 : 1;
}

}  // namespace grapplemont::desktop
