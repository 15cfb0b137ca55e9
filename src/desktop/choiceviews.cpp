#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/dates.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"
#include "ui/acts.h"

// What is chosen by a click: combo boxes, check boxes, options, sliders.

namespace grapplemont::desktop {

namespace {

/// A turn of the wheel is meant for the page; it must not change what is chosen.
template <class Q>
class Calm : public Q {
 public:
  using Q::Q;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

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
    const QRect room = option.rect.adjusted(Px(10), 0, -Px(10), 0);
    painter->drawText(
        room, Qt::AlignVCenter,
        QFontMetrics(TextFont()).elidedText(index.data().toString(), Qt::ElideRight, room.width()));
    painter->restore();
  }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
    const int words = QFontMetrics(TextFont()).horizontalAdvance(index.data().toString());
    return {words + Px(24), Px(28)};
  }
};

constexpr int kRowsShown = 18;
constexpr int kLettersAtLeast = 8;
constexpr int kAround = 37;  // beside a combo box's words

class ComboView : public ViewOf<Calm<QComboBox>, ui::ComboBox> {
 public:
  ComboView(ui::ComboBox& combo, Stage& stage, QWidget* parent) : ViewOf(combo, stage, parent) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(kRowsShown);
    setItemDelegate(new Choices(this));
    setMinimumContentsLength(kLettersAtLeast);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int row) {
      Do<int>(ui::Pick, row + 1);
      Show();  // what the screen made of it, even if that is what it was before
    });
  }
  /// As wide as its longest row. Qt's own way to that would have the box grow beyond its place for
  /// a moment whenever the rows change, and keeps what it has measured in letters of another size.
  QSize sizeHint() const override {
    int longest = LettersWidth(kLettersAtLeast);
    for (int row = 0; row < count(); ++row)
      longest = std::max(longest, WordsWidth(font(), itemText(row)));
    return Around(longest);
  }
  /// Nothing is cut of rows as short as what is asked for.
  QSize minimumSizeHint() const override {
    return Around(LettersWidth(minimumContentsLength())).boundedTo(sizeHint());
  }
  /// The list is as wide as its longest row, wherever the screen has the room.
  void showPopup() override {
    const int bar = count() > kRowsShown ? Px(16) : 0;
    const int wanted = std::max(width(), view()->sizeHintForColumn(0) + bar + 2);
    view()->setMinimumWidth(std::min(wanted, screen()->availableGeometry().width()));
    Calm::showPopup();
  }

 protected:
  bool event(QEvent* event) override {
    const bool cut = event->type() == QEvent::ToolTip &&
                     fontMetrics().horizontalAdvance(currentText()) > width() - Px(kAround);
    return TipWhatIsCut(*event, *this, currentText(), cut) || Calm::event(event);
  }
  void Show() override {
    QStringList rows, shown;
    for (const std::string& row : control_.Rows()) rows.append(Dated(row));
    for (int row = 0; row < count(); ++row) shown.append(itemText(row));
    if (rows != shown) {
      clear();
      addItems(rows);
      updateGeometry();  // what has been reckoned with was the width of other rows
    }
    setCurrentIndex(control_.Selected() - 1);
  }

 private:
  int LettersWidth(int count) const { return WordsWidth(font(), QString(count, u'X')); }
  QSize Around(int words) const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option,
                                     QSize(words, fontMetrics().height()), this);
  }
};

/// A check box or an option.
template <class Q, class C>
class TickView : public ViewOf<Q, C> {
 public:
  TickView(C& control, Stage& stage, QWidget* parent) : ViewOf<Q, C>(control, stage, parent) {
    this->setAutoExclusive(false);
    QObject::connect(this, &QAbstractButton::clicked, this, [this](bool on) {
      // An option is left by choosing another.
      this->Do(ui::Check, on || std::is_same_v<C, ui::OptionButton>);
      Show();
    });
  }

 protected:
  void Show() override {
    this->setText(Shown(this->control_.Text.Get()));
    this->setChecked(this->control_.Checked);
  }
};

/// A slider with its value beside it, which can be typed too.
class SliderView : public ViewOf<QWidget, ui::ScrollBar> {
 public:
  SliderView(ui::ScrollBar& bar, Stage& stage, QWidget* parent)
      : ViewOf(bar, stage, parent),
        slider_(new Calm<QSlider>(Qt::Horizontal, this)),
        value_(new Calm<QSpinBox>(this)) {
    auto* row = NewLayout<QHBoxLayout>(this, 12);
    slider_->setMinimumWidth(Px(120));
    value_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    value_->setAlignment(Qt::AlignRight);
    SetMargins(*value_->findChild<QLineEdit*>());
    row->addWidget(slider_, 1);
    row->addWidget(value_);
    setFocusProxy(slider_);
    connect(slider_, &QSlider::valueChanged, this, &SliderView::Slid);
    connect(value_, &QSpinBox::valueChanged, this, &SliderView::Slid);
  }
  QWidget* FocusTarget() override { return slider_; }

 protected:
  void Show() override {
    const QSignalBlocker quietSlider(slider_), quietValue(value_);
    const int min = control_.Min, max = control_.Max;
    slider_->setRange(min, max);
    slider_->setPageStep(std::max(1, (max - min) / 10));
    slider_->setValue(control_.Value);
    value_->setRange(min, max);
    value_->setValue(control_.Value);
    const auto width = [&](int number) {
      return fontMetrics().horizontalAdvance(QString::number(number));
    };
    value_->setFixedWidth(std::max({width(min), width(max), Px(28)}) + Px(30));
  }

 private:
  void Slid(int value) {
    Do(ui::Slide, value);
    Show();
  }

  QSlider* slider_;
  QSpinBox* value_;
};

/// How far something is: a bar that nobody moves.
class DoneView : public ViewOf<QWidget, ui::ScrollBar> {
 public:
  DoneView(ui::ScrollBar& bar, Stage& stage, QWidget* parent) : ViewOf(bar, stage, parent) {
    Means(*this, QAccessible::ProgressBar);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {Px(160), Px(16)}; }
  QSize minimumSizeHint() const override { return {Px(60), Px(16)}; }

 protected:
  void Show() override {
    setAccessibleDescription(QString("%1 of %2").arg(int(control_.Value)).arg(int(control_.Max)));
    update();
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Colours& c = ColoursOf(this);
    const int most = std::max(1, control_.Max - control_.Min);
    const double high = Px(6);
    QRectF track(0, (height() - high) / 2.0, width(), high);
    DrawBox(painter, track, c.Track, QColor(), high / 2);
    track.setWidth(track.width() * (control_.Value - control_.Min) / most);
    if (track.width() >= high) DrawBox(painter, track, c.GoldFill, QColor(), high / 2);
  }
};

}  // namespace

ControlView* NewView(ui::ComboBox& combo, Stage& stage, QWidget* parent) {
  return new ComboView(combo, stage, parent);
}

ControlView* NewView(ui::CheckBox& box, Stage& stage, QWidget* parent) {
  return new TickView<QCheckBox, ui::CheckBox>(box, stage, parent);
}

ControlView* NewView(ui::OptionButton& option, Stage& stage, QWidget* parent) {
  return new TickView<QRadioButton, ui::OptionButton>(option, stage, parent);
}

ControlView* NewView(ui::ScrollBar& bar, Stage& stage, QWidget* parent) {
  if (bar.Tells) return new DoneView(bar, stage, parent);
  return new SliderView(bar, stage, parent);
}

}  // namespace grapplemont::desktop
