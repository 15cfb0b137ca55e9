#pragma once

#include <QSlider>
#include <QSpinBox>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A slider with its value beside it, which can be typed too.
class SliderView : public QWidget, public ControlView {
 public:
  SliderView(ui::ScrollBar& bar, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  QWidget* FocusTarget() override { return slider_; }

 protected:
  void Show() override;

 private:
  void Slid(int value);
  ui::ScrollBar& bar_;
  QSlider* slider_;
  QSpinBox* value_;
};

}  // namespace grapplemont::desktop
