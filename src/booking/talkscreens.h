#pragma once

#include "booking/stepscreens.h"

namespace grapplemont {

/// The step screens of interviews and angles: frmIV* and frmAngle*.
const StepTable& TalkSteps();

}  // namespace grapplemont
