#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

class ComboView : public QComboBox, public ControlView {
 public:
  ComboView(ui::ComboBox& combo, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }

 protected:
  void Show() override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  ui::ComboBox& combo_;
};

class CheckView : public QCheckBox, public ControlView {
 public:
  CheckView(ui::CheckBox& box, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }

 protected:
  void Show() override;

 private:
  ui::CheckBox& box_;
};

class OptionView : public QRadioButton, public ControlView {
 public:
  OptionView(ui::OptionButton& option, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }

 protected:
  void Show() override;

 private:
  ui::OptionButton& option_;
};

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
