#pragma once

#include <array>

#include "records/fields/field.h"

// Records of a running game about what rivals do where the player does not look: the cards they
// held, who holds a grudge there, who changed a name.

namespace grapplemont {

/// CardMatch.Show.
enum UnseenShow { kUnseenTv = 1, kUnseenEvent, kUnseenHouseShow };

/// A match of a rival's card: a record of rivalcards.dat. The oldest cards are dropped.
struct CardMatch {
  Date On;
  Word Promotion;  // uid; the promotion may be gone
  Word Show;
  Word Row;                    // from 1; the last one is the main event
  Word Style;                  // as in match.dat
  Word MatchType;              // as in match.dat
  Word Finish;                 // as in match.dat
  Word Winners;                // how many of the workers won; 0 for a draw
  std::array<Word, 6> Worker;  // the winners first; 0 for nobody and for who has gone
  Word Champion;               // who held the Title before; 0 for a vacant one
  Flag Changed;                // the Title went to the winners
  Text<20> Title;              // at stake, or empty
  Percent Rating;
};
GM_RECORD(CardMatch, 60);
GM_GROWS(CardMatch);

/// Grudge.Why.
enum GrudgeReason { kGrudgeCard = 1, kGrudgeTitle, kGrudgeSplit, kGrudgeStable };

/// Two workers of a rival who are after each other: a record of grudges.dat.
struct Grudge {
  Date Since;
  Word Promotion;
  Word One;  // Worker uids
  Word Two;
  Natural WonOne;  // matches against each other
  Natural WonTwo;
  Percent Heat;
  Word Why;
};
GM_RECORD(Grudge, 22);

/// Somebody worked under another name before: a record of ringnames.dat.
struct RingName {
  Date Until;
  Word Worker;
  Text<25> Name;
};
GM_RECORD(RingName, 35);
GM_GROWS(RingName);

}  // namespace grapplemont
