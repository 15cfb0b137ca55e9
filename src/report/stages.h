#pragma once

#include "records/fields/storyrecords.h"
#include "report/ring.h"
#include "report/teller.h"

namespace grapplemont {

/// A feud and those on either side of it who are in the match.
struct FeudOfSides {
  const Feud* Between = nullptr;  // nullptr for none
  Party One, Two;
  bool ArePartners = false;  // all of them stand on one side tonight
};
/// The first feud that sets two of the Segment's sides against each other; where there is none, the
/// first between two who stand on the same.
FeudOfSides FeudTold(Teller& teller);
/// Says a line of the feud, with {F} and {S} for its two sides.
void SayFeud(Teller& teller, const FeudOfSides& feud, Family family, int band);

/// Whether the worker is one of those who fight.
bool IsEntrant(const Segment& segment, int uid);

// The stages of a report, in the order in which a match passes through them.

/// Who fights whom and what for: the match itself, the Title, a feud, a champion, a debut.
void TellOpening(Teller& teller);
/// The bout by its row, up to its end.
void TellBody(Teller& teller, const BoutRow& bout);
/// How the booked result comes about.
void TellFinish(Teller& teller, const BoutRow& bout);
/// Whether a win takes a Title along: by disqualification or count-out it stays where it is.
bool PassesTitles(const Segment& segment);
/// Won without a foul, and nobody lays hands on anybody behind the bell.
bool EndsCleanly(const Segment& segment);
/// What becomes of the Title.
void TellTitleEnding(Teller& teller);
/// After the bell: the aftermath, turns, what the match was booked for, the feud.
void TellAftermath(Teller& teller);

// The bouts of a shape of their own; each tells its end as well.
void TellIronMan(Teller& teller, const BoutRow& bout);
void TellEliminations(Teller& teller, const BoutRow& bout);
void TellSurvivor(Teller& teller, const BoutRow& bout);
void TellRumble(Teller& teller);
void TellBattleRoyal(Teller& teller);

void TellInterview(Teller& teller);
void TellAngle(Teller& teller);

/// Sets the item of a disposition, and takes those of the others back.
void SetSide(Teller& teller, std::string_view disposition);
/// Says that the part t turns, if somebody plays it, by where they stand.
void TellTurn(Teller& teller);
/// Sets the part t to the people of this one.
void TurnOf(Teller& teller, char part);

}  // namespace grapplemont
