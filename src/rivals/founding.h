#pragma once

#include <string>
#include <string_view>

#include "records/world.h"
#include "storylines/titles.h"

// How promotions begin.

namespace grapplemont {

/// A Title of the promotion's, vacant until a show finds a champion; gives its name, "CWA Crown"
/// for the Crown, or nothing where no place is left. One of the name that another promotion has
/// left behind is taken up again with its past.
std::string FoundTitle(World& world, const Promotion& promotion, std::string_view what,
                       TitleTerms terms);
/// Two Titles of a promotion that has none, vacant until an Event finds champions. One of the name
/// that another promotion has left behind is taken up again; none is founded where no place is
/// left.
void FoundTitles(World& world, const Promotion& promotion);

// A promotion of the player's own.

/// Dollars that it begins with: half of what other Backyard promotions have.
inline constexpr int kOwnCapital = 100000;
/// Why none can be founded under these names; empty when one can.
std::string WhyNotFound(const World& world, std::string_view name, std::string_view initials);
/// A Backyard promotion without people, sponsors or Titles. Draws nothing. Requires that nothing
/// stands against it.
Promotion& FoundOwn(World& world, std::string_view name, std::string_view initials);

// The stranger who cannot bear that the player is alone at the top.

/// Whether the player's promotion is the only Global one.
bool IsAloneAtTheTop(const World& world);
/// Draws once, when the player has been alone at the top at five month ends and nothing ends the
/// game; then the stranger waits.
void AwaitStranger(World& world);

/// What the stranger says when they meet, a paragraph a line.
std::string StrangersWords(const World& world);
/// They found their promotion with their own money, are its owner and buy stars for it wherever
/// they work, by a draw each from the most popular down; the game goes on. Nothing but that where
/// no promotion fits into the world any more.
void MeetStranger(World& world);

}  // namespace grapplemont
