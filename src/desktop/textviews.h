#pragma once

#include "desktop/controlview.h"
#include "desktop/pieces.h"

namespace grapplemont::desktop {

/// Takes what cannot be kept out of a line that was typed in, says so beside it, and gives the
/// rest in the program's letters.
std::string KeepTyped(QLineEdit& line, Stage& stage);

class LabelView : public ViewOf<WrappedLabel, ui::Label> {
 public:
  LabelView(ui::Label& label, Stage& stage, QWidget* parent) : ViewOf(label, stage, parent) {
    if (label.Large) setFont(TextFont(kLarge, QFont::DemiBold));
  }
  /// The colour of a label whose tone is plain.
  void SetUsual(ui::Tone tone);
  /// The line below a title: its words end in a full stop, whatever they are.
  void SetFacts();

 protected:
  void Show() override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  static constexpr int kLarge = 20;
  void Colour();
  ui::Tone usual_ = ui::Tone::Plain;
  bool facts_ = false;
};

/// The arrow of a trend behind a blank; empty for none.
QString TrendSign(int trend);

}  // namespace grapplemont::desktop
