#pragma once

#include <string_view>

namespace grapplemont {

/// What people say of a ticket at this price, from a promotion of this size.
std::string_view TicketOpinion(int size, int price);

}  // namespace grapplemont
