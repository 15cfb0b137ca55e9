#pragma once

#include "records/world.h"

// What networks and sponsors do by themselves: steps of the day.

namespace grapplemont {

/// The network that has the player's tape answers. Requires the first of a month and a tape under
/// way.
void AnswerPromoTapes(World& world);
// Mondays.
/// A week off every deal: some of rivals are renewed, shows without weeks or at three strikes are
/// marked as gone.
void TvContractReview(World& world);
/// Sponsors whose promotion has become too risky for them walk out.
void SponsorRiskReview(World& world);
// The first of a month.
/// Rivals of Cult size and above look for another show. Draws for each network that could want one,
/// for each that does, and for the day.
void RivalNewTvShows(World& world);
/// A month off every deal; the last month ends it.
void SponsorContractCountdown(World& world);

}  // namespace grapplemont
