#pragma once

#include <vector>

#include "records/segments.h"

namespace grapplemont {

/// Whom a rule's table means by the people of a Segment.
enum class Part {
  Nobody,
  Winner,         // in a draw the first of the first side
  Loser,          // who takes the fall; in a draw the first of the second side
  LosersPartner,  // of a 2 vs 2 match
  WinningTeam,    // in a draw the first
  LosingTeam,     // in a draw the second
  Attacked,       // by the run-ins of the finish: the loser, unless they meant to help them
  AttackedTeam,   // nobody in a draw
  Helped,         // whom those run-ins meant to help; nobody where nobody runs in for a side
  HelpedTeam,
  Worker1,
  Worker2,
  Worker3,
  Worker4,
  FirstTeam,  // Worker1 and Worker2
  SecondTeam,
  Other1,
  Other2,
  Other3,
  Other4,
  Others12,
  Others34
};

/// What a match was booked for.
enum class Aim {
  Nothing,
  GoodMatch,
  PutsOver,
  BothOver,
  EyeCandy,
  Debuts,
  Turns,
  EndsFeud,
  GoesOn
};
/// A purpose, and whom it is about.
struct PurposeRow {
  int Style = 0, Code = 0;
  Aim Does = Aim::Nothing;
  Part Whom = Part::Nobody;
};
/// Of a match; a row of nothing for what has no purpose.
PurposeRow PurposeOf(const Segment& segment);
/// It is about somebody who only comes in later.
bool IsRunIn(Part part);

/// Who takes the fall: the Loser, or the first of the losers where none is named; 0 in a draw.
int FallenOf(const Segment& segment);
/// Their uids, without the empty places. A team's members stand in the order of their places.
std::vector<int> PeopleOf(const Segment& segment, Part part);

}  // namespace grapplemont
