#include "booking/segmentcheck.h"

namespace grapplemont {

void ApplyBookingGrievances(World&, const Segment&) {}

}  // namespace grapplemont
