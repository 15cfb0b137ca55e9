#include <iterator>

#include "desktop/drawn/brush.h"
#include "desktop/drawn/drawn.h"

// The signs that stand in tables for a word of few. All are of one colour, which the word has.

namespace grapplemont::desktop {

namespace {

struct SignShape {
  std::string_view Filled, Lines;
};
constexpr std::string_view kHead = "E0 50 42 42";
/// In the order of Sign, from Crown on.
constexpr SignShape kSignShapes[] = {
    {"M-42 82 L-44 28 L-20 52 L0 16 L20 52 L44 28 L42 82Z", ""},
    {"M2 2 C8 26 36 40 36 66 C36 86 20 98 0 98 C-20 98 -36 86 -36 66 C-36 50 -24 40 -18 28 "
     "C-14 42 -8 48 -2 50 C-6 34 -4 16 2 2Z",
     ""},
    {"E-22 30 17 17 E22 30 17 17 M-48 94 Q-46 54 -22 54 Q-4 54 -2 94Z M2 94 Q4 54 22 54 Q46 54 48 "
     "94Z",
     ""},
    {"", "M-40 22 L40 22 M-40 50 L40 50 M-40 78 L40 78"},
    {"M0 6 L40 52 L16 52 L16 94 L-16 94 L-16 52 L-40 52Z", ""},
    {"M-32 38 L-16 38 L-16 66 L-32 66Z", "M-44 26 L34 26 L34 78 L-44 78Z M46 44 L46 60"},
    {"M0 4 L12 36 L46 37 L19 58 L28 91 L0 72 L-28 91 L-19 58 L-46 37 L-12 36Z", ""},
    {"E-15 40 6 7 E15 40 6 7", "M-22 62 Q0 84 22 62"},
    {"E-15 46 6 7 E15 46 6 7 M-40 30 L-46 0 L-20 14Z M40 30 L46 0 L20 14Z", "M-20 74 Q0 56 20 74"},
    {"E-15 40 6 7 E15 40 6 7", "M-20 66 L20 66"},
};

bool HasHead(ui::Sign sign) {
  return sign == ui::Sign::Face || sign == ui::Sign::Heel || sign == ui::Sign::Tweener;
}

}  // namespace

void DrawSign(QPainter& painter, const QRectF& where, ui::Sign sign, const QColor& colour) {
  constexpr double kStroke = 11;
  const auto place = static_cast<std::size_t>(sign);
  if (place == 0 || place > std::size(kSignShapes)) return;
  const SignShape& shape = kSignShapes[place - 1];
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(where.topLeft());
  painter.scale(where.width() / 100, where.height() / 100);
  Brush brush(painter);
  if (HasHead(sign)) brush.Line(Shape(kHead), kStroke, colour);
  if (!shape.Filled.empty()) brush.Fill(Shape(shape.Filled), colour);
  if (!shape.Lines.empty()) brush.Line(Shape(shape.Lines), kStroke, colour);
  painter.restore();
}

}  // namespace grapplemont::desktop
