#pragma once

#include "booking/screens/stepscreens.h"

namespace grapplemont {

/// The step screens of interviews and angles: frmIV* and frmAngle*.
const StepTable& TalkSteps();

std::unique_ptr<ui::Screen> MakefrmIVType(Game& game, WizardHost& host, const std::string& name);
/// frmIV1, frmIV2, frmIV1m and frmIV2m.
std::unique_ptr<ui::Screen> MakefrmIVPeople(Game& game, WizardHost& host, const std::string& name);
/// frmIV1opp and frmIV2opp.
std::unique_ptr<ui::Screen> MakefrmIVTargets(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakefrmIVPurpose(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakefrmAngleType(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakefrmAnglePeople(Game& game, WizardHost& host,
                                               const std::string& name);

}  // namespace grapplemont
