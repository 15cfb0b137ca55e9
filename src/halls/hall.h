#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "halls/ledger.h"
#include "halls/lives.h"

// The hall of fame. Every 31 December those are elected whose careers are worth most, by a rule
// that stands on its page. Nothing is drawn.

namespace grapplemont {

/// Something that a career earns points with: `Points` for every `Per` of it.
struct HallMerit {
  const char* Name;
  const char* Rule;  // "2 for each"
  int (*Count)(const Life&);
  int Points;
  int Per;

  int PointsFor(int count) const { return count * Points / Per; }
};
std::span<const HallMerit, kHallMerits> Merits();

/// So many points it takes, and so many are elected in a year at most.
inline constexpr int kHallBar = 190, kElectedAYear = 2;
/// Whoever has not retired must be that old, and nobody is elected after fewer years.
inline constexpr int kHallAge = 40, kHallYears = 5;

int PointsOf(const Life& life);
/// In the order of the ledger's careers.
std::vector<int> PointsOfAll(const Ledger& ledger);

/// Why a career cannot be elected this year, as "Too young: 34"; empty when it can.
std::string WhyNotElected(const World& world, const Life& life);

/// One whom the next vote is about.
struct Nominee {
  Life Of;
  int Points = 0;
  std::string WhyNot;
};
/// Nobody who has been elected; the most points first.
std::vector<Nominee> NomineesOf(const Ledger& ledger, std::size_t most);

/// Elects, tells of it by mail, and notes it in the ledger and in hall.dat. Requires the last day
/// of a year.
void VoteHall(World& world, Ledger& ledger);

/// "Years in the business: 18 (18 points)", of the merits that counted, the most points first.
std::vector<std::string> MeritLines(const HallMember& member);
int PointsOf(const HallMember& member);
/// The members, the latest first.
std::vector<const HallMember*> HallOf(const World& world);

}  // namespace grapplemont
