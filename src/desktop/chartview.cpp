#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "desktop/chartscale.h"
#include "desktop/dates.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/spoken.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

constexpr int kFewPlaces = 24;   // so few are marked one by one
constexpr int kLeastPlaces = 3;  // fewer make no line that says anything

QString Short(double value) {
  const double size = std::abs(value);
  if (size >= 1e6) return QString::number(value / 1e6, 'g', 4) + "m";
  if (size >= 1e4) return QString::number(value / 1e3, 'g', 4) + "k";
  return QString::number(value, 'g', 6);
}

/// Lines differ by their strokes as well as by their colours.
Qt::PenStyle StrokeOf(std::size_t line) {
  constexpr Qt::PenStyle kStrokes[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
  return kStrokes[line % std::size(kStrokes)];
}

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
  void DrawBands(QPainter& painter, const Scale& scale) const;
  void DrawLevels(QPainter& painter, const Scale& scale) const;
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

int ChartView::Told() const {
  int told = 0;
  for (std::size_t place = 0; place < static_cast<std::size_t>(Count()); ++place)
    told += std::ranges::any_of(control_.Lines.Get(), [place](const auto& series) {
      return place < series.Values.size() && std::isfinite(series.Values[place]);
    });
  return told;
}

Scale ChartView::MakeScale() const {
  Scale scale = ScaleOf(control_);
  scale.Count = Count();
  const std::vector<double>& places = control_.Places;
  if (std::ssize(places) == scale.Count && scale.Count > 1 && places.front() < places.back())
    scale.Places = places;
  const QFontMetrics small = fontMetrics();
  int left = 0;
  for (int line = 0; line < scale.Lines(); ++line)
    left = std::max(left, FiguresWidth(font(), scale.Label(line)) + Px(8));
  const bool named = std::any_of(control_.Lines->begin(), control_.Lines->end(),
                                 [](const auto& series) { return !series.Name.empty(); });
  const int top = small.height() + (named ? small.height() + Px(6) : 0);
  const int bottom = control_.Captions->empty() ? Px(4) : small.height() + Px(6);
  scale.Plot = QRectF(rect()).adjusted(left, top, -Px(4), -bottom);
  return scale;
}

void ChartView::DrawAxis(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  const bool measures = Told() > 0;  // without a value there is nothing to be read from the axis
  for (int line = 0; line < (measures ? scale.Lines() : 1); ++line) {
    const double y = std::round(scale.Y(scale.LineAt(line))) + 0.5;
    painter.setPen(c.Line);
    painter.drawLine(QPointF(scale.Plot.left(), y), QPointF(scale.Plot.right(), y));
    if (!measures) continue;
    painter.setPen(c.Muted);
    DrawFigures(painter, QRectF(0, y - Px(8), scale.Plot.left() - Px(8), Px(16)), Qt::AlignRight,
                font(), scale.Label(line));
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
    // What stands left of the plot are the figures of its axis.
    const double least = std::min(scale.Plot.left(), std::max(0.0, this->width() - 1.0 * width));
    const double x = std::clamp(scale.X(place) - width / 2.0, least,
                                std::max(least, static_cast<double>(this->width() - width)));
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
      if (FiguresWidth(font(), number) > width + gap) continue;
      painter.setPen(now ? c.Gold : c.Muted);
      DrawFigures(painter,
                  QRectF(bar.left(), bar.top() - small.height() - 1, bar.width(), small.height()),
                  Qt::AlignHCenter, font(), number);
    }
  }
}

/// Each run of places where both ends are known; bands that lie over each other grow stronger.
void ChartView::DrawBands(QPainter& painter, const Scale& scale) const {
  const float strength = ColoursOf(this).Dark ? 0.16F : 0.34F;  // white takes more to be tinted
  for (const auto& band : control_.Bands.Get()) {
    QColor fill = FillColour(ColoursOf(this), band.Colour);
    fill.setAlphaF(strength);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    QPolygonF above, below;
    const auto finish = [&] {
      std::reverse(below.begin(), below.end());
      painter.drawPolygon(above + below);
      above.clear();
      below.clear();
    };
    for (std::size_t place = 0; place < std::min(band.Low.size(), band.High.size()); ++place) {
      if (!std::isfinite(band.Low[place]) || !std::isfinite(band.High[place])) {
        finish();
        continue;
      }
      const double x = scale.X(static_cast<int>(place));
      above << QPointF(x, scale.Y(band.High[place]));
      below << QPointF(x, scale.Y(band.Low[place]));
    }
    finish();
  }
  painter.setBrush(Qt::NoBrush);
}

void ChartView::DrawLevels(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  for (const auto& [at, words] : control_.Levels.Get()) {
    if (at < scale.Low || at > scale.High) continue;
    const double y = std::round(scale.Y(at)) + 0.5;
    painter.setPen(QPen(c.Muted, 1, Qt::DotLine));
    painter.drawLine(QPointF(scale.Plot.left(), y), QPointF(scale.Plot.right(), y));
    painter.setPen(c.Muted);
    const QFontMetrics small = fontMetrics();
    const double above = y - scale.Plot.top() > small.height() ? y - Px(3) : y + small.height();
    painter.drawText(QPointF(scale.Plot.left() + Px(6), above), Shown(words));
  }
}

void ChartView::DrawLines(QPainter& painter, const Scale& scale) const {
  const Colours& c = ColoursOf(this);
  std::size_t number = 0;
  for (const auto& series : control_.Lines.Get()) {
    painter.setPen(
        QPen(TextColour(c, series.Colour), Px(2), StrokeOf(number++), Qt::FlatCap, Qt::RoundJoin));
    QPolygonF run;
    const auto finish = [&] {
      painter.drawPolyline(run);
      if ((scale.Count <= kFewPlaces && control_.Bands->empty()) || run.size() == 1)
        for (const QPointF& at : run)
          DrawBox(painter, QRectF(at.x() - Px(3), at.y() - Px(3), Px(6), Px(6)),
                  TextColour(c, series.Colour), QColor(), Px(3));
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
      painter.setPen(QPen(TextColour(c, series.Colour), Px(2), stroke, Qt::FlatCap));
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
    const QString number = Shown(control_.Figure(series.Values[at]));
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
        words
            << (Shown(series.Name) + " " + Shown(control_.Figure(series.Values[place]))).trimmed();
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
  DrawBands(painter, scale);
  DrawLevels(painter, scale);
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
