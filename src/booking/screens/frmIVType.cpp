#include "booking/screens/talkscreens.h"

namespace grapplemont {

namespace {

/// Who does the talking: alone or a team, with or without a manager.
class frmIVType : public StepScreen {
 public:
  frmIVType(Game& game, WizardHost& host)
      : StepScreen(game, host, "frmIVType", "Select Interview Style") {}

 private:
  void Prepare() override {
    for (const InterviewStyleRow& style : kInterviewStyles) lsttype.Add({style.Says}, style.Code);
    lsttype.Select(1);
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(lsttype)}); }

  bool Store() override {
    buffer().Style = lsttype.Key();
    return true;
  }

  ui::ListBox lsttype{*this, "lsttype", {{"Interview style"}}, {}, [this] { GoOn(); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVType(Game& game, WizardHost& host, const std::string&) {
  return std::make_unique<frmIVType>(game, host);
}

}  // namespace grapplemont
