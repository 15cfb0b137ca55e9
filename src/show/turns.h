#pragma once

#include <vector>

#include "records/span.h"
#include "show/segmentrun.h"

namespace grapplemont {

/// What the crowd makes of a turn; Baffling where nobody was prepared for it, and nothing changes.
enum class TurnOutcome { Completed, Flat, TooSoon, Baffling };

/// One worker turns on another, or on nobody (nullptr): disposition, the crowd, Over and morale
/// follow, and the notes tell it. Draws once for each of the spans that the last turn lies within,
/// unless it is very recent; then by the outcome.
TurnOutcome ApplyTurn(SegmentRun& run, Worker& turner, const Worker* other);

/// The most Over that a turn which comes off gives, and what one that fails costs.
int BestOfTurn();
Span CostOfFailedTurn();

/// Whether the crowd will not like this turn, however popular the two are.
bool IsSureToFail(const Worker& turner, const Worker* other);

/// Somebody who turns in a Segment, and on whom.
struct TurnCall {
  int Turner = 0;  // uids
  int Other = 0;   // 0: on nobody
  friend bool operator==(const TurnCall&, const TurnCall&) = default;
};

/// Everybody whom the booking makes turn, in order, nobody twice. An angle's box that may stay
/// empty turns only who is waiting to.
std::vector<TurnCall> BookedTurns(const World& world, const Segment& segment);
/// Somebody who has turned.
struct TurnMade {
  int Turner = 0;  // uid
  TurnOutcome Outcome{};
};
/// Makes them turn; may move the crowd.
std::vector<TurnMade> ApplyTurns(SegmentRun& run);

}  // namespace grapplemont
