#include "desktop/sliderview.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "desktop/look.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

class CalmSlider : public QSlider {
 public:
  using QSlider::QSlider;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class CalmSpinBox : public QSpinBox {
 public:
  using QSpinBox::QSpinBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace

SliderView::SliderView(ui::ScrollBar& bar, Stage& stage, QWidget* parent)
    : QWidget(parent),
      ControlView(bar, stage),
      bar_(bar),
      slider_(new CalmSlider(Qt::Horizontal, this)),
      value_(new CalmSpinBox(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Px(12));
  slider_->setMinimumWidth(Px(120));
  value_->setButtonSymbols(QAbstractSpinBox::NoButtons);
  value_->setAlignment(Qt::AlignRight);
  row->addWidget(slider_, 1);
  row->addWidget(value_);
  setFocusProxy(slider_);
  connect(slider_, &QSlider::valueChanged, this, &SliderView::Slid);
  connect(value_, &QSpinBox::valueChanged, this, &SliderView::Slid);
}

void SliderView::Slid(int value) {
  Do(ui::Slide, value);
  Show();
}

void SliderView::Show() {
  const QSignalBlocker quietSlider(slider_), quietValue(value_);
  slider_->setRange(bar_.Min, bar_.Max);
  slider_->setPageStep(std::max(1, (bar_.Max - bar_.Min) / 10));
  slider_->setValue(bar_.Value);
  value_->setRange(bar_.Min, bar_.Max);
  value_->setValue(bar_.Value);
  const auto width = [&](int number) {
    return fontMetrics().horizontalAdvance(QString::number(number));
  };
  value_->setFixedWidth(std::max({width(bar_.Min), width(bar_.Max), Px(28)}) + Px(28));
}

}  // namespace grapplemont::desktop
