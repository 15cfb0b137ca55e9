#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "booking/screens/screenstep.h"

// How the steps of the wizard are made. Families of steps that differ by a table are one class; it
// is told by which name it goes.

namespace grapplemont {

using StepMaker = std::unique_ptr<ui::Screen> (*)(Game& game, WizardHost& host,
                                                  const std::string& name);
using StepTable = std::map<std::string, StepMaker, std::less<>>;

// Each requires that the steps before it are done.
/// Kind, style and type of a match: one list each.
std::unique_ptr<ui::Screen> MakeChoiceStep(Game& game, WizardHost& host, const std::string& name);
/// Who stands in a match, and in a battle royal.
std::unique_ptr<ui::Screen> MakePeopleStep(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakeSpecialStep(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakeTitleStep(Game& game, WizardHost& host, const std::string& name);
std::unique_ptr<ui::Screen> MakeResultStep(Game& game, WizardHost& host, const std::string& name);
/// Finish, aftermath and purpose.
std::unique_ptr<ui::Screen> MakeEndingStep(Game& game, WizardHost& host, const std::string& name);

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
