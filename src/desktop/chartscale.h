#pragma once

#include <QRectF>
#include <QString>
#include <algorithm>
#include <cmath>
#include <span>
#include <string_view>

#include "ui/controls.h"

namespace grapplemont::desktop {

/// Where a place and a value lie within the widget.
struct Scale {
  QRectF Plot;
  int Count = 0;  // of places along the axis
  double Low = 0, High = 1, Step = 1;
  std::span<const double> Places;  // along the axis; empty: at equal distances
  std::string_view Unit;           // what stands before each value

  double Slot() const { return Plot.width() / std::max(1, Count); }
  double X(int place) const;
  /// The place nearest to this spot.
  int PlaceAt(double x) const;
  double Y(double value) const {
    return Plot.bottom() - (value - Low) / (High - Low) * Plot.height();
  }
  /// The values at which lines run across, from the lowest.
  int Lines() const { return static_cast<int>(std::lround((High - Low) / Step)) + 1; }
  double LineAt(int line) const { return Low + line * Step; }
  QString Label(int line) const;
};

/// From the lowest to the highest value of all lines and bands, in round steps; without a plot and
/// places.
Scale ScaleOf(const ui::Chart& chart);

}  // namespace grapplemont::desktop
