#include "desktop/choiceviews.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "desktop/letters.h"
#include "desktop/look.h"
#include "desktop/palette.h"
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

}  // namespace grapplemont::desktop
