#pragma once

#include "report/ring.h"
#include "report/scripts.h"
#include "report/teller.h"

// The stages of a report, in the order in which a match passes through them.

namespace grapplemont {

/// Who fights whom and what for: the match itself, the Title, a feud, a champion, a debut.
void TellOpening(Teller& teller);
/// The bout by its row, up to its end.
void TellBody(Teller& teller, const BoutRow& bout);
/// How the booked result comes about.
void TellFinish(Teller& teller, const BoutRow& bout);
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

/// Says that the part t turns, if somebody plays it, by where he stands.
void TellTurn(Teller& teller);
/// Sets the part t to the people of this one.
void TurnOf(Teller& teller, char part);

}  // namespace grapplemont
