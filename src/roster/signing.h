#pragma once

#include "roster/talks.h"

// Talks with a worker of somebody else's or of nobody's about coming.

namespace grapplemont {

/// What closes the talks before they begin; empty while they will listen. `why` gets what was
/// weighed, here and below.
std::string WhyNoSigning(const World& world, const Worker& worker, Decision* why = nullptr);
/// What somebody says who has a job and listens all the same.
std::string MoreMoneyText(const Worker& worker);

struct SigningOffer : ContractOffer {
  std::string Name, ShortName;  // what they are to be called
  std::string Disposition;      // as Worker.Disposition
  int Position = 0;             // as Worker.Position
};

/// What is wrong with the names, or with the place where they would be put; empty when nothing is.
std::string WhyNotAsOffered(const World& world, const Worker& worker, const SigningOffer& offer);
/// Why they say no; empty when it is a deal.
std::string JudgeSigning(const Worker& worker, const Demands& demands, const SigningOffer& offer,
                         Decision* why = nullptr);

/// They work for the player from now on and wait for their debut.
void Sign(World& world, Worker& worker, const SigningOffer& offer);

}  // namespace grapplemont
