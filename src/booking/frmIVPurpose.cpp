#include "booking/interviews.h"
#include "booking/talkscreens.h"

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
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(cmbwinner)}); }

  bool Store() override {
    buffer().Purpose = cmbwinner.Key();
    return true;
  }

  ui::ListBox cmbwinner{*this, "cmbwinner", {{"Purpose"}}, {}, [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVPurpose(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmIVPurpose>(game, host);
}

}  // namespace grapplemont
