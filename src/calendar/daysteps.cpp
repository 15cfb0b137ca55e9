#include "calendar/daysteps.h"

namespace grapplemont {

void DevelopmentMonth(World&) {}
void TrainingCampMonth(World&) {}
void StatusCountdown(World&) {}
void AgeAndRetire(World&) {}

}  // namespace grapplemont
