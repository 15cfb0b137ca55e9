#include "desktop/controlview.h"

#include "desktop/button.h"
#include "desktop/chartview.h"
#include "desktop/choiceviews.h"
#include "desktop/look.h"
#include "desktop/pictureview.h"
#include "desktop/reportview.h"
#include "desktop/tableview.h"
#include "desktop/textviews.h"

namespace grapplemont::desktop {

namespace {

/// A tool-tip in lines that can be read.
QString TipText(const std::string& tip) {
  return tip.empty() ? QString() : "<p>" + Shown(tip).toHtmlEscaped() + "</p>";
}

template <class V, class C>
ControlView* Make(ui::Control& control, Stage& stage, QWidget* parent) {
  return new V(dynamic_cast<C&>(control), stage, parent);
}

}  // namespace

void ControlView::Refresh() {
  if (seen_ == control_.Revision()) return;
  seen_ = control_.Revision();
  QWidget* widget = Widget();
  widget->setEnabled(control_.Enabled);
  widget->setToolTip(TipText(control_.Tip));
  Show();
  widget->setVisible(control_.Visible);
  if (companion_) companion_->setVisible(control_.Visible);
}

ControlView* MakeView(ui::Control& control, Stage& stage, QWidget* parent) {
  ControlView* view = nullptr;
  switch (control.Is()) {
    case ui::Kind::Label:
      view = Make<LabelView, ui::Label>(control, stage, parent);
      break;
    case ui::Kind::TextBox:
      view = dynamic_cast<ui::TextBox&>(control).MultiLine
                 ? Make<NotesView, ui::TextBox>(control, stage, parent)
                 : Make<LineView, ui::TextBox>(control, stage, parent);
      break;
    case ui::Kind::Button:
      view = Make<ButtonView, ui::Button>(control, stage, parent);
      break;
    case ui::Kind::ListBox:
      view = Make<TableView, ui::ListBox>(control, stage, parent);
      break;
    case ui::Kind::ComboBox:
      view = Make<ComboView, ui::ComboBox>(control, stage, parent);
      break;
    case ui::Kind::CheckBox:
      view = Make<CheckView, ui::CheckBox>(control, stage, parent);
      break;
    case ui::Kind::OptionButton:
      view = Make<OptionView, ui::OptionButton>(control, stage, parent);
      break;
    case ui::Kind::ScrollBar:
      view = Make<SliderView, ui::ScrollBar>(control, stage, parent);
      break;
    case ui::Kind::Picture:
      view = Make<PictureView, ui::Picture>(control, stage, parent);
      break;
    case ui::Kind::Chart:
      view = Make<ChartView, ui::Chart>(control, stage, parent);
      break;
    case ui::Kind::Report:
      view = Make<ReportView, ui::Report>(control, stage, parent);
      break;
  }
  view->Widget()->setObjectName(Shown(control.Name()));
  return view;
}

}  // namespace grapplemont::desktop
