#include "business/businesssteps.h"

namespace grapplemont {

void AnswerPromoTapes(World&) {}
void TvContractReview(World&) {}
void RivalNewTvShows(World&) {}

}  // namespace grapplemont
