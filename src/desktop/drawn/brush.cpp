#include "desktop/drawn/brush.h"

#include <cctype>
#include <charconv>
#include <cstdint>

namespace grapplemont::desktop {

namespace {

/// Reads the numbers of a shape's text.
class Reader {
 public:
  Reader(std::string_view text, double unit) : text_(text), unit_(unit) {}
  /// The next command; 0 at the end.
  char Command() {
    Skip();
    if (text_.empty()) return 0;
    if (std::isalpha(static_cast<unsigned char>(text_.front()))) {
      command_ = text_.front();
      text_.remove_prefix(1);
    }
    return command_;
  }
  double Number() {
    Skip();
    double number = 0;
    const auto read = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    text_.remove_prefix(static_cast<std::size_t>(read.ptr - text_.data()));
    return number;
  }
  QPointF Point() {
    const double x = Number();
    return {kMiddle + x * unit_, Number()};
  }

 private:
  void Skip() {
    while (!text_.empty() && (text_.front() == ' ' || text_.front() == ',')) text_.remove_prefix(1);
  }
  std::string_view text_;
  double unit_;
  char command_ = 0;
};

/// Parts that overlap fill only where they all run the same way round.
bool RunsRight(const QPainterPath& part) {
  const QPolygonF points = part.toFillPolygon();
  double area = 0;
  for (int at = 0; at < points.size(); ++at) {
    const QPointF &from = points[at], &to = points[(at + 1) % points.size()];
    area += from.x() * to.y() - to.x() * from.y();
  }
  return area >= 0;
}

}  // namespace

QPainterPath Shape(std::string_view text, double unit) {
  QPainterPath whole, part;
  const auto finish = [&] {
    if (!part.isEmpty()) whole.addPath(RunsRight(part) ? part : part.toReversed());
    part = {};
  };
  Reader read(text, unit);
  while (const char command = read.Command()) {
    if (command == 'M') {
      finish();
      part.moveTo(read.Point());
    } else if (command == 'L') {
      part.lineTo(read.Point());
    } else if (command == 'Q') {
      const QPointF by = read.Point();
      part.quadTo(by, read.Point());
    } else if (command == 'C') {
      const QPointF out = read.Point(), in = read.Point();
      part.cubicTo(out, in, read.Point());
    } else if (command == 'E') {
      finish();
      const QPointF centre = read.Point();
      const double across = read.Number() * unit;
      part.addEllipse(centre, across, read.Number());
    } else {
      part.closeSubpath();
    }
  }
  finish();
  whole.setFillRule(Qt::WindingFill);
  return whole;
}

QPainterPath Mirrored(const QPainterPath& path) {
  QPainterPath mirrored = QTransform(-1, 0, 0, 1, 2 * kMiddle, 0).map(path).toReversed();
  mirrored.setFillRule(Qt::WindingFill);
  return mirrored;
}

QPainterPath Both(std::string_view text, double unit) {
  QPainterPath both = Shape(text, unit);
  both.addPath(Mirrored(both));
  return both;
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](int from, int to) {
    return static_cast<int>(from + (to - from) * share);
  };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()),
          mix(one.blue(), other.blue())};
}

void Brush::Fill(const QPainterPath& path, const QColor& colour) {
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(colour);
  painter_.drawPath(path);
}

void Brush::Line(const QPainterPath& path, double width, const QColor& colour) {
  painter_.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawPath(path);
}

}  // namespace grapplemont::desktop
