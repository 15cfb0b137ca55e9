#include "desktop/choiceviews.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "desktop/look.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// The rows of a combo box's list.
class Choices : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Colours& c = ColoursOf(option.palette);
    const bool lit = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->fillRect(option.rect, lit ? c.Hover : c.Field);
    painter->setFont(TextFont());
    painter->setPen(c.Text);
    painter->drawText(option.rect.adjusted(Px(10), 0, -Px(10), 0), Qt::AlignVCenter,
                      index.data().toString());
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
    const int words = QFontMetrics(TextFont()).horizontalAdvance(index.data().toString());
    return {words + Px(24), Px(28)};
  }
};

}  // namespace

ComboView::ComboView(ui::ComboBox& combo, Stage& stage, QWidget* parent)
    : QComboBox(parent), ControlView(combo, stage), combo_(combo) {
  setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
  setMaxVisibleItems(18);
  setItemDelegate(new Choices(this));
  setMinimumContentsLength(8);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QComboBox::activated, this, [this](int row) {
    Do(static_cast<std::string (*)(ui::Desk&, ui::Screen&, std::string_view, int)>(ui::Pick),
       row + 1);
    Show();  // what the screen made of it, even if that is what it was before
  });
}

void ComboView::Show() {
  const int count = combo_.Count();
  bool same = count == QComboBox::count();
  for (int row = 0; same && row < count; ++row)
    same = itemText(row) == Shown(combo_.Rows()[static_cast<std::size_t>(row)]);
  if (!same) {
    clear();
    for (const std::string& row : combo_.Rows()) addItem(Shown(row));
  }
  setCurrentIndex(combo_.Selected() - 1);
}

/// A turn of the wheel is meant for the page; it must not change what is chosen.
void ComboView::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

CheckView::CheckView(ui::CheckBox& box, Stage& stage, QWidget* parent)
    : QCheckBox(parent), ControlView(box, stage), box_(box) {
  connect(this, &QAbstractButton::clicked, this, [this](bool on) {
    Do(ui::Check, on);
    Show();
  });
}

void CheckView::Show() {
  setText(Shown(box_.Text.Get()));
  setChecked(box_.Checked);
}

OptionView::OptionView(ui::OptionButton& option, Stage& stage, QWidget* parent)
    : QRadioButton(parent), ControlView(option, stage), option_(option) {
  setAutoExclusive(false);
  connect(this, &QAbstractButton::clicked, this, [this] {
    Do(ui::Check, true);
    Show();
  });
}

void OptionView::Show() {
  setText(Shown(option_.Text.Get()));
  setChecked(option_.Checked);
}

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
