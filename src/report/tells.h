#pragma once

namespace grapplemont {

/// Bands of Chapter. What {count}, {tally} and {feud} hold, their units with them, stands behind.
enum class Tells {
  WorksFor,        // {F} for {promotion}; {count} of age
  WorksForNobody,  // {count} of age
  CareerOver,      // {F}, {when}
  SignedUp,        // {F} for {promotion}
  SignedAway,      // {F} from {G} for {promotion}
  LetGo,
  Left,
  Hurt,          // {F}, {tally}, for {count}
  NewName,       // {F}, who was {tally} until then
  TeamedUp,      // {F} and {S} as {G}
  TeamParted,    // the same
  StableMade,    // {F}, {G}
  StableJoined,  // {F}, {G}
  CrownWon,      // {F} {title} from {S}, for {count}, until {X}, if anybody, took it
  CrownFilled,   // {F} {title} that was vacant, the same
  CrownOn,       // {F} still has {title}, since {since}, for {count}
  CrownBefore,   // {F} had {title} before anybody kept count of days
  CrownsInAll,   // {F}, {count} reigns, {tally} in all
  AwardWon,      // {F}, {tally}
  AwardGiven,    // {tally} to {feud}
  FeudBegan,     // {F} and {S}
  FeudWon,       // by {F} over {S}, after {count}, by {tally}
  FeudLast,      // the same by the last match, behind in matches
  FeudCold,      // {F} and {S}, after {count}
  FeudOn,        // {F} and {S}, since {since}
  FeudMatch,     // {F} beat {S}, rated {count}
  FeudHeld,      // {F} and {S}, both of {promotion}
  Record,        // {F} for {promotion}: {count}, {tally}
  BestMatch,     // {F} against {S}, rated {count}
  CrownStands,   // {title} of {promotion}, image {count}
  CrownGone,     // {title} of {promotion}
  CrownMade,
  CrownYear,        // {title} changed hands {count} {when}: {tally}
  CrownLongest,     // {F}, {count}, from {when}
  CrownLongestYet,  // the same of the reign that CrownOn has just told of
  CrownMost,        // {F}, {count}
  HouseFounded,     // {promotion}, {tally}
  HouseStands,      // {promotion}, {tally}, image {count}
  HouseRisen,       // to {tally}
  HouseFallen,
  HouseClosed,
  HouseBought,  // by {G}
  HouseOwner,   // {tally}
  HouseUneasy,  // {promotion} changed class {count} {when}: {tally}, and ended as {feud}
  HouseHands,   // {promotion} had {count} new owners {when}: {tally}
  HousePeak,    // {tally}, image {count}
  HouseShow,    // {tally}, rated {count}
  HouseMoves,   // {count} signed, {tally} gone
  YearMoves,    // {count}
  YearCrowns,   // {count}
  YearRetired,  // {count}: {tally}
  YearUneasy,   // classes changed {count}, that of {promotion} alone {tally}
  YearHands,    // {count} new owners
  BeforeAnnals
};

}  // namespace grapplemont
