#pragma once

#include "desktop/controlview.h"

namespace grapplemont::desktop {

// A view of each kind of control; MakeView finds the one for a control.

ControlView* NewView(ui::Label& label, Stage& stage, QWidget* parent);
ControlView* NewView(ui::TextBox& box, Stage& stage, QWidget* parent);
ControlView* NewView(ui::Button& button, Stage& stage, QWidget* parent);
ControlView* NewView(ui::ListBox& list, Stage& stage, QWidget* parent);
ControlView* NewView(ui::ComboBox& combo, Stage& stage, QWidget* parent);
ControlView* NewView(ui::CheckBox& box, Stage& stage, QWidget* parent);
ControlView* NewView(ui::OptionButton& option, Stage& stage, QWidget* parent);
ControlView* NewView(ui::ScrollBar& bar, Stage& stage, QWidget* parent);
ControlView* NewView(ui::Picture& picture, Stage& stage, QWidget* parent);
ControlView* NewView(ui::Chart& chart, Stage& stage, QWidget* parent);
ControlView* NewThinLine(ui::Chart& chart, Stage& stage, QWidget* parent);
ControlView* NewView(ui::Report& report, Stage& stage, QWidget* parent);

}  // namespace grapplemont::desktop
