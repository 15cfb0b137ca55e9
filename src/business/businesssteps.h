#pragma once

#include "records/world.h"

// What networks and sponsors do by themselves: steps of the day. Those of networks are not built
// yet and leave the world as it is.

namespace grapplemont {

/// Requires the first of a month and a tape under way.
void AnswerPromoTapes(World& world);
// Mondays.
void TvContractReview(World& world);
/// Sponsors whose promotion has become too risky for them walk out.
void SponsorRiskReview(World& world);
// The first of a month.
void RivalNewTvShows(World& world);
/// A month off every deal; the last month ends it.
void SponsorContractCountdown(World& world);

}  // namespace grapplemont
