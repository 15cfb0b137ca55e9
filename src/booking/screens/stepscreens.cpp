#include "booking/screens/stepscreens.h"

namespace grapplemont {

const StepTable& TalkSteps() {
  static const StepTable kSteps = {
      {"frmIVType", MakefrmIVType},       {"frmIV1", MakefrmIVPeople},
      {"frmIV2", MakefrmIVPeople},        {"frmIV1m", MakefrmIVPeople},
      {"frmIV2m", MakefrmIVPeople},       {"frmIV1opp", MakefrmIVTargets},
      {"frmIV2opp", MakefrmIVTargets},    {"frmIVPurpose", MakefrmIVPurpose},
      {"frmAngleType", MakefrmAngleType}, {"frmAnglePeople", MakefrmAnglePeople},
  };
  return kSteps;
}

}  // namespace grapplemont
