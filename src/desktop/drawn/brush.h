#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <string_view>

#include "chronicle/signforms.h"

// What all drawn pictures are made with: shapes as short texts, flat fills and round lines.

namespace grapplemont::desktop {

/// Everything is drawn on a square of 100 by 100.
inline constexpr double kMiddle = 50;
/// Pupils, lashes and outlines.
inline const QColor kDark(0x241D1F);

/// One of `size` rows by their weights; rows of weight 0 are never taken.
template <class Rows, class Weight>
std::size_t Drawn(const Rows& rows, double lot, Weight weight) {
  int sum = 0;
  for (const auto& row : rows) sum += weight(row);
  double left = lot * sum;
  std::size_t at = 0, taken = 0;
  for (const auto& row : rows) {
    const int own = weight(row);
    if (own > 0) taken = at;
    if (own > 0 && left < own) break;
    left -= own;
    ++at;
  }
  return taken;
}

/// A shape from a text: M, L, Q, C with absolute points, Z, and E (centre and radii) for an
/// ellipse. x counts from the middle line in units of `unit`; y stays as it is.
QPainterPath Shape(std::string_view text, double unit = 1);
QPainterPath Mirrored(const QPainterPath& path);
/// The shape and its mirror image.
QPainterPath Both(std::string_view text, double unit = 1);

QColor Mixed(const QColor& one, const QColor& other, double share);

/// Draws on a canvas of 100 x 100.
class Brush {
 public:
  explicit Brush(QPainter& painter) : painter_(painter) {}
  void Fill(const QPainterPath& path, const QColor& colour);
  void Line(const QPainterPath& path, double width, const QColor& colour);
  /// Draws what `draw` draws within the path only.
  template <class Draw>
  void Within(const QPainterPath& path, Draw draw) {
    painter_.save();
    painter_.setClipPath(path, Qt::IntersectClip);
    draw();
    painter_.restore();
  }
  QPainter& Painter() { return painter_; }

 private:
  QPainter& painter_;
};

}  // namespace grapplemont::desktop
