#pragma once

#include "roster/talks.h"

// Contract talks with members of staff, the player's own and everybody else's.

namespace grapplemont {

inline constexpr int kHighestStaffWage = 100;  // thousands of dollars a month

/// An agreement without an end, as Owners have it too.
bool IsEndless(const Staff& staff);
/// Why he cannot be talked with at all: an Owner, an agreement without an end. Empty when he can.
std::string WhyNoStaffTalks(const Staff& staff);

/// What his talent is worth to a promotion of this size, thousands of dollars a month.
int StaffWorth(int size, int talent);
/// The most talent that would work for a promotion of this size.
int TalentCeiling(int size);

struct StaffDemands {
  int Months = 12;
  bool Written = true;
  int Wage = 0;  // thousands of dollars a month
};
/// For staying with the player's promotion where he works there, else for coming.
StaffDemands StaffDemandsOf(const World& world, const Staff& staff);

/// What closes the talks before they begin, a whole sentence; empty while he will listen.
std::string WhyNoStaffOffer(const World& world, const Staff& staff);
/// Why he says no to an offer; empty when it is a deal.
std::string JudgeStaffOffer(const World& world, const Staff& staff, const StaffDemands& demands,
                            const ContractOffer& offer);

/// Puts the offer into the contract of one of the player's.
void RenewStaff(Staff& staff, const ContractOffer& offer);
/// He leaves whoever employs him and works for the player from now on, in better spirits.
void HireStaff(World& world, Staff& staff, const ContractOffer& offer);

}  // namespace grapplemont
