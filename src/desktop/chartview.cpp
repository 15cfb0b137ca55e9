#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <span>

#include "desktop/dates.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/spoken.h"
#include "desktop/views.h"

namespace grapplemont::desktop {

namespace {

constexpr int kSteps = 4;        // about how many lines go across the chart
constexpr int kFewPlaces = 24;   // so few are marked one by one
constexpr int kLeastPlaces = 3;  // fewer make no line that says anything
constexpr int kInset = 12;       // between the axis and the first of places that lie by date
/// Part of the largest value that an axis spans at least, and how far one of whole numbers goes.
constexpr double kLeastSpan = 0.1, kLeastWhole = 4;

/// 1, 2 or 5 times a power of ten, at least `rough`.
double RoundStep(double rough) {
  const double power = std::pow(10, std::floor(std::log10(rough)));
  for (const double times : {1.0, 2.0, 5.0})
    if (rough <= times * power) return times * power;
  return 10 * power;
}

QString Short(double value) {
  const double size = std::abs(value);
  if (size >= 1e6) return QString::number(value / 1e6, 'g', 4) + "m";
  if (size >= 1e4) return QString::number(value / 1e3, 'g', 4) + "k";
  return QString::number(value, 'g', 6);
}

/// The same with as many places as two lines of an axis that lie a step apart need to differ.
QString OnAxis(double value, double step, double most) {
  const auto [unit, letter] = most >= 1e6   ? std::pair(1e6, "m")
                              : most >= 1e4 ? std::pair(1e3, "k")
                                            : std::pair(1.0, "");
  const int places = std::max(0, -static_cast<int>(std::floor(std::log10(step / unit) + 1e-9)));
  return QString::number(value / unit, 'f', places) + (value == 0 ? "" : letter);
}

/// Lines differ by their strokes as well as by their colours.
Qt::PenStyle StrokeOf(std::size_t line) {
  constexpr Qt::PenStyle kStrokes[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
  return kStrokes[line % std::size(kStrokes)];
}

/// Where a place and a value lie within the widget.
struct Scale {
  QRectF Plot;
  int Count = 0;  // of places along the axis
  double Low = 0, High = 1, Step = 1;
  std::span<const double> Places;  // along the axis; empty: at equal distances

  double Slot() const { return Plot.width() / std::max(1, Count); }
  double X(int place) const {
    if (Places.empty()) return Plot.left() + (place + 0.5) * Slot();
    const double span = Places.back() - Places.front(), inset = Px(kInset);
    const double part = (Places[static_cast<std::size_t>(place)] - Places.front()) / span;
    return Plot.left() + inset + part * (Plot.width() - 2 * inset);
  }
  /// The place nearest to this spot.
  int PlaceAt(double x) const {
    int nearest = 0;
    for (int place = 1; place < Count; ++place)
      if (std::abs(X(place) - x) < std::abs(X(nearest) - x)) nearest = place;
    return nearest;
  }
  double Y(double value) const {
    return Plot.bottom() - (value - Low) / (High - Low) * Plot.height();
  }
  /// The values at which lines run across, from the lowest.
  int Lines() const { return static_cast<int>(std::lround((High - Low) / Step)) + 1; }
  double LineAt(int line) const { return Low + line * Step; }
  QString Label(int line) const {
    return OnAxis(LineAt(line), Step, std::max(std::abs(Low), std::abs(High)));
  }
};

/// Lines or bars over time, with an axis, captions and the value under the pointer.
class ChartView : public ViewOf<QWidget, ui::Chart> {
 public:
  ChartView(ui::Chart& chart, Stage& stage, QWidget* parent) : ViewOf(chart, stage, parent) {
    Means(*this, QAccessible::Chart);
    setFont(TextFont(11));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }
  QSize sizeHint() const override { return {Px(280), Px(170)}; }
  QSize minimumSizeHint() const override { return {Px(160), Px(120)}; }

 protected:
  void Show() override {
    setAccessibleDescription(WordsFor(control_));
    Hover(-1);
  }
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent*) override { Hover(-1); }

 private:
  Scale MakeScale() const;
  int Count() const;
  int Told() const;  // places with a value
  void Hover(int place) {
    hover_ = place;
    update();
  }
  void DrawAxis(QPainter& painter, const Scale& scale) const;
  void DrawCaptions(QPainter& painter, const Scale& scale) const;
  void DrawBars(QPainter& painter, const Scale& scale) const;
  void DrawLines(QPainter& painter, const Scale& scale) const;
  void DrawNames(QPainter& painter) const;
  void DrawHover(QPainter& painter, const Scale& scale) const;
  void DrawWords(QPainter& painter) const;

  int hover_ = -1;
};

int ChartView::Count() const {
  std::size_t count = control_.Captions.Get().size();
  for (const auto& series : control_.Lines.Get()) count = std::max(count, series.Values.size());
  return static_cast<int>(count);
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

int ChartView::Told() const {
  int told = 0;
  for (std::size_t place = 0; place < static_cast<std::size_t>(Count()); ++place)
    told += std::ranges::any_of(control_.Lines.Get(), [place](const auto& series) {
      return place < series.Values.size() && std::isfinite(series.Values[place]);
    });
  return told;
}

Scale ChartView::MakeScale() const {
  double low = std::numeric_limits<double>::infinity(), high = -low;
  bool whole = true;
  for (const auto& series : control_.Lines.Get())
    for (const double value : series.Values) {
      if (!std::isfinite(value)) continue;
      low = std::min(low, value);
      high = std::max(high, value);
      whole = whole && value == std::floor(value);
    }
  if (low > high) low = 0, high = 1;
  if (control_.Bars) low = std::min(low, 0.0), high = std::max(high, 0.0);
  if (!control_.Bars) SpreadOut(low, high, whole);
  if (high - low < 1e-9) low -= 1, high += 1;
  Scale scale;
  scale.Step = RoundStep((high - low) / kSteps);
  if (whole) scale.Step = std::max(scale.Step, 1.0);
  scale.Low = std::floor(low / scale.Step) * scale.Step;
  scale.High = std::ceil(high / scale.Step) * scale.Step;
  scale.Count = Count();
  const std::vector<double>& places = control_.Places;
  if (std::ssize(places) == scale.Count && scale.Count > 1 && places.front() < places.back())
    scale.Places = places;
  const QFontMetrics small = fontMetrics();
  int left = 0;
  for (int line = 0; line < scale.Lines(); ++line)
    left = std::max(left, FiguresWidth(small, scale.Label(line)) + Px(8));
  const bool named = std::any_of(control_.Lines->begin(), control_.Lines->end(),
                                 [](const auto& series) { return !series.Name.empty(); });
  const int top = small.height() + (named ? small.height() + Px(6) : 0);
  const int bottom = control_.Captions->empty() ? Px(4) : small.height() + Px(6);
  scale.Plot = QRectF(rect()).adjusted(left, top, -Px(4), -bottom);
  return scale;
}

void ChartView::DrawAxis(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  for (int line = 0; line < scale.Lines(); ++line) {
    const double y = std::round(scale.Y(scale.LineAt(line))) + 0.5;
    painter.setPen(c.Line);
    painter.drawLine(QPointF(scale.Plot.left(), y), QPointF(scale.Plot.right(), y));
    painter.setPen(c.Muted);
    DrawFigures(painter, QRectF(0, y - Px(8), scale.Plot.left() - Px(8), Px(16)), Qt::AlignRight,
                scale.Label(line));
  }
}

/// As many captions as there is room for from the left; the last, the present, always.
void ChartView::DrawCaptions(QPainter& painter, const Scale& scale) const {
  const auto& captions = control_.Captions.Get();
  const int count = std::min(scale.Count, static_cast<int>(captions.size()));
  if (count == 0) return;
  const QFontMetrics small = fontMetrics();
  painter.setPen(ColoursOf(this).Muted);
  const auto words = [&](int place) {
    return DatedAlone(captions[static_cast<std::size_t>(place)]);
  };
  const auto spot = [&](int place) {
    const int width = small.horizontalAdvance(words(place));
    const double x = std::clamp(scale.X(place) - width / 2.0, 0.0,
                                std::max(0.0, static_cast<double>(this->width() - width)));
    return QRectF(x, scale.Plot.bottom() + Px(5), width + 1, small.height());
  };
  const QRectF last = spot(count - 1);
  painter.drawText(last, Qt::AlignCenter, words(count - 1));
  double free = 0;  // what lies left of here is taken by a caption
  for (int place = 0; place + 1 < count; ++place) {
    const QRectF where = spot(place);
    if (words(place).isEmpty() || (place > 0 && words(place) == words(place - 1)) ||
        where.left() < free || where.right() + Px(8) > last.left())
      continue;
    painter.drawText(where, Qt::AlignCenter, words(place));
    free = where.right() + Px(8);
  }
}

void ChartView::DrawBars(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  const auto& lines = control_.Lines.Get();
  const double gap = std::min<double>(Px(6), scale.Slot() * 0.2);
  const double width =
      (scale.Slot() - gap) / static_cast<double>(std::max<std::size_t>(1, lines.size()));
  for (std::size_t s = 0; s < lines.size(); ++s) {
    const int count = static_cast<int>(lines[s].Values.size());
    for (int place = 0; place < count; ++place) {
      const double value = lines[s].Values[static_cast<std::size_t>(place)];
      if (!std::isfinite(value)) continue;
      const bool now = lines.size() == 1 && place + 1 == count;  // the last is the present
      const double x = scale.X(place) - (scale.Slot() - gap) / 2 + static_cast<double>(s) * width;
      QRectF bar(QPointF(x, scale.Y(std::max(value, 0.0))),
                 QPointF(x + std::max(1.0, width - 1), scale.Y(std::min(value, 0.0))));
      const QColor fill = now ? c.GoldFill : FillColour(c, lines[s].Colour);
      painter.fillRect(bar, place == hover_ ? fill.lighter(115) : fill);
      const QString number = Short(value);
      const QFontMetrics small = fontMetrics();
      if (FiguresWidth(small, number) > width + gap) continue;
      painter.setPen(now ? c.Gold : c.Muted);
      DrawFigures(painter,
                  QRectF(bar.left(), bar.top() - small.height() - 1, bar.width(), small.height()),
                  Qt::AlignHCenter, number);
    }
  }
}

void ChartView::DrawLines(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  std::size_t number = 0;
  for (const auto& series : control_.Lines.Get()) {
    painter.setPen(
        QPen(TextColour(c, series.Colour), 2, StrokeOf(number++), Qt::FlatCap, Qt::RoundJoin));
    QPolygonF run;
    const auto finish = [&] {
      painter.drawPolyline(run);
      if (scale.Count <= kFewPlaces || run.size() == 1)
        for (const QPointF& at : run)
          DrawBox(painter, QRectF(at.x() - 3, at.y() - 3, 6, 6), TextColour(c, series.Colour),
                  QColor(), 3);
      run.clear();
    };
    for (std::size_t place = 0; place < series.Values.size(); ++place) {
      const double value = series.Values[place];
      if (std::isfinite(value)) {
        run << QPointF(scale.X(static_cast<int>(place)), scale.Y(value));
      } else {
        finish();
      }
    }
    finish();
  }
}

/// What the lines stand for, above them.
void ChartView::DrawNames(QPainter& painter) const {
  const Colours& c = ColoursOf(this);
  const QFontMetrics small = fontMetrics();
  const double middle = small.height() / 2.0;
  const int wide = Px(control_.Bars ? 8 : 24);
  double x = 0;
  std::size_t number = 0;
  for (const auto& series : control_.Lines.Get()) {
    const Qt::PenStyle stroke = StrokeOf(number++);
    if (series.Name.empty()) continue;
    const QString name = Shown(series.Name);
    if (control_.Bars) {
      DrawBox(painter, QRectF(x, middle - Px(4), wide, Px(8)), FillColour(c, series.Colour),
              QColor(), 2);
    } else {
      painter.setPen(QPen(TextColour(c, series.Colour), 2, stroke, Qt::FlatCap));
      painter.drawLine(QPointF(x, middle), QPointF(x + wide, middle));
    }
    x += wide + Px(6);
    painter.setPen(c.Muted);
    painter.drawText(QPointF(x, small.ascent()), name);
    x += small.horizontalAdvance(name) + Px(14);
  }
}

void ChartView::DrawHover(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  QStringList words;
  const auto at = static_cast<std::size_t>(hover_);
  if (at < control_.Captions->size()) words << DatedAlone(control_.Captions.Get()[at]);
  for (const auto& series : control_.Lines.Get()) {
    if (at >= series.Values.size() || !std::isfinite(series.Values[at])) continue;
    const QString number = QString::number(
        series.Values[at], 'f', series.Values[at] == std::floor(series.Values[at]) ? 0 : 2);
    words << (series.Name.empty() ? number : Shown(series.Name) + " " + number);
    if (!control_.Bars)
      DrawBox(painter, QRectF(scale.X(hover_) - 4, scale.Y(series.Values[at]) - 4, 8, 8),
              TextColour(c, series.Colour), c.Card, 4);
  }
  const QString text = words.join(" \u00B7 ");
  const QFontMetrics small = fontMetrics();
  const double width = small.horizontalAdvance(text) + Px(16);
  const double x =
      std::clamp(scale.X(hover_) - width / 2, 0.0, std::max(0.0, this->width() - width));
  const QRectF box(x, scale.Plot.top(), width, small.height() + Px(8));
  DrawBox(painter, box, c.Button, c.Edge, Px(4));
  painter.setPen(c.Text);
  painter.drawText(box, Qt::AlignCenter, text);
}

/// In the place of a line, each value with what it is of.
void ChartView::DrawWords(QPainter& painter) const {
  const auto& captions = control_.Captions.Get();
  QStringList lines;
  for (std::size_t place = 0; place < static_cast<std::size_t>(Count()); ++place) {
    QStringList words;
    for (const auto& series : control_.Lines.Get())
      if (place < series.Values.size() && std::isfinite(series.Values[place]))
        words << (Shown(series.Name) + " " + Short(series.Values[place])).trimmed();
    const QString when = place < captions.size() ? DatedAlone(captions[place]) + ": " : QString();
    if (!words.isEmpty()) lines << when + words.join(", ");
  }
  painter.setFont(TextFont());
  painter.setPen(ColoursOf(this).Muted);
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, lines.join("\n"));
}

void ChartView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const Scale scale = MakeScale();
  if (scale.Count == 0) {
    painter.setFont(TextFont());
    painter.setPen(ColoursOf(this).Muted);
    painter.drawText(rect(), Qt::AlignCenter, "Nothing to show yet.");
    return;
  }
  if (!control_.Bars && Told() < kLeastPlaces) return DrawWords(painter);
  DrawAxis(painter, scale);
  DrawCaptions(painter, scale);
  control_.Bars ? DrawBars(painter, scale) : DrawLines(painter, scale);
  DrawNames(painter);
  if (hover_ >= 0 && hover_ < scale.Count) DrawHover(painter, scale);
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
  const Scale scale = MakeScale();
  const double x = event->position().x();
  const bool within = scale.Count > 0 && x >= scale.Plot.left() && x < scale.Plot.right();
  const int place = within ? scale.PlaceAt(x) : -1;
  if (place != hover_) Hover(place);
}

}  // namespace

ControlView* NewView(ui::Chart& chart, Stage& stage, QWidget* parent) {
  if (chart.Thin) return NewThinLine(chart, stage, parent);
  return new ChartView(chart, stage, parent);
}

}  // namespace grapplemont::desktop
