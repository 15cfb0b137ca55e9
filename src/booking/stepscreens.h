#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "booking/screenstep.h"

// How the steps of the wizard are made. Families of steps that differ by a table are one class; it
// is told by which name it goes.

namespace grapplemont {

using StepMaker = std::unique_ptr<ui::Screen> (*)(Game& game, WizardHost& host,
                                                  const std::string& name);
using StepTable = std::map<std::string, StepMaker, std::less<>>;

/// Kind, style and type of a match: one list each.
std::unique_ptr<ui::Screen> MakeChoiceStep(Game& game, WizardHost& host, const std::string& name);

}  // namespace grapplemont
