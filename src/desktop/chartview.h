#pragma once

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// Lines or bars over time, with an axis, captions and the value under the pointer.
class ChartView : public QWidget, public ControlView {
 public:
  ChartView(ui::Chart& chart, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void Show() override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  struct Scale;
  Scale MakeScale() const;
  int Count() const;  // of places along the axis
  void DrawAxis(QPainter& painter, const Scale& scale) const;
  void DrawCaptions(QPainter& painter, const Scale& scale) const;
  void DrawBars(QPainter& painter, const Scale& scale) const;
  void DrawLines(QPainter& painter, const Scale& scale) const;
  void DrawNames(QPainter& painter) const;
  void DrawHover(QPainter& painter, const Scale& scale) const;

  ui::Chart& chart_;
  int hover_ = -1;
};

}  // namespace grapplemont::desktop
