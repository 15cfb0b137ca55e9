#pragma once

#include <array>

#include "records/fields/gameinfo.h"
#include "records/world.h"

namespace grapplemont {

// What a rise or fall in class is to the promotion and its people.
inline constexpr int kAfterAFall = 90, kAfterARise = 10;  // image
inline constexpr int kOverOfRise = 5, kOverOfFall = 5;    // the most of a draw
inline constexpr int kMainEventersRise = 5;               // on top of it
inline constexpr int kPotentialAboveFloor = 20, kLeastPotential = 30;

// What costs image beside the shows.
inline constexpr int kNoEventImage = 10, kCancelledImage = 15;
/// Under this reputation every show costs image.
inline constexpr int kPoorReputation = 25;

/// The one way in which a promotion's image changes, by `amount` percent up (`gain`) or down. At
/// 100 it rises a size class, at 0 it falls one, with all that follows for its people, and its
/// Events, a rival's spending and its tickets follow its standing in any case. Draws where a class
/// is crossed.
void ChangeImage(World& world, Promotion& promotion, int amount, bool gain);

/// The same by a step that may be negative.
void MoveImage(World& world, Promotion& promotion, int step);

enum class HeldShow { Event, Television, RivalEvent, RivalTelevision };
/// What a show does to its promotion's image, a minus being a loss: by the size of the promotion,
/// and by the rating of the player's show or the quality of a rival's.
int ImageStep(HeldShow kind, int size, int rating);

/// From this rating up comes the step.
struct ImageBand {
  int From;
  int Step;
};
/// The band above that of a rating; a rating in the highest has none, From 0.
ImageBand NextImageBand(HeldShow kind, int size, int rating);

/// What the public thinks of a show of the player's before it has seen it, by the difficulty and
/// the player's reputation: steps of the image in the order in which they are taken, 0 for none.
using Goodwill = std::array<int, 3>;
Goodwill GoodwillBefore(const GameInfo& game, HeldShow kind);

/// All that a show of this rating does to the image of a player's promotion of this size.
int WholeEventStep(const GameInfo& game, int size, int rating);
int WholeTvStep(const GameInfo& game, int size, int rating);

}  // namespace grapplemont
