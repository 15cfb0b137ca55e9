#pragma once

#include <string>

#include "booking/matchsteps.h"
#include "booking/screens/screenstep.h"
#include "booking/segmentcheck.h"

namespace grapplemont {

/// A step of a match that somebody may object to.
class MatchStepScreen : public StepScreen {
 public:
  using StepScreen::StepScreen;

 protected:
  /// Puts the draft into the buffer when its step may be left so: no mistake, and nobody objects
  /// whom the player cannot or does not want to overrule.
  bool Accept(const Segment& draft, MatchStep step);
  /// Shows beforehand what the people in the ring would say to the draft.
  void ShowObjections(const Segment& draft, MatchStep step);
  ui::Box Objections() { return ui::Group("What they say", {txtsay}); }

 private:
  bool IsOverruled(const Refusal& refusal);

 protected:
  ui::Label txtsay{*this, "txtsay"};
};

}  // namespace grapplemont
