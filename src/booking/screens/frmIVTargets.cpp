#include "booking/interviews.h"
#include "booking/screens/talkscreens.h"

namespace grapplemont {

namespace {

/// Whom the interview is about: frmIV1opp asks for one, frmIV2opp for a second one behind him.
class frmIVTargets : public StepScreen {
 public:
  frmIVTargets(Game& game, WizardHost& host, const std::string& name)
      : StepScreen(game, host, name, "Select Targets"), targets_(name == "frmIV2opp" ? 2 : 1) {}

 private:
  void Prepare() override {
    for (int target = 1; target <= targets_; ++target)
      FillPeople(lstopp(target), TalkTargets(world(), buffer(), wizard().View), true);
  }

  ui::Box Body() override {
    if (targets_ == 1) return ui::Group("Target", {ui::Grow(lstopp(1))});
    return ui::Columns({ui::Group("First target", {ui::Grow(lstopp(1))}).Grow(),
                        ui::Group("Second target", {ui::Grow(lstopp(2))}).Grow()});
  }

  bool Store() override {
    const TalkShape* shape = FindTalkShape(buffer().Style);
    Segment chosen = buffer();
    for (int target = 1; shape && target <= targets_; ++target)
      chosen.Worker[static_cast<std::size_t>(shape->FirstTarget + target - 2)] =
          lstopp(target).Key();
    if (const std::string why = WhyNotTargets(chosen); !why.empty()) return Fail(why);
    buffer() = chosen;
    return true;
  }

  int targets_;
  ui::Array<ui::ListBox> lstopp{"lstopp", targets_, [this](const std::string&, int target) {
                                  return std::make_unique<ui::ListBox>(
                                      *this, "lstopp" + std::to_string(target), PeopleColumns(),
                                      ui::Handler{}, [this] { GoOn(); });
                                }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmIVTargets(Game& game, WizardHost& host,
                                             const std::string& name) {
  return std::make_unique<frmIVTargets>(game, host, name);
}

}  // namespace grapplemont
