#include "desktop/choiceviews.h"

#include <QAbstractItemView>
#include <QWheelEvent>

#include "desktop/letters.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

ComboView::ComboView(ui::ComboBox& combo, Stage& stage, QWidget* parent)
    : QComboBox(parent), ControlView(combo, stage), combo_(combo) {
  setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
  setMaxVisibleItems(18);
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
