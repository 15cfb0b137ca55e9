#pragma once

#include "desktop/button.h"
#include "desktop/controlview.h"

namespace grapplemont::desktop {

class ButtonView : public PushButton, public ControlView {
 public:
  ButtonView(ui::Button& button, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  /// What a click does instead of clicking the control.
  std::function<void()> Pressed;

 protected:
  void Show() override;

 private:
  ui::Button& button_;
};

}  // namespace grapplemont::desktop
