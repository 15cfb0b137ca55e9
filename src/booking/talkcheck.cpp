#include "booking/talkcheck.h"

namespace grapplemont {

std::vector<std::string> WhyNotTalk(const World&, const Segment&, const BookingView&) {
  return {"Interviews and angles cannot be booked yet."};
}

}  // namespace grapplemont
