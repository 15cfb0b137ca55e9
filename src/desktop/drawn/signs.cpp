#include <QFont>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/drawn/brush.h"
#include "desktop/drawn/drawn.h"

namespace grapplemont::desktop {

namespace {

constexpr QRgb kCloth[] = {0x22375E, 0x7A2433, 0x1D5B63, 0x4B3A7C, 0x7A4420, 0x8F2F5C,
                           0x2B2E36, 0x3F5228, 0x5C2A6E, 0x1F6A4A, 0x9A3B2C, 0x34506B};
constexpr QRgb kEdges[] = {0xD8B65A, 0xE9E2D4, 0xC9993A, 0xA9A2D8, 0xE08A3C, 0xE6A3C0, 0x9FB4C8};
constexpr double kSmallSign = 30;

struct Form {
  std::string_view Outline;
  bool Rope = false;
  bool Askew = false;
  int Stars = 0;
};
constexpr std::string_view kCircle = "E0 50 42 42";
constexpr std::string_view kShield =
    "M-36 10 L36 10 L36 52 C36 74 18 86 0 94 C-18 86 -36 74 -36 52Z";
constexpr std::string_view kPointed =
    "M-36 12 C-22 16 -12 14 0 6 C12 14 22 16 36 12 L34 58 C30 76 14 86 0 95 C-14 86 -30 76 -34 58Z";
constexpr std::string_view kHexagon = "M0 6 L38 27 L38 73 L0 94 L-38 73 L-38 27Z";
constexpr std::string_view kDiamond = "M0 4 L46 50 L0 96 L-46 50Z";
constexpr std::string_view kTicket =
    "M-42 22 L42 22 L42 42 C34 42 34 58 42 58 L42 78 L-42 78 L-42 58 C-34 58 -34 42 -42 42Z";

Form FormOf(const ui::Crest& crest) {
  static constexpr std::array<Form, 3> kBySize[] = {
      {{{kCircle, true, false, 3}, {kCircle, true, false, 3}, {kCircle, true, false, 3}}},
      {{{kShield, false, false, 2}, {kShield, false, false, 2}, {kShield, false, false, 2}}},
      {{{kHexagon, false, false, 1}, {kPointed, false, false, 1}, {kCircle, true, false, 1}}},
      {{{kCircle}, {kShield}, {kDiamond}}},
      {{{kDiamond}, {kHexagon}, {kTicket}}},
      {{{kTicket, false, true}, {kTicket, false, true}, {kTicket, false, true}}},
  };
  const auto size = static_cast<std::size_t>(std::clamp(crest.Size, 1, 6) - 1);
  return kBySize[size][static_cast<std::size_t>(Lot(crest.Uid, "crest form") * 3)];
}

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
  if (plate.Vacant) return {QColor(0x4A4F57), QColor(0x5B616A), QColor(0x363A41)};
  if (plate.Image >= 70) return {QColor(0xE3B34A), QColor(0xF6D685), QColor(0xB07F22)};
  if (plate.Image >= 45) return {QColor(0xB9C0C9), QColor(0xDDE2E8), QColor(0x868E99)};
  return {QColor(0xBC7B4A), QColor(0xDA9C6C), QColor(0x8A5530)};
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
  static constexpr std::string_view kForms[] = {
      "E0 50 46 40", "M-20 8 L20 8 L46 30 L46 70 L20 92 L-20 92 L-46 70 L-46 30Z",
      "M-44 14 C-20 18 -10 10 0 4 C10 10 20 18 44 14 C46 50 36 80 0 96 C-36 80 -46 50 -44 14Z"};
  const std::string_view form = kForms[static_cast<std::size_t>(plate.Number % 3 + 3) % 3];
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
  const Form form = FormOf(crest);
  const QColor cloth(
      kCloth[static_cast<std::size_t>(Lot(crest.Uid, "crest cloth") * std::size(kCloth))]);
  const QColor edge(
      kEdges[static_cast<std::size_t>(Lot(crest.Uid, "crest edge") * std::size(kEdges))]);
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
    const double half = form.Outline == kDiamond ? 27 : 30, high = small ? 34 : 26;
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
