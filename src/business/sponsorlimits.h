#pragma once

#include "records/fields/companies.h"

namespace grapplemont {

/// Whether the sponsor can bear the product: the more moral, the less risk.
bool BearsRisk(const Sponsor& sponsor, int risk);

/// A sponsor whose Pay (in thousands of dollars a show) is this or more turns the player's
/// promotion down; by its size and image.
int SponsorPayLimit(int size, int image);
/// The same for a rival, whom sponsors court more.
int RivalSponsorPayLimit(int size, int image);

/// Thousands of dollars that a sponsor gives for a television show, as the main or a minor one; an
/// Event brings the whole Pay from either.
int SponsorPayForTv(const Sponsor& sponsor, bool isMain);

}  // namespace grapplemont
