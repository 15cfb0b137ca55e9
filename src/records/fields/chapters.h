#pragma once

#include "records/fields/field.h"
#include "records/fields/vocabulary.h"

// What a slot keeps of the chapters of a career: what the board has said, what it wishes.

namespace grapplemont {

/// What the board has said to the player: the one record of board.dat. A game in which it has said
/// nothing has none.
struct BoardState {
  Date Warned;  // the last warning of a fall
};
GM_RECORD(BoardState, 8);

}  // namespace grapplemont
