#include "desktop/controlview.h"

#include <array>

#include "desktop/look.h"
#include "desktop/views.h"

namespace grapplemont::desktop {

namespace {

/// A tool-tip in lines that can be read, and the key.
QString TipText(const std::string& tip, const QString& key) {
  QStringList lines;
  if (!tip.empty()) lines << Shown(tip).toHtmlEscaped();
  if (!key.isEmpty()) lines << "Key: " + key.toHtmlEscaped();
  return lines.isEmpty() ? QString() : "<p>" + lines.join("<br>") + "</p>";
}

template <class C>
ControlView* Make(ui::Control& control, Stage& stage, QWidget* parent) {
  return NewView(dynamic_cast<C&>(control), stage, parent);
}

/// In the order of Kind.
constexpr auto kMakers = std::to_array<ControlView* (*)(ui::Control&, Stage&, QWidget*)>(
    {Make<ui::Label>, Make<ui::TextBox>, Make<ui::Button>, Make<ui::ListBox>, Make<ui::ComboBox>,
     Make<ui::CheckBox>, Make<ui::OptionButton>, Make<ui::ScrollBar>, Make<ui::Picture>,
     Make<ui::Chart>, Make<ui::Report>});

}  // namespace

void ControlView::Refresh() {
  if (seen_ == shows_.Revision()) return;
  seen_ = shows_.Revision();
  ShowUse();
  FocusTarget()->setAccessibleDescription(Shown(shows_.Tip.Get()));
  Show();
  ShowSeen();
}

void ControlView::ShowSeen() {
  Widget()->setVisible(shows_.Visible && HasWords() && !isOut_);
  if (companion_) companion_->setVisible(shows_.Visible && !isOut_);
}

void ControlView::LeaveOut(bool out) {
  if (out == isOut_) return;
  isOut_ = out;
  ShowSeen();
}

void ControlView::Hold(const std::string& why) {
  if (why == held_) return;
  held_ = why;
  ShowUse();
}

void ControlView::ShowUse() {
  Widget()->setEnabled(shows_.Enabled && held_.empty());
  Widget()->setToolTip(TipText(held_.empty() ? shows_.Tip.Get() : held_, KeyNow()));
}

ControlView* MakeView(ui::Control& control, Stage& stage, QWidget* parent) {
  ControlView* view = kMakers.at(static_cast<std::size_t>(control.Is()))(control, stage, parent);
  view->Widget()->setObjectName(Shown(control.Name()));
  return view;
}

}  // namespace grapplemont::desktop
