#pragma once

#include "records/fields/storyrecords.h"
#include "report/teller.h"

namespace grapplemont {

/// What a match was booked for, and whom that is about.
enum class Purpose {
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
struct PurposePart {
  int Style, Code;
  Purpose Does;
  char Part = 0;
};
/// nullptr for a code that is none.
const PurposePart* PurposeOf(const Segment& segment);

/// It is about somebody who only comes in later.
bool IsRunIn(const PurposePart& purpose);

/// A feud and the two sides of the Segment that it sets against each other.
struct FeudOfSides {
  const Feud* Between = nullptr;  // nullptr for none
  Party One, Two;
};
/// The first feud between any two of the Segment's sides.
FeudOfSides FeudTold(Teller& teller);
/// Says a line of the feud, with {F} and {S} for its two sides.
void SayFeud(Teller& teller, const FeudOfSides& feud, Family family, int band);

}  // namespace grapplemont
