#pragma once

// What lines recall: of a match's past before its bell and behind it, and of those who talk.

namespace grapplemont {

/// Bands of PastOpening. {F} is whom it is about, {S} the others.
enum PastKind {
  kMetFirst,
  kMetLately,  // {F} won, {when}
  kMetLongAgo,
  kSeriesLevel,    // {count} wins each
  kSeriesLed,      // {F} leads, {tally}
  kMetTooOften,    // for the {nth} time in a year
  kMetFiftyTimes,  // {nth}
  kWinsInARow,     // {count}
  kLossesInARow,
  kReignLong,  // {F} champion for {count} days, {tally}
  kReignNew,
  kOnceChampion,   // {F} had the Title until {when}
  kTitleAgain,     // {F} lost it to {S} {when}
  kTitleNever,     // {F} has never had a match for a Title
  kAwayLong,       // {F}, last seen {when}
  kWasAttacked,    // {F} by {S}, {when}
  kPartnerBeaten,  // {tally}, the partner of {F}, by {S}
  kNewAtTheTop,    // {F}, in the {nth} match here
  kLastMatch,
  kThreatened,  // {F} threatened {S}
  kChallenged,  // {F} challenged {S} {when}
  kSignedFor,
  kManagerSpoke,  // {m} for {F}
  kYearsBest,     // the two had one of the year's best {when}
  kRoadHere,      // a feud since {when}, {count} matches
  kYearRecalled   // {F} beat {S} {when}, in the year's best: as December's Event opens
};

/// Bands of PastEnding.
enum PastOutcome {
  kPaidBack,     // {F} wins what {S} began
  kNotPaidBack,  // {F} does not
  kSameAgain,    // {F} beats {S} again
  kRunGoesOn,
  kRunEnds,  // of {F}, {count} wins
  kSlumpEnds,
  kSlumpGoesOn,
  kSeriesTips,  // {F} is one ahead
  kWordKept,
  kWordEaten,      // by {F}, who spoke
  kChallengeWon,   // by {F}, who made it
  kChallengeLost,  // the same
  kSaidSo,         // {m} did, of {F}
  kSaidTooMuch,    // the same, and {F} lost
  kReignGrows,
  kReignOver,  // of {F}, {count} days
  kFirstCrown,
  kCrownBack,
  kEveryCrown,
  kBackWithAWin,
  kBackBeaten,
  kFirstOfThem,       // {F} has won the first match with {S}
  kAfterAllThatTime,  // {F} has won the first in a long time
  kOnceTooOften,      // {F} has won one more of too many
  kLeadGrows,         // {F}, who was ahead
  kLeadShrinks,       // {F}, who was and is behind, has won one
  kNewcomerStays,
  kNewcomerFalls,
  kNewReignHolds,    // {F}, champion since {when}
  kNewReignEnds,     // the same
  kContractKept,     // {F} has won what both signed for
  kCrownStaysAway,   // from {F}, who has had it
  kFirstShotMissed,  // by {F}
  kYearsBestAgain,   // {F} and {S} after the one {when}, by the rating
  kNothingSettled,   // between {F} and {S}, since nobody has won
  kLastBow,
  kFiftyDone,
  kWentTooFar,    // {F} is badly hurt
  kPerfectMatch,  // behind the rating
  kYearStands     // as December's Event closes, and none was better than that of {F} and {S}
};

/// Bands of TalkPast. {F} is whom it is about, {S} the others.
enum TalkRecalls {
  kHurtAndBack,      // {F}, hurt {when}
  kCrownLost,        // {F} lost {title} {when}, to {S} if anybody
  kCrownWon,         // {F} won {title} {when}, from {S} if anybody
  kWasHit,           // {F} by {S}, {when}
  kHasHit,           // {F} struck {S}, {when}
  kChangedWays,      // {F} turned {when}, or meant to
  kSaidAndDid,       // {F} told {S} {when}, and has won since
  kSaidAndDidNot,    // the same, and has lost
  kManagerWasRight,  // {m} told {S} {when} what {F} would do, who has won since
  kManagerWasWrong,  // the same, and {F} has lost
  kTheyAteIt,        // {S} told {F} {when}, and {F} has won since
  kRunBroken,        // {F} won {count} in a row, and lost {when}, to {S} if it was one
  kSlumpBroken,      // the same of losses
  kSignedTogether,   // {F} and {S}, {when}, for a match that is still to come
  kCalledOut,        // {F} challenged {S} {when}; they have not met since
  kSpoke,            // {F} spoke about {S} {when}; the same
  kLastMet,          // {F} beat {S} {when}
  kHitBack,          // {F} has just struck {S}, who struck them {when}
  kHitAgain          // {F} has just struck {S}, as {when}
};

}  // namespace grapplemont
