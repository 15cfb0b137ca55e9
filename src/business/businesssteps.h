#pragma once

#include "records/world.h"

// What networks and sponsors do by themselves: steps of the day. Not built yet: each leaves the
// world as it is.

namespace grapplemont {

/// Requires the first of a month and a tape under way.
void AnswerPromoTapes(World& world);
// Mondays.
void TvContractReview(World& world);
void SponsorRiskReview(World& world);
// The first of a month.
void RivalNewTvShows(World& world);
void SponsorContractCountdown(World& world);

}  // namespace grapplemont
