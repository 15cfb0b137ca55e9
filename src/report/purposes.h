#pragma once

#include "records/storyrecords.h"
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

/// The feud between the two sides of the Segment; nullptr for none.
const Feud* FeudTold(const Teller& teller);

}  // namespace grapplemont
