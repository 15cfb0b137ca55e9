#include <algorithm>

#include "booking/interviews.h"
#include "booking/screens/talkscreens.h"

namespace grapplemont {

namespace {

class frmIVPurpose : public StepScreen {
 public:
  frmIVPurpose(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmIVPurpose", "Select Interview Purpose") {}

 private:
  void Prepare() override {
    for (const int purpose : OfferedTalkPurposes(world(), buffer()))
      cmbwinner.Add({Says(kInterviewPurposes, purpose)}, purpose);
    cmbwinner.SelectKey(kTalkNone);
    lblturn.Text = TurnText();
    lblturn.Visible = !lblturn.Text->empty();
    lblturn.Colour = ui::Tone::Muted;
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(cmbwinner), lblturn}); }

  /// Beside a single worker it is the manager who turns.
  std::string TurnText() {
    const auto offered = OfferedTalkPurposes(world(), buffer());
    if (std::find(offered.begin(), offered.end(), kTalkTurn) == offered.end()) return {};
    std::string text;
    for (const TurnCall& call : TalkTurns(world(), buffer()))
      text += (text.empty() ? "" : ", ") + SideText(world(), {call.Turner}) + " on " +
              SideText(world(), {call.Other});
    return text.empty() ? text : "Who turns with \"Turn\": " + text + ".";
  }

  bool Store() override {
    buffer().Purpose = cmbwinner.Key();
    return true;
  }

  ui::Label lblturn{*this, "lblturn"};
  ui::ListBox cmbwinner{*this, "cmbwinner", {{"Purpose"}}, {}, [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVPurpose(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmIVPurpose>(game, host);
}

}  // namespace grapplemont
