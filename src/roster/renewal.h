#pragma once

#include <vector>

#include "roster/talks.h"

// Talks with a worker of the player's about staying.

namespace grapplemont {

/// What closes the talks before they begin, with his name in front; empty while he will listen.
std::string WhyNoRenewal(const Worker& worker);

/// What an offer is held against.
struct RenewalTerms {
  int Size = kGlobal;  // the promotion's
  int Wage = 0;        // wanted, thousands of dollars a month
  bool Written = true;
};
RenewalTerms RenewalTermsOf(const World& world, const Worker& worker);

/// What he says to an offer, box by box, and whether it is a deal.
struct RenewalAnswer {
  std::vector<Remark> Remarks;
  bool Accepted = false;
};
RenewalAnswer JudgeRenewal(const Worker& worker, const RenewalTerms& terms,
                           const ContractOffer& offer);

/// Puts the offer into his contract.
void Renew(Worker& worker, const ContractOffer& offer);

}  // namespace grapplemont
