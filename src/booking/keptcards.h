#pragma once

#include <string>
#include <vector>

#include "booking/cardsteps.h"

// Cards that are kept beside the sheet: the last ones of each show, and drafts for shows to come.

namespace grapplemont {

/// A show of the player's that a card belongs to.
struct CardOwner {
  std::string Show;
  bool IsEvent = false;
  bool IsDraft = false;
  friend bool operator==(const CardOwner&, const CardOwner&) = default;
};

/// A card that is kept, with the day of its show.
struct KeptCard {
  Card Rows;
  Day On = {};
};
/// The latest; no rows where nothing is kept.
KeptCard FindCard(const World& world, const CardOwner& owner);
/// The one of that day.
KeptCard FindCard(const World& world, const CardOwner& owner, Day on);
/// How many of its rows have something on them.
int RowsBooked(const KeptCard& card);
/// Keeps the card. A draft takes the place of the one for the same day, and an empty one takes that
/// away; those of days that are over go. Held cards stay for five weeks, since the reports recall
/// what was done on them.
void KeepCard(World& world, const CardOwner& owner, const Card& card, Day on);

/// What match.dat holds is a card that has been held, which lies there until the next sheet.
bool WasHeld(const World& world);
/// Keeps what match.dat still holds of the player's last show, before a new sheet is opened. Does
/// nothing for a card that has not been held.
void KeepLastCard(World& world);

/// A show that is still to come, and on how many rows something is drafted for it.
struct ComingShow {
  CardOwner Owner;
  Day On = {};
  std::string Slot;  // of a television show
  int Drafted = 0;
};
/// How many shows ahead each television show can be drafted.
inline constexpr int kDraftsAhead = 3;
/// The next three of each television show and the next of each Event of the player's, the nearest
/// first; today's are not among them.
std::vector<ComingShow> ComingShows(const World& world);

}  // namespace grapplemont
