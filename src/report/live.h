#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "report/report.h"

namespace grapplemont {

/// A report as it is told live: what comes next of it, a sentence at a time, and a count number by
/// number.
struct LivePiece {
  std::size_t Until = 0;     // what of the text stands there with it
  bool HoldsBreath = false;  // nothing more stands there: a count begins
  int Hall = 0;              // how loud the hall is behind it, 0 to 100
};

/// The pieces of a report made of these sentences, before a crowd of this reaction (0 to 100). The
/// last one ends where the report does; an empty report has none.
std::vector<LivePiece> LivePieces(std::string_view report, std::span<const SaidSentence> sentences,
                                  int crowd);

}  // namespace grapplemont
