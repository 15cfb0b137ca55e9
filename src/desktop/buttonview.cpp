#include "desktop/buttonview.h"

#include "desktop/letters.h"
#include "desktop/palette.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

ButtonView::ButtonView(ui::Button& button, Stage& stage, QWidget* parent)
    : PushButton(parent), ControlView(button, stage), button_(button) {
  connect(this, &QAbstractButton::clicked, this, [this] { Pressed ? Pressed() : Do(ui::Click); });
}

void ButtonView::Show() {
  setText(Shown(button_.Text.Get()));
  SetBadge(Shown(button_.Badge.Get()));
  const ui::Tone tone = button_.Colour.Get();
  SetTextColour(tone == ui::Tone::Plain ? QColor() : TextColour(ColoursOf(this), tone));
  updateGeometry();
  update();
}

}  // namespace grapplemont::desktop
