#pragma once

#include <string>
#include <string_view>

#include "records/world.h"

// Routines that every room shares.

namespace grapplemont {

/// Appends a mail dated today; what is longer than 30 and 250 letters is cut. A full mailbox drops
/// its thousand oldest mails.
void AddNews(World& world, std::string_view from, std::string_view body);
/// True when there is at least one mail.
bool HasNews(const World& world);

/// A rating held in hundredths: "2.50" for 250, "2.00" for 200, "2. 05" for 205 (with the blank).
std::string RatingText(int value);

/// Whether a mail under this option word (0 always, 1 direct rivals or above, 2 never) is told
/// about a promotion of this size, by the player's size as the day last saw it.
bool ShouldTell(const World& world, int option, int size);
/// A mail from the rival's news, if the option lets it through.
void TellOf(World& world, int option, const Promotion& rival, const std::string& body);

/// "$1,284,500", with a minus sign in front for a debt.
std::string Dollars(long long amount);

}  // namespace grapplemont
