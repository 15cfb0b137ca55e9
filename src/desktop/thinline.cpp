#include <QPainter>

#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/spoken.h"
#include "desktop/views.h"

namespace grapplemont::desktop {

namespace {

constexpr int kLineHeight = 26, kPlaces = 80;
constexpr double kStroke = 1.5, kDot = 3;

/// One line over the whole height from 0 to 100 that grows to the right, its latest value a dot.
class ThinLine : public ViewOf<QWidget, ui::Chart> {
 public:
  ThinLine(ui::Chart& chart, Stage& stage, QWidget* parent) : ViewOf(chart, stage, parent) {
    Means(*this, QAccessible::Chart);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {Px(280), Px(kLineHeight)}; }
  QSize minimumSizeHint() const override { return {Px(100), Px(kLineHeight)}; }

 protected:
  void Show() override {
    setAccessibleDescription(WordsFor(control_));
    update();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Colours& c = ColoursOf(this);
    const double dot = Px(kDot);
    const QRectF room = QRectF(rect()).adjusted(dot, dot, -dot, -dot);
    painter.setPen(c.Line);
    painter.drawLine(room.bottomLeft(), room.bottomRight());
    for (const auto& series : control_.Lines.Get()) {
      QPolygonF run;
      for (const double value : series.Values)
        run << QPointF(room.left() + static_cast<double>(run.size()) * room.width() / kPlaces,
                       room.bottom() - value / 100 * room.height());
      if (run.isEmpty()) continue;
      const QColor colour = TextColour(c, series.Colour);
      painter.setPen(QPen(colour, kStroke, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
      painter.drawPolyline(run);
      const QPointF at = run.last() - QPointF(dot, dot);
      DrawBox(painter, QRectF(at, QSizeF(2 * dot, 2 * dot)), colour, QColor(), dot);
    }
  }
};

}  // namespace

ControlView* NewThinLine(ui::Chart& chart, Stage& stage, QWidget* parent) {
  return new ThinLine(chart, stage, parent);
}

}  // namespace grapplemont::desktop
