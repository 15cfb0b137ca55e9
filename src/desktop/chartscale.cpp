#include "desktop/chartscale.h"

#include <algorithm>
#include <limits>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

constexpr int kSteps = 4;  // about how many lines go across the chart
/// Part of the largest value that an axis spans at least, and how far one of whole numbers goes.
constexpr double kLeastSpan = 0.1, kLeastWhole = 4;
constexpr int kInset = 12;  // between the axis and the first of places that lie by date

/// 1, 2 or 5 times a power of ten, at least `rough`.
double RoundStep(double rough) {
  const double power = std::pow(10, std::floor(std::log10(rough)));
  for (const double times : {1.0, 2.0, 5.0})
    if (rough <= times * power) return times * power;
  return 10 * power;
}

/// In thousands or millions, with as many places as two lines of an axis that lie a step apart need
/// to differ.
QString OnAxis(double value, double step, double most) {
  const auto [unit, letter] = most >= 1e6   ? std::pair(1e6, "m")
                              : most >= 1e4 ? std::pair(1e3, "k")
                                            : std::pair(1.0, "");
  const int places = std::max(0, -static_cast<int>(std::floor(std::log10(step / unit) + 1e-9)));
  return QString::number(value / unit, 'f', places) + (value == 0 ? "" : letter);
}

/// Makes room around values that lie close together: a small change is not to look like a plunge.
void SpreadOut(double& low, double& high, bool whole) {
  const double least =
      std::max(kLeastSpan * std::max(std::abs(low), std::abs(high)), whole ? kLeastWhole : 0.0);
  const double more = (least - (high - low)) / 2;
  if (more <= 0) return;
  const double down = low >= 0 ? std::min(more, low) : more;
  low -= down;
  high += 2 * more - down;
}

/// The lowest and the highest of all values.
struct Reach {
  double Low = std::numeric_limits<double>::infinity(), High = -Low;
  bool Whole = true;

  void Add(const std::vector<double>& values) {
    for (const double value : values) {
      if (!std::isfinite(value)) continue;
      Low = std::min(Low, value);
      High = std::max(High, value);
      Whole = Whole && value == std::floor(value);
    }
  }
};

}  // namespace

double Scale::X(int place) const {
  if (Places.empty()) return Plot.left() + (place + 0.5) * Slot();
  const double span = Places.back() - Places.front(), inset = Px(kInset);
  const double part = (Places[static_cast<std::size_t>(place)] - Places.front()) / span;
  return Plot.left() + inset + part * (Plot.width() - 2 * inset);
}

int Scale::PlaceAt(double x) const {
  int nearest = 0;
  for (int place = 1; place < Count; ++place)
    if (std::abs(X(place) - x) < std::abs(X(nearest) - x)) nearest = place;
  return nearest;
}

QString Scale::Label(int line) const {
  const double value = LineAt(line);
  const QString figures = OnAxis(std::abs(value), Step, std::max(std::abs(Low), std::abs(High)));
  return (value < -Step / 2 ? "-" : "") + (value == 0 ? QString() : Shown(Unit)) + figures;
}

Scale ScaleOf(const ui::Chart& chart) {
  Reach reach;
  for (const auto& series : chart.Lines.Get()) reach.Add(series.Values);
  for (const auto& band : chart.Bands.Get()) {
    reach.Add(band.Low);
    reach.Add(band.High);
  }
  auto [low, high, whole] = reach;
  if (low > high) low = 0, high = 1;
  if (chart.Bars) low = std::min(low, 0.0), high = std::max(high, 0.0);
  if (!chart.Bars) SpreadOut(low, high, whole);
  if (high - low < 1e-9) low -= 1, high += 1;
  Scale scale;
  scale.Unit = chart.Unit;
  scale.Step = RoundStep((high - low) / kSteps);
  if (whole) scale.Step = std::max(scale.Step, 1.0);
  scale.Low = std::floor(low / scale.Step) * scale.Step;
  scale.High = std::ceil(high / scale.Step) * scale.Step;
  return scale;
}

}  // namespace grapplemont::desktop
