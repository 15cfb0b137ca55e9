#pragma once

#include <array>

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

/// The rules of the house, as they were chosen with the game: the one record of houserules.dat. A
/// game without any has none.
struct HouseRules {
  std::array<Flag, 8> On;  // by HouseRule
  Flag Edited;             // the running game has been changed by hand
};
GM_RECORD(HouseRules, 18);

/// What a small promotion has done with its month: the one record of monthplan.dat.
struct MonthPlan {
  Date Month;                // its first
  std::array<Flag, 8> Done;  // by the ventures of the page
};
GM_RECORD(MonthPlan, 24);

/// OwnerWish.Kind.
enum WishKind {
  kWishNewStars = 1,
  kWishDefendWomens,
  kWishDefendTitle,
  kWishFewTalks,
  kWishProfit,
  kWishYoungChampion,
  kWishBestShow,
  kWishGoodShows,
  kWishStanding,
  kWishEvents,
  kWishSponsors,
  kWishSavings,
  kWishWomensMatches,
  kWishFeudMatches,
  kWishOnAir,
  kWishTamerProduct
};

/// OwnerWish.State.
enum WishState { kWishOpen = 0, kWishGranted, kWishMissed, kWishDropped };

/// Something that the owner of the player's promotion wishes of a year: a record of wishes.dat,
/// appended and judged once.
struct OwnerWish {
  Date From;       // the day it was made
  Date Until;      // the day it is judged
  Word Promotion;  // uid; the promotion may be gone
  Word Kind;
  RangedLong<0, kMostDollars> Target;  // in the unit of the kind: times, percent, dollars, years
  RangedLong<0, kMostDollars> Base;    // what it is compared with
  RangedWord<0, 32767> Slips;          // what is counted day by day
  Cash Came;                           // what it came to, once it has been judged
  Word State;
  Text<20> About;  // the Title that it is about
};
GM_RECORD(OwnerWish, 56);

}  // namespace grapplemont
