#pragma once

#include <string_view>

#include "records/world.h"

// How promotions begin.

namespace grapplemont {

/// Whether no promotion has the name or the initials, or had them until today.
bool IsNameFree(const World& world, std::string_view name, std::string_view initials);
/// Living promotions, the player's included.
int CountPromotions(const World& world);

/// Appends a promotion of this name without people, sponsors, Titles or a past, spending as its
/// size does. Size, money, image and risk are the caller's to set before `Open`.
Promotion NewPromotion(const World& world, std::string_view name, std::string_view initials);
/// It opens today: enters the file, and looks for workers and staff at once.
Promotion& Open(World& world, Promotion promotion);

/// Two Titles of a promotion that has none, vacant until an Event finds champions. One of the name
/// that another promotion has left behind is taken up again; none is founded where no place is
/// left.
void FoundTitles(World& world, const Promotion& promotion);

}  // namespace grapplemont
