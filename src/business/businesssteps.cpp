#include "business/businesssteps.h"

namespace grapplemont {

void AnswerPromoTapes(World&) {}
void TvContractReview(World&) {}
void SponsorRiskReview(World&) {}
void RivalNewTvShows(World&) {}
void SponsorContractCountdown(World&) {}

}  // namespace grapplemont
