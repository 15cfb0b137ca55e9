#pragma once

#include <string>

#include "records/segments.h"
#include "records/world.h"
#include "show/ratings.h"

namespace grapplemont {

/// A Segment being run: what scoring and consequences hand on to each other.
struct SegmentRun {
  grapplemont::World& World;
  grapplemont::Segment& Segment;  // its record of match.dat
  grapplemont::ShowRun& Show;
  Score Quality;  // matches only; 0..100 only at the steps that limit it, and so the others
  Score Crowd;
  Score Overall;
  int Strain = 1;           // how hard the match is on the body, 1 to 5; 0 for no wear at all
  bool FeudEnding = false;  // the consequences of an ended feud are being reported
  std::string Notes;        // of the road agent
  int Row = 0;              // of the sheet; 0 outside a show
};

}  // namespace grapplemont
