#pragma once

#include <memory>

#include "booking/screens/screenstep.h"

// The step screens of the wizard, each for the step that the host stands at. Steps that differ by a
// table are one class.

namespace grapplemont {

using StepMaker = std::unique_ptr<ui::Screen>(Game& game, WizardHost& host);

/// Kind, style and type: one list each.
StepMaker MakeChoiceStep;
/// Who stands in a match, and in a battle royal.
StepMaker MakePeopleStep;
StepMaker MakeTitleStep, MakeResultStep;
/// Finish, aftermath and purpose of a match.
StepMaker MakeEndingStep;
/// Who speaks in an interview, about whom, and what for.
StepMaker MakeSeatsStep, MakeTalkPurposeStep;
/// Which angle, and who plays in it.
StepMaker MakeAngleStep, MakeCastStep;

}  // namespace grapplemont
