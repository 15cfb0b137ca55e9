#include "booking/talkscreens.h"

namespace grapplemont {

const StepTable& TalkSteps() {
  static const StepTable kNone;
  return kNone;
}

}  // namespace grapplemont
