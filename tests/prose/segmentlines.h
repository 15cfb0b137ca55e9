#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "show/runsegment.h"

namespace grapplemont::test {

/// A Segment of a show as one JSON object, for scripts/read-prose: its record, who is called what,
/// the feuds, champions and turns as they stood at the bell and behind it, and what was written.
class SegmentLine {
 public:
  /// Before it runs.
  SegmentLine(const World& world, int number);
  /// Once it has run.
  std::string Told(const World& world, const ToldSegment& told) const;

 private:
  struct Standing {
    int Uid = 0;
    std::string Disposition;
    bool TurnPending = false;
  };

  Segment segment_;
  std::vector<Standing> before_;
  std::vector<Feud> feuds_;
};

}  // namespace grapplemont::test
