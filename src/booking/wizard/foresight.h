#pragma once

#include <optional>
#include <string>
#include <vector>

#include "booking/wizard/wizard.h"

// What a booking may come to and what it costs, before it is done.

namespace grapplemont {

/// The Segment with what its later steps preselect; nothing while its people are not chosen.
std::optional<Segment> Foreseen(const World& world, const Segment& segment,
                                const BookingView& view);
/// The same of a match of which some are chosen, with the most popular of the others in the places
/// that are free.
std::optional<Segment> ForeseenWithOthers(const World& world, Segment match,
                                          const BookingView& view);

/// What it costs the morale of those in it, a sentence a line: who holds it against the player and
/// how far their morale falls.
struct PriceTold {
  std::string Text;
  bool IsFree = true;
};
PriceTold TellPrice(const World& world, const Segment& segment, const Segment& paid);

/// Who is where and what for, a fact a line: the sides with Over and condition, and what has been
/// chosen of the end.
std::vector<std::string> SoFar(const World& world, const Segment& segment);

}  // namespace grapplemont
