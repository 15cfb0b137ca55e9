#pragma once

#include <string>
#include <vector>

#include "records/world.h"
#include "roster/talks.h"

// Contract talks with members of staff, the player's own and everybody else's.

namespace grapplemont {

inline constexpr int kHighestStaffWage = 100;  // thousands of dollars a month

/// An agreement without an end, as Owners have it too.
bool IsEndless(const Staff& staff);
/// Why they cannot be talked with at all: an Owner, an agreement without an end. Empty when they
/// can.
std::string WhyNoStaffTalks(const Staff& staff);

/// The most talent that would work for a promotion of this size.
int TalentCeiling(int size);

struct StaffDemands {
  int Months = 12;
  bool Written = true;
  int Wage = 0;          // thousands of dollars a month
  Score WageSteps = {};  // how the wage came about
};
/// For staying with the player's promotion where they work there, else for coming.
StaffDemands StaffDemandsOf(const World& world, const Staff& staff);

/// What closes the talks before they begin, a whole sentence; empty while they will listen. `why`
/// gets what was weighed, here and below.
std::string WhyNoStaffOffer(const World& world, const Staff& staff, Decision* why = nullptr);
/// Why they say no to an offer; empty when it is a deal.
std::string JudgeStaffOffer(const World& world, const Staff& staff, const StaffDemands& demands,
                            const ContractOffer& offer, Decision* why = nullptr);

/// They leave whoever employs them and work for the player from now on, in better spirits.
void HireStaff(World& world, Staff& staff, const ContractOffer& offer);

// Ending the contract of a member of the player's staff before its time: as with workers.

/// What the player is asked before it happens.
std::string FiringQuestion(const World& world, const Staff& staff);
/// Pays, whatever is in the bank, and lets them go.
void FireStaff(World& world, Staff& staff);

// How many hands the posts of a promotion need.

/// To use angles, with this many television shows.
int WritersNeeded(int shows);

/// How a post of the player's promotion is filled.
struct PostCount {
  int Post;  // a code of Staff.Position
  int Have = 0;
  int Need = 0;  // 0 also where nobody counts them
};
PostCount PostCountOf(const World& world, int post);
inline bool IsShort(const PostCount& post) {
  return post.Have < post.Need;
}
/// Every post but the Owner's, in the order of their codes.
std::vector<PostCount> PostCounts(const World& world);
/// "Announcers 1 (1 needed)" and so on, a line each, and what to do about posts that lack hands.
std::string PostLines(const std::vector<PostCount>& posts);
std::string PostAdvice(const std::vector<PostCount>& posts);

}  // namespace grapplemont
